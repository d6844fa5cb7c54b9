#include "development/calc_develop.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "hull/geometrie.h"

namespace tolmar {

namespace {

struct P3 {
  double x, y, z;
  bool operator==(const P3&) const = default;  // exact: no tolerance
};

double dist(const P3& p, const P3& q) {
  return std::sqrt((p.x - q.x) * (p.x - q.x) + (p.y - q.y) * (p.y - q.y) +
                   (p.z - q.z) * (p.z - q.z));
}

// B of the triangle with sides a, b, c: the angle between sides a and c.
double angleB(double a, double b, double c) {
  double A = 0, B = 0, C = 0;
  triangleAngles(a, b, c, A, B, C);
  return B;
}

}  // namespace

double levellingAngle(double x1, double y1, double x2, double y2) {
  const double num = y1 - y2;
  const double den = x2 - x1;
  if (den == 0) {
    if (num == 0) return 0;
    return num > 0 ? std::numbers::pi / 2 : -std::numbers::pi / 2;
  }
  return std::atan(num / den);
}

DevEdges devEdgesOf(const HullStore& h) { return DevEdges{h.devXi, h.devYi, h.devXs, h.devYs}; }

void storeDevEdges(HullStore& h, const DevEdges& d) {
  h.devXi = d.xi;
  h.devYi = d.yi;
  h.devXs = d.xs;
  h.devYs = d.ys;
}

void calcDevelop(HullStore& h, int n, int line, const TableRef& x, const TableRef& y,
                 const TableRef& z) {
  DevEdges d = devEdgesOf(h);
  calcDevelop(d, h.iMaxBeam, n, line, x, y, z);
  storeDevEdges(h, d);
}

void calcDevelop(DevEdges& d, int iMaxBeam, int n, int line, const TableRef& x, const TableRef& y,
                 const TableRef& z) {
  const int lo = line, up = line + 1, last = n + 2;
  auto P = [&](int l, int i) { return P3{x(l, i), y(l, i), z(l, i)}; };
  auto& xi = d.xi;
  auto& yi = d.yi;
  auto& xs = d.xs;
  auto& ys = d.ys;

  // The starting rung.
  constexpr int s = 10;
  double b = dist(P(up, s), P(lo, s));
  xi(s) = 0;
  yi(s) = 0;
  xs(s) = 0;
  ys(s) = b;

  // Aft sweep: anticlockwise from the rung, towards negative X.
  for (int i = s; i >= 1; --i) {
    double a = b;
    if (!(P(lo, i - 1) == P(lo, i))) {
      const double phi = polarAngle(xi(i), yi(i), xs(i), ys(i));
      b = dist(P(lo, i - 1), P(up, i));
      const double c = dist(P(lo, i), P(lo, i - 1));
      const double B = angleB(a, b, c);
      xi(i - 1) = xi(i) + c * std::cos(phi + B);
      yi(i - 1) = yi(i) + c * std::sin(phi + B);
    } else {
      xi(i - 1) = xi(i);
      yi(i - 1) = yi(i);
    }
    a = b;
    if (!(P(up, i - 1) == P(up, i))) {
      const double phi = polarAngle(xs(i), ys(i), xi(i - 1), yi(i - 1));
      b = dist(P(up, i - 1), P(lo, i - 1));
      const double c = dist(P(up, i), P(up, i - 1));
      const double B = angleB(a, b, c);
      xs(i - 1) = xs(i) + c * std::cos(phi - B);
      ys(i - 1) = ys(i) + c * std::sin(phi - B);
    } else {
      xs(i - 1) = xs(i);
      ys(i - 1) = ys(i);
    }
  }

  // Forward sweep: clockwise from the same rung, towards positive X.
  b = dist(P(up, s), P(lo, s));
  for (int i = s; i <= n + 1; ++i) {
    double a = b;
    if (!(P(lo, i) == P(lo, i + 1))) {
      const double phi = polarAngle(xi(i), yi(i), xs(i), ys(i));
      b = dist(P(lo, i + 1), P(up, i));
      const double c = dist(P(lo, i + 1), P(lo, i));
      const double B = angleB(a, b, c);
      xi(i + 1) = xi(i) + c * std::cos(phi - B);
      yi(i + 1) = yi(i) + c * std::sin(phi - B);
    } else {
      xi(i + 1) = xi(i);
      yi(i + 1) = yi(i);
    }
    a = b;
    if (!(P(up, i) == P(up, i + 1))) {
      const double phi = polarAngle(xs(i), ys(i), xi(i + 1), yi(i + 1));
      b = dist(P(up, i + 1), P(lo, i + 1));
      const double c = dist(P(up, i + 1), P(up, i));
      const double B = angleB(a, b, c);
      xs(i + 1) = xs(i) + c * std::cos(phi + B);
      ys(i + 1) = ys(i) + c * std::sin(phi + B);
    } else {
      xs(i + 1) = xs(i);
      ys(i + 1) = ys(i);
    }
  }

  // Levelling: one chord of the plate made horizontal.
  double theta = 0;
  if (line == 0) {
    // iMaxBeam is 5..77 once the first screen has run; held inside the
    // plate for a store that has not been validated.
    const int m = std::clamp<int>(iMaxBeam, 2, last - 2);
    theta = levellingAngle(xi(m - 2), yi(m - 2), xi(m + 2), yi(m + 2));
  } else if (line == 1) {
    theta = levellingAngle(xi(0), yi(0), xi(last), yi(last));
  } else {
    theta = levellingAngle(xs(0), ys(0), xs(last), ys(last));
  }

  // Rotation about the origin, then into the first quadrant.
  const double ct = std::cos(theta), st = std::sin(theta);
  double minX = 99999.9, minY = 99999.9;
  auto turn = [&](double& px, double& py) {
    const double qx = ct * px - st * py;
    const double qy = st * px + ct * py;
    px = qx;
    py = qy;
    if (qx < minX) minX = qx;
    if (qy < minY) minY = qy;
  };
  for (int i = 0; i <= last; ++i) {
    turn(xi(i), yi(i));
    turn(xs(i), ys(i));
  }
  for (int i = 0; i <= last; ++i) {
    xi(i) -= minX;
    xs(i) -= minX;
    yi(i) -= minY;
    ys(i) -= minY;
  }
}

void developBottom(HullStore& h) {
  calcDevelop(h, kBottomLastPoint - 2, 0, h.edgeXRef(), h.edgeYRef(), h.edgeZRef());
}

void developPlank(HullStore& h, int k) {
  calcDevelop(h, kPlankLastPoint - 2, k, h.lineXRef(), h.lineZRef(), h.lineYRef());
}

DevEdges bottomEdges(const HullStore& h, DevEdges d) {
  calcDevelop(d, h.iMaxBeam, kBottomLastPoint - 2, 0, h.edgeXRef(), h.edgeYRef(), h.edgeZRef());
  return d;
}

DevEdges plankEdges(const HullStore& h, int k, DevEdges d) {
  calcDevelop(d, h.iMaxBeam, kPlankLastPoint - 2, k, h.lineXRef(), h.lineZRef(), h.lineYRef());
  return d;
}

}  // namespace tolmar
