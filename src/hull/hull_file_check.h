// Whether a file can be a hull file at all, for the command line, which
// must not take an empty file or a picture for a hull of zeros.  The
// program's Open reads anything, as it always has.
#pragma once

#include <filesystem>
#include <istream>
#include <string>

namespace tolmar {

// An empty text when the text may be a hull file in any of its layouts;
// otherwise why it is not: it is empty, it holds binary bytes, or not one
// of its first lines holds a number.
std::string notAHullFile(std::istream& in);
std::string notAHullFile(const std::filesystem::path& path);

}  // namespace tolmar
