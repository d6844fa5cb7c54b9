// Sampling of the hull equations into the line, edge and bevel tables.
#include "hull/line_generation.h"

#include <algorithm>
#include <cmath>

#include "hull/angle_constants.h"
#include "hull/chine_equations.h"
#include "hull/geometrie.h"

namespace tolmar {

namespace {

constexpr double kHalfPi = kPi / 2;

void busyStep(const BusyStep& busy, int i) {
  if (busy) busy(i);
}

void setPoint(HullStore& h, int line, int p, double x) {
  const ChinePoint c = chinePoint(h, line, x);
  h.lineX(line, p) = x;
  h.lineY(line, p) = c.y;
  h.lineZ(line, p) = c.z;
}

int clampLine(int n) { return std::clamp(n, 0, kMaxLine); }

// Forward end on a pointed stem: where line n reaches the centre plane,
// bracketed from the end of the line below.
double pointedStemEnd(const HullStore& h, int n) {
  const double start = h.xFwd(n - 1);
  double lo, hi;
  if (chineY(h, n, start) > 0) {
    lo = start;
    hi = lo * 1.04;
  } else {
    hi = start;
    lo = hi * 0.96;
  }
  double c = crossingX(0, lo, chineY(h, n, lo), hi, chineY(h, n, hi));
  if (std::abs(chineY(h, n, c)) > 0.0001) {
    for (int i = 0; i < 4; ++i) {
      if (c > hi) {
        lo = hi;
        hi = c + 0.01;
      } else if (c < lo) {
        hi = lo;
        lo = c - 0.01;
      } else {
        lo = (c + lo) / 2;
        hi = (c + hi) / 2;
      }
      c = crossingX(0, lo, chineY(h, n, lo), hi, chineY(h, n, hi));
      if (c < h.xFwd(0)) c = h.xFwd(0);
    }
  }
  return c;
}

// Forward end on a pram bow: the bow plane through the end of the line
// below, leaning bowTurn x bowAngle degrees; the turn flag mirrors the face.
double pramBowEnd(const HullStore& h, int n) {
  const double xBelow = h.xFwd(n - 1);
  const double lean = tanDeg(static_cast<i16>(h.bowTurn(n - 1) * h.bowAngle));
  double z = h.zFwd(n);
  double c = xBelow;
  for (int i = 0; i < 5; ++i) {
    c = xBelow + lean * (z - h.lineZ(n - 1, kLastPoint));
    z = chineZ(h, n, c);
    if (chineY(h, n, c) < 0) break;
  }
  if (c < h.xFwd(0)) c = h.xFwd(0);
  if (chineY(h, n, c) < 0) {
    for (int i = 0; i < 5; ++i) {
      const double t = c * 0.99 - 0.001;
      c = crossingX(0, t, chineY(h, n, t), c, chineY(h, n, c));
    }
  }
  return c;
}

double transomEnd(const HullStore& h, int n) {
  const double xBelow = h.xAft(n - 1);
  const double lean = tanDeg(static_cast<i16>(h.transomTurn(n - 1) * h.transomAngle));
  double z = h.zAft(n);
  double c = xBelow;
  for (int i = 0; i < 5; ++i) {
    c = xBelow + lean * (z - h.lineZ(n - 1, 0));
    z = chineZ(h, n, c);
  }
  if (c > h.xAft(0)) c = h.xAft(0);
  if (chineY(h, n, c) < 0) {
    for (int i = 0; i < 4; ++i) {
      const double t = c * 0.99 + 0.001;
      c = crossingX(0, t, chineY(h, n, t), c, chineY(h, n, c));
      if (c > h.xAft(0)) c = h.xAft(0);
    }
  }
  return c;
}

double finiteOr(double v, double fallback) { return std::isfinite(v) ? v : fallback; }

}  // namespace

double crossingX(double level, double x1, double y1, double x2, double y2) {
  if (x1 != x2 && y1 != y2) {
    const double a = (y2 - y1) / (x2 - x1);
    const double b = y1 - a * x1;
    const double x = (level - b) / a;
    if (std::isfinite(x)) return x;
  }
  return (x1 + x2) / 2;
}

void buildBottomLines(HullStore& h) {
  setPoint(h, 1, 0, h.xAft(1));
  h.lineX(0, 0) = h.xAft(0);
  h.lineY(0, 0) = 0;
  h.lineZ(0, 0) = bottomZ(h, h.xAft(0), 0);
  for (int i = 0; i <= 80; ++i) {
    const int p = i + 1;
    const double x = i / 80.0 * (h.xFwd(0) - h.xAft(0));
    h.lineX(0, p) = x;
    h.lineY(0, p) = 0;
    h.lineZ(0, p) = bottomZ(h, x, 0);
    setPoint(h, 1, p, x);
  }
  setPoint(h, 1, kLastPoint, h.xFwd(1));
  h.lineX(0, kLastPoint) = h.xFwd(0);
  h.lineY(0, kLastPoint) = 0;
  h.lineZ(0, kLastPoint) = bottomZ(h, h.xFwd(0), 0);
}

void buildBottomEdges(HullStore& h) {
  for (int i = 0; i <= 81; ++i) {
    h.edgeX(0, i) = h.lineX(0, i);
    h.edgeY(0, i) = 0;
    h.edgeZ(0, i) = h.lineZ(0, i);
    h.edgeX(1, i) = h.lineX(1, i);
    h.edgeY(1, i) = h.lineY(1, i);
    h.edgeZ(1, i) = h.lineZ(1, i);
  }
  // Index 82 closes the bottom along the stem, 83 ends the plate in a point.
  const double x82 = (h.lineX(1, 82) + h.lineX(0, 82)) / 2;
  const double y82 = (h.lineY(1, 82) + h.lineY(0, 82)) / 2;
  h.edgeX(0, 82) = x82;
  h.edgeY(0, 82) = y82;
  h.edgeZ(0, 82) = bottomZ(h, x82, y82);
  h.edgeX(1, 82) = (h.lineX(1, 81) + h.lineX(1, 82)) / 2;
  h.edgeY(1, 82) = (h.lineY(1, 81) + h.lineY(1, 82)) / 2;
  h.edgeZ(1, 82) = (h.lineZ(1, 81) + h.lineZ(1, 82)) / 2;
  for (int s = 0; s <= 1; ++s) {
    h.edgeX(s, 83) = h.lineX(1, 82);
    h.edgeY(s, 83) = h.lineY(1, 82);
    h.edgeZ(s, 83) = h.lineZ(1, 82);
  }
  if (h.keelAdvance <= 0) return;

  // Forward of the maximum beam each chine-side point moves along the chine
  // onto the ruling through its keel-side partner: 7 passes, clamped at the
  // maximum beam inside the loop.
  const double tK = tanDeg(h.keelAdvance);
  const int iMax = std::clamp<int>(h.iMaxBeam, 0, kLastPoint);
  const double xLimit = h.lineX(1, iMax);
  for (int p = iMax + 1; p <= kLastPoint; ++p) {
    double xs = h.edgeX(0, p);
    for (int i = 0; i < 7; ++i) {
      xs = h.edgeX(0, p) - tK * (chineY(h, 1, xs) - h.edgeY(0, p));
      if (xs < xLimit) xs = xLimit;
    }
    const ChinePoint c = chinePoint(h, 1, xs);
    h.edgeX(1, p) = xs;
    h.edgeY(1, p) = c.y;
    h.edgeZ(1, p) = c.z;
  }
}

bool fitChinePlane(HullStore& h, int n) {
  if (n < 2 || n > kMaxLine) return false;
  const double m = h.xMax(1);
  const double f = h.xFwd(0);
  const double dyF = h.yFwd(n) - h.yAft(n);
  const double dyM = h.yMax(n) - h.yAft(n);
  const double dzF = h.zFwd(n) - h.zAft(n);
  const double dzM = h.zMax(n) - h.zAft(n);
  // Three control points above one another add no Y.
  const double e = (dyM == 0 && dyF == 0) ? dyM + 0.0001 : dyM;
  const double c = (dzF * m - dzM * f) / (dyF * m - e * f);
  const double b = (dzF * dyM - dzM * dyF) / (e * f - dyF * m);
  const double a = h.zAft(n) - c * h.yAft(n);
  if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(c)) return false;
  h.planeA(n) = a;
  h.planeB(n) = b;
  h.planeC(n) = c;
  return true;
}

