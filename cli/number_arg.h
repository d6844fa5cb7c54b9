// A number given on the command line for a screen's field: unlike a typed
// field, which reads "nan" or "1e999" silently as 0 or the largest double,
// the command line takes only a whole, finite number within a range, and
// says what is wrong otherwise.
#pragma once

#include <optional>
#include <string>

namespace tolmar::cli {

struct NumberRange {
  double lo;
  double hi;
  bool openEnds = false;  // lo and hi themselves refused
};

// The value of `text` (a decimal comma taken as a point) when all of it is
// one finite number within the range; otherwise prints
// "tolmar-cli CMD: OPTION takes WHAT, not 'TEXT'" and gives nothing.
std::optional<double> numberArg(const std::string& command, const std::string& option,
                                const std::string& text, NumberRange range, const char* what);

}  // namespace tolmar::cli
