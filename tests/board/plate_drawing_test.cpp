// The developed plates that Developer draws over the views.
#include "board/plate_drawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "board/recording_surface.h"
#include "board/view_map.h"
#include "development/hull_fixture.h"
#include "hull/stations.h"

namespace tolmar {
namespace {

constexpr float kW = 24000, kH = 15000;

HullStore flatPlate() {
  HullStore h;
  h.scaleX = h.scaleY = 1000;
  h.scaleZ = -1000;
  h.originX = 200;
  h.originY = 9000;
  h.originZ = 4000;
  for (int l = 0; l <= kMaxLine; ++l) h.lineColor(l) = static_cast<float>(rgb(l, 2 * l, 3 * l));
  for (int i = 0; i <= 90; ++i) {
    h.devXi(i) = h.devXs(i) = 0.1 * i;
    h.devYi(i) = 0;
    h.devYs(i) = 0.5;
  }
  return h;
}

TEST(PlateDrawing, BottomDottedLowerThenUpperEdgeClosedAtTheEnd) {
  const HullStore h = flatPlate();
  RecordingSurface s(kW, kH);
  drawDevBottom(s, h, 83);
  const auto& c = s.calls();
  ASSERT_EQ(c.size(), 1u + 84 + 1 + 84 + 1);
  EXPECT_EQ(c[0].op, DrawOp::PSet);
  EXPECT_EQ(c[85].op, DrawOp::PSet);
  for (const auto& k : c) {
    EXPECT_EQ(k.style, kStyleDot);
    EXPECT_EQ(k.colour, rgb(0, 0, 0));
  }
  EXPECT_FLOAT_EQ(c[84].x2, 200 + 1000 * 8.3f);  // lower point 83
  EXPECT_FLOAT_EQ(c[84].y2, 9000);
  EXPECT_FLOAT_EQ(c[169].y2, 9500);  // upper point 83
  EXPECT_FLOAT_EQ(c.back().x2, c[84].x2);
  EXPECT_FLOAT_EQ(c.back().y2, 9000);
  EXPECT_EQ(s.DrawStyle, kStyleSolid);
}

TEST(PlateDrawing, PlankStandsInTheProfileWithItsOffsets) {
  const HullStore h = flatPlate();
  RecordingSurface s(kW, kH);
  drawDevPlank(s, h, 82, 3, 0.25, 0.6);
  const auto& c = s.calls();
  ASSERT_EQ(c.size(), 1u + 83 + 1 + 83 + 1);
  EXPECT_EQ(c[1].colour, rgb(3, 6, 9));
  EXPECT_FLOAT_EQ(c[1].x2, 200 + 1000 * 0.25f);
  EXPECT_FLOAT_EQ(c[1].y2, 4000 - 1000 * 0.6f);
  EXPECT_FLOAT_EQ(c[85].y2, 4000 - 1000 * 1.1f);  // upper point 0
  EXPECT_EQ(s.ForeColor, rgb(0, 0, 0));
  EXPECT_EQ(s.DrawStyle, kStyleSolid);
}

struct EndCase {
  int flag2, flag3, nChines;
  Colour stroke;  // 0: no stroke
  int point;
};

TEST(PlateDrawing, EndPlatesAndTheirTurnInStrokes) {
  const EndCase cases[] = {{1, 1, 5, 0, 0},
                           {-1, 1, 5, rgb(2, 4, 6), 11},
                           {-1, -1, 5, rgb(2, 4, 6), 11},
                           {1, -1, 5, rgb(3, 6, 9), 12},
                           {1, -1, 2, 0, 0}};
  for (const EndCase& k : cases) {
    HullStore h = flatPlate();
    h.nChines = static_cast<i16>(k.nChines);
    h.lineX(0, 80) = 5.9;
    for (int j = 0; j <= 35; ++j) {
      h.transomPlate(1, j) = h.bowPlate(1, j) = 0.1 * j;
      h.transomPlate(2, j) = h.bowPlate(2, j) = 0.05 * j;
    }
    h.transomTurn(2) = h.bowTurn(2) = static_cast<i16>(k.flag2);
    h.transomTurn(3) = h.bowTurn(3) = static_cast<i16>(k.flag3);
    for (bool bow : {false, true}) {
      RecordingSurface s(kW, kH);
      bow ? drawBowPlate(s, h) : drawTransomPlate(s, h);
      const auto& c = s.calls();
      const int last = k.nChines + 9;
      ASSERT_EQ(c.size(), 1u + last + 1 + (k.stroke ? 1 : 0));
      auto x = [&](double d) {
        return bow ? 200 + 1000 * static_cast<float>(5.9 - d)
                   : 200 + 300 + 1000 * static_cast<float>(d);
      };
      EXPECT_FLOAT_EQ(c[last].x2, x(0.1 * last));
      EXPECT_FLOAT_EQ(c[last + 1].y2, 9000);  // back to the centre line
      EXPECT_EQ(c[1].colour, rgb(1, 2, 3));
      if (k.stroke) {
        EXPECT_EQ(c.back().colour, k.stroke);
        EXPECT_FLOAT_EQ(c.back().x1, x(0.1 * k.point));
        EXPECT_FLOAT_EQ(c.back().y1, 9000);
        EXPECT_FLOAT_EQ(c.back().y2, 9000 + 1000 * static_cast<float>(0.05 * k.point));
      }
    }
  }
}

std::multiset<Colour> dottedColours(const RecordingSurface& s) {
  std::multiset<Colour> out;
  for (const auto& c : s.calls())
    if (c.style == kStyleDot && c.op == DrawOp::PSet) out.insert(c.colour);
  return out;
}

TEST(Developer, BottomAloneAtStepZeroEveryPlateAfter) {
  auto h = fixture::defaultHull();
  scaleViews(*h, kW, kH, 1);
  buildAllStations(*h);
  {
    RecordingSurface s(kW, kH);
    developerDisplay(s, *h, 0);
    EXPECT_EQ(s.calls().size(), 1u + 84 + 1 + 84 + 1);
  }
  RecordingSurface s(kW, kH);
  developerDisplay(s, *h, 1);
  // Two PSets a plate: the bottom and planks 1..4 in the colours of lines 0, 2..5.
  const auto dotted = dottedColours(s);
  EXPECT_EQ(dotted.size(), 2u * 5);
  for (int l : {0, 2, 3, 5}) EXPECT_GE(dotted.count(lineColour(*h, l)), 2u) << l;
  // The transom, solid, in the colour of line 1; a pointed stem has no bow.
  std::size_t solid = 0;
  for (const auto& c : s.calls()) solid += c.style == kStyleSolid;
  EXPECT_EQ(solid, 1u + 14 + 1);
  EXPECT_EQ(s.ForeColor, lineColour(*h, 0));

  auto p = fixture::pramBowHull();
  scaleViews(*p, kW, kH, 1);
  buildAllStations(*p);
  RecordingSurface b(kW, kH);
  developerDisplay(b, *p, 1);
  solid = 0;
  for (const auto& c : b.calls()) solid += c.style == kStyleSolid;
  EXPECT_EQ(solid, 2u * (1 + 13 + 1));
}

}  // namespace
}  // namespace tolmar
