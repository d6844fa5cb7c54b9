// tolmar-cli: the hull engine without a display.  Exit status 0 on success,
// 1 when a file cannot be read or written, 2 when a hull cannot be validated
// or the command line is wrong.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>

#include "command.h"

namespace tolmar::cli {
std::vector<Command>& commands() {
  static std::vector<Command> all;
  return all;
}
}  // namespace tolmar::cli

namespace {

void printHelp() {
  std::printf("usage: tolmar-cli COMMAND [ARGS]\n\n");
  std::printf(
      "Designs hard-chine and lap-strake hulls from the command line: opens,\n"
      "validates and exports hull files (.D50, .D51) as the desktop program does.\n\n");
  auto cmds = tolmar::cli::commands();
  std::sort(cmds.begin(), cmds.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  for (const auto& c : cmds) {
    std::printf("  tolmar-cli %s %s\n", c.name.c_str(), c.usage.c_str());
    std::printf("%s\n\n", c.help.c_str());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || std::string(argv[1]) == "--help" || std::string(argv[1]) == "-h" ||
      std::string(argv[1]) == "help") {
    printHelp();
    return argc < 2 ? 2 : 0;
  }
  const std::string name = argv[1];
  tolmar::cli::Args args(argv + 2, argv + argc);
  for (const auto& c : tolmar::cli::commands()) {
    if (c.name != name) continue;
    if (std::find(args.begin(), args.end(), "--help") != args.end()) {
      std::printf("usage: tolmar-cli %s %s\n%s\n", c.name.c_str(), c.usage.c_str(), c.help.c_str());
      return 0;
    }
    try {
      return c.run(args);
    } catch (const std::exception& e) {
      std::fprintf(stderr, "tolmar-cli %s: %s\n", name.c_str(), e.what());
      return 2;
    }
  }
  std::fprintf(stderr, "tolmar-cli: unknown command '%s' (see tolmar-cli --help)\n", name.c_str());
  return 2;
}
