// Panel offsets against shapes whose offsets are known (a rectangle laid
// aslant, a trapezoid, a lap-strake plank), and every plate of the default
// hull rebuilt from its offsets within 0.5 mm of its development.
#include "development/panel_offsets.h"

#include <gtest/gtest.h>

#include <cmath>

#include "development/hull_fixture.h"

namespace tolmar {
namespace {

// Lower edge from (0, 0) to (length, 0), upper edge from (0, h0) to
// (length, h1), both turned by `angle` about (ox, oy).
DevelopedPlate strip(double length, double h0, double h1, double angle = 0, double ox = 0,
                     double oy = 0) {
  DevelopedPlate p;
  p.name = "p01";
  const double c = std::cos(angle), s = std::sin(angle);
  auto put = [&](double x, double y) { return FlatPoint{ox + c * x - s * y, oy + s * x + c * y}; };
  for (int i = 0; i <= 20; ++i) {
    const double x = length * i / 20;
    p.lower.push_back(put(x, 0));
    p.upper.push_back(put(x, h0 + (h1 - h0) * i / 20));
  }
  return p;
}

TEST(PanelOffsets, RectangleAslant) {
  const DevelopedPlate p = strip(1.0, 0.3, 0.3, 0.5236, 2.0, -1.0);
  const PanelOffsets o = panelOffsets(p, 100);
  EXPECT_NEAR(o.baselineMm, 1000, 1e-9);
  ASSERT_EQ(o.stations.size(), 11u);
  for (std::size_t i = 0; i < o.stations.size(); ++i) {
    EXPECT_NEAR(o.stations[i].at, 100.0 * i, 1e-9);
    ASSERT_TRUE(o.stations[i].lower && o.stations[i].upper);
    EXPECT_NEAR(*o.stations[i].lower, 0, 1e-9);
    EXPECT_NEAR(*o.stations[i].upper, 300, 1e-9);
    EXPECT_FALSE(o.stations[i].lap);
  }
  // A step that does not divide the length: 0, 300, 600, 900 and the end.
  const PanelOffsets o3 = panelOffsets(p, 300);
  ASSERT_EQ(o3.stations.size(), 5u);
  EXPECT_NEAR(o3.stations.back().at, 1000, 1e-9);
  EXPECT_NEAR(o.upperEnds[1].at, 1000, 1e-9);
  EXPECT_NEAR(o.upperEnds[1].off, 300, 1e-9);
}

TEST(PanelOffsets, TrapezoidWidensLinearly) {
  const PanelOffsets o = panelOffsets(strip(2.0, 0.2, 0.4), 250);
  ASSERT_EQ(o.stations.size(), 9u);
  for (const OffsetStation& s : o.stations) EXPECT_NEAR(*s.upper, 200 + 0.1 * s.at, 1e-9) << s.at;
}

TEST(PanelOffsets, LapStrakeGivesTheCutEdgesAndTheLapLine) {
  DevelopedPlate p = strip(1.0, 0.25, 0.25);
  for (const FlatPoint& q : p.lower) p.cutLower.push_back({q.x, q.y - 0.02});
  p.cutUpper = p.upper;
  const PanelOffsets o = panelOffsets(p, 500);
  ASSERT_TRUE(o.lapStrake);
  ASSERT_EQ(o.stations.size(), 3u);
  for (const OffsetStation& s : o.stations) {
    EXPECT_NEAR(*s.lower, -20, 1e-9);
    EXPECT_NEAR(*s.lap, 0, 1e-9);
    EXPECT_NEAR(*s.upper, 250, 1e-9);
  }
}

TEST(PanelOffsets, StepRefusedAtZeroAndBelow) {
  for (double bad : {0.0, -100.0, 0.05, std::nan(""), HUGE_VAL}) {
    EXPECT_NE(stepError(bad, 1), "") << bad;
    EXPECT_TRUE(panelOffsets(strip(1, 0.1, 0.1), bad).stations.empty());
  }
  EXPECT_NE(stepError(0, 0).find("pas des stations"), std::string::npos);
  EXPECT_EQ(stepError(100, 1), "");
  EXPECT_TRUE(panelOffsets(DevelopedPlate{}, 100).stations.empty()) << "no lower edge";
}

double distance(FlatPoint p, FlatPoint a, FlatPoint b) {
  const double dx = b.x - a.x, dy = b.y - a.y, l2 = dx * dx + dy * dy;
  const double t = l2 > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / l2, 0.0, 1.0) : 0;
  return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

double toPolyline(FlatPoint p, const std::vector<FlatPoint>& line) {
  double d = 1e9;
  for (std::size_t i = 1; i < line.size(); ++i) d = std::min(d, distance(p, line[i - 1], line[i]));
  return d;
}

// Every station's points lie on the developed edges, and the edges' points
// lie on the lines through the stations (a step of 20 mm, as a builder
// would loft a curved end), within 0.5 mm.
TEST(PanelOffsets, DefaultHullRebuiltFromItsOffsets) {
  const auto h = fixture::defaultHull();
  const auto plates = developAll(*h);
  int checked = 0;
  for (const DevelopedPlate& p : plates) {
    if (p.empty() || p.kind == PlateKind::deck) continue;
    SCOPED_TRACE(p.name);
    const PanelOffsets o = panelOffsets(p, 20);
    ASSERT_GT(o.stations.size(), 2u);
    for (bool upperEdge : {false, true}) {
      const std::vector<FlatPoint>& edge = upperEdge ? p.upper : p.lower;
      const EdgeEnd(&ends)[2] = upperEdge ? o.upperEnds : o.lowerEnds;
      std::vector<FlatPoint> rebuilt{offsetPoint(p, ends[0].at, ends[0].off)};
      for (const OffsetStation& s : o.stations) {
        const auto off = upperEdge ? s.upper : s.lower;
        if (!off) continue;
        const FlatPoint q = offsetPoint(p, s.at, *off);
        EXPECT_LT(toPolyline(q, edge) * 1000, 0.5) << "station " << s.at;
        rebuilt.push_back(q);
      }
      rebuilt.push_back(offsetPoint(p, ends[1].at, ends[1].off));
      for (const FlatPoint& q : edge) EXPECT_LT(toPolyline(q, rebuilt) * 1000, 0.5);
    }
    ++checked;
  }
  EXPECT_GE(checked, 5);
}

}  // namespace
}  // namespace tolmar
