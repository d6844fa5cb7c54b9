// Hulls for the geometry tests and benchmarks.  They derive the control
// values as the hull screens do after a validation that changes nothing,
// so that the engine is tested on the hulls the program really builds.
#pragma once

#include <cmath>

#include "hull/chine_equations.h"
#include "hull/default_hull.h"
#include "hull/geometrie.h"
#include "hull/hull_store.h"
#include "hull/line_generation.h"

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

  // Keel heights where the bottom meets the centre plane; lines 2..4 not
  // below the line beneath.
  h.zFwd(0) = bottomZ(h, h.xFwd(0), 0);
  h.zAft(0) = bottomZ(h, h.xAft(0), 0);
  h.zMax(0) = bottomZ(h, h.xMax(1), 0);
  for (int k = 2; k <= 4; ++k) {
    if (h.zFwd(k) < h.zFwd(k - 1)) h.zFwd(k) = h.zFwd(k - 1);
    if (h.zMax(k) < h.zMax(k - 1)) h.zMax(k) = h.zMax(k - 1);
    if (h.zAft(k) < h.zAft(k - 1)) h.zAft(k) = h.zAft(k - 1);
    h.xFwd(k) = h.xFwd(0);
    h.xMax(k) = h.xMax(1);
    h.xAft(k) = h.xAft(0);
  }

  const double lf = h.xFwd(0), lm = h.xMax(1);
  const double dyF = h.yFwd(1) - h.yAft(1), dyM = h.yMax(1) - h.yAft(1);
  const double dzF = h.zFwd(1) - h.zAft(1), dzM = h.zMax(1) - h.zAft(1);
  h.planeC(1) = (dzF * lm - dzM * lf) / (dyF * lm - lf * dyM);
  h.planeB(1) = (dzF * dyM - dzM * dyF) / (lf * dyM - dyF * lm);
  h.planeA(1) = h.zAft(1) - h.planeC(1) * h.yAft(1);

  // Ends of line 1 on the raked stem and transom, ten passes each; a stem
  // whose chine would cross the centre plane loses a degree at a time.
  double x = h.xFwd(0), z = h.zFwd(1);
  for (int i = 0; i < 10; ++i) {
    double y;
    do {
      x = h.xFwd(0) + tanDeg(h.bowAngle) * (z - h.zFwd(0));
      z = chineZ(h, 1, x);
      y = chineY(h, 1, x);
      if (y < 0) --h.bowAngle;
    } while (y < 0 && h.bowAngle > -90);
  }
  h.xFwd(1) = x;
  x = h.xAft(0);
  z = h.zAft(1);
  for (int i = 0; i < 10; ++i) {
    x = h.xAft(0) + tanDeg(h.transomAngle) * (z - h.zAft(0));
    z = chineZ(h, 1, x);
  }
  h.xAft(1) = x;

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
  auto roundDown = [](double v, double add) { return (std::floor(v * 10000) + add) / 10000; };
  for (int n = 2; n <= h.nChines; ++n) {
    h.xMax(n) = h.xMax(n - 1);
    const double a = 90 - h.plankAngle(n - 1);
    const double t = tanDeg(a);
    h.yFwd(n) = h.yFwd(n - 1) + t * (h.zFwd(n) - h.zFwd(n - 1));
    if (h.yFwd(n) < 0 && a != 0) {
      h.zFwd(n) = roundDown(h.zFwd(n) - h.yFwd(n) / t, 0.5);
      h.yFwd(n) = 0;
    }
    h.yAft(n) = h.yAft(n - 1) + t * (h.zAft(n) - h.zAft(n - 1));
    if (h.yAft(n) < 0 && a != 0) {
      h.zAft(n) = roundDown(h.zAft(n) - h.yAft(n) / t, 0.5);
      h.yAft(n) = 0;
    }
    h.yMax(n) = h.yMax(n - 1) + t * (h.zMax(n) - h.zMax(n - 1));
    if (h.yMax(n) < 0 && a != 0) {
      h.zMax(n) = roundDown(h.zMax(n) - h.yMax(n) / t, 0);
      h.yMax(n) = 0.001;
    }
    if (h.yMax(n) < h.yAft(n) && a != 0) {
      h.zMax(n) = roundDown(h.zMax(n - 1) - (h.yMax(n - 1) - h.yAft(n)) / t, 1);
      h.yMax(n) = h.yMax(n - 1) + t * (h.zMax(n) - h.zMax(n - 1));
    }
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
  constexpr double kPi = 3.14159265358979;
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
