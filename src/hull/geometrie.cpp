// Plane geometry primitives.  Each function keeps its own digits of pi
// (hull/angle_constants.h).
#include "hull/geometrie.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "hull/angle_constants.h"

namespace tolmar {

double tanDeg(double a) { return std::tan(a * kPi / 180); }

double tanDegWhole(int a) {
  constexpr int kSpan = 720;
  static const auto table = [] {
    std::array<double, 2 * kSpan + 1> t{};
    for (int i = -kSpan; i <= kSpan; ++i) t[static_cast<std::size_t>(i + kSpan)] = tanDeg(i);
    return t;
  }();
  if (a < -kSpan || a > kSpan) return tanDeg(a);
  return table[static_cast<std::size_t>(a + kSpan)];
}

double atnDeg(double x) { return std::atan(x) * 180 / kPiShort; }

void intersect2D(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                 double y4, double& xi, double& yi) {
  if (x1 != x2) {
    const double a1 = (y2 - y1) / (x2 - x1);
    const double b1 = y1 - a1 * x1;
    if (x3 != x4) {
      const double a2 = (y4 - y3) / (x4 - x3);
      const double b2 = y3 - a2 * x3;
      if (a1 == a2) {
        xi = (x1 + x2 + x3 + x4) / 4;
        yi = (y1 + y2 + y3 + y4) / 4;
      } else {
        xi = (b2 - b1) / (a1 - a2);
        yi = a1 * xi + b1;
      }
    } else {
      xi = x3;
      yi = y1 + a1 * (x3 - x1);
    }
  } else if (x3 == x4) {
    xi = (x1 + x3) / 2;
    yi = (y1 + y2 + y3 + y4) / 4;
  } else {
    const double a2 = (y4 - y3) / (x4 - x3);
    xi = x1;
    yi = y3 + a2 * (x1 - x3);
  }
}

double polarAngle(double x1, double y1, double x2, double y2) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  if (dx == 0) {
    if (dy > 0) return 1.570796326795;
    if (dy < 0) return 4.712388980385;
    return 0;
  }
  if (dx > 0) return dy >= 0 ? std::atan(dy / dx) : std::atan(dy / dx) + 6.28318530718;
  return std::atan(dy / dx) + kPiShort;
}

void triangleAngles(double a, double b, double c, double& A, double& B, double& C) {
  if (a + b + c < 1e-6) {
    A = B = C = kPi / 3;
    return;
  }
  const double s = (a + b + c) / 2;
  const double t = s * 1e-7;
  if (s - a < t) {
    A = kPi;
    B = C = 0;
  } else if (s - b < t) {
    B = kPi;
    A = C = 0;
  } else if (s - c < t) {
    C = kPi;
    A = B = 0;
  } else {
    A = 2 * std::atan(std::sqrt((s - b) * (s - c) / (s * (s - a))));
    B = 2 * std::atan(std::sqrt((s - a) * (s - c) / (s * (s - b))));
    C = 2 * std::atan(std::sqrt((s - a) * (s - b) / (s * (s - c))));
  }
}

void rotatePoint(double px, double py, double cx, double cy, double angle, double& qx, double& qy) {
  const double dx = px - cx;
  const double dy = py - cy;
  const double r = std::sqrt(dx * dx + dy * dy);
  double theta;
  if (dx == 0) {
    const double sign = dy > 0 ? 1 : (dy < 0 ? -1 : 0);
    theta = sign * kPi / 2;
  } else {
    theta = std::atan(dy / dx);
    if (dx < 0) theta += kPi;
  }
  qx = cx + r * std::cos(theta + angle);
  qy = cy + r * std::sin(theta + angle);
}

// sin(a2 - a1) is never exactly 0 for a2 != a1, so both shifts stay finite;
// they grow large as the path comes near to folding back or to straight.
void cornerShiftNext(double x0, double y0, double x1, double y1, double x2, double y2, double d,
                     double& ox, double& oy) {
  const double a1 = polarAngle(x0, y0, x1, y1);
  const double a2 = polarAngle(x1, y1, x2, y2);
  if (a2 - a1 == 0) {
    ox = x1 + d * std::cos(a1);
    oy = y1 + d * std::sin(a1);
    return;
  }
  const double k = d / std::sin(a2 - a1);
  ox = x1 - k * std::cos(a2);
  oy = y1 - k * std::sin(a2);
}

void cornerShiftPrev(double x0, double y0, double x1, double y1, double x2, double y2, double d,
                     double& ox, double& oy) {
  const double a1 = polarAngle(x0, y0, x1, y1);
  const double a2 = polarAngle(x1, y1, x2, y2);
  if (a2 - a1 == 0) {
    ox = x1 + d * std::cos(a1);
    oy = y1 + d * std::sin(a1);
    return;
  }
  const double k = d / std::sin(a2 - a1);
  ox = x1 + k * std::cos(a1);
  oy = y1 + k * std::sin(a1);
}

void normalOffset(double x1, double y1, double x2, double y2, double d, double& ox, double& oy) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  const double len = std::sqrt(dx * dx + dy * dy);
  if (len == 0) {
    ox = x1;
    oy = y1 + d;
    return;
  }
  ox = x2 - dy * d / len;
  oy = y2 + dx * d / len;
}

}  // namespace tolmar
