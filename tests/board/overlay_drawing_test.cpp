// What is drawn over the views: the chosen station and the water line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "board/recording_surface.h"
#include "board/station_drawing.h"
#include "board/view_map.h"
#include "board/water_line.h"
#include "development/hull_fixture.h"
#include "hull/stations.h"

namespace tolmar {
namespace {

constexpr float kW = 24000, kH = 15000;

std::unique_ptr<HullStore> fittedHull() {
  auto h = fixture::defaultHull();
  scaleViews(*h, kW, kH, 1);
  buildAllStations(*h);
  return h;
}

// The breadth of the drawn station leaves its axis towards +X or -X.
int sideOf(const HullStore& h, int station) {
  RecordingSurface s(kW, kH);
  HullStore g = h;
  g.stationIndex = static_cast<i16>(station);
  drawStation(s, g);
  const float axis = px(g, g.stationX(std::clamp(station, 1, 81), 0));
  float far = 0;
  for (const auto& c : s.calls())
    if (c.op == DrawOp::LineTo && std::abs(c.x2 - axis) > std::abs(far)) far = c.x2 - axis;
  return far > 0 ? 1 : -1;
}

TEST(StationDrawing, AftHalfOpensForwardForwardHalfOpensAft) {
  auto h = fittedHull();
  EXPECT_EQ(sideOf(*h, 1), 1);
  EXPECT_EQ(sideOf(*h, 40), 1);
  EXPECT_EQ(sideOf(*h, 41), -1);
  EXPECT_EQ(sideOf(*h, 81), -1);
}

TEST(StationDrawing, OutlineAxisAndPenLeftBehind) {
  auto h = fittedHull();
  h->stationIndex = 20;
  RecordingSurface s(kW, kH);
  s.DrawStyle = kStyleDot;
  drawStation(s, *h);
  const auto& c = s.calls();
  const int last = h->nChines + 9;
  ASSERT_EQ(c.size(), 1u + last + 1 + 1);
  EXPECT_EQ(c[0].op, DrawOp::PSet);
  for (std::size_t i = 0; i + 1 < c.size(); ++i) {
    EXPECT_EQ(c[i].colour, lineColour(*h, 4));
    EXPECT_EQ(c[i].style, kStyleSolid);
  }
  // Back to the centre at the height of the top point, then the axis.
  EXPECT_FLOAT_EQ(c[last + 1].x2, px(*h, h->stationX(20, last)));
  const DrawCall& axis = c.back();
  EXPECT_EQ(axis.style, kStyleDashDot);
  EXPECT_FLOAT_EQ(axis.x1, px(*h, h->stationX(20, 0)));
  EXPECT_FLOAT_EQ(axis.y1, pz(*h, h->stationZ(20, 0)) + 100);
  EXPECT_FLOAT_EQ(axis.y2, pz(*h, h->stationZ(20, last)) - 100);
  EXPECT_EQ(s.DrawStyle, kStyleSolid);
  EXPECT_EQ(s.ForeColor, lineColour(*h, 0));
}

TEST(StationDrawing, IndexOutsideTheStationsIsHeldInside) {
  auto h = fittedHull();
  for (int bad : {0, 82, -5, 400}) {
    h->stationIndex = static_cast<i16>(bad);
    RecordingSurface s(kW, kH);
    drawStation(s, *h);
    const int held = bad <= 0 ? 1 : 81;
    EXPECT_FLOAT_EQ(s.calls()[0].x1, px(*h, h->stationX(held, 0))) << bad;
  }
}

TEST(Waterline, ThreeViewsThenTheCentres) {
  auto h = fittedHull();
  for (int i = 0; i <= 82; ++i) {
    h->wlX(i) = h->lineX(1, i);
    h->wlY(i) = 0.5 * h->lineY(1, i);
    h->wlZ(i) = 0.1;
  }
  h->xDisp = 2.8;
  h->zDisp = -0.05;
  RecordingSurface s(kW, kH);
  drawWaterline(s, *h);
  const auto& c = s.calls();
  // 84 in plan, 83 in profile, 41 + 42 + 1 in sections, then two marks of
  // a circle and two diagonals.
  ASSERT_EQ(c.size(), 84u + 83 + 84 + 6);
  for (std::size_t i = 0; i < 251; ++i) {
    EXPECT_EQ(c[i].width, 2);
    EXPECT_EQ(c[i].colour, rgb(0, 0, 255));
  }
  // The section: aft half on the + side, forward half on the - side.
  const float axis = px(*h, h->bodyAxis);
  EXPECT_GT(c[84 + 83 + 20].x2, axis);
  EXPECT_LT(c[84 + 83 + 60].x2, axis);
  EXPECT_FLOAT_EQ(c[250].x2, axis);
  EXPECT_EQ(c[251].op, DrawOp::Circle);
  EXPECT_EQ(c[251].width, 1);
  EXPECT_FLOAT_EQ(c[251].radius, 60);
  EXPECT_FLOAT_EQ(c[251].y1, py(*h, 0));
  EXPECT_EQ(c[254].colour, lineColour(*h, 4));
  EXPECT_FLOAT_EQ(c[254].y1, pz(*h, -0.05));
  EXPECT_EQ(c[255].colour, rgb(0, 0, 255));
  EXPECT_FLOAT_EQ(c[255].x2 - c[255].x1, 80);
  EXPECT_EQ(s.DrawWidth, 1);
}

}  // namespace
}  // namespace tolmar
