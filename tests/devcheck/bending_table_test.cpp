// The plywood table: its published rows, between them, beyond them, and
// thicknesses that are not one.
#include "devcheck/bending_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tolmar::devcheck {
namespace {

constexpr double kFoot = 0.3048, kInch = 0.0254;

TEST(BendingTable, PublishedRows) {
  struct Row {
    double inches, along, across;  // feet
  };
  for (const Row r : {Row{0.25, 5, 2}, Row{0.375, 8, 3}, Row{0.5, 12, 6}, Row{0.75, 20, 12}}) {
    const BendLimit b = minimumBendRadius(r.inches * kInch);
    EXPECT_NEAR(b.alongGrain, r.along * kFoot, 1e-12) << r.inches;
    EXPECT_NEAR(b.acrossGrain, r.across * kFoot, 1e-12) << r.inches;
  }
}

TEST(BendingTable, BetweenAndBeyondTheRows) {
  // 11.1 mm is halfway between 3/8 and 1/2 inch.
  const BendLimit mid = minimumBendRadius(0.4375 * kInch);
  EXPECT_NEAR(mid.alongGrain, 10 * kFoot, 1e-12);
  EXPECT_NEAR(mid.acrossGrain, 4.5 * kFoot, 1e-12);
  // 3 mm: in proportion to the quarter inch; 1 inch to the three quarters.
  EXPECT_NEAR(minimumBendRadius(0.125 * kInch).alongGrain, 2.5 * kFoot, 1e-12);
  EXPECT_NEAR(minimumBendRadius(1.0 * kInch).acrossGrain, 16 * kFoot, 1e-12);
  // Thicker never bends tighter.
  double last = 0;
  for (double t = 0.001; t < 0.03; t += 0.0005) {
    const double r = minimumBendRadius(t).alongGrain;
    EXPECT_GE(r, last);
    last = r;
  }
}

TEST(BendingTable, NoThicknessNeedsNoRadius) {
  for (double t : {0.0, -0.006, std::nan(""), std::numeric_limits<double>::infinity()}) {
    const BendLimit b = minimumBendRadius(t);
    EXPECT_EQ(b.alongGrain, 0);
    EXPECT_EQ(b.acrossGrain, 0);
  }
}

}  // namespace
}  // namespace tolmar::devcheck
