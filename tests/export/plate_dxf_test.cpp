// The plate, deck and station DXF files: golden files of the default hull
// in both forms, and the rules of the outline with material.
#include "export/plate_dxf.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "development/calc_develop.h"
#include "development/end_plates.h"
#include "dxf_text_reader.h"
#include "export/end_plates_dxf.h"
#include "development/plate_cut.h"
#include "export/preset_host.h"
#include "export_fixtures.h"
#include "golden_file.h"
#include "hull/hull_fixtures.h"
#include "screens/overlap1.h"

namespace tolmar {
namespace {

using test::Polyline;
using test::readPolylines;

// The default hull after overlap1: strip planking, or lap strake with
// 9 mm bottom, 25 mm lap on the bottom, 6 mm sides, 18 mm laps, 12 mm
// transom and 15 mm bow.
HullStore afterOverlap(bool lap, bool pramBow) {
  HullStore h = test::defaultHull(1, pramBow);
  Overlap1 s;
  s.load();
  s.activate(h);
  if (lap) {
    using G = Overlap1::Group;
    s.typeText(h, G::text1, 0, "9");
    s.typeText(h, G::text1, 1, "25");
    s.typeText(h, G::text2, 0, "6");
    s.typeText(h, G::text2, 1, "18");
    s.typeText(h, G::text3, 1, "12");
    s.typeText(h, G::text3, 2, "15");
  }
  s.clickCommand1(h, lap ? 2 : 1);
  calcTransomPlate(h);
  if (h.yFwd(1) > 0.0001) calcBowPlate(h);
  return h;
}

std::string plates(HullStore h, bool lap) {
  StringSink out;
  writePlateFile(out, h, h.nChines - 1, lap);
  return out.text();
}

std::vector<Polyline> onLayer(const std::vector<Polyline>& all, int layer, int colour = -1) {
  std::vector<Polyline> r;
  for (const auto& p : all)
    if (p.layer == layer && (colour < 0 || p.colour == colour)) r.push_back(p);
  return r;
}

TEST(PlateDxf, PlainGolden) {
  test::expectGolden("Tolmar_PLANK.DXF", plates(afterOverlap(false, false), false));
}

TEST(PlateDxf, LapStrakeWithPramBowGolden) {
  test::expectGolden("Pram_lap_PLANK.DXF", plates(afterOverlap(true, true), true));
}

TEST(PlateDxf, DeckAndStationGolden) {
  HullStore h = afterOverlap(false, false);
  StringSink deck, station;
  writeDeckFile(deck, h, h.nChines);
  writeStationFile(station, h, 41);
  test::expectGolden("Tolmar_DECK.DXF", deck.text());
  test::expectGolden("Tolmar_STAT_41.DXF", station.text());
  EXPECT_EQ(station.text().substr(0, 18), "999\r\nstation  41\r\n");
}

TEST(PlateDxf, PlainFileLayout) {
  const HullStore h = afterOverlap(false, false);
  const auto all = readPolylines(plates(h, false));
  for (int n = 0; n <= 4; ++n) {
    const auto own = onLayer(all, n + 1);
    // Name "p0n": three glyphs, then one outline in colour 7 - n mod 3.
    ASSERT_EQ(own.size(), 4U) << "plate " << n;
    EXPECT_EQ(own[3].colour, 7 - n % 3);
    const std::size_t points = n == 0 ? 84 : 83;
    EXPECT_EQ(own[3].v.size(), 2 * points + 1);
  }
  // Maximum-beam lines and ticks: bottom 21 lower + 10 upper ticks, planks 42.
  EXPECT_EQ(onLayer(all, 13).size(), 5U + 21 + 10 + 4 * 42);
  EXPECT_EQ(onLayer(all, 16).size(), 7U + 1);  // "transom" and its outline
  EXPECT_EQ(onLayer(all, 14).size(), 4U + 1);  // "st41" and the section
  EXPECT_TRUE(onLayer(all, 15).empty());       // a pointed stem has no bow plate
  const auto station = onLayer(all, 14);
  for (const auto& v : station.back().v) EXPECT_GE(v.z, -0.6);  // hull X kept as Z
}

TEST(PlateDxf, StationTicksPointAwayFromTheEdge) {
  const auto all = readPolylines(plates(afterOverlap(false, false), false));
  const auto ticks = onLayer(all, 13);
  const auto& lower = ticks[1];  // after the bottom's maximum-beam line
  ASSERT_EQ(lower.v.size(), 3U);
  EXPECT_NEAR(lower.v[0].x, lower.v[1].x - 0.005, 1e-4);
  EXPECT_NEAR(lower.v[0].y, lower.v[1].y + 0.005, 1e-4);
  EXPECT_NEAR(lower.v[2].y, lower.v[1].y + 0.01, 1e-4);
  const auto& upper = ticks[1 + 21];
  EXPECT_NEAR(upper.v[2].y, upper.v[1].y - 0.01, 1e-4);
}

TEST(PlateDxf, ZeroLapsAndThicknessesGiveCoincidentOutlines) {
  HullStore h = afterOverlap(false, true);
  h.overlapMode = 2;
  const auto all = readPolylines(plates(h, true));
  for (int n = 0; n <= 4; ++n) {
    const auto developed = onLayer(all, n + 1, 5);
    const auto cut = onLayer(all, n + 1, 1);
    ASSERT_EQ(developed.size(), 1U);
    ASSERT_EQ(cut.size(), 1U);
    ASSERT_EQ(developed[0].v.size(), cut[0].v.size());
    for (std::size_t i = 0; i < cut[0].v.size(); ++i) {
      EXPECT_EQ(developed[0].v[i].x, cut[0].v[i].x);
      EXPECT_EQ(developed[0].v[i].y, cut[0].v[i].y);
    }
  }
}

TEST(PlateCut, BottomHasNoLapOnlyItsEndsMove) {
  HullStore h = afterOverlap(true, true);
  developBottom(h);
  const CutOutline c = cutOutline(h, 0, 83);
  for (int i = 1; i <= 80; ++i) {
    EXPECT_EQ(c.low(i).x, h.devXi(i));
    EXPECT_EQ(c.low(i).y, h.devYi(i));
  }
  EXPECT_NE(c.low(0).x, h.devXi(0));   // transom thickness
  EXPECT_NE(c.up(83).x, h.devXs(83));  // bow thickness
  EXPECT_EQ(c.low(83).x, c.up(83).x);
}

TEST(PlateCut, LapMovesTheLowerEdgeOfAPlankOutByItsWidth) {
  HullStore h = afterOverlap(true, false);
  developPlank(h, 2);
  const CutOutline c = cutOutline(h, 2, 82);
  for (int i = 10; i <= 70; i += 10) {
    const double d = std::hypot(c.low(i).x - h.devXi(i), c.low(i).y - h.devYi(i));
    EXPECT_NEAR(d, 0.018, 1e-9) << "point " << i;
  }
  // A pointed stem: the bow end of the upper edge stays as developed.
  EXPECT_EQ(c.up(82).x, h.devXs(82));
  EXPECT_EQ(c.up(82).y, h.devYs(82));
}

TEST(PlateDxf, BottomOnlyStillWritesTheEndColumn) {
  HullStore h = afterOverlap(false, true);
  auto host = PresetHost::toFolder(::testing::TempDir());
  ASSERT_TRUE(saveDevelopedDxf(host, h, 0));
  ASSERT_EQ(host.answered.size(), 2U);
  const auto all = readPolylines(test::readBytes(host.answered[0]));
  EXPECT_EQ(onLayer(all, 1).size(), 4U);
  EXPECT_TRUE(onLayer(all, 2).empty());
  EXPECT_FALSE(onLayer(all, 16).empty());
  EXPECT_FALSE(onLayer(all, 15).empty());
  const auto decks = readPolylines(test::readBytes(host.answered[1]));
  EXPECT_EQ(decks.size(), 5U + 1);  // "deck 1": five glyphs, one outline
  for (const auto& p : host.answered) std::remove(p.c_str());
}

TEST(PlateDxf, ModeZeroWritesNothingAndCancelGoesOn) {
  HullStore h = afterOverlap(false, false);
  h.overlapMode = 0;
  auto none = PresetHost::toFolder(::testing::TempDir());
  EXPECT_TRUE(saveDevelopedDxf(none, h, 1));
  EXPECT_TRUE(none.requests.empty());
  h.overlapMode = 1;
  auto cancel = PresetHost::cancelling();
  EXPECT_TRUE(saveDevelopedDxf(cancel, h, 1));
  ASSERT_EQ(cancel.requests.size(), 2U);
  EXPECT_EQ(cancel.requests[0].defaultName, "Tolmar_PLANK.DXF");
  EXPECT_EQ(cancel.requests[1].defaultName, "Tolmar_DECK.DXF");
  EXPECT_EQ(cancel.requests[1].filter, "Plank (*_DECK.DXF)|*.DXF");
}

TEST(PlateDxf, PlankTwelveIsNamedOnLayerThirteen) {
  HullStore h = tolmar::testing::twentyPlankHull();
  buildAllStations(h);
  calcTransomPlate(h);
  const auto all = readPolylines(plates(h, false));
  // Plate 12 writes "p12" and its outline on layer 13, beside the ticks.
  const auto shared = onLayer(all, 13, 7);
  EXPECT_GE(shared.size(), 4U);
  for (const auto& p : all)
    for (const auto& v : p.v) EXPECT_TRUE(std::isfinite(v.x) && std::isfinite(v.y));
  test::expectGolden("TwentyPlanks_PLANK.DXF", plates(h, false));
}

TEST(PlateDxf, DeckNameAdvancesOverItsBlank) {
  HullStore h = afterOverlap(false, false);
  StringSink deck;
  writeDeckFile(deck, h, 1);
  const auto all = readPolylines(deck.text());
  ASSERT_EQ(all.size(), 6U);
  EXPECT_EQ(all[0].layer, 1);
  // "1" is the sixth character, five advances from "d": from the first
  // point of "d", (8, 16), to that of "1", (1, 12) five cells on.
  const double size = h.xFwd(1) / 100 + 0.002;
  EXPECT_NEAR(std::hypot(all[4].v[0].x - all[0].v[0].x, all[4].v[0].y - all[0].v[0].y),
              std::hypot((5 - 7.0 / 16) * size, 4.0 / 16 * size), 1e-4);
}

}  // namespace
}  // namespace tolmar
