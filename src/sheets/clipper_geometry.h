// Polygon work through Clipper (libpolyclipping) on integer coordinates of
// a hundredth of a millimetre.
#pragma once

#include <polyclipping/clipper.hpp>
#include <vector>

#include "sheets/sheet_part.h"

namespace tolmar::sheets {

inline constexpr double kUnitsPerMm = 100;

ClipperLib::Path toPath(const MmPolygon& p);
MmPolygon fromPath(const ClipperLib::Path& p);

// Repeated and collinear points removed, a self-crossing outline resolved;
// the largest polygon that results.  Empty for an outline with no area.
MmPolygon cleanOutline(const MmPolygon& p);

// The parts of `p` between x0 and x1 (the band across the grain), largest
// first.
std::vector<MmPolygon> clipBand(const MmPolygon& p, double x0, double x1);

// Area (mm2) of the union of a set of polygons.
double unionArea(const std::vector<MmPolygon>& ps);

// Area (mm2) of what two sets of polygons share.
double commonArea(const ClipperLib::Paths& a, const ClipperLib::Paths& b);

// `p` grown by d mm (shrunk for d < 0), round corners.
ClipperLib::Paths grown(const ClipperLib::Path& p, double dMm);

double pathsArea(const ClipperLib::Paths& ps);  // mm2, holes negative

}  // namespace tolmar::sheets
