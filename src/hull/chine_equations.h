// The closed equations of the hull: the first chine as a formula in X, each
// higher line from the one below by its plank angle and plane, and the
// bottom as a ruled surface swept at the keel advance angle.  They read the
// store and write nothing, and accept any X, also beyond the hull's ends.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

double firstChineY(const HullStore& h, double x);
double firstChineZ(const HullStore& h, double x);

struct ChinePoint {
  double y = 0, z = 0;
};

// Y and Z of line `line` (>= 1) at x, carried upward from line 1 in one loop.
// A plank parallel to the plane of the next line (1 - k C = 0) has no
// meeting point, and one nearly parallel may meet it beyond the range of
// doubles; the point then stays on the line below, so that the result is
// always finite.  chineDegenerate() tells the screens about the first case.
ChinePoint chinePoint(const HullStore& h, int line, double x);
double chineY(const HullStore& h, int line, double x);
double chineZ(const HullStore& h, int line, double x);
bool chineDegenerate(const HullStore& h, int line);

double bottomZ(const HullStore& h, double x, double y);
double bottomY(const HullStore& h, double x, double z);

}  // namespace tolmar
