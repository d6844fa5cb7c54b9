// tolmar-cli open: reads a hull file as the program's Open does (any older
// layout, lines rebuilt) and prints the store as JSON.
#include <cstdio>
#include <memory>

#include "cli_session_args.h"
#include "command.h"
#include "hull/default_hull.h"
#include "hull/fold_check.h"
#include "hull/hull_file.h"
#include "json_dump.h"
#include "store_json.h"

namespace {

int run(const tolmar::cli::Args& args) {
  if (args.size() != 1) {
    std::fprintf(stderr, "usage: tolmar-cli open HULL.D50\n");
    return 2;
  }
  // The store as the program has it when it starts: the default hull, which
  // the older layouts partly keep (flags of lines above 3).
  auto h = std::make_unique<tolmar::HullStore>();
  tolmar::initDefaultHull(*h);
  const tolmar::FileResult r = tolmar::openHullFile(args[0], *h);
  if (!r.ok) {
    std::fprintf(stderr, "tolmar-cli open: %s: %s\n", args[0].c_str(), r.message.c_str());
    return 1;
  }
  tolmar::cli::printFolds(tolmar::checkFolds(*h), 1);  // English, as the other commands
  const std::string text = tolmar::cli::dumpJson(tolmar::cli::storeJson(*h)) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

tolmar::cli::Register reg(
    {"open", "HULL.D50",
     "  Reads a hull file (.D50, or an old .D51 or older layout), rebuilds its\n"
     "  lines and prints the store as JSON: inputs, control values, planes,\n"
     "  line points and bottom edges, doubles to 17 digits.  Where the hull\n"
     "  folds is told on stderr.",
     &run});

}  // namespace
