// The hull lines files (2D and 3D DXF, XYZ, VRML) on the default hull, byte
// for byte, and the sheet and edge rules of these writers.
#include <gtest/gtest.h>

#include <cmath>

#include "dxf_text_reader.h"
#include "export/lines_dxf.h"
#include "export/preset_host.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "export_fixtures.h"
#include "golden_file.h"

namespace tolmar {
namespace {

using test::readPolylines;

std::string lines2D(const HullStore& h) {
  StringSink out;
  writeLines2D(out, h, hullExtremes(h));
  return out.text();
}

std::string lines3D(const HullStore& h) {
  StringSink out;
  writeLines3D(out, h, hullExtremes(h));
  return out.text();
}

class DefaultHullFiles : public testing::Test {
 protected:
  static void SetUpTestSuite() { hull_ = new HullStore(test::defaultHull()); }
  static void TearDownTestSuite() { delete hull_; }
  static HullStore* hull_;
};
HullStore* DefaultHullFiles::hull_ = nullptr;

TEST_F(DefaultHullFiles, Lines2DGolden) { test::expectGolden("Tolmar_2D.DXF", lines2D(*hull_)); }
TEST_F(DefaultHullFiles, Lines3DGolden) { test::expectGolden("Tolmar_3D.DXF", lines3D(*hull_)); }

TEST_F(DefaultHullFiles, LinesXyzGolden) {
  StringSink en, fr;
  writeLinesXyz(en, *hull_);
  HullStore french = *hull_;
  french.langue = 0;
  writeLinesXyz(fr, french);
  test::expectGolden("Tolmar.XYZ", en.text());
  test::expectGolden("Tolmar_fr.XYZ", fr.text());
}

TEST_F(DefaultHullFiles, VrmlGolden) {
  StringSink out;
  writeVrml(out, *hull_);
  test::expectGolden("Tolmar.WRL", out.text());
}

TEST_F(DefaultHullFiles, Lines2DPolylinesByLayer) {
  const auto p = readPolylines(lines2D(*hull_));
  // 6 plan outlines + 2 ends + 10 stations, 1 + 5 profile + 10 stations,
  // 2 end sections + 12 half-breadth lines + 10 stations, 7 construction.
  ASSERT_EQ(p.size(), 6U + 2 + 10 + 1 + 5 + 10 + 2 + 12 + 10 + 7);
  EXPECT_EQ(p[0].v.size(), 1U + 83 + 83 + 1);
  EXPECT_EQ(p[6].v.size(), 12U);  // the transom across the plan, keel twice
  for (const auto& poly : p)
    for (const auto& v : poly.v) EXPECT_EQ(v.z, 0.0);
  EXPECT_EQ(p[8].layer, 4);
  EXPECT_EQ(p[8].colour, 5);
  EXPECT_EQ(p.back().layer, 5);
  EXPECT_EQ(p.back().colour, 6);
}

TEST_F(DefaultHullFiles, Lines3DColoursRunFromTheKeelUp) {
  const auto p = readPolylines(lines3D(*hull_));
  ASSERT_EQ(p.size(), 1U + 6 + 1 + 21 + 1);
  const int expected[] = {7, 6, 5, 4, 7, 6};
  for (int k = 0; k <= 5; ++k) EXPECT_EQ(p[1 + k].colour, expected[k]);
  EXPECT_EQ(p[1].v.size(), 167U);
  // Both sides of the line: the first vertex comes again at the end.
  EXPECT_EQ(p[1].v.front().y, p[1].v.back().y);
  EXPECT_EQ(p[7].v.size(), 2U * 14 + 1);  // a station, m = 14
  EXPECT_EQ(p[8].layer, 2);
}

TEST(SheetRound, WholeNumberAboveItsArgument) {
  EXPECT_EQ(sheetRound(1.0F), 2.0);  // never equal to its argument
  EXPECT_EQ(sheetRound(0.0F), 1.0);
  EXPECT_EQ(sheetRound(0.95F), 1.0);
  EXPECT_EQ(sheetRound(1.95F), 2.0);
  EXPECT_EQ(sheetRound(0.94F), 1.0);
  EXPECT_EQ(sheetRound(6.3F), 7.0);
}

TEST(Lines2D, HullAboveZeroGetsOneMetreBelow) {
  HullStore h = test::defaultHull();
  for (int k = 0; k <= h.nChines; ++k)
    for (int i = 0; i <= 82; ++i) h.lineZ(k, i) += 5;
  const HullExtremes e = hullExtremes(h);
  EXPECT_EQ(e.minZ, 0.0F);
  const auto p = readPolylines(lines2D(h));
  // Base line of the profile at sheetY = 2 yHi + zLo, zLo = 1, yHi = R(0.95..) = 2.
  const auto& base = p[p.size() - 6];
  EXPECT_EQ(base.v[0].y, 2 * 2 + 1);
}

TEST(Lines2D, PointedStemMeetsOnTheCentreLine) {
  const HullStore h = test::defaultHull();
  ASSERT_EQ(h.yFwd(1), 0);
  const auto p = readPolylines(lines2D(h));
  // Row 1, line 1: vertices 83 and 84 are point 82 on both sides.
  EXPECT_EQ(p[1].v[83].x, p[1].v[84].x);
  EXPECT_EQ(p[1].v[83].y, p[1].v[84].y);
}

TEST(LinesFiles, OneChineHull) {
  HullStore h = test::defaultHull();
  h.nChines = 1;
  const auto p2 = readPolylines(lines2D(h));
  EXPECT_EQ(p2[2].v.size(), 4U);                // row 2: lines 1, 0 on one side, 0, 1 on the other
  EXPECT_EQ(p2[2 + 2 + 10 + 1].v.size(), 85U);  // one profile polyline, k = 1
  const auto p3 = readPolylines(lines3D(h));
  EXPECT_EQ(p3[3].v.size(), 2U * 10 + 1);  // m = 10
  StringSink w;
  writeVrml(w, h);
  EXPECT_EQ(w.text().find("Material { diffuseColor  0 1 0 }"), std::string::npos);
  EXPECT_NE(w.text().find("Material { diffuseColor  1 0 0 }"), std::string::npos);
}

TEST(LinesFiles, FileNameRenamesTheHullBeforeTheComment) {
  const std::string dir = testing::TempDir();
  HullStore h = test::defaultHull();
  auto host = PresetHost::toPath(dir + "BOAT.V2.DXF");
  ASSERT_EQ(saveLines2D(host, h), ExportOutcome::written);
  EXPECT_EQ(h.hullName, "BOAT");
  EXPECT_EQ(host.shownName, "BOAT");
  EXPECT_EQ(host.cancelFocused, 1);
  EXPECT_EQ(test::readBytes(dir + "BOAT.V2.DXF").substr(0, 26), "999\r\n2D lines of BOAT\r\n  0");
  ASSERT_EQ(host.requests.size(), 1U);
  EXPECT_EQ(host.requests[0].defaultName, "Tolmar.DXF");
  EXPECT_EQ(*host.requests[0].title, "Tolmar2008 - Save hull lines as 2D DXF file");
  std::remove((dir + "BOAT.V2.DXF").c_str());
}

TEST(LinesFiles, VrmlNameFollowsButTheBoardFieldDoesNot) {
  const std::string dir = testing::TempDir();
  HullStore h = test::defaultHull();
  auto host = PresetHost::toPath(dir + "Skiff.WRL");
  ASSERT_EQ(saveVrml(host, h), ExportOutcome::written);
  EXPECT_EQ(h.hullName, "Skiff");
  EXPECT_EQ(host.shownName, "");
  EXPECT_EQ(host.cancelFocused, 0);
  EXPECT_EQ(*host.requests[0].initialFolder, "Tolmar2000");
  EXPECT_FALSE(host.requests[0].title.has_value());
  std::remove((dir + "Skiff.WRL").c_str());
}

}  // namespace
}  // namespace tolmar

namespace tolmar {
namespace {

TEST(ExportFixtures, DefaultHullsValidate) {
  bool ok = false;
  test::defaultHull(1, false, &ok);
  EXPECT_TRUE(ok);
  test::defaultHull(1, true, &ok);
  EXPECT_TRUE(ok);
}

}  // namespace
}  // namespace tolmar
