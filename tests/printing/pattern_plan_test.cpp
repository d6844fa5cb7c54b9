// Full-size patterns on tiles: the number of tiles of a box against a count
// by hand, the tiles left out inside a large plate, the chosen plates by
// name, and the tile pages drawn on a recording surface: the outline at
// 56.8 twips to the millimetre, clipped to the window, the crosses of two
// neighbours at one place of the plate.
#include "printing/pattern_plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "board/recording_surface.h"
#include "development/developed_plate.h"
#include "printing/paper_setup.h"
#include "printing/pattern_pages.h"
#include "printing/print_host.h"

namespace tolmar {
namespace {

// A rectangle of length x width metres, lower edge on y = 0.
DevelopedPlate rectangle(double length, double width, const char* name = "p01") {
  DevelopedPlate p;
  p.kind = PlateKind::plank;
  p.index = 1;
  p.name = name;
  for (int i = 0; i <= 10; ++i) {
    p.lower.push_back({length * i / 10, 0});
    p.upper.push_back({length * i / 10, width});
  }
  p.lowerTicks = {1, 5, 9};
  p.upperTicks = {1, 5, 9};
  return p;
}

TEST(PatternTiles, BoxCountedByHand) {
  // 1000 x 300 mm with a 5 mm border on tiles of 180 x 250 overlapping by
  // 10: across 6 x 2 = 12 tiles, turned 2 x 5 = 10, so turned.
  const PlateTiling t = tilePlate(1000, 300, 180, 250, 10);
  EXPECT_TRUE(t.turned);
  EXPECT_EQ(t.cols, 2);
  EXPECT_EQ(t.rows, 5);
  EXPECT_DOUBLE_EQ(t.posterW, 310);
  EXPECT_DOUBLE_EQ(t.posterH, 1010);
  // A plate within one tile, and one exactly as wide as a tile.
  EXPECT_EQ(tilePlate(100, 50, 180, 250, 10).count(), 1);
  EXPECT_EQ(tilePlate(170, 240, 180, 250, 10).count(), 1);
  EXPECT_EQ(tilePlate(171, 240, 180, 250, 10).count(), 2);
}

TEST(PatternTiles, TilesCoverThePlateAndNoFewerWould) {
  for (double len : {0.0, 55.0, 170.0, 999.0, 6123.4})
    for (double wid : {0.0, 80.0, 450.0, 1300.0})
      for (double o : {5.0, 10.0, 50.0}) {
        const PlateTiling t = tilePlate(len, wid, 190, 260, o);
        ASSERT_GT(t.count(), 0);
        EXPECT_GE(t.gridW() + 1e-9, t.posterW);
        EXPECT_GE(t.gridH() + 1e-9, t.posterH);
        if (t.cols > 1) {
          EXPECT_LT(t.gridW() - t.stepU(), t.posterW);
        }
        if (t.rows > 1) {
          EXPECT_LT(t.gridH() - t.stepV(), t.posterH);
        }
      }
  EXPECT_EQ(tilePlate(100, 100, 20, 200, 10).count(), 0) << "a tile no wider than two bands";
  EXPECT_EQ(tilePlate(std::nan(""), 100, 190, 260, 10).count(), 0);
  EXPECT_EQ(overlapError(10, 190, 260, 1), "");
  EXPECT_NE(overlapError(4, 190, 260, 1), "");
  EXPECT_NE(overlapError(51, 190, 260, 0).find("entre 5 et 50"), std::string::npos);
}

// 2000 x 1000 mm, turned: 6 columns of 170 mm steps, 9 rows of 240.  The
// edges run through columns 0 and 5 and rows 0 and 8; the 5 x 4 inner
// tiles stay blank and are left out.
TEST(PatternPlan, InnerTilesLeftOut) {
  const DevelopedPlate big = rectangle(2.0, 1.0);
  const PatternPlan plan = planPatterns({&big}, 180, 250 + kPatternHeadMm, 10);
  ASSERT_EQ(plan.entries.size(), 1u);
  const PatternEntry& e = plan.entries[0];
  EXPECT_TRUE(e.tiling.turned);
  EXPECT_EQ(e.tiling.cols, 6);
  EXPECT_EQ(e.tiling.rows, 9);
  EXPECT_EQ(e.printed, 26);
  EXPECT_EQ(plan.mapPages, 1);
  EXPECT_EQ(plan.pages, 27);
  for (int r = 1; r <= 7; ++r)
    for (int c = 1; c <= 4; ++c) EXPECT_EQ(e.page(r, c), 0) << r << "," << c;
  EXPECT_EQ(e.page(0, 0), 2) << "after the map";
  EXPECT_EQ(e.page(8, 5), 27);
}

TEST(PatternPlan, PlatesChosenByName) {
  std::vector<DevelopedPlate> plates = {rectangle(1, 0.2, "p00"), rectangle(1, 0.2, "p01"),
                                        rectangle(1, 0.2, "deck 2"), rectangle(1, 0.2, "transom")};
  plates[2].kind = PlateKind::deck;
  plates[3].kind = PlateKind::transom;
  std::vector<std::string> unknown;
  auto chosen = choosePlates(plates, {}, unknown);
  ASSERT_EQ(chosen.size(), 3u) << "every plate but the decks";
  EXPECT_EQ(chosen[2]->name, "transom");
  chosen = choosePlates(plates, {"TRANSOM", "deck2", "p01", "p09"}, unknown);
  ASSERT_EQ(chosen.size(), 3u);
  EXPECT_EQ(chosen[0]->name, "p01") << "in the order of the plates";
  EXPECT_EQ(chosen[1]->name, "deck 2");
  EXPECT_EQ(unknown, std::vector<std::string>{"p09"});
  DevelopedPlate flat = rectangle(1, 0, "p03");
  unknown.clear();
  EXPECT_TRUE(choosePlates({flat}, {"p03"}, unknown).empty()) << "nothing to cut";
}

// The recorded tile pages of a 400 x 150 mm plate: every line of the
// outline is 56.8 twips to the millimetre, and the outline's corners come
// back at the plate's place on the poster.  Across and turned take three
// tiles each: across is kept.
TEST(PatternPages, OutlineAtFullSizeOnTheTiles) {
  const DevelopedPlate p = rectangle(0.4, 0.15);
  const float W = static_cast<float>(180 / kMmPerTwip),
              H = static_cast<float>((170 + kPatternHeadMm) / kMmPerTwip);
  RecordingSurface s(W, H);
  const PatternPlan plan = planPatterns(s, {&p}, 10);
  ASSERT_EQ(plan.entries.size(), 1u);
  const PatternEntry& e = plan.entries[0];
  ASSERT_FALSE(e.tiling.turned);
  ASSERT_EQ(e.tiling.count(), 3);  // 410 mm across in steps of 170
  HullStore h;
  h.hullName = "BOX";
  h.langue = 1;
  FixedDateHost host(std::chrono::year{2025} / 6 / 15);
  printPatterns(s, h, host, plan, "A4");
  // The wide lines: the outline.  Each tile's offset on the poster is its
  // window's corner; the outline's long edges are 400 mm in all.
  double alongTop = 0;
  int page = 1, wide = 0;
  for (const DrawCall& c : s.calls()) {
    if (c.op == DrawOp::NewPage) ++page;
    if (c.op != DrawOp::Line || c.width != 3) continue;
    ++wide;
    const double v1 = c.y1 * kMmPerTwip - kPatternHeadMm, v2 = c.y2 * kMmPerTwip - kPatternHeadMm;
    EXPECT_GE(std::min(v1, v2), -1e-3);
    EXPECT_LE(std::max(c.x1, c.x2) * kMmPerTwip, 180 + 1e-3);
    if (std::fabs(v1 - kPatternBorderMm) < 1e-3 && std::fabs(v2 - kPatternBorderMm) < 1e-3)
      alongTop += std::fabs(c.x2 - c.x1) * kMmPerTwip;
  }
  EXPECT_GT(wide, 0);
  EXPECT_EQ(page, 1 + 3);
  // The top edge, counted once per tile where tiles overlap: 400 mm plus the
  // two overlaps it crosses, each 10 mm wide.
  EXPECT_NEAR(alongTop, 400 + 2 * 10, 0.01);
}

TEST(PatternPages, TitlesInBothLanguages) {
  DevelopedPlate p = rectangle(1, 1);
  EXPECT_EQ(plateTitle(p, 1), "plank 1");
  EXPECT_EQ(plateTitle(p, 0), "bordé 1");
  p.kind = PlateKind::pramBow;
  EXPECT_EQ(plateTitle(p, 0), "marotte");
  EXPECT_DOUBLE_EQ(crossArmMm(10), 4);
  EXPECT_DOUBLE_EQ(crossArmMm(5), 1.5);
}

}  // namespace
}  // namespace tolmar
