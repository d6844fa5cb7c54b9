// What the shell may offer after the words typed so far, read from the
// command table alone: each command's usage line is the grammar, so a new
// command completes without an edit here.
#pragma once

#include <string>
#include <vector>

#include "command.h"

namespace tolmar::cli {

// Stands among the words where a file name may come next.
inline constexpr const char* kFileWord = "@file";

// `typed`: the words after "tolmar-cli", the one being typed left out.
// Without a command: the command names, "--help" and "--version".  After a
// command: its options (those of "[options of NAME]" included) and "--help",
// plus what its usage line allows at that place: the choices "a|b|c", the
// command's kinds where the usage says KIND, kFileWord for a file; or after
// an option that takes a value, the choices of that value.
std::vector<std::string> completions(const std::vector<Command>& table, const Args& typed);

}  // namespace tolmar::cli