void fitLineEnds(HullStore& h, int n) {
  if (n < 2 || n > kMaxLine) return;
  const bool onCentre = h.yFwd(n) == 0 && h.yAft(n) == 0;
  if (onCentre) {
    h.xFwd(n) = h.xFwd(n - 1);
    h.xAft(n) = h.xAft(n - 1);
    return;
  }
  const double fwd = h.yFwd(1) <= 0 ? pointedStemEnd(h, n) : pramBowEnd(h, n);
  h.xFwd(n) = finiteOr(fwd, h.xFwd(n - 1));
  h.xAft(n) = finiteOr(transomEnd(h, n), h.xAft(n - 1));
}

void buildLine(HullStore& h, int n, const BusyStep& busy) {
  if (n < 2 || n > kMaxLine) return;
  const double xA = h.xAft(n);
  const double xF = h.xFwd(n);
  setPoint(h, n, 0, xA);
  for (int i = 0; i <= 80; ++i) {
    busyStep(busy, i);
    double x = h.lineX(0, i + 1);
    if (x > xF) {
      x = xF;
    } else if (x < xA) {
      x = xA;
    }
    setPoint(h, n, i + 1, x);
  }
  setPoint(h, n, kLastPoint, xF);
}

void buildBevel(HullStore& h, int n, const BusyStep& busy) {
  if (n < 1 || n > kMaxLine) return;
  if (n > 1 && n < h.nChines) {
    const double a = (h.plankAngle(n) - h.plankAngle(n - 1)) / kDegreesPerRadian;
    for (int p = 0; p <= kLastPoint; ++p) {
      busyStep(busy, p);
      h.bevelAngle(n, p) = a;
    }
    return;
  }
  if (n == h.nChines && n != 1) {
    for (int p = 0; p <= kLastPoint; ++p) {
      busyStep(busy, p);
      h.bevelAngle(n, p) = kHalfPi;
    }
    return;
  }
  if (n != 1) return;

  // The plank below line 1 is the bottom, whose angle to the horizontal is
  // measured on the surface, between the chine and a point at 0.9 of its
  // half breadth.
  auto localAngle = [&h](int p, double& g) {
    const double x = h.edgeX(1, p);
    const double y = 0.9 * h.edgeY(1, p);
    const double z = bottomZ(h, x, y);
    if (h.edgeY(1, p) - y != 0) g = std::atan((h.edgeZ(1, p) - z) / (h.edgeY(1, p) - y));
  };
  double g = h.plankAngle(0) / kDegreesPerRadian;
  localAngle(2, g);
  const bool turnsIn = h.plankAngle(2) < h.plankAngle(1);
  for (int p = 0; p <= kLastPoint; ++p) {
    busyStep(busy, p);
    localAngle(p, g);
    h.bevelAngle(1, p) = turnsIn ? kHalfPi : h.plankAngle(1) / kDegreesPerRadian - g;
  }
}

void buildUpperLines(HullStore& h, const BusyStep& busy) {
  const int top = clampLine(h.nChines);
  for (int n = 2; n <= top; ++n) {
    fitChinePlane(h, n);
    fitLineEnds(h, n);
    buildLine(h, n, busy);
    buildBevel(h, n - 1, busy);
  }
  buildBevel(h, top, busy);
}

}  // namespace tolmar
