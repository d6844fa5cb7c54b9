// Plane primitives: their exact constants, degenerate inputs and the
// geometric meaning of the corner shifts.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <numbers>

#include "hull/angle_constants.h"
#include "hull/geometrie.h"

namespace tolmar {
namespace {

constexpr double kTruePi = std::numbers::pi;

TEST(TanDeg, ExactZeroAndFiniteAtRightAngle) {
  EXPECT_EQ(tanDeg(0), 0.0);  // a vertical plank must give k = 0 exactly
  EXPECT_NEAR(tanDeg(45), 1.0, 1e-14);
  EXPECT_NEAR(tanDeg(-25), -0.466307658155, 1e-12);
  EXPECT_TRUE(std::isfinite(tanDeg(90)));
  EXPECT_GT(tanDeg(90), 1e13);
  EXPECT_TRUE(std::isfinite(tanDeg(-90)));
}

TEST(TanDeg, TableOfWholeDegreesIsBitForBitTheFunction) {
  for (int a = -800; a <= 800; ++a) {
    const double table = tanDegWhole(a), direct = tanDeg(a);
    ASSERT_EQ(std::memcmp(&table, &direct, sizeof table), 0) << a;
  }
  EXPECT_EQ(tanDegWhole(32767), tanDeg(32767));
}

TEST(AtnDeg, UsesElevenDigitPi) {
  // 45 degrees scaled by the true pi over 3.14159265359: some 300 ulps off 45.
  EXPECT_DOUBLE_EQ(atnDeg(1), 45 * kTruePi / kPiShort);
  EXPECT_NE(atnDeg(1), 45.0);
  EXPECT_EQ(atnDeg(0), 0.0);
}

struct PolarCase {
  double x1, y1, x2, y2, expected;
};

TEST(PolarAngle, Quadrants) {
  const PolarCase cases[] = {
      {0, 0, 0, 0, 0},                                 // equal points
      {1, 1, 1, 3, 1.570796326795},                    // straight up
      {1, 1, 1, -3, 4.712388980385},                   // straight down, never negative
      {0, 0, 2, 0, 0},                                 // along +X
      {0, 0, 1, 1, std::atan(1.0)},                    // first quadrant
      {0, 0, -1, 0, kPiShort},                         // along -X
      {0, 0, -1, 1, std::atan(-1.0) + kPiShort},       // second
      {0, 0, -1, -1, std::atan(1.0) + kPiShort},       // third
      {0, 0, 1, -1, std::atan(-1.0) + 6.28318530718},  // fourth
  };
  for (const auto& c : cases) {
    const double a = polarAngle(c.x1, c.y1, c.x2, c.y2);
    EXPECT_EQ(a, c.expected) << c.x2 << "," << c.y2;
    EXPECT_GE(a, 0);
  }
}

TEST(TriangleAngles, DegenerateTriangles) {
  double A, B, C;
  triangleAngles(0, 0, 0, A, B, C);
  EXPECT_EQ(A, kPi / 3);
  EXPECT_EQ(B, A);
  EXPECT_EQ(C, A);

  triangleAngles(2, 1, 1, A, B, C);  // flat: a = b + c
  EXPECT_EQ(A, kPi);
  EXPECT_EQ(B, 0);
  EXPECT_EQ(C, 0);

  triangleAngles(1, 2, 1, A, B, C);
  EXPECT_EQ(B, kPi);
  EXPECT_EQ(A + C, 0);

  triangleAngles(1, 1, 0, A, B, C);  // s - a and s - b both 0: the first side wins
  EXPECT_EQ(A, kPi);
  EXPECT_EQ(B, 0);

  triangleAngles(5, 1, 1, A, B, C);  // a side longer than the two others
  EXPECT_EQ(A, kPi);
  EXPECT_TRUE(std::isfinite(B) && std::isfinite(C));
}

TEST(TriangleAngles, RightAndEquilateral) {
  double A, B, C;
  triangleAngles(3, 4, 5, A, B, C);
  EXPECT_NEAR(C, kTruePi / 2, 1e-12);
  EXPECT_NEAR(A, std::asin(0.6), 1e-12);
  EXPECT_NEAR(A + B + C, kTruePi, 1e-12);
  triangleAngles(2, 2, 2, A, B, C);
  EXPECT_NEAR(A, kTruePi / 3, 1e-12);
  EXPECT_NEAR(B, kTruePi / 3, 1e-12);
}

TEST(RotatePoint, AboutCentre) {
  double qx, qy;
  rotatePoint(3, 1, 2, 1, kTruePi / 2, qx, qy);
  EXPECT_NEAR(qx, 2, 1e-12);
  EXPECT_NEAR(qy, 2, 1e-12);
  rotatePoint(1, 1, 2, 1, 0, qx, qy);  // left of the centre: pi is added
  EXPECT_NEAR(qx, 1, 1e-12);
  EXPECT_NEAR(qy, 1, 1e-12);
  rotatePoint(2, 0, 2, 1, kTruePi / 2, qx, qy);  // straight below: theta = -pi/2
  EXPECT_NEAR(qx, 3, 1e-12);
  EXPECT_NEAR(qy, 1, 1e-12);
  rotatePoint(2, 1, 2, 1, 1.0, qx, qy);  // the centre itself stays put
  EXPECT_EQ(qx, 2);
  EXPECT_EQ(qy, 1);
}

// Distance of (px, py) from the line through a and b, and whether it lies
// on that line.
double lineDistance(double ax, double ay, double bx, double by, double px, double py) {
  const double dx = bx - ax, dy = by - ay;
  return std::abs(dx * (py - ay) - dy * (px - ax)) / std::hypot(dx, dy);
}

struct Corner {
  double x0, y0, x1, y1, x2, y2, d;
};

TEST(CornerShift, MeetsTheOtherSegmentAtDistanceD) {
  const Corner corners[] = {
      {0, 0, 1, 0, 1, 1, 0.1},     // left turn of 90 degrees
      {0, 0, 1, 0, 2, -1, 0.05},   // right turn of 45 degrees
      {0, 0, 2, 1, 1, 3, 0.2},     // sharp turn
      {-1, 2, 0, 0, 3, 0.5, 0.3},  // across the 0 / 2 pi seam of the angles
  };
  for (const auto& c : corners) {
    double ox, oy;
    cornerShiftNext(c.x0, c.y0, c.x1, c.y1, c.x2, c.y2, c.d, ox, oy);
    EXPECT_NEAR(lineDistance(c.x1, c.y1, c.x2, c.y2, ox, oy), 0, 1e-9);
    EXPECT_NEAR(lineDistance(c.x0, c.y0, c.x1, c.y1, ox, oy), c.d, 1e-9);
    cornerShiftPrev(c.x0, c.y0, c.x1, c.y1, c.x2, c.y2, c.d, ox, oy);
    EXPECT_NEAR(lineDistance(c.x0, c.y0, c.x1, c.y1, ox, oy), 0, 1e-9);
    EXPECT_NEAR(lineDistance(c.x1, c.y1, c.x2, c.y2, ox, oy), c.d, 1e-9);
  }
}

TEST(CornerShift, LeftTurnSides) {
  double ox, oy;
  cornerShiftNext(0, 0, 1, 0, 1, 1, 0.1, ox, oy);  // behind P1 on the second segment
  EXPECT_NEAR(ox, 1, 1e-9);
  EXPECT_NEAR(oy, -0.1, 1e-9);
  cornerShiftPrev(0, 0, 1, 0, 1, 1, 0.1, ox, oy);  // beyond P1 on the first segment
  EXPECT_NEAR(ox, 1.1, 1e-9);
  EXPECT_NEAR(oy, 0, 1e-9);
}

TEST(CornerShift, StraightAndFoldedPaths) {
  double ox, oy;
  cornerShiftNext(0, 0, 1, 0, 2, 0, 0.1, ox, oy);
  EXPECT_EQ(ox, 1.1);
  EXPECT_EQ(oy, 0);
  cornerShiftPrev(0, 0, 1, 1, 2, 2, 0.5, ox, oy);
  EXPECT_NEAR(ox, 1 + 0.5 * std::sqrt(0.5), 1e-12);
  EXPECT_NEAR(oy, 1 + 0.5 * std::sqrt(0.5), 1e-12);
  // Folding straight back: far away, yet finite.
  cornerShiftNext(0, 0, 1, 0, 0, 0, 0.1, ox, oy);
  EXPECT_TRUE(std::isfinite(ox) && std::isfinite(oy));
  cornerShiftPrev(0, 0, 1, 0, 0, 0, 0.1, ox, oy);
  EXPECT_TRUE(std::isfinite(ox) && std::isfinite(oy));
  // Repeated points: both angles 0, taken as straight.
  cornerShiftNext(1, 1, 1, 1, 1, 1, 0.2, ox, oy);
  EXPECT_EQ(ox, 1.2);
  EXPECT_EQ(oy, 1);
}

TEST(NormalOffset, LeftOfDirectionAndZeroLength) {
  double ox, oy;
  normalOffset(0, 0, 1, 0, 1, ox, oy);
  EXPECT_EQ(ox, 1);
  EXPECT_EQ(oy, 1);
  normalOffset(0, 0, 0, 2, 1, ox, oy);
  EXPECT_EQ(ox, -1);
  EXPECT_EQ(oy, 2);
  normalOffset(3, 4, 3, 4, 0.5, ox, oy);  // P1 = P2: straight up from P1
  EXPECT_EQ(ox, 3);
  EXPECT_EQ(oy, 4.5);
  normalOffset(3, 4, 3, 4, -0.5, ox, oy);
  EXPECT_EQ(oy, 3.5);
}

struct IntersectCase {
  const char* what;
  double x1, y1, x2, y2, x3, y3, x4, y4, xi, yi;
};

TEST(Intersect2D, AllBranches) {
  const IntersectCase cases[] = {
      {"crossing", 0, 0, 2, 2, 0, 2, 2, 0, 1, 1},
      {"second vertical", 0, 1, 2, 3, 5, -7, 5, 9, 5, 6},
      {"first vertical", 4, 0, 4, 9, 0, 1, 2, 2, 4, 3},
      {"both vertical", 1, 2, 1, 6, 3, 0, 3, 4, 2, 3},
      {"parallel sloping", 0, 0, 1, 1, 0, 2, 1, 3, 0.5, 1.5},
      {"same line", 0, 0, 1, 1, 2, 2, 3, 3, 1.5, 1.5},
  };
  for (const auto& c : cases) {
    double xi, yi;
    intersect2D(c.x1, c.y1, c.x2, c.y2, c.x3, c.y3, c.x4, c.y4, xi, yi);
    EXPECT_NEAR(xi, c.xi, 1e-12) << c.what;
    EXPECT_NEAR(yi, c.yi, 1e-12) << c.what;
  }
}

}  // namespace
}  // namespace tolmar
