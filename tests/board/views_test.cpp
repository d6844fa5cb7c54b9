// The board's views on the default hull, recorded: what is drawn, in which
// order, colour and style, and which stations fall on which side.
#include "board/views.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <utility>

#include "board/recording_surface.h"
#include "board/view_map.h"
#include "development/hull_fixture.h"
#include "hull/stations.h"

namespace tolmar {
namespace {

constexpr float kW = 24000, kH = 15000;  // 1600 x 1000 dots at 15 twips a dot
const Colour kGrid = rgb(0, 255, 255);

std::unique_ptr<HullStore> fittedHull(int stepIndex = 1) {
  auto h = fixture::defaultHull();
  scaleViews(*h, kW, kH, stepIndex);
  buildAllStations(*h);
  return h;
}

template <typename Pred>
std::vector<DrawCall> select(const RecordingSurface& s, Pred p) {
  std::vector<DrawCall> out;
  for (const auto& c : s.calls())
    if (p(c)) out.push_back(c);
  return out;
}

std::vector<std::string> printed(const RecordingSurface& s) {
  std::vector<std::string> t;
  for (const auto& c : s.calls())
    if (c.op == DrawOp::Print) t.push_back(c.text);
  return t;
}

TEST(Grid, LinesAxesAndLetters) {
  auto h = fittedHull();
  RecordingSurface s(kW, kH);
  drawGrid(s, *h);
  // 13 stations in plan, 13 in profile, 11 joins to the sections, 6 plan
  // waterlines, 7 profile heights drawn twice.
  EXPECT_EQ(select(s, [](const DrawCall& c) { return c.colour == kGrid; }).size(),
            13u + 13 + 11 + 6 + 14);
  const auto axes = select(s, [](const DrawCall& c) { return c.style == kStyleDashDot; });
  ASSERT_EQ(axes.size(), 5u);  // two vertical, X of the profile, Y, centre line
  for (const auto& a : axes) EXPECT_EQ(a.colour, lineColour(*h, 4));
  EXPECT_EQ(printed(s), (std::vector<std::string>{"Z", " Y", "X"}));
  const auto circles = select(s, [](const DrawCall& c) { return c.op == DrawOp::Circle; });
  ASSERT_EQ(circles.size(), 2u);
  EXPECT_FLOAT_EQ(circles[0].y1, h->originZ);
  EXPECT_FLOAT_EQ(circles[1].y1, h->originY);
  // The grid runs from -gx to 11 gx whatever the hull's extent.
  const double gx = h->xFwd(0) / 10;
  const auto grid = select(s, [](const DrawCall& c) { return c.colour == kGrid; });
  EXPECT_FLOAT_EQ(grid.front().x1, px(*h, -gx));
  EXPECT_FLOAT_EQ(grid[12].x1, px(*h, 11 * gx));
  // The X axis of the profile ends 100 short of the picture's width.
  EXPECT_FLOAT_EQ(axes[2].x2, kW - 100);
  EXPECT_FLOAT_EQ(axes[3].y2, kH - 300);
}

TEST(Grid, AxesLeftOutNearTheEdges) {
  auto h = fittedHull();
  {
    RecordingSurface s(kW, kH);
    h->originZ = -300;  // originZ + 300 <= ScaleTop
    drawGrid(s, *h);
    EXPECT_EQ(printed(s), (std::vector<std::string>{" Y", "X"}));
    EXPECT_EQ(select(s, [](const DrawCall& c) { return c.style == kStyleDashDot; }).size(), 3u);
  }
  {
    auto g = fittedHull();
    RecordingSurface s(kW, kH);
    g->originY = kH - 400;  // originY + 400 >= ScaleHeight
    drawGrid(s, *g);
    EXPECT_EQ(printed(s), (std::vector<std::string>{"Z", "X"}));
    EXPECT_EQ(select(s, [](const DrawCall& c) { return c.style == kStyleDashDot; }).size(), 4u);
  }
}

TEST(Lines, BottomInTheKeelColourWithItsDimensions) {
  auto h = fittedHull();
  h->lineColor(0) = static_cast<float>(rgb(10, 20, 30));
  RecordingSurface s(kW, kH);
  drawLines(s, *h, 0);
  for (const auto& c : s.calls()) {
    EXPECT_EQ(c.colour, rgb(10, 20, 30));
    EXPECT_EQ(c.style, kStyleSolid);
  }
  const int iBeam = boardBeamPoint(*h);
  EXPECT_EQ(iBeam, 41);  // xMax(1) = 3 on a 6 m hull
  EXPECT_EQ(printed(s), (std::vector<std::string>{dimensionText(h->lineX(1, iBeam)), "0.95", "6.0",
                                                  dimensionText(h->lineZ(0, h->iMaxBeam))}));
  // Plan: the chine from the aft end of the keel to the stem, closed on the
  // centre line; profile: chine, then keel.  83 points each, 4 extra joins.
  const auto lineTos = select(s, [](const DrawCall& c) { return c.op == DrawOp::LineTo; });
  EXPECT_EQ(lineTos.size(), 85u + 84 + 83);
  const ViewPoint first = planPoint(*h, 1, 0);
  EXPECT_FLOAT_EQ(lineTos[0].x2, first.x);
  EXPECT_FLOAT_EQ(lineTos[0].y2, first.y);
  const ViewPoint keelAft = planPoint(*h, 0, 0);
  EXPECT_FLOAT_EQ(lineTos[84].x2, keelAft.x);
  EXPECT_FLOAT_EQ(lineTos[84].y2, keelAft.y);
}

TEST(Lines, FiguresAreZeroPointZeroHashHash) {
  EXPECT_EQ(dimensionText(6), "6.0");
  EXPECT_EQ(dimensionText(2.925), "2.925");
  EXPECT_EQ(dimensionText(0.95), "0.95");
  EXPECT_EQ(dimensionText(-0.2019287), "-0.202");
  EXPECT_EQ(dimensionText(1.0004), "1.0");
}

// Vertical strokes in the plan between the centre line and the ends of the
// lines: from the centre line at the transom, to it at the bow (where, on a
// pointed stem, they have no length).
struct EndStrokes {
  int transom = 0, bow = 0;
  bool operator==(const EndStrokes&) const = default;
};

EndStrokes endStrokes(const HullStore& h, const RecordingSurface& s) {
  EndStrokes e;
  for (const auto& c : s.calls()) {
    if (c.op != DrawOp::Line || c.x1 != c.x2) continue;
    const bool aft = c.x1 < px(h, h.xFwd(0) / 2);
    if (aft && c.y1 == h.originY) ++e.transom;
    if (!aft && c.y2 == h.originY) ++e.bow;
  }
  return e;
}

TEST(Lines, TransomAndBowEdgesWhereTheTurnChangesAndOnTheLastLine) {
  auto h = fittedHull();
  {
    RecordingSurface s(kW, kH);
    drawLines(s, *h, 1);
    // transomTurn is -1 from line 4 up: lines 4 and 5; bowTurn on line 5 only.
    EXPECT_EQ(endStrokes(*h, s), (EndStrokes{2, 1}));
  }
  for (int j = 0; j <= 5; ++j) h->transomTurn(j) = h->bowTurn(j) = 1;
  h->bowTurn(3) = -1;
  RecordingSurface s(kW, kH);
  drawLines(s, *h, 1);
  EXPECT_EQ(endStrokes(*h, s), (EndStrokes{1, 3}));  // bow: into line 3, out at 4, and 5
}

TEST(Lines, PlanksInTheirOwnColoursClosedOnTheLineBelow) {
  auto h = fittedHull();
  RecordingSurface s(kW, kH);
  drawLines(s, *h, 1);
  const auto texts = printed(s);
  ASSERT_EQ(texts.size(), 4u);
  // Forward end, aft end, beam and stem height of the outermost lines.
  EXPECT_EQ(texts[0], dimensionText(std::max(h->lineX(5, 82), h->lineX(4, 82))));
  EXPECT_EQ(texts[1], dimensionText(std::min(h->lineX(5, 0), h->lineX(4, 0))));
  EXPECT_EQ(texts[2], dimensionText(std::max(h->lineY(5, 41), h->lineY(4, 41))));
  EXPECT_EQ(texts[3], dimensionText(h->lineZ(5, 82)));
  for (int j = 2; j <= 5; ++j) {
    const auto mine = select(s, [&](const DrawCall& c) {
      return c.op == DrawOp::LineTo && c.colour == lineColour(*h, j) &&
             c.x2 == profilePoint(*h, j, 40).x && c.y2 == profilePoint(*h, j, 40).y;
    });
    EXPECT_EQ(mine.size(), 1u) << j;
  }
  // The last line of each outline returns to point 82 of the line below.
  const auto psets = select(s, [](const DrawCall& c) { return c.op == DrawOp::PSet; });
  EXPECT_EQ(psets.size(), 2u * 4);
}

TEST(Lines, NothingAboveTheBottomWithFewerThanTwoLines) {
  auto h = fittedHull();
  h->nChines = 1;
  RecordingSurface s(kW, kH);
  drawLines(s, *h, 1);
  drawSections(s, *h, 1);
  EXPECT_EQ(s.calls().size(),
            select(s, [&](const DrawCall& c) { return c.colour == lineColour(*h, 0); }).size());
}

// A slot whose bottom has no breadth (the pointed stem) looks the same on
// both sides.
bool hasBreadth(const HullStore& h, int p) {
  for (int j = 1; j <= 10; ++j)
    if (h.stationY(p, j) > 1e-6) return true;
  return false;
}

// The section slots with a breadth whose bottom points are all drawn on one side.
std::set<int> slotsOnSide(const HullStore& h, const RecordingSurface& s, int side) {
  std::set<std::pair<float, float>> seen;
  for (const auto& c : s.calls()) {
    seen.insert({c.x1, c.y1});
    seen.insert({c.x2, c.y2});
  }
  std::set<int> slots;
  for (int p = 0; p <= kLastPoint; ++p) {
    if (!hasBreadth(h, p)) continue;
    bool all = true;
    for (int j = 1; j <= 10; ++j) {
      const ViewPoint q = sectionPoint(h, p, j, side);
      all = all && seen.count({q.x, q.y});
    }
    if (all) slots.insert(p);
  }
  return slots;
}

TEST(Sections, AftStationsOnOneSideForwardOnTheOther) {
  auto h = fittedHull();
  RecordingSurface s(kW, kH);
  drawSections(s, *h, 0);
  std::set<int> plus{0}, minus{82};
  for (int i = 5; i <= 41; i += 4) plus.insert(i);
  for (int i = 41; i <= 81; i += 4) minus.insert(i);
  for (int p = 0; p <= kLastPoint; ++p) {
    if (hasBreadth(*h, p)) continue;
    plus.erase(p);
    minus.erase(p);
  }
  EXPECT_GE(minus.size(), 9u);
  EXPECT_EQ(slotsOnSide(*h, s, 1), plus);
  EXPECT_EQ(slotsOnSide(*h, s, -1), minus);
  for (const auto& c : s.calls()) EXPECT_EQ(c.colour, lineColour(*h, 0));
}

// LineTo calls above the bottom that start or end on the section axis, by colour.
// On a pram bow hull only the strokes of the end plates reach the axis.
std::multiset<Colour> axisStrokes(const HullStore& h, const RecordingSurface& s) {
  std::multiset<Colour> out;
  const float axis = px(h, h.bodyAxis);
  for (const auto& c : s.calls())
    if (c.op == DrawOp::LineTo && (c.x1 == axis || c.x2 == axis) && c.colour != lineColour(h, 0))
      out.insert(c.colour);
  return out;
}

TEST(Sections, TopEdgesAndTurnedInEndPlates) {
  struct Case {
    int nChines, transomLine, bowLine;  // line whose turn is -1, 0 none
    int strokes;                        // strokes to the axis besides the two top edges
  };
  const Case cases[] = {{4, 0, 0, 0}, {3, 2, 0, 1}, {3, 0, 2, 1}, {4, 3, 3, 2},
                        {4, 2, 2, 0}, {3, 3, 3, 0}, {2, 2, 2, 0}};
  for (const Case& k : cases) {
    auto h = fixture::pramBowHull();  // four lines
    scaleViews(*h, kW, kH, 1);
    h->nChines = static_cast<i16>(k.nChines);
    for (int j = 0; j <= 4; ++j) h->transomTurn(j) = h->bowTurn(j) = 1;
    if (k.transomLine) h->transomTurn(k.transomLine) = -1;
    if (k.bowLine) h->bowTurn(k.bowLine) = -1;
    buildAllStations(*h);
    RecordingSurface s(kW, kH);
    drawSections(s, *h, 1);
    const auto strokes = axisStrokes(*h, s);
    EXPECT_EQ(strokes.count(lineColour(*h, k.nChines)), 2u) << k.nChines;
    EXPECT_EQ(static_cast<int>(strokes.size()) - 2, k.strokes)
        << k.nChines << k.transomLine << k.bowLine;
    // Section point j above the bottom in the colour of line j - 9.
    const ViewPoint top = sectionPoint(*h, 45, k.nChines + 9, -1);
    const auto toTop = select(s, [&](const DrawCall& c) {
      return c.op == DrawOp::LineTo && c.x2 == top.x && c.y2 == top.y;
    });
    ASSERT_FALSE(toTop.empty());
    EXPECT_EQ(toTop.front().colour, lineColour(*h, k.nChines));
  }
}

TEST(Redraw, StepZeroDrawsOnlyTheBottom) {
  auto h = fixture::defaultHull();
  RecordingSurface s(kW, kH);
  dessine(s, *h, 0);
  EXPECT_EQ(s.calls().front().op, DrawOp::Cls);
  for (const auto& c : s.calls()) {
    const bool allowed =
        c.colour == kGrid || c.colour == lineColour(*h, 4) || c.colour == lineColour(*h, 0);
    EXPECT_TRUE(allowed) << c.colour;
  }
  RecordingSurface full(kW, kH);
  dessine(full, *h, 1);
  EXPECT_GT(full.calls().size(), s.calls().size() + 500);
}

TEST(Redraw, RedrawViewsAfterDessineRepeatsItsDrawing) {
  auto h = fixture::defaultHull();
  RecordingSurface a(kW, kH), b(kW, kH);
  dessine(a, *h, 2);
  redrawViews(b, *h, 2);
  ASSERT_EQ(a.calls().size(), b.calls().size() + 1);  // the Cls
  for (std::size_t i = 0; i < b.calls().size(); ++i) {
    EXPECT_EQ(a.calls()[i + 1].op, b.calls()[i].op);
    EXPECT_EQ(a.calls()[i + 1].x2, b.calls()[i].x2);
  }
}

TEST(Redraw, EverythingLandsOnThePicture) {
  auto h = fixture::defaultHull();
  RecordingSurface s(kW, kH);
  dessine(s, *h, 1);
  for (const auto& c : s.calls()) {
    ASSERT_TRUE(std::isfinite(c.x1) && std::isfinite(c.y1) && std::isfinite(c.x2) &&
                std::isfinite(c.y2));
    if (c.colour == kGrid || c.op == DrawOp::Cls) continue;
    EXPECT_GE(c.x2, 0);
    EXPECT_LE(c.x2, kW);
    EXPECT_GE(c.y2, 0);
    EXPECT_LE(c.y2, kH);
  }
}

}  // namespace
}  // namespace tolmar
