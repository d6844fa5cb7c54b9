#include "devcheck/strip_fit.h"

#include <algorithm>
#include <cmath>

namespace tolmar::devcheck {

namespace {

// Below a micrometre a step or a rung has no direction to measure.
constexpr double kTiny = 1e-6;
// A rung closer than this sine to the strip's direction says nothing of the
// curvature across.
constexpr double kMinRungSine = 0.3;

Point3 operator-(const Point3& a, const Point3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Point3 operator+(const Point3& a, const Point3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point3 operator*(double s, const Point3& a) { return {s * a.x, s * a.y, s * a.z}; }
double dot(const Point3& a, const Point3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Point3 cross(const Point3& a, const Point3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double norm(const Point3& a) { return std::sqrt(dot(a, a)); }
double dist(const Point3& a, const Point3& b) { return norm(a - b); }
double dist(const FlatPoint& a, const FlatPoint& b) { return std::hypot(a.x - b.x, a.y - b.y); }
bool finite(const Point3& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}
bool finite(const FlatPoint& p) { return std::isfinite(p.x) && std::isfinite(p.y); }

double triangleArea(const Point3& a, const Point3& b, const Point3& c) {
  return norm(cross(b - a, c - a)) / 2;
}

double radiusOf(double curvature) {
  const double k = std::fabs(curvature);
  return k * kStraightRadius <= 1 ? kStraightRadius : 1 / k;
}

struct View {
  const Strip& s;
  std::size_t n;
  bool ok(std::size_t i) const {
    return finite(s.lower[i]) && finite(s.upper[i]) && finite(s.flatLower[i]) &&
           finite(s.flatUpper[i]);
  }
  Point3 mid(std::size_t i) const { return 0.5 * (s.lower[i] + s.upper[i]); }
};

void measureLengths(const View& v, StripFit& f) {
  const Strip& s = v.s;
  auto take = [&](double flat, double solid, std::size_t i, Measure m) {
    const double e = std::fabs(flat - solid);
    if (e > f.maxError) {
      f.maxError = e;
      f.errorPoint = static_cast<int>(i);
      f.errorMeasure = m;
    }
  };
  double lowLength = 0, upLength = 0;
  for (std::size_t i = 0; i < v.n; ++i) {
    if (!v.ok(i)) continue;
    take(dist(s.flatLower[i], s.flatUpper[i]), dist(s.lower[i], s.upper[i]), i, Measure::rung);
    if (i + 1 == v.n || !v.ok(i + 1)) continue;
    const std::size_t j = i + 1;
    const double lo = dist(s.lower[i], s.lower[j]), up = dist(s.upper[i], s.upper[j]);
    lowLength += lo;
    upLength += up;
    take(dist(s.flatLower[i], s.flatLower[j]), lo, i, Measure::lowerEdge);
    take(dist(s.flatUpper[i], s.flatUpper[j]), up, i, Measure::upperEdge);
    take(dist(s.flatLower[i], s.flatUpper[j]), dist(s.lower[i], s.upper[j]), i,
         Measure::diagonalLowUp);
    take(dist(s.flatUpper[i], s.flatLower[j]), dist(s.upper[i], s.lower[j]), i,
         Measure::diagonalUpLow);
    const double split1 = triangleArea(s.lower[i], s.lower[j], s.upper[j]) +
                          triangleArea(s.lower[i], s.upper[j], s.upper[i]);
    const double split2 = triangleArea(s.lower[i], s.lower[j], s.upper[i]) +
                          triangleArea(s.lower[j], s.upper[j], s.upper[i]);
    f.area += (split1 + split2) / 2;
  }
  f.length = std::max(lowLength, upLength);

  // The pattern's outline: lower edge forward, upper edge back.
  std::vector<FlatPoint> o;
  for (std::size_t i = 0; i < v.n; ++i)
    if (finite(s.flatLower[i])) o.push_back(s.flatLower[i]);
  for (std::size_t i = v.n; i-- > 0;)
    if (finite(s.flatUpper[i])) o.push_back(s.flatUpper[i]);
  double twice = 0;
  for (std::size_t i = 0; i < o.size(); ++i) {
    const FlatPoint& a = o[i];
    const FlatPoint& b = o[(i + 1) % o.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  f.flatArea = std::fabs(twice) / 2;
}

// The unit normal at rung i from the strip's direction there and the rung;
// zero where either has no direction, and at the two end rungs.
std::vector<Point3> normals(const View& v) {
  std::vector<Point3> N(v.n);
  for (std::size_t i = 0; i < v.n; ++i) {
    // Central differences only: a one-sided one tilts the normal of a
    // curved strip at its ends.
    if (i == 0 || i + 1 >= v.n || !v.ok(i - 1) || !v.ok(i) || !v.ok(i + 1)) continue;
    const Point3 t = v.mid(i + 1) - v.mid(i - 1);
    const Point3 r = v.s.upper[i] - v.s.lower[i];
    const double lt = norm(t), lr = norm(r);
    if (lt < kTiny || lr < kTiny) continue;
    const Point3 c = cross(t, r);
    const double lc = norm(c);
    if (lc < kMinRungSine * lt * lr) continue;
    N[i] = (1 / lc) * c;
  }
  return N;
}

void measureBending(const View& v, StripFit& f) {
  if (v.n < 3) return;
  const std::vector<Point3> N = normals(v);
  double kAlong = 0, kAcross = 0;
  for (std::size_t i = 1; i + 1 < v.n; ++i) {
    if (!v.ok(i - 1) || !v.ok(i) || !v.ok(i + 1) || norm(N[i]) == 0) continue;
    const Point3 m0 = v.mid(i - 1), m1 = v.mid(i), m2 = v.mid(i + 1);
    const double s1 = dist(m0, m1), s2 = dist(m1, m2);
    if (s1 < kTiny || s2 < kTiny) continue;
    if (v.s.knuckled && dot(m1 - m0, m2 - m1) < std::cos(kKnuckleAngle) * s1 * s2) {
      ++f.knuckles;
      continue;
    }
    const Point3 t = (1 / norm(m2 - m0)) * (m2 - m0);
    const Point3 a = cross(N[i], t);  // across, in the surface
    // Second derivative of the middle line by arc length: its normal part
    // is the surface's normal curvature along the strip.
    const Point3 acc = (2 / (s1 + s2)) * ((1 / s2) * (m2 - m1) - (1 / s1) * (m1 - m0));
    const double kt = dot(N[i], acc);
    // Turn of the normal about the strip's direction: the twist.
    double tau = 0;
    const bool twistKnown = norm(N[i - 1]) > 0 && norm(N[i + 1]) > 0;
    if (twistKnown) tau = -dot((1 / (s1 + s2)) * (N[i + 1] - N[i - 1]), a);
    // The rung is straight on the surface: no normal curvature along it,
    // which with the two above gives the curvature across.
    const Point3 r = v.s.upper[i] - v.s.lower[i];
    const double c = dot(r, t) / norm(r), s = dot(r, a) / norm(r);
    double ka = 0;
    const bool acrossKnown = twistKnown && std::fabs(s) >= kMinRungSine;
    if (acrossKnown) ka = -(c * c * kt + 2 * s * c * tau) / (s * s);
    if (std::isfinite(kt) && std::fabs(kt) > kAlong) {
      kAlong = std::fabs(kt);
      f.alongPoint = static_cast<int>(i);
    }
    if (acrossKnown && std::isfinite(ka) && std::fabs(ka) > kAcross) {
      kAcross = std::fabs(ka);
      f.acrossPoint = static_cast<int>(i);
    }
    if (twistKnown && std::isfinite(tau) && std::fabs(tau) > f.maxTwist) {
      f.maxTwist = std::fabs(tau);
      f.twistPoint = static_cast<int>(i);
    }
  }
  f.minRadiusAlong = radiusOf(kAlong);
  f.minRadiusAcross = radiusOf(kAcross);
  if (f.minRadiusAlong >= kStraightRadius) f.alongPoint = -1;
  if (f.minRadiusAcross >= kStraightRadius) f.acrossPoint = -1;
}

}  // namespace

double StripFit::errorPerMetre() const { return length > kTiny ? 1000 * maxError / length : 0; }

double StripFit::areaChangePercent() const {
  return area > kTiny * kTiny ? 100 * (flatArea - area) / area : 0;
}

StripFit measureStrip(const Strip& s) {
  StripFit f;
  const std::size_t n =
      std::min({s.lower.size(), s.upper.size(), s.flatLower.size(), s.flatUpper.size()});
  const View v{s, n};
  measureLengths(v, f);
  measureBending(v, f);
  return f;
}

}  // namespace tolmar::devcheck
