// The check against surfaces whose answers are known, each developed by the
// hull's own development routine: a cylinder and a cone (developable: the
// pattern is exact), a hyperbolic paraboloid (twisted: the unused diagonal
// of each quadrilateral is off by what unfolding the quadrilateral gives by
// hand) and a cylinder bent tighter than plywood takes.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

#include "devcheck/plate_check.h"
#include "devcheck/strip_fit.h"
#include "development/calc_develop.h"

namespace tolmar::devcheck {
namespace {

constexpr int kN = 80;  // as a plank: points 0..82
constexpr int kLast = kN + 2;

using EdgeTable = Grid<double, 0, 1, 0, kMaxDev>;

struct Synthetic {
  EdgeTable x, y, z;
  Strip strip;
};

// Row 0 the lower edge, row 1 the upper, point i at parameter i/kLast;
// developed as a plank above line 1 would be.
Synthetic develop(const std::function<Point3(int row, double u)>& surface) {
  Synthetic s;
  for (int i = 0; i <= kLast; ++i)
    for (int row = 0; row <= 1; ++row) {
      const Point3 p = surface(row, static_cast<double>(i) / kLast);
      s.x(row, i) = p.x;
      s.y(row, i) = p.y;
      s.z(row, i) = p.z;
    }
  DevEdges d;
  calcDevelop(d, 40, kN, 0, s.x.ref(), s.y.ref(), s.z.ref());
  for (int i = 0; i <= kLast; ++i) {
    s.strip.lower.push_back({s.x(0, i), s.y(0, i), s.z(0, i)});
    s.strip.upper.push_back({s.x(1, i), s.y(1, i), s.z(1, i)});
    s.strip.flatLower.push_back({d.xi(i), d.yi(i)});
    s.strip.flatUpper.push_back({d.xs(i), d.ys(i)});
  }
  return s;
}

// A plank 0.4 m wide bent along its length round a cylinder of radius R
// whose axis runs across the plank; arc of 3 m.
Synthetic cylinder(double R) {
  return develop([R](int row, double u) {
    const double phi = (u - 0.5) * 3.0 / R;
    return Point3{R * std::sin(phi), row * 0.4, R * (1 - std::cos(phi))};
  });
}

// A cone of half angle 30 degrees about Z, apex at the origin; the edges
// 2 m and 2.5 m from the apex, the rungs on its generators.
constexpr double kHalfAngle = std::numbers::pi / 6;
Synthetic cone() {
  return develop([](int row, double u) {
    const double rho = row == 0 ? 2.0 : 2.5, phi = 1.2 * u;
    return Point3{rho * std::sin(kHalfAngle) * std::cos(phi),
                  rho * std::sin(kHalfAngle) * std::sin(phi), rho * std::cos(kHalfAngle)};
  });
}

// z = k x y over 0 <= x <= 8, y = 0 (lower) and 0.5 (upper): the rungs are
// its straight lines.
constexpr double kTwistK = 1.0, kHyparWidth = 0.5, kHyparLength = 8.0;
Synthetic hypar() {
  return develop([](int row, double u) {
    const double x = u * kHyparLength, y = row * kHyparWidth;
    return Point3{x, y, kTwistK * x * y};
  });
}

TEST(SyntheticSurface, CylinderDevelopsExactly) {
  const Synthetic s = cylinder(2.0);
  const StripFit f = measureStrip(s.strip);
  EXPECT_LT(f.errorPerMetre(), 0.01);
  EXPECT_LT(std::fabs(f.areaChangePercent()), 0.001);
  // The polygon of 82 chords on an arc of 3 m: its area is width x chords.
  EXPECT_NEAR(f.area, 0.4 * 82 * 2 * 2.0 * std::sin(3.0 / 2.0 / 82 / 2.0), 1e-9);
  // Bent along: radius R; straight across (the rungs are the generators).
  EXPECT_NEAR(f.minRadiusAlong, 2.0, 2.0 * 0.001);
  EXPECT_EQ(f.minRadiusAcross, kStraightRadius);
  EXPECT_NEAR(f.maxTwist, 0, 1e-9);
}

TEST(SyntheticSurface, ConeFrustumDevelopsExactly) {
  const Synthetic s = cone();
  const StripFit f = measureStrip(s.strip);
  EXPECT_LT(f.errorPerMetre(), 0.01);
  EXPECT_LT(std::fabs(f.areaChangePercent()), 0.001);
  // Across the generators a cone bends with the radius from the surface to
  // its axis along the normal: r / cos(half angle), r = 2.25 sin(half
  // angle) at the middle line.
  const double expected = 2.25 * std::tan(kHalfAngle);
  EXPECT_NEAR(f.minRadiusAlong, expected, expected * 0.002);
  EXPECT_EQ(f.minRadiusAcross, kStraightRadius);
  EXPECT_NEAR(f.maxTwist, 0, 1e-9);
}

// The two triangles of a quadrilateral laid flat on either side of the
// diagonal they share (from H0 to H1): the distance between their far
// corners A and C, by the feet of A and C on the hinge.
double unfoldedDistance(Point3 H0, Point3 H1, Point3 A, Point3 C) {
  const auto sub = [](Point3 p, Point3 q) { return Point3{p.x - q.x, p.y - q.y, p.z - q.z}; };
  const auto dot = [](Point3 p, Point3 q) { return p.x * q.x + p.y * q.y + p.z * q.z; };
  const Point3 h = sub(H1, H0);
  const double len = std::sqrt(dot(h, h));
  const Point3 e{h.x / len, h.y / len, h.z / len};
  const double a = dot(sub(A, H0), e), c = dot(sub(C, H0), e);
  const double p = std::sqrt(dot(sub(A, H0), sub(A, H0)) - a * a);
  const double q = std::sqrt(dot(sub(C, H0), sub(C, H0)) - c * c);
  return std::hypot(a - c, p + q);
}

TEST(SyntheticSurface, HyperbolicParaboloidIsFlaggedByItsDiagonals) {
  const Synthetic s = hypar();
  const StripFit f = measureStrip(s.strip);
  const Strip& t = s.strip;
  // By hand, quadrilateral by quadrilateral: aft of the starting rung 10 the
  // development splits along lower i - upper i+1, forward of it along
  // lower i+1 - upper i; the other diagonal is off by the unfolding.
  double worst = 0;
  int where = -1;
  for (int i = 0; i < kLast; ++i) {
    const auto k = static_cast<std::size_t>(i);
    const Point3 L0 = t.lower[k], L1 = t.lower[k + 1], U0 = t.upper[k], U1 = t.upper[k + 1];
    const bool aft = i < 10;
    const double flat = aft ? unfoldedDistance(L0, U1, U0, L1) : unfoldedDistance(L1, U0, L0, U1);
    const Point3 d = aft ? Point3{U0.x - L1.x, U0.y - L1.y, U0.z - L1.z}
                         : Point3{L0.x - U1.x, L0.y - U1.y, L0.z - U1.z};
    const double error = flat - std::sqrt(d.x * d.x + d.y * d.y + d.z * d.z);
    if (error > worst) {
      worst = error;
      where = i;
    }
  }
  EXPECT_NEAR(f.maxError, worst, 1e-9);
  EXPECT_EQ(f.errorPoint, where);
  EXPECT_TRUE(f.errorMeasure == Measure::diagonalLowUp || f.errorMeasure == Measure::diagonalUpLow);
  EXPECT_GT(f.maxError, kTwistedLimit);
  // Twisted at the rate k / (1 + (k y)^2) on its middle line at x = 0, less
  // further on: the largest twist is there, near k.
  EXPECT_NEAR(f.maxTwist, kTwistK / (1 + std::pow(kTwistK * kHyparWidth / 2, 2)), 0.05);
  EXPECT_LT(f.twistPoint, 3);
}

TEST(SyntheticSurface, DevelopableSurfacesAreNotFlagged) {
  for (const Synthetic& s : {cylinder(2.0), cone()}) {
    const StripFit f = measureStrip(s.strip);
    EXPECT_LT(f.maxError, kTwistedLimit);
  }
}

TEST(SyntheticSurface, VerdictFollowsTheTableAndTheFactor) {
  // 12 mm plywood needs 3.4 m or so along its grain: a cylinder of 0.5 m
  // will not bend, one of 20 m fits; 4.2 m lies within the tight margin of
  // the table's 3.6 m (half inch) to 3.4 m (12 mm).
  const BendLimit need = minimumBendRadius(0.012);
  EXPECT_EQ(verdictFor(measureStrip(cylinder(0.5).strip), need), Verdict::willNotBend);
  EXPECT_EQ(verdictFor(measureStrip(cylinder(20).strip), need), Verdict::fits);
  const StripFit near = measureStrip(cylinder(need.alongGrain * 1.1).strip);
  EXPECT_EQ(verdictFor(near, need), Verdict::tight);
  // A plywood that bends to half the table's radius fits there.
  EXPECT_EQ(verdictFor(near, {need.alongGrain * 0.5, need.acrossGrain * 0.5}), Verdict::fits);
}

TEST(SyntheticSurface, DegenerateStripsGiveFiniteFigures) {
  // All points in one: no length, no area, no bend.
  Strip point;
  point.lower.assign(83, {1, 2, 3});
  point.upper = point.lower;
  point.flatLower.assign(83, {0, 0});
  point.flatUpper = point.flatLower;
  // A strip with a point that is not finite.
  Synthetic broken = cylinder(2.0);
  broken.strip.lower[40].x = std::nan("");
  const Strip none;
  for (const Strip* s : std::initializer_list<const Strip*>{&point, &broken.strip, &none}) {
    const StripFit f = measureStrip(*s);
    for (double v : {f.maxError, f.errorPerMetre(), f.areaChangePercent(), f.minRadiusAlong,
                     f.minRadiusAcross, f.maxTwist, f.area, f.flatArea})
      EXPECT_TRUE(std::isfinite(v));
  }
  const StripFit p = measureStrip(point);
  EXPECT_EQ(p.errorPerMetre(), 0);
  EXPECT_EQ(p.areaChangePercent(), 0);
  EXPECT_EQ(p.minRadiusAlong, kStraightRadius);
  // The broken point leaves the rest measured: still the cylinder's radius.
  EXPECT_NEAR(measureStrip(broken.strip).minRadiusAlong, 2.0, 0.01);
}

}  // namespace
}  // namespace tolmar::devcheck
