// How the analysis screens read a field's number: the tolerant reader (0
// for a text that is no number, reading stops at the first character that
// cannot belong to it), held to +-1e9 so that every product and sum the
// screens form stays finite.  Analysis screens limit input silently.
#pragma once

#include <string>

namespace tolmar::analysis {

inline constexpr double kInputLimit = 1e9;

double readField(const std::string& text);

}  // namespace tolmar::analysis
