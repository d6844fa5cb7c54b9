// Hulls for the geometry tests and benchmarks.  They derive the control
// values with the hull screens' own derivations, for inputs already inside
// their ranges (a validation that changes nothing),
// so that the engine is tested on the hulls the program really builds.
#pragma once

#include <cmath>

#include "hull/angle_constants.h"
#include "hull/chine_equations.h"
#include "hull/default_hull.h"
#include "hull/geometrie.h"
#include "hull/hull_store.h"
#include "hull/line_generation.h"
#include "screens/bottom_derivation.h"
#include "screens/plank_breadths.h"

namespace tolmar::testing {

// The first screen's derivations, for inputs already inside their ranges:
// maximum beam snapped to a station, keel control values, the plane and
// the true ends of line 1, then lines 0 and 1 and the bottom edges.
inline void validateBottom(HullStore& h) {
  h.xAft(0) = 0;
  h.xFwd(1) = h.xFwd(0);
  h.xAft(1) = h.xAft(0);
  for (int k = 5; k <= 77; ++k) {
    if ((k - 1) * h.xFwd(0) / 80 <= h.xMax(1)) h.iMaxBeam = static_cast<i16>(k);
  }
  h.xMax(1) = (h.iMaxBeam - 1) * h.xFwd(0) / 80;
  h.zMax(1) = 0;
  h.xMax(0) = h.xMax(1) + tanDeg(h.keelAdvance) * h.yMax(1);
  h.yMax(0) = 0;
  h.zMax(0) = h.zMax(1) - tanDeg(h.plankAngle(0)) * h.yMax(1);

  // The screen's own derivations: keel heights, plane and true ends of
  // line 1.
  deriveBottomHeights(h);
  fitFirstChinePlane(h);
  fitFirstChineEnds(h);
  buildBottomLines(h);
  buildBottomEdges(h);
}

inline HullStore validatedDefaultHull() {
  HullStore h;
  initDefaultHull(h);
  validateBottom(h);
  return h;
}

// Half breadths of lines 2..nChines from the heights typed for them, as
// the planks screen derives them.
inline void derivePlankBreadths(HullStore& h) {
  for (int n = 2; n <= h.nChines; ++n) {
    h.xMax(n) = h.xMax(n - 1);
    deriveYFwd(h, n);
    deriveYAft(h, n);
    deriveYMax(h, n);
  }
}

// The default hull with its five lines built by the planks screen.
inline HullStore plankedDefaultHull() {
  HullStore h = validatedDefaultHull();
  derivePlankBreadths(h);
  buildUpperLines(h);
  return h;
}

// The default bottom under `planks` side planks placed as automatic
// planking does: inclinations from `firstAngle` up by `step` degrees,
// planks of even width (stem shape 0) up to the given sheer heights.
inline void placeAutoPlanks(HullStore& h, int planks, int firstAngle, int step, double zFwdSheer,
                            double zMaxSheer, double zAftSheer) {
  const int top = planks + 1;
  h.nChines = static_cast<i16>(top);
  if (top > 4) {
    for (int k = 1; k <= top; ++k) h.bowTurn(k) = h.transomTurn(k) = 1;
  }
  h.plankAngle(1) = static_cast<i16>(firstAngle);
  for (int k = 2; k <= top; ++k) {
    h.xMax(k) = h.xMax(1);
    h.plankAngle(k) = static_cast<i16>(h.plankAngle(k - 1) + step);
  }
  h.zFwd(top) = zFwdSheer;
  h.zMax(top) = zMaxSheer;
  h.zAft(top) = zAftSheer;
  double sines = 0;
  for (int j = 1; j <= planks; ++j) sines += std::sin(h.plankAngle(j) * kPi / 180);
  for (int n = 2; n <= top; ++n) {
    const double a = h.plankAngle(n - 1) * kPi / 180;
    const double wF = (h.zFwd(top) - h.zFwd(1)) / sines;
    const double wM = (h.zMax(top) - h.zMax(1)) / sines;
    const double wA = (h.zAft(top) - h.zAft(1)) / sines;
    h.zFwd(n) = h.zFwd(n - 1) + wF * std::sin(a);
    h.yFwd(n) = h.yFwd(n - 1) + wF * std::cos(a);
    h.zMax(n) = h.zMax(n - 1) + wM * std::sin(a);
    h.yMax(n) = h.yMax(n - 1) + wM * std::cos(a);
    h.zAft(n) = h.zAft(n - 1) + wA * std::sin(a);
    h.yAft(n) = h.yAft(n - 1) + wA * std::cos(a);
  }
}

// 20 side planks, 21 lines: inclinations 20, 23, .. 77 degrees, sheer
// 1.3 m forward, 1.0 m at the maximum beam, 1.1 m aft.
inline HullStore twentyPlankHull() {
  HullStore h = validatedDefaultHull();
  placeAutoPlanks(h, 20, 20, 3, 1.3, 1.0, 1.1);
  buildUpperLines(h);
  return h;
}

}  // namespace tolmar::testing
