// Validated hulls for the development tests and benchmark: the store
// derivations of the bottom screen, the planks screen and automatic
// planking for values already in range, and the station sections, all
// without the screens' fields.  Header-only so that bench/ can share it.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

#include "hull/chine_equations.h"
#include "hull/default_hull.h"
#include "hull/geometrie.h"
#include "hull/hull_store.h"
#include "hull/line_generation.h"

namespace tolmar::fixture {

// Control values of lines 0 and 1, the plane and ends of line 1, then the
// bottom lines and edges, as a validation of the bottom screen that changed
// nothing.
inline void validateBottom(HullStore& h) {
  h.xAft(0) = 0;
  h.xFwd(1) = h.xFwd(0);
  h.xAft(1) = h.xAft(0);
  for (int k = 5; k <= 77; ++k)
    if ((k - 1) * h.xFwd(0) / 80 <= h.xMax(1)) h.iMaxBeam = static_cast<i16>(k);
  h.xMax(1) = (h.iMaxBeam - 1) * h.xFwd(0) / 80;
  h.zMax(1) = 0;
  h.xMax(0) = h.xMax(1) + tanDeg(h.keelAdvance) * h.yMax(1);
  h.yMax(0) = 0;
  h.zMax(0) = h.zMax(1) - tanDeg(h.plankAngle(0)) * h.yMax(1);
  h.transomAngle = static_cast<i16>(-std::abs(h.transomAngle));

  h.zFwd(0) = bottomZ(h, h.xFwd(0), 0);
  h.zAft(0) = bottomZ(h, h.xAft(0), 0);
  h.zMax(0) = bottomZ(h, h.xMax(1), 0);
  for (int k = 2; k <= 4; ++k) {
    h.zFwd(k) = std::max(h.zFwd(k), h.zFwd(k - 1));
    h.zMax(k) = std::max(h.zMax(k), h.zMax(k - 1));
    h.zAft(k) = std::max(h.zAft(k), h.zAft(k - 1));
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

  double x = h.xFwd(0), z = h.zFwd(1);
  for (int pass = 0; pass < 10; ++pass) {
    double y = 0;
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
  for (int pass = 0; pass < 10; ++pass) {
    x = h.xAft(0) + tanDeg(h.transomAngle) * (z - h.zAft(0));
    z = chineZ(h, 1, x);
  }
  h.xAft(1) = x;

  buildBottomLines(h);
  buildBottomEdges(h);
}

// Half breadth of line n at one control station from the line below, with
// the centre-plane rule of the planks screen; `roundUp` is its constant.
inline void deriveEnd(double& yN, double& zN, double yBelow, double zBelow, double t, bool level,
                      double roundUp, double yFloor) {
  yN = yBelow + t * (zN - zBelow);
  if (yN < 0 && !level) {
    zN = zN - yN / t;
    zN = (std::floor(zN * 10000) + roundUp) / 10000;
    yN = yFloor;
  }
}

// Lines 2..nChines from their heights and the plank angles, as a
// validation of the planks screen that changed nothing.
inline void validatePlanks(HullStore& h) {
  for (int n = 2; n <= h.nChines; ++n) {
    h.xMax(n) = h.xMax(n - 1);
    const double a = 90 - h.plankAngle(n - 1);
    const double t = tanDeg(a);
    const bool level = a == 0;
    deriveEnd(h.yFwd(n), h.zFwd(n), h.yFwd(n - 1), h.zFwd(n - 1), t, level, 0.5, 0);
    deriveEnd(h.yAft(n), h.zAft(n), h.yAft(n - 1), h.zAft(n - 1), t, level, 0.5, 0);
    deriveEnd(h.yMax(n), h.zMax(n), h.yMax(n - 1), h.zMax(n - 1), t, level, 0, 0.001);
    if (h.yMax(n) < h.yAft(n) && !level) {
      h.zMax(n) = h.zMax(n - 1) - (h.yMax(n - 1) - h.yAft(n)) / t;
      h.zMax(n) = (std::floor(h.zMax(n) * 10000) + 1) / 10000;
      h.yMax(n) = h.yMax(n - 1) + t * (h.zMax(n) - h.zMax(n - 1));
    }
  }
  buildUpperLines(h);
}

// Automatic planking with stemShape 0: `planks` side planks of even width
// at each station, inclinations from `first` by `step` degrees.
inline void autoPlanks(HullStore& h, int planks, int first, int step, double zAft, double zMax,
                       double zFwd) {
  constexpr double kPi = 3.14159265358979;
  h.nChines = static_cast<i16>(planks + 1);
  for (int k = 1; k <= h.nChines; ++k) h.bowTurn(k) = h.transomTurn(k) = 1;
  h.plankAngle(1) = static_cast<i16>(first);
  for (int k = 2; k <= h.nChines; ++k) {
    h.xMax(k) = h.xMax(1);
    h.plankAngle(k) = static_cast<i16>(h.plankAngle(k - 1) + step);
  }
  double d = 0;
  for (int j = 1; j <= planks; ++j) d += std::sin(h.plankAngle(j) * kPi / 180);
  const int top = h.nChines;
  const double wF = (zFwd - h.zFwd(1)) / d, wM = (zMax - h.zMax(1)) / d,
               wA = (zAft - h.zAft(1)) / d;
  for (int l = 2; l <= top; ++l) {
    const double a = h.plankAngle(l - 1) * kPi / 180;
    h.zFwd(l) = h.zFwd(l - 1) + wF * std::sin(a);
    h.yFwd(l) = h.yFwd(l - 1) + wF * std::cos(a);
    h.zMax(l) = h.zMax(l - 1) + wM * std::sin(a);
    h.yMax(l) = h.yMax(l - 1) + wM * std::cos(a);
    h.zAft(l) = h.zAft(l - 1) + wA * std::sin(a);
    h.yAft(l) = h.yAft(l - 1) + wA * std::cos(a);
  }
  buildUpperLines(h);
}

// The station sections, rows 0..82, as a redraw builds them.
inline void buildStations(HullStore& h) {
  for (int p = 0; p <= kLastPoint; ++p) {
    for (int i = 0; i <= 10; ++i) {
      const double x = h.lineX(0, p) + (h.lineX(1, p) - h.lineX(0, p)) * i / 10;
      h.stationX(p, i) = x;
      if (p == kLastPoint) {
        const double z = h.lineZ(0, p) + (h.lineZ(1, p) - h.lineZ(0, p)) * i / 10;
        h.stationZ(p, i) = z;
        h.stationY(p, i) = bottomY(h, x, z);
      } else {
        const double y = i * h.lineY(1, p) / 10;
        h.stationY(p, i) = y;
        h.stationZ(p, i) = bottomZ(h, x, y);
      }
    }
    for (int n = 2; n <= h.nChines; ++n) {
      h.stationX(p, n + 9) = h.lineX(n, p);
      h.stationY(p, n + 9) = h.lineY(n, p);
      h.stationZ(p, n + 9) = h.lineZ(n, p);
    }
  }
}

// The default hull, bottom and planks validated, stations built.
inline std::unique_ptr<HullStore> defaultHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  validateBottom(*h);
  validatePlanks(*h);
  buildStations(*h);
  return h;
}

// A pram bow (yFwd(1) > 0) with four lines.
inline std::unique_ptr<HullStore> pramBowHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  h->yFwd(1) = 0.3;
  h->nChines = 4;
  validateBottom(*h);
  validatePlanks(*h);
  buildStations(*h);
  return h;
}

// 21 lines by automatic planking: 20 side planks from 45 degrees by 3.
inline std::unique_ptr<HullStore> manyLineHull() {
  auto h = std::make_unique<HullStore>();
  initDefaultHull(*h);
  validateBottom(*h);
  autoPlanks(*h, 20, 45, 3, 1.1, 1.05, 1.25);
  buildStations(*h);
  return h;
}

}  // namespace tolmar::fixture
