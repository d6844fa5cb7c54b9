// The closed equations of the hull surface.
#include "hull/chine_equations.h"

#include <cmath>

#include "hull/geometrie.h"

namespace tolmar {

namespace {

// One branch of the first chine: relative distance t from the maximum beam
// (0 there, 1 at the end's control point), exponent, S shape and the end's
// control values.
struct Branch {
  double t, p, s, yE, zE;
};

// A branch of zero length (only in a store the first screen has not
// validated) puts every x at the maximum beam, t = 0, to stay finite.
double relativeDistance(double num, double len) { return len == 0 ? 0 : std::abs(num / len); }

Branch branchAt(const HullStore& h, double x) {
  const double xM = h.xMax(1);
  if (x < xM) {
    return {relativeDistance(xM - x, xM - h.xAft(0)), h.powerAft, h.shapeAft, h.yAft(1), h.zAft(1)};
  }
  return {relativeDistance(x - xM, h.xFwd(0) - xM), h.powerFwd, h.shapeFwd, h.yFwd(1), h.zFwd(1)};
}

}  // namespace

// The first screen holds both exponents in 2.1..5; a hull file read before
// it may bring an exponent of 0 or below, whose power at the maximum beam
// (t = 0) is infinite.  The maximum beam's control point stands in then.
double firstChineY(const HullStore& h, double x) {
  const Branch b = branchAt(h, x);
  const double yM = h.yMax(1);
  const double y =
      b.t <= 1 ? yM - std::pow(b.t, b.p) * (yM - b.yE) : b.yE - (yM - b.yE) * b.p * (b.t - 1);
  return std::isfinite(y) ? y : yM;
}

double firstChineZ(const HullStore& h, double x) {
  const Branch b = branchAt(h, x);
  const double z = b.t <= 1 ? b.zE * (std::pow(b.t, b.p) * (b.s + 1) - std::pow(b.t, b.p + 1) * b.s)
                            : b.zE * (((b.s + 1) * b.p - (b.p + 1) * b.s) * (b.t - 1) + 1);
  return std::isfinite(z) ? z : 0;
}

// Each line is where the plank from the line below, rising at its angle in
// the section, meets the line's plane.  The pair (Y, Z) is carried upward,
// which gives the numbers of the self-calling definition in linear time.
ChinePoint chinePoint(const HullStore& h, int line, double x) {
  ChinePoint pt{firstChineY(h, x), firstChineZ(h, x)};
  const int top = line > kMaxLine ? kMaxLine : line;
  for (int n = 2; n <= top; ++n) {
    const double k = tanDegWhole(90 - h.plankAngle(n - 1));
    const double c = h.planeC(n);
    const double den = 1 - k * c;
    if (den == 0) continue;
    const double q = pt.y - pt.z * k;
    const double d = h.planeA(n) + h.planeB(n) * x;
    const double y = (d * k + q) / den;
    const double z = (q * c + d) / den;
    if (std::isfinite(y) && std::isfinite(z)) pt = {y, z};
  }
  return pt;
}

double chineY(const HullStore& h, int line, double x) { return chinePoint(h, line, x).y; }

double chineZ(const HullStore& h, int line, double x) { return chinePoint(h, line, x).z; }

bool chineDegenerate(const HullStore& h, int line) {
  if (line < 2 || line > kMaxLine) return false;
  return 1 - tanDegWhole(90 - h.plankAngle(line - 1)) * h.planeC(line) == 0;
}

double bottomZ(const HullStore& h, double x, double y) {
  const double tA = tanDeg(h.plankAngle(0));
  const double tK = tanDeg(h.keelAdvance);
  const double xM1 = h.xMax(1);
  const double xM0 = h.xMax(0);
  if (x <= xM1) {
    const ChinePoint c = chinePoint(h, 1, x);
    return c.z - tA * (c.y - y);
  }
  if (x < xM0) {
    // Inboard of the ruling through the maximum beam the bottom keeps the
    // section of the maximum beam.  yMax(1) = 0 only in a store that the
    // first screen has not validated.
    const double yM = h.yMax(1);
    const double yL = yM * (xM0 - x) / (xM0 - xM1);
    if (y <= yL) return yM == 0 ? h.zMax(0) : h.zMax(0) * (1 - y / yM);
  }
  // The ruling through (x, y) starts on the chine at xs: exactly 7 passes,
  // no convergence test.
  double xs = x;
  for (int i = 0; i < 7; ++i) xs = x - tK * (chineY(h, 1, xs) - y);
  const ChinePoint c = chinePoint(h, 1, xs);
  return c.z - tA * (c.y - y);
}

double bottomY(const HullStore& h, double x, double z) {
  const ChinePoint c = chinePoint(h, 1, x);
  if (z >= c.z) return c.y;
  if (z <= bottomZ(h, x, 0)) return 0;
  const double xM1 = h.xMax(1);
  const double xM0 = h.xMax(0);
  if (x <= xM1 && h.plankAngle(0) == 0) return 0;
  if (x > xM1 && h.keelAdvance == 0 && h.plankAngle(0) == 0) return 0;
  const double tA = tanDeg(h.plankAngle(0));
  if (x <= xM1 || h.keelAdvance == 0) return c.y - (c.z - z) / tA;

  const double tK = tanDeg(h.keelAdvance);
  const double s = tA / tK;  // slope of a ruling in the X-Z plane
  double x1, x2;
  if (x >= xM0) {
    x1 = x - tK * h.yMax(1);
    x2 = x;
  } else {
    const double zL = h.zMax(0) * (x - xM1) / (xM0 - xM1);
    if (z <= zL) return h.zMax(0) == 0 ? 0 : h.yMax(1) * (1 - z / h.zMax(0));
    x1 = xM1;
    x2 = x;
  }
  // The ruling through (x, z) in profile against the chord of the chine's
  // profile, at most 7 times, until the chine is met within 1e-5 m.
  double xc = x, zc = z;
  for (int i = 0; i < 7; ++i) {
    intersect2D(0, z + s * x, x, z, x1, chineZ(h, 1, x1), x2, chineZ(h, 1, x2), xc, zc);
    if (std::abs(zc - chineZ(h, 1, xc)) < 1e-5) break;
    x2 = xc * 1.01;
    x1 = xc * 0.99;
  }
  return chineY(h, 1, xc) - (x - xc) / tK;
}

}  // namespace tolmar
