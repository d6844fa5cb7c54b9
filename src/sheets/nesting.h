// Pieces laid on as few sheets as libnest2d finds, its no-fit-polygon
// placer and first-fit selection.  Only standard and Clipper types here:
// the library's headers build as C++17 only, in nesting.cpp alone.
#pragma once

#include <polyclipping/clipper.hpp>
#include <vector>

namespace tolmar::sheets {

struct NestRequest {
  std::vector<ClipperLib::Path> shapes;  // hundredths of a millimetre
  // The area a piece may take, margins off, in the same units.
  ClipperLib::cInt x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  ClipperLib::cInt gap = 0;  // the kerf
  bool rotate90 = false;
};

struct NestPlace {
  int bin = -1;         // -1: not placed
  double rotation = 0;  // radians, about the shape's own origin
  ClipperLib::cInt dx = 0, dy = 0;
};

std::vector<NestPlace> nestShapes(const NestRequest& r);

}  // namespace tolmar::sheets
