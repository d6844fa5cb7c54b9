// Every plate at once: the same numbers as the store's development, the
// store untouched, in the exports' order, and the flat area equal to the
// area of the surface it was unrolled from.
#include "development/developed_plate.h"

#include <gtest/gtest.h>

#include <cmath>

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "development/hull_fixture.h"
#include "development/plate_cut.h"

namespace tolmar {
namespace {

// Area of the 3-D strip between rows lo and up of three tables, laid as the
// development lays it: triangles (lo i, up i, lo i+1), (up i, lo i+1, up i+1).
double stripArea(const TableRef& x, const TableRef& y, const TableRef& z, int lo, int last) {
  auto area = [&](int l1, int i1, int l2, int i2, int l3, int i3) {
    const double ax = x(l2, i2) - x(l1, i1), ay = y(l2, i2) - y(l1, i1), az = z(l2, i2) - z(l1, i1);
    const double bx = x(l3, i3) - x(l1, i1), by = y(l3, i3) - y(l1, i1), bz = z(l3, i3) - z(l1, i1);
    const double cx = ay * bz - az * by, cy = az * bx - ax * bz, cz = ax * by - ay * bx;
    return std::sqrt(cx * cx + cy * cy + cz * cz) / 2;
  };
  double a = 0;
  for (int i = 0; i < last; ++i)
    a += area(lo, i, lo + 1, i, lo, i + 1) + area(lo + 1, i, lo, i + 1, lo + 1, i + 1);
  return a;
}

TEST(DevelopAll, SameNumbersAsTheStoreAndTheStoreUnchanged) {
  for (auto make : {fixture::defaultHull, fixture::pramBowHull, fixture::manyLineHull}) {
    const auto h = make();
    const HullStore before = *h;
    const std::vector<DevelopedPlate> all = developAll(*h);
    EXPECT_EQ(*h, before);

    HullStore s = *h;
    for (const DevelopedPlate& p : all) {
      int last = kPlankLastPoint;
      switch (p.kind) {
        case PlateKind::bottom:
          developBottom(s), last = kBottomLastPoint;
          break;
        case PlateKind::plank:
          developPlank(s, p.index);
          break;
        case PlateKind::deck:
          developDeck(s, p.index);
          break;
        case PlateKind::transom:
        case PlateKind::pramBow: {
          const EndPlate e = p.kind == PlateKind::transom ? transomPlateOf(*h) : bowPlateOf(*h);
          ASSERT_EQ(p.lower.size(), static_cast<std::size_t>(lastSectionPoint(*h) + 1));
          for (std::size_t j = 0; j < p.lower.size(); ++j) {
            EXPECT_EQ(p.lower[j], (FlatPoint{-e(2, int(j)), e(1, int(j))}));
            EXPECT_EQ(p.upper[j], (FlatPoint{e(2, int(j)), e(1, int(j))}));
          }
          continue;
        }
      }
      ASSERT_EQ(p.lower.size(), static_cast<std::size_t>(last + 1)) << p.name;
      for (int i = 0; i <= last; ++i) {
        EXPECT_EQ(p.lower[std::size_t(i)], (FlatPoint{s.devXi(i), s.devYi(i)})) << p.name << i;
        EXPECT_EQ(p.upper[std::size_t(i)], (FlatPoint{s.devXs(i), s.devYs(i)})) << p.name << i;
      }
    }
  }
}

TEST(DevelopAll, OrderNamesAndKinds) {
  const auto h = fixture::pramBowHull();  // four lines, a pram bow
  const std::vector<DevelopedPlate> all = developAll(*h);
  std::vector<std::string> names;
  for (const auto& p : all) names.push_back(p.name);
  EXPECT_EQ(names, (std::vector<std::string>{"p00", "p01", "p02", "p03", "deck 1", "deck 2",
                                             "deck 3", "deck 4", "transom", "bow"}));
  EXPECT_TRUE(all[0].cutTwice);
  EXPECT_FALSE(all[8].cutTwice);
  EXPECT_EQ(all[0].upperTicks.back(), 1 + 4 * ((h->iMaxBeam - 2) / 4));
  EXPECT_EQ(all[1].lowerTicks.size(), 21u);
  EXPECT_EQ(developAll(*fixture::defaultHull()).back().name, "transom");  // no pram bow
}

TEST(DevelopAll, FlatAreaIsTheAreaOfTheSurface) {
  // The development keeps every side of its triangles, so each triangle
  // keeps its area: flat area = area of the triangulated strip.
  const auto h = fixture::manyLineHull();
  for (const DevelopedPlate& p : developAll(*h)) {
    if (p.kind != PlateKind::plank && p.kind != PlateKind::bottom) continue;
    const double surface =
        p.kind == PlateKind::bottom
            ? stripArea(h->edgeXRef(), h->edgeYRef(), h->edgeZRef(), 0, kBottomLastPoint)
            : stripArea(h->lineXRef(), h->lineYRef(), h->lineZRef(), p.index, kPlankLastPoint);
    EXPECT_NEAR(p.area, surface, 1e-9 * (1 + surface)) << p.name;
    EXPECT_GT(p.length, p.width) << p.name;
  }
}

TEST(DevelopAll, LapStrakeOutlineAsThePlateFileDrawsIt) {
  auto h = fixture::defaultHull();
  h->overlapMode = 2;
  h->transomThick = 0.012;
  for (int i = 0; i <= kPlankLastPoint; ++i) h->overlapWidth(2, i) = 0.02;
  h->plankThick(2) = 0.006;
  const DevelopedPlate p = developPlate(*h, PlateKind::plank, 2);
  HullStore s = *h;
  developPlank(s, 2);
  const CutOutline c = cutOutline(s, 2, kPlankLastPoint);
  ASSERT_EQ(p.cutLower.size(), 83u);
  for (int i = 0; i <= kPlankLastPoint; ++i) {
    EXPECT_EQ(p.cutLower[std::size_t(i)], c.low(i));
    EXPECT_EQ(p.cutUpper[std::size_t(i)], c.up(i));
  }
  EXPECT_DOUBLE_EQ(p.lap, 0.02);
  EXPECT_DOUBLE_EQ(p.thickness, 0.006);
  EXPECT_EQ(p.outline(true).size(), 2 * 83u);
  EXPECT_EQ(p.outline(true).front(), c.low(0));

  h->transomThick = 0;  // nothing added: no outline of its own
  for (int i = 0; i <= kPlankLastPoint; ++i) h->overlapWidth(2, i) = 0;
  EXPECT_TRUE(developPlate(*h, PlateKind::plank, 2).cutLower.empty());
}

TEST(DevelopAll, DegeneratePlateIsEmptyAndFinite) {
  auto h = fixture::defaultHull();
  // Line 3 laid on line 2: plank 2 has no width anywhere.
  for (int i = 0; i <= kLastPoint; ++i) {
    h->lineX(3, i) = h->lineX(2, i);
    h->lineY(3, i) = h->lineY(2, i);
    h->lineZ(3, i) = h->lineZ(2, i);
  }
  const DevelopedPlate p = developPlate(*h, PlateKind::plank, 2);
  for (std::size_t i = 0; i < p.lower.size(); ++i) {
    EXPECT_TRUE(std::isfinite(p.lower[i].x) && std::isfinite(p.lower[i].y));
    EXPECT_TRUE(std::isfinite(p.upper[i].x) && std::isfinite(p.upper[i].y));
  }
  EXPECT_TRUE(p.empty());
  EXPECT_EQ(p.area, 0);
  EXPECT_TRUE(p.outline().empty());

  HullStore blank;  // nothing validated: every plate empty, nothing NaN
  for (const DevelopedPlate& q : developAll(blank)) {
    EXPECT_TRUE(std::isfinite(q.area + q.length + q.width)) << q.name;
    EXPECT_TRUE(q.empty()) << q.name;
  }
}

}  // namespace
}  // namespace tolmar
