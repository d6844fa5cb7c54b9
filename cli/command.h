// tolmar-cli's commands register themselves here, one file each, so that a
// new command needs no edit of main.cpp.
#pragma once

#include <string>
#include <vector>

namespace tolmar::cli {

using Args = std::vector<std::string>;  // the words after the command's name

struct Command {
  std::string name;
  std::string usage;  // one line: arguments and options
  std::string help;   // what it does, a few lines
  int (*run)(const Args& args);
  // The words that may stand where the usage says KIND, for the shell's
  // completion; "plank-xyz:N" offers "plank-xyz:".  None when null.
  const std::vector<std::string>& (*kinds)() = nullptr;
};

std::vector<Command>& commands();

struct Register {
  explicit Register(Command c) { commands().push_back(std::move(c)); }
};

}  // namespace tolmar::cli
