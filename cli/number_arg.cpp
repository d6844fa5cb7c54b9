#include "number_arg.h"

#include <cmath>
#include <cstdio>

#include "text/data_line.h"
#include "text/number_reader.h"

namespace tolmar::cli {

std::optional<double> numberArg(const std::string& command, const std::string& option,
                                const std::string& text, NumberRange range, const char* what) {
  std::string clean = text;
  cleanNumber(clean);
  const auto last = clean.find_last_not_of(" \t");
  const NumberScan scan = scanNumber(clean);
  const bool whole = last != std::string::npos && scan.length == last + 1;
  const double v = scan.value;
  const bool inside =
      range.openEnds ? v > range.lo && v < range.hi : v >= range.lo && v <= range.hi;
  if (whole && !scan.overflow && std::isfinite(v) && inside) return v;
  std::fprintf(stderr, "tolmar-cli %s: %s takes %s, not '%s'\n", command.c_str(), option.c_str(),
               what, text.c_str());
  return std::nullopt;
}

}  // namespace tolmar::cli
