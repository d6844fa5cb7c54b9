// Cuts of one section by a level, on sections whose areas and centres are
// known by hand.
#include "analysis/calc_section.h"

#include <gtest/gtest.h>

#include "shape_hulls.h"

namespace tolmar {
namespace {

constexpr double kTol = 1e-12;

struct Cut {
  double z;
  double area, zCentre, wlY;
  int chineOut;
};

// Box of half breadth 0.5 and depth 1: the bottom slice has no height.
TEST(CalcSection, BoxSectionByLevel) {
  const auto h = shapes::boxHull(4, 0.5, 1);
  const Cut cuts[] = {
      {-0.1, 0, 0, 0, -1},  // dry: under the keel
      {0, 0, 0, 0.5, 1},    // the chine at the water counts as under water
      {0.25, 0.25, 0.125, 0.5, 1},
      {1, 1, 0.5, 0.5, 2},  // the sheer at the water: still part of the waterplane
      {1.5, 1, 0.5, 0, 2},  // above the last line: the hull is open, no waterplane
  };
  for (const Cut& c : cuts) {
    const SectionCut s = calcSection(*h, 41, c.z);
    EXPECT_NEAR(s.area, c.area, kTol) << "z = " << c.z;
    EXPECT_NEAR(s.zCentre, c.zCentre, kTol) << "z = " << c.z;
    EXPECT_NEAR(s.wlY, c.wlY, kTol) << "z = " << c.z;
    EXPECT_EQ(s.chineOut, c.chineOut) << "z = " << c.z;
    EXPECT_EQ(s.yCentre, 0);
    EXPECT_DOUBLE_EQ(s.x, 2.0);
  }
}

// V bottom rising 0.2 to a half breadth of 0.5, then 1 of vertical side.
TEST(CalcSection, WedgeTriangleThenTrapezium) {
  const auto h = shapes::wedgeHull(4, 0.5, 0.2, 1);
  const SectionCut low = calcSection(*h, 10, 0.1);
  EXPECT_NEAR(low.wlY, 0.25, kTol);
  EXPECT_NEAR(low.area, 0.025, kTol);  // 2 x (0.25 x 0.1 / 2)
  EXPECT_NEAR(low.zCentre, 0.2 / 3, kTol);
  EXPECT_EQ(low.chineOut, 0);

  const SectionCut high = calcSection(*h, 10, 0.3);
  EXPECT_NEAR(high.area, 0.1 + 0.1, kTol);
  EXPECT_NEAR(high.zCentre, (0.1 * 0.4 / 3 + 0.1 * 0.25) / 0.2, kTol);
  EXPECT_EQ(high.chineOut, 1);
}

// A raked end: the X of the water runs along the slice between its lines.
TEST(CalcSection, WaterXInterpolatedAlongARakedSlice) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->lineX(2, 0) = 0.4;  // the sheer of the transom stands 0.4 forward of the chine
  const SectionCut s = calcSection(*h, 0, 0.25);
  EXPECT_NEAR(s.x, 0.1, kTol);
  EXPECT_NEAR(s.area, 0.25, kTol);
}

// A section without breadth, and a store with no lines at all, give
// finite zeros.
TEST(CalcSection, NoBreadthNoArea) {
  auto flat = shapes::boxHull(4, 0, 1);
  const SectionCut s = calcSection(*flat, 30, 0.5);
  EXPECT_EQ(s.area, 0);
  EXPECT_EQ(s.zCentre, 0);
  EXPECT_EQ(s.wlY, 0);

  HullStore empty;
  const SectionCut e = calcSection(empty, 30, 0.5);
  EXPECT_EQ(e.area, 0);
  EXPECT_EQ(e.chineOut, 0);
}

}  // namespace
}  // namespace tolmar
