// Leaving the hydrostatics: both screens hidden without a further
// calculation, the board shown, and the water line of the last calculation
// drawn over it.
#include <gtest/gtest.h>

#include "analysis/analysis_screens.h"
#include "board/recording_surface.h"
#include "shape_hulls.h"

namespace tolmar::analysis {
namespace {

TEST(AnalysisScreens, QuitDrawsTheLastWaterline) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->scaleX = h->scaleY = 1000;
  h->scaleZ = -1000;
  h->originY = 6000;
  h->originZ = 3000;
  AnalysisScreens screens(*h);
  screens.open();
  const PointArr wlZ = h->wlZ;
  bool boardShown = false;
  screens.showBoard = [&] { boardShown = true; };
  RecordingSurface plan(20000, 10000);
  screens.quit(plan);

  EXPECT_TRUE(boardShown);
  EXPECT_FALSE(screens.hydro.visible || screens.mass.visible);
  EXPECT_EQ(screens.active(), ActiveScreen::other);
  EXPECT_EQ(h->wlZ, wlZ);
  ASSERT_FALSE(plan.calls().empty());
  const DrawCall& first = plan.calls().front();
  EXPECT_EQ(first.op, DrawOp::LineTo);
  EXPECT_EQ(first.colour, rgb(0, 0, 255));
  EXPECT_EQ(first.width, 2);
  // The profile's water line at the height the hydrostatics left.
  EXPECT_FLOAT_EQ(plan.calls()[84].y2, static_cast<float>(-1000 * wlZ(0) + 3000));
}

}  // namespace
}  // namespace tolmar::analysis
