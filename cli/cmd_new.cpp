// tolmar-cli new: a hull from the default one, with values typed into the
// hull screens, validated as a user would, and saved.
#include <cstdio>

#include "cli_session_args.h"
#include "command.h"
#include "hull/hull_file.h"
#include "pipeline.h"

namespace tolmar::cli {
namespace {

int run(const Args& args) {
  SessionArgs a;
  if (!parseSessionArgs(args, false, a)) return 2;
  // "" or "dir/" would save a hidden ".D50" with no name.
  if (hullSavePath(a.file).filename() == ".D50") {
    std::fprintf(stderr, "tolmar-cli new: the hull file needs a name, as in Boat.D50\n");
    return 2;
  }
  PipelineOptions o;
  o.sets = a.sets;
  HullStore h;
  const PipelineResult r = prepareHull(h, o);
  printWarnings(r);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli new: %s\n", r.error.c_str());
    return r.status;
  }
  // As Save does: the name from the file's name, the extension made .D50.
  const std::filesystem::path path = hullSavePath(a.file);
  h.hullName = hullNameFromFileName(a.file.filename().string());
  const FileResult saved = saveHullFile(path, h);
  if (!saved.ok) {
    std::fprintf(stderr, "tolmar-cli new: Tolmar2008 Saving Data: %s: %s\n", path.string().c_str(),
                 saved.message.c_str());
    return 1;
  }
  std::printf("%s\n", path.string().c_str());
  return 0;
}

Register reg({"new", "OUT.D50 [--set SCREEN.CONTROL=VALUE]...",
              "  Starts as the program does (default hull, English), types each --set into\n"
              "  its hull screen (bouchain1.Text1(0)=7.5; bouchain2.OptShear(2) clicks an\n"
              "  option; bouchain3.Text0=8), validates bouchain1, then bouchain2, or bouchain3\n"
              "  when a bouchain3 control is set or the hull has more than six lines, and\n"
              "  saves the hull file.  Replaced values are listed on stderr; a hull that\n"
              "  does not pass its screens exits with status 2.",
              &run});

}  // namespace
}  // namespace tolmar::cli
