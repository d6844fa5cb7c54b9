// The water line over the board: three polylines of pen width 2 in blue,
// then the two centre marks.
#include <gtest/gtest.h>

#include <algorithm>

#include "analysis/analysis_screens.h"
#include "analysis/waterline_drawing.h"
#include "board/recording_surface.h"
#include "shape_hulls.h"

namespace tolmar::analysis {
namespace {

TEST(DrawWaterline, LinesThenCentreMarks) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->scaleX = 1000;
  h->scaleY = 1000;
  h->scaleZ = -1000;
  h->originX = 500;
  h->originY = 6000;
  h->originZ = 3000;
  h->bodyAxis = 5.5;
  h->lineColor(4) = static_cast<float>(rgb(200, 0, 0));
  AnalysisScreens screens(*h);
  screens.open();
  bool boardShown = false;
  screens.showBoard = [&] { boardShown = true; };
  RecordingSurface plan(20000, 10000);
  screens.quit(plan);
  EXPECT_TRUE(boardShown);
  EXPECT_FALSE(screens.hydro.visible || screens.mass.visible);

  const auto& calls = plan.calls();
  const auto lineTos = std::count_if(calls.begin(), calls.end(), [](const DrawCall& c) {
    return c.op == DrawOp::LineTo && c.width == 2 && c.colour == rgb(0, 0, 255);
  });
  EXPECT_EQ(lineTos, 84 + 83 + 84);  // plan closed on the axis, profile, both halves of the section
  ASSERT_EQ(calls.size(), 251u + 6u);
  // The plan starts and ends on the centre line.
  EXPECT_EQ(calls[0].y1, 6000);
  EXPECT_EQ(calls[83].y2, 6000);
  // The section: the forward half on the other side of the axis, closed on it.
  EXPECT_FLOAT_EQ(calls[250].x2, 6000);
  EXPECT_LT(calls[249].x2, 6000);

  const DrawCall& planMark = calls[251];
  EXPECT_EQ(planMark.op, DrawOp::Circle);
  EXPECT_EQ(planMark.radius, 60);
  EXPECT_EQ(planMark.width, 1);
  EXPECT_FLOAT_EQ(planMark.x1, 1000 * h->xDisp + 500);
  EXPECT_EQ(calls[254].colour, rgb(200, 0, 0));  // the profile's circle in the colour of line 4
  EXPECT_EQ(calls[256].colour, rgb(0, 0, 255));
  EXPECT_FLOAT_EQ(calls[256].x2 - calls[256].x1, 80);
}

}  // namespace
}  // namespace tolmar::analysis
