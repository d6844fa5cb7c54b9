// The hull equations on the default hull after its first screen, the pair
// form of the upper lines against the self-calling definition, and the
// finiteness of degenerate planks.
#include <gtest/gtest.h>

#include <cmath>

#include "hull/chine_equations.h"
#include "hull/geometrie.h"
#include "hull_fixtures.h"

namespace tolmar {
namespace {

using testing::twentyPlankHull;
using testing::validatedDefaultHull;

struct XYZ {
  double x, y, z;
};

TEST(FirstChine, DefaultHullValues) {
  const HullStore h = validatedDefaultHull();
  const XYZ cases[] = {
      {1, 0.843304, 0.085357},
      {5, 0.605257, 0.036289},
      {-0.5, 0.6125, 0.1775},  // aft of the control point, straight on
      {6.3, -0.2375, 0.125},   // past the stem the chine crosses the centre plane
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(firstChineY(h, c.x), c.y, 5e-7) << c.x;
    EXPECT_NEAR(firstChineZ(h, c.x), c.z, 5e-7) << c.x;
  }
}

TEST(FirstChine, PassesThroughItsControlPoints) {
  const HullStore h = validatedDefaultHull();
  EXPECT_EQ(firstChineY(h, 3), h.yMax(1));  // x at xMax(1): forward branch, t = 0
  EXPECT_EQ(firstChineZ(h, 3), 0);
  EXPECT_EQ(firstChineY(h, 6), h.yFwd(1));  // t = 1 exactly: the power branch
  EXPECT_EQ(firstChineZ(h, 6), h.zFwd(1));
  EXPECT_EQ(firstChineY(h, 0), h.yAft(1));
  EXPECT_EQ(firstChineZ(h, 0), h.zAft(1));
}

TEST(FirstChine, StraightContinuationIsTangent) {
  HullStore h = validatedDefaultHull();
  for (double shape : {0.0, 1.0, -0.7, 2.5}) {
    h.shapeAft = h.shapeFwd = shape;
    for (double xEnd : {0.0, 6.0}) {
      const double e = 1e-6;
      const double out = xEnd == 0 ? -e : e;
      const double yOut = (firstChineY(h, xEnd + out) - firstChineY(h, xEnd)) / out;
      const double yIn = (firstChineY(h, xEnd) - firstChineY(h, xEnd - out)) / out;
      const double zOut = (firstChineZ(h, xEnd + out) - firstChineZ(h, xEnd)) / out;
      const double zIn = (firstChineZ(h, xEnd) - firstChineZ(h, xEnd - out)) / out;
      EXPECT_NEAR(yOut, yIn, 1e-4) << shape << " " << xEnd;
      EXPECT_NEAR(zOut, zIn, 1e-4) << shape << " " << xEnd;
    }
  }
}

TEST(FirstChine, SShapeOfTheHeight) {
  HullStore h = validatedDefaultHull();
  const double t = 0.5, x = 3 + t * 3;  // forward branch, p = 2.5
  h.shapeFwd = 0;
  EXPECT_NEAR(firstChineZ(h, x), 0.1 * std::pow(t, 2.5), 1e-15);
  h.shapeFwd = 1;
  EXPECT_NEAR(firstChineZ(h, x), 0.1 * (2 * std::pow(t, 2.5) - std::pow(t, 3.5)), 1e-15);
}

TEST(BottomZ, DefaultHullValues) {
  const HullStore h = validatedDefaultHull();
  EXPECT_NEAR(bottomZ(h, 1, 0), -0.093893, 5e-7);
  EXPECT_NEAR(bottomZ(h, 3.4, 0), -0.201929, 5e-7);  // inboard triangle: zMax(0)
  EXPECT_EQ(bottomZ(h, 3.4, 0), h.zMax(0));
  EXPECT_NEAR(bottomZ(h, 3.4, 0.5), -0.095649, 5e-7);
  EXPECT_NEAR(bottomZ(h, 5, 0), -0.164483, 5e-7);
}

TEST(BottomZ, ZeroAtTheMaximumBeamWhateverTheAngles) {
  for (int deadrise : {-20, 0, 12, 45}) {
    for (int advance : {0, 40, 70}) {
      HullStore h;
      initDefaultHull(h);
      h.plankAngle(0) = static_cast<i16>(deadrise);
      h.keelAdvance = static_cast<i16>(advance);
      testing::validateBottom(h);
      EXPECT_EQ(bottomZ(h, h.xMax(1), h.yMax(1)), 0) << deadrise << " " << advance;
    }
  }
}

TEST(BottomZ, MeetsTheChineAlongItsLength) {
  const HullStore h = validatedDefaultHull();
  for (double x = -0.05; x <= 6.0; x += 0.25) {
    EXPECT_NEAR(bottomZ(h, x, chineY(h, 1, x)), chineZ(h, 1, x), 1e-12) << x;
  }
}

TEST(BottomZ, NoKeelAdvanceIsStraightInSection) {
  HullStore h;
  initDefaultHull(h);
  h.keelAdvance = 0;
  testing::validateBottom(h);
  const double tA = tanDeg(12);
  for (double x : {3.5, 4.5, 5.9}) {
    for (double y : {0.0, 0.2, 0.4}) {
      EXPECT_NEAR(bottomZ(h, x, y), chineZ(h, 1, x) - tA * (chineY(h, 1, x) - y), 1e-15);
    }
  }
}

TEST(BottomY, InvertsBottomZ) {
  const HullStore h = validatedDefaultHull();
  const double xs[] = {0.5, 2.9, 3.2, 3.6, 4.2, 5.0, 5.6};
  for (double x : xs) {
    const double yChine = chineY(h, 1, x);
    for (double f : {0.1, 0.4, 0.7, 0.95}) {
      const double y = f * yChine;
      EXPECT_NEAR(bottomY(h, x, bottomZ(h, x, y)), y, 2e-3) << x << " " << f;
    }
  }
}

TEST(BottomY, HeldBetweenKeelAndChine) {
  const HullStore h = validatedDefaultHull();
  for (double x : {1.0, 3.5, 5.0}) {
    EXPECT_EQ(bottomY(h, x, chineZ(h, 1, x) + 0.3), chineY(h, 1, x));
    EXPECT_EQ(bottomY(h, x, bottomZ(h, x, 0) - 0.3), 0);
  }
  HullStore flat = h;
  flat.plankAngle(0) = 0;  // a flat bottom aft has no breadth for a height
  EXPECT_EQ(bottomY(flat, 1.0, chineZ(flat, 1, 1.0) - 0.01), 0);
}

// The definition of a line above the first chine, evaluated literally: each
// level calls itself twice, so the work doubles with every line.
double literalY(const HullStore& h, int n, double x);
double literalZ(const HullStore& h, int n, double x) {
  if (n == 1) return firstChineZ(h, x);
  const double k = tanDeg(90 - h.plankAngle(n - 1));
  const double q = literalY(h, n - 1, x) - literalZ(h, n - 1, x) * k;
  const double d = h.planeA(n) + h.planeB(n) * x;
  return (q * h.planeC(n) + d) / (1 - k * h.planeC(n));
}
double literalY(const HullStore& h, int n, double x) {
  if (n == 1) return firstChineY(h, x);
  const double k = tanDeg(90 - h.plankAngle(n - 1));
  const double q = literalY(h, n - 1, x) - literalZ(h, n - 1, x) * k;
  const double d = h.planeA(n) + h.planeB(n) * x;
  return (d * k + q) / (1 - k * h.planeC(n));
}

TEST(ChineLines, PairFormEqualsTheLiteralDefinition) {
  const HullStore h = twentyPlankHull();
  ASSERT_EQ(h.nChines, 21);
  for (int n = 1; n <= 12; ++n) {
    for (double x : {-0.6, -0.05, 0.0, 1.3, 3.0, 4.41, 6.0, 6.9, 8.0}) {
      EXPECT_EQ(chineY(h, n, x), literalY(h, n, x)) << n << " " << x;
      EXPECT_EQ(chineZ(h, n, x), literalZ(h, n, x)) << n << " " << x;
    }
  }
}

TEST(ChineLines, EachLineOnItsPlankAndItsPlane) {
  const HullStore h = twentyPlankHull();
  for (int n = 2; n <= h.nChines; ++n) {
    const double k = tanDeg(90 - h.plankAngle(n - 1));
    for (double x : {-0.3, 1.0, 3.0, 5.5, 7.0}) {
      const ChinePoint below = chinePoint(h, n - 1, x);
      const ChinePoint p = chinePoint(h, n, x);
      EXPECT_NEAR(p.z, h.planeA(n) + h.planeB(n) * x + h.planeC(n) * p.y, 1e-12) << n;
      EXPECT_NEAR(p.y - below.y, k * (p.z - below.z), 1e-12) << n;
      EXPECT_EQ(p.y, chineY(h, n, x));
      EXPECT_EQ(p.z, chineZ(h, n, x));
    }
  }
}

TEST(ChineLines, VerticalPlankKeepsTheBreadth) {
  HullStore h = testing::plankedDefaultHull();  // plank 4 stands at 90 degrees
  ASSERT_EQ(h.plankAngle(4), 90);
  for (double x : {0.0, 2.0, 4.5}) {
    EXPECT_EQ(chineY(h, 5, x), chineY(h, 4, x));
    EXPECT_EQ(chineZ(h, 5, x), h.planeA(5) + h.planeB(5) * x + chineY(h, 4, x) * h.planeC(5));
  }
}

// A plane C that makes 1 - k C exactly zero for the plank below line n.
double parallelC(const HullStore& h, int n) {
  const double k = tanDeg(90 - h.plankAngle(n - 1));
  double c = 1 / k;
  for (int i = 0; i < 8 && 1 - k * c != 0; ++i) c = std::nextafter(c, 1 - k * c > 0 ? 1e9 : -1e9);
  return c;
}

TEST(ChineLines, PlankParallelToThePlaneStaysOnTheLineBelow) {
  HullStore h = testing::plankedDefaultHull();
  for (int n : {2, 3}) {
    HullStore d = h;
    d.planeC(n) = parallelC(d, n);
    ASSERT_EQ(1 - tanDeg(90 - d.plankAngle(n - 1)) * d.planeC(n), 0);
    EXPECT_TRUE(chineDegenerate(d, n));
    EXPECT_FALSE(chineDegenerate(d, n + 1));
    for (double x : {0.0, 3.0, 6.0}) {
      const ChinePoint below = chinePoint(d, n - 1, x);
      const ChinePoint p = chinePoint(d, n, x);
      EXPECT_EQ(p.y, below.y);
      EXPECT_EQ(p.z, below.z);
      for (int m = n; m <= 5; ++m) {
        EXPECT_TRUE(std::isfinite(chineY(d, m, x)) && std::isfinite(chineZ(d, m, x))) << m;
      }
    }
  }
  EXPECT_FALSE(chineDegenerate(h, 1));
  EXPECT_FALSE(chineDegenerate(h, 0));
}

TEST(ChineLines, NearlyParallelAndFlatPlanksStayFinite) {
  HullStore h = twentyPlankHull();
  for (int n = 2; n <= h.nChines; ++n) {
    h.plankAngle(n - 1) = n % 2 ? 0 : 1;  // k of 1.6e14 and 57: far-off meeting points
    h.planeC(n) = 1 / tanDeg(90 - h.plankAngle(n - 1)) * (1 + 1e-15);
    h.planeB(n) = 1e6;
  }
  for (double x : {-1.0, 0.0, 3.0, 7.0, 1e6}) {
    for (int n = 1; n <= h.nChines; ++n) {
      const ChinePoint p = chinePoint(h, n, x);
      EXPECT_TRUE(std::isfinite(p.y) && std::isfinite(p.z)) << n << " " << x;
    }
  }
}

TEST(FirstChine, ExponentsOutsideTheScreensRangeStayFinite) {
  HullStore h = validatedDefaultHull();
  for (double p : {0.0, -1.0, -3.5}) {
    h.powerAft = h.powerFwd = p;
    for (double x : {-0.5, 1.0, 3.0, 4.0, 6.0, 7.0}) {
      EXPECT_TRUE(std::isfinite(firstChineY(h, x))) << p << " " << x;
      EXPECT_TRUE(std::isfinite(firstChineZ(h, x))) << p << " " << x;
    }
    if (p < 0) {  // infinite power at the maximum beam
      EXPECT_EQ(firstChineY(h, 3), h.yMax(1));
      EXPECT_EQ(firstChineZ(h, 3), 0);
    }
  }
}

TEST(ChineLines, UnvalidatedStoreIsFinite) {
  const HullStore h;  // all zero: both branches of the first chine have no length
  for (double x : {-1.0, 0.0, 2.0}) {
    EXPECT_TRUE(std::isfinite(chineY(h, 5, x)));
    EXPECT_TRUE(std::isfinite(chineZ(h, 5, x)));
    EXPECT_TRUE(std::isfinite(bottomZ(h, x, 0.1)));
    EXPECT_TRUE(std::isfinite(bottomY(h, x, 0.1)));
  }
}

}  // namespace
}  // namespace tolmar
