// Sizes in the sheets' messages: whole millimetres ("1336 mm") and metres to
// the centimetre ("2.10 m", a length given in mm).
#pragma once

#include <cstdio>
#include <string>

namespace tolmar::sheets {

inline std::string mmText(double mm) {
  char b[32];
  std::snprintf(b, sizeof b, "%.0f mm", mm);
  return b;
}

inline std::string metresText(double mm) {
  char b[32];
  std::snprintf(b, sizeof b, "%.2f m", mm / 1000);
  return b;
}

}  // namespace tolmar::sheets
