// Placement of hydro1 and mass1 on displays of common sizes, in twips at
// 96 dots per inch (15 twips a dot), with the windows' natural sizes of
// the program (hydro1 494 x 398 dots, mass1 676 x 746 dots).
#include "analysis/pair_placement.h"

#include <gtest/gtest.h>

namespace tolmar::analysis {
namespace {

constexpr double kDot = 15;
constexpr double kHydroW = 494 * kDot, kHydroH = 398 * kDot;
constexpr double kMassW = 676 * kDot, kMassH = 746 * kDot;

bool inside(const ScreenBox& b, double w, double h) {
  return b.left >= 0 && b.top >= 0 && b.right() <= w && b.bottom() <= h;
}
bool apart(const ScreenBox& a, const ScreenBox& b) {
  return a.right() <= b.left || b.right() <= a.left || a.bottom() <= b.top || b.bottom() <= a.top;
}

TEST(PairPlacement, TallDisplayKeepsTheScreensOwnPlaces) {
  const double W = 1920 * kDot, H = 1200 * kDot;
  const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
  EXPECT_DOUBLE_EQ(p.hydro.left, (W - kHydroW) / 2);
  EXPECT_DOUBLE_EQ(p.hydro.top, 200);
  EXPECT_DOUBLE_EQ(p.mass.left, (W - kMassW) / 2);
  EXPECT_DOUBLE_EQ(p.mass.bottom(), H - 200);
  EXPECT_DOUBLE_EQ(p.mass.height, kMassH);
}

// 1920 x 1080 and 1400 x 900: the screens' places would lay mass1 over the
// lower part of hydro1; side by side both are whole, with their own tops.
TEST(PairPlacement, WideDisplaysPutThePairSideBySide) {
  for (const auto& [w, h] : {std::pair{1920.0, 1080.0}, std::pair{1400.0, 900.0}}) {
    const double W = w * kDot, H = h * kDot;
    const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
    EXPECT_DOUBLE_EQ(p.hydro.top, 200) << w;
    EXPECT_DOUBLE_EQ(p.mass.bottom(), H - 200) << w;
    EXPECT_DOUBLE_EQ(p.mass.height, kMassH) << w;
    EXPECT_DOUBLE_EQ(p.hydro.right(), p.mass.left) << w;
    EXPECT_DOUBLE_EQ(p.hydro.left, W - p.mass.right()) << w;  // the pair centred
    EXPECT_TRUE(inside(p.hydro, W, H) && inside(p.mass, W, H)) << w;
  }
}

// 1366 x 768: mass1 fits in height only without its margin.
TEST(PairPlacement, ShortDisplayLiftsMassToItsEdge) {
  const double W = 1366 * kDot, H = 768 * kDot;
  const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
  EXPECT_TRUE(apart(p.hydro, p.mass));
  EXPECT_DOUBLE_EQ(p.mass.height, kMassH);
  EXPECT_DOUBLE_EQ(p.mass.top, H - kMassH - 200);
  EXPECT_TRUE(inside(p.hydro, W, H) && inside(p.mass, W, H));
}

// 1024 x 768 is too narrow for the pair side by side: mass1 goes under
// hydro1, shortened to the room left, and scrolls.
TEST(PairPlacement, NarrowDisplayShortensMassUnderHydro) {
  const double W = 1024 * kDot, H = 768 * kDot;
  const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
  EXPECT_DOUBLE_EQ(p.hydro.top, 200);
  EXPECT_DOUBLE_EQ(p.mass.top, p.hydro.bottom());
  EXPECT_DOUBLE_EQ(p.mass.bottom(), H);
  EXPECT_LT(p.mass.height, kMassH);
  EXPECT_TRUE(apart(p.hydro, p.mass));
}

// A display tall enough for both stacked but not for the margins between.
TEST(PairPlacement, StackedWhenBothFitInHeight) {
  const double W = 1000 * kDot, H = (398 + 746 + 10) * kDot;
  const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
  EXPECT_DOUBLE_EQ(p.hydro.left, (W - kHydroW) / 2);
  EXPECT_DOUBLE_EQ(p.mass.left, (W - kMassW) / 2);
  EXPECT_LE(p.hydro.bottom(), p.mass.top);
  EXPECT_TRUE(inside(p.hydro, W, H) && inside(p.mass, W, H));
  EXPECT_DOUBLE_EQ(p.mass.height, kMassH);
}

// Every display from 800 x 600 to 2560 x 1440: both windows on it and
// hydro1 never under mass1.
TEST(PairPlacement, AnyDisplayKeepsBothWholeAndApart) {
  for (double w = 800; w <= 2560; w += 37)
    for (double h = 600; h <= 1440; h += 29) {
      const double W = w * kDot, H = h * kDot;
      const PairPlacement p = placePair(W, H, kHydroW, kHydroH, kMassW, kMassH);
      ASSERT_TRUE(inside(p.hydro, W, H)) << w << "x" << h;
      ASSERT_TRUE(inside(p.mass, W, H)) << w << "x" << h;
      ASSERT_TRUE(apart(p.hydro, p.mass)) << w << "x" << h;
      ASSERT_GE(p.mass.height, kMinMassHeight) << w << "x" << h;
    }
}

}  // namespace
}  // namespace tolmar::analysis
