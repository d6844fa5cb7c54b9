// Parts of known shape for the sheet tests: rectangles and a long curved
// plank-like strip, in millimetres.
#pragma once

#include <cmath>
#include <string>

#include "sheets/sheet_part.h"

namespace tolmar::sheets::testing {

inline SheetPart rectangle(std::string name, double length, double width, double thickness = 9) {
  SheetPart p;
  p.name = std::move(name);
  p.outline = {{0, 0}, {length, 0}, {length, width}, {0, width}};
  p.thicknessMm = thickness;
  p.densityKgM2 = 5;
  return p;
}

// A strip `length` long, its lower edge a bow of `sag` and its width
// narrowing from `wide` amidships to `narrow` at the ends, 80 steps a side
// as a developed plank has.
inline SheetPart curvedStrip(std::string name, double length, double wide, double narrow,
                             double sag, double thickness = 6) {
  SheetPart p;
  p.name = std::move(name);
  p.thicknessMm = thickness;
  const int n = 80;
  MmPolygon lower, upper;
  for (int i = 0; i <= n; ++i) {
    const double t = static_cast<double>(i) / n, x = t * length;
    const double bow = sag * 4 * t * (1 - t);
    const double w = narrow + (wide - narrow) * std::sin(3.14159265358979 * t);
    p.outline.push_back({x, sag - bow});
    upper.push_back({x, sag - bow + w});
  }
  for (int i = n; i >= 0; --i) p.outline.push_back(upper[i]);
  return p;
}

}  // namespace tolmar::sheets::testing
