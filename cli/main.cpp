// tolmar-cli: the hull engine without a display.  Exit status 0 on success,
// 1 when a file cannot be read or written, 2 when a hull cannot be validated
// or the command line is wrong.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>

#include "command.h"
#include "completion.h"
#include "screens/menu2.h"
#include "tolmar_version.h"

namespace tolmar::cli {
std::vector<Command>& commands() {
  static std::vector<Command> all;
  return all;
}
}  // namespace tolmar::cli

namespace {

void printHelp() {
  std::printf("usage: tolmar-cli COMMAND [ARGS]\n       tolmar-cli --help | --version\n\n");
  std::printf(
      "Designs hard-chine and lap-strake hulls from the command line: opens,\n"
      "validates and exports hull files (.D50, .D51) as the desktop program does.\n\n");
  auto cmds = tolmar::cli::commands();
  std::sort(cmds.begin(), cmds.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  std::printf("Commands:\n");
  for (const auto& c : cmds) {
    std::printf("  tolmar-cli %s %s\n", c.name.c_str(), c.usage.c_str());
    // Two blanks more than the usage, so that the manual page made from
    // this help (help2man) keeps usage and text apart.
    std::size_t from = 0;
    while (from < c.help.size()) {
      const std::size_t end = std::min(c.help.find('\n', from), c.help.size());
      std::printf("  %s\n", c.help.substr(from, end - from).c_str());
      from = end + 1;
    }
    std::printf("\n");
  }
}

// The package's version, then the version words of the start screen.
void printVersion() {
  std::string words = tolmar::screens::kMenu2VersionDate;
  words.erase(0, words.find_first_not_of(' '));
  words.erase(words.find_last_not_of(' ') + 1);
  std::printf("tolmar-cli %s\n", TOLMAR_VERSION);
  std::printf("Start screen: Tolmar2008, version %s\n", words.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || std::string(argv[1]) == "--help" || std::string(argv[1]) == "-h" ||
      std::string(argv[1]) == "help") {
    printHelp();
    return argc < 2 ? 2 : 0;
  }
  if (std::string(argv[1]) == "--version") {
    printVersion();
    return 0;
  }
  if (std::string(argv[1]) == "--complete") {
    // For the bash completion: one word a line (completion.h).
    for (const auto& w : tolmar::cli::completions(tolmar::cli::commands(), {argv + 2, argv + argc}))
      std::printf("%s\n", w.c_str());
    return 0;
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
