// Zoom, move and fit on the board's picture: the arithmetic of the view
// and the rubber band drawn with the exclusive-or pen.
#include "board/plan_mouse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <tuple>

#include "board/recording_surface.h"
#include "board/views.h"
#include "development/hull_fixture.h"

namespace tolmar {
namespace {

constexpr float kW = 24000, kH = 15000;

struct View {
  float sx, sy, sz, ox, oy, oz;
  explicit View(const HullStore& h)
      : sx(h.scaleX), sy(h.scaleY), sz(h.scaleZ), ox(h.originX), oy(h.originY), oz(h.originZ) {}
  bool operator==(const View&) const = default;
};

HullStore viewOnly(float scale, float ox, float oy, float oz) {
  HullStore h;
  h.scaleX = h.scaleY = scale;
  h.scaleZ = -scale;
  h.originX = ox;
  h.originY = oy;
  h.originZ = oz;
  return h;
}

TEST(Zoom, BoxFillsNineTenthsAndItsCentreGoesToTheMiddle) {
  HullStore h = viewOnly(2000, 300, 11000, 6000);
  // A box half as wide and a third as high as the picture: the width is the
  // tighter direction.
  ASSERT_TRUE(zoomToBox(h, 1000, 2000, 13000, 7000, kW, kH));
  const float zoom = static_cast<float>(0.9 * (kW / 12000));
  EXPECT_FLOAT_EQ(h.scaleX, 2000 * zoom);
  EXPECT_FLOAT_EQ(h.scaleY, 2000 * zoom);
  EXPECT_FLOAT_EQ(h.scaleZ, -2000 * zoom);
  EXPECT_FLOAT_EQ(h.originX, kW / 2 - (7000 - 300) * zoom);
  EXPECT_FLOAT_EQ(h.originY, kH / 2 - (4500 - 11000) * zoom);
  EXPECT_FLOAT_EQ(h.originZ, kH / 2 - (4500 - 6000) * zoom);
  // The box's centre is now the picture's centre, in plan and profile.
  EXPECT_NEAR((7000 - 300) / 2000.0 * h.scaleX + h.originX, kW / 2, 0.01);
}

TEST(Zoom, TallBoxZoomsByItsHeight) {
  HullStore h = viewOnly(1000, 0, 0, 0);
  ASSERT_TRUE(zoomToBox(h, 0, 0, 1000, 5000, kW, kH));
  EXPECT_FLOAT_EQ(h.scaleX, 1000 * static_cast<float>(0.9 * (kH / 5000)));
}

TEST(Zoom, DragDirectionDoesNotMatter) {
  const float corners[][4] = {{2000, 3000, 9000, 8000},
                              {9000, 8000, 2000, 3000},
                              {2000, 8000, 9000, 3000},
                              {9000, 3000, 2000, 8000}};
  HullStore ref = viewOnly(1500, 200, 9000, 5000);
  ASSERT_TRUE(zoomToBox(ref, 2000, 3000, 9000, 8000, kW, kH));
  for (const auto& c : corners) {
    HullStore h = viewOnly(1500, 200, 9000, 5000);
    ASSERT_TRUE(zoomToBox(h, c[0], c[1], c[2], c[3], kW, kH));
    EXPECT_EQ(View(h), View(ref));
  }
}

TEST(Zoom, FlatBoxZoomsByWidthAndNarrowBoxDoesNothing) {
  HullStore h = viewOnly(100, 0, 0, 0);
  ASSERT_TRUE(zoomToBox(h, 100, 500, 400, 500, kW, kH));  // height 0, width 300
  EXPECT_FLOAT_EQ(h.scaleX, 100 * static_cast<float>(0.9 * (kW / 300)));
  HullStore g = viewOnly(1000, 10, 20, 30);
  const View before(g);
  EXPECT_FALSE(zoomToBox(g, 100, 0, 399, 9000, kW, kH));  // width 299, any height
  EXPECT_FALSE(zoomToBox(g, 399, 9000, 100, 0, kW, kH));
  EXPECT_EQ(View(g), before);
}

TEST(Zoom, ScaleStopsAtExactly32000AndAtTheLimitOnlyRecentres) {
  HullStore h = viewOnly(31000, 100, 200, 300);
  ASSERT_TRUE(zoomToBox(h, 0, 0, 12000, 7500, kW, kH));
  EXPECT_EQ(h.scaleX, 32000.0f);
  EXPECT_EQ(h.scaleY, 32000.0f);
  EXPECT_EQ(h.scaleZ, -32000.0f);
  for (float s : {12345.678f, 777.7f, 31999.99f, 29999.9f}) {
    HullStore g = viewOnly(s, 0, 0, 0);
    ASSERT_TRUE(zoomToBox(g, 0, 0, 300, 300, kW, kH));
    EXPECT_EQ(g.scaleX, 32000.0f) << s;
  }
  const float ox = h.originX;
  ASSERT_TRUE(zoomToBox(h, 1000, 1000, 1400, 1200, kW, kH));
  EXPECT_EQ(h.scaleX, 32000.0f);
  EXPECT_FLOAT_EQ(h.originX, kW / 2 - (1200 - ox));
}

TEST(Move, PlanAndProfileShiftTogether) {
  HullStore h = viewOnly(1000, 100, 200, 300);
  moveView(h, 50, -70);
  EXPECT_FLOAT_EQ(h.originX, 150);
  EXPECT_FLOAT_EQ(h.originY, 130);
  EXPECT_FLOAT_EQ(h.originZ, 230);
  EXPECT_FLOAT_EQ(h.scaleX, 1000);
}

// Each rubber-band figure, drawn in exclusive or, must appear an even
// number of times by the end of a drag: the picture is left as it was.
// Figures of no size (the first erase after the press) paint nothing.
using Figure = std::tuple<DrawOp, float, float, float, float, Colour>;

std::map<Figure, int> xorFigures(const RecordingSurface& s) {
  std::map<Figure, int> n;
  for (const auto& c : s.calls())
    if (c.mode == kModeXorPen && (c.x1 != c.x2 || c.y1 != c.y2))
      ++n[{c.op, c.x1, c.y1, c.x2, c.y2, c.colour}];
  return n;
}

struct Board {
  std::unique_ptr<HullStore> h = fixture::defaultHull();
  board::BoardState b;
  RecordingSurface s{kW, kH};
  PlanMouse mouse{s, *h, b};
  Board() {
    b.stepIndex = 1;
    dessine(s, *h, 1);
    s.clear();
  }
};

TEST(PlanMouse, NarrowLeftDragLeavesNoBandAndNoChange) {
  Board t;
  const View before(*t.h);
  t.mouse.buttonDown(kLeftButton, 5000, 4000);
  EXPECT_EQ(t.s.DrawMode, kModeXorPen);
  t.mouse.mouseMove(kLeftButton, 5100, 6000);
  t.mouse.mouseMove(kLeftButton, 5299, 9000);
  EXPECT_EQ(t.mouse.buttonUp(kLeftButton, 5299, 9000), PlanResult::Nothing);
  EXPECT_EQ(t.s.DrawMode, kModeCopyPen);
  EXPECT_EQ(View(*t.h), before);
  for (const auto& [f, n] : xorFigures(t.s)) EXPECT_EQ(n % 2, 0);
  for (const auto& c : t.s.calls()) EXPECT_NE(c.op, DrawOp::Cls);
  // Box in green, cross in magenta.
  EXPECT_EQ(t.s.calls()[1].op, DrawOp::LineBox);
  EXPECT_EQ(t.s.calls()[1].colour, rgb(0, 255, 0));
  EXPECT_EQ(t.s.calls()[2].colour, rgb(255, 0, 255));
  EXPECT_EQ(t.s.calls().size(), 2u * 6 + 3);  // six a move, three to erase
}

TEST(PlanMouse, LeftDragZoomsAndRedrawsOnce) {
  Board t;
  HullStore expect = *t.h;
  t.mouse.buttonDown(kLeftButton, 9000, 8000);
  t.mouse.mouseMove(kLeftButton, 6000, 6000);
  t.mouse.mouseMove(kLeftButton, 3000, 2000);  // dragged up and to the left
  EXPECT_EQ(t.mouse.buttonUp(kLeftButton, 3000, 2000), PlanResult::Redrawn);
  ASSERT_TRUE(zoomToBox(expect, 3000, 2000, 9000, 8000, kW, kH));
  EXPECT_EQ(View(*t.h), View(expect));
  int cls = 0;
  for (const auto& c : t.s.calls()) cls += c.op == DrawOp::Cls;
  EXPECT_EQ(cls, 1);
  for (const auto& [f, n] : xorFigures(t.s)) EXPECT_EQ(n % 2, 0);
}

TEST(PlanMouse, RightDragMovesByTheDrag) {
  Board t;
  const View before(*t.h);
  t.mouse.buttonDown(kRightButton, 1000, 1000);
  t.mouse.mouseMove(kRightButton, 1200, 900);
  t.mouse.mouseMove(kRightButton, 1500, 700);
  EXPECT_EQ(t.mouse.buttonUp(kRightButton, 1500, 700), PlanResult::Redrawn);
  EXPECT_FLOAT_EQ(t.h->originX, before.ox + 500);
  EXPECT_FLOAT_EQ(t.h->originY, before.oy - 300);
  EXPECT_FLOAT_EQ(t.h->originZ, before.oz - 300);
  EXPECT_EQ(t.h->scaleX, before.sx);
  for (const auto& [f, n] : xorFigures(t.s)) EXPECT_EQ(n % 2, 0);
}

TEST(PlanMouse, OtherButtonsAndStrayReleasesDoNothing) {
  Board t;
  const View before(*t.h);
  t.mouse.buttonDown(kMiddleButton, 10, 10);
  t.mouse.mouseMove(kMiddleButton, 5000, 5000);
  EXPECT_EQ(t.mouse.buttonUp(kMiddleButton, 5000, 5000), PlanResult::Nothing);
  EXPECT_EQ(t.mouse.buttonUp(kLeftButton, 9000, 9000), PlanResult::Nothing);  // no press before
  t.mouse.buttonDown(kLeftButton, 10, 10);
  t.mouse.mouseMove(kLeftButton | kRightButton, 5000, 5000);
  EXPECT_TRUE(t.s.calls().empty());
  EXPECT_EQ(View(*t.h), before);
}

TEST(PlanMouse, DoubleClickFitsTheSheetAgain) {
  Board t;
  const View fitted(*t.h);
  t.mouse.buttonDown(kLeftButton, 2000, 2000);
  t.mouse.mouseMove(kLeftButton, 6000, 5000);
  t.mouse.buttonUp(kLeftButton, 6000, 5000);
  t.mouse.buttonDown(kRightButton, 2000, 2000);
  t.mouse.buttonUp(kRightButton, 2500, 2600);
  ASSERT_FALSE(View(*t.h) == fitted);
  t.s.clear();
  EXPECT_EQ(t.mouse.doubleClick(), PlanResult::FittedAgain);
  EXPECT_EQ(View(*t.h), fitted);
  EXPECT_EQ(t.s.calls().front().op, DrawOp::Cls);
  EXPECT_EQ(t.s.DrawMode, kModeCopyPen);
}

TEST(PlanMouse, RepeatedZoomStaysFinite) {
  Board t;
  for (int i = 0; i < 40; ++i) {
    t.mouse.buttonDown(kLeftButton, 100, 100);
    t.mouse.mouseMove(kLeftButton, 400, 120);
    t.mouse.buttonUp(kLeftButton, 400, 120);
  }
  EXPECT_EQ(t.h->scaleX, 32000.0f);
  for (const auto& c : t.s.calls()) ASSERT_TRUE(std::isfinite(c.x1) && std::isfinite(c.y2));
}

}  // namespace
}  // namespace tolmar
