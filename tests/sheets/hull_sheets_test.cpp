// Sheets of the test hulls: the parts the mass budget counts, with their
// thickness from the thickness screen or the kinds' defaults, a folded
// hull refused, and the files read back: each sheet's DXF by dxflib
// (layers SHEET, CUT and MARK, every cut outline closed, in millimetres
// with the sheet's corner at the origin), the SVG as well formed text.
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "development/developed_plate.h"
#include "development/hull_fixture.h"
#include "hull/fold_check.h"
#include "sheets/bill_of_materials.h"
#include "sheets/hull_parts.h"
#include "sheets/layout_check.h"
#include "sheets/sheet_plan.h"
#include "sheets/sheets_dxf.h"
#include "sheets/sheets_svg.h"

namespace tolmar::sheets {
namespace {

namespace fs = std::filesystem;

std::multiset<std::string> names(const std::vector<SheetPart>& parts) {
  std::multiset<std::string> out;
  for (const SheetPart& p : parts)
    out.insert(p.name + (p.side < 0 ? " port" : p.side > 0 ? " stb" : ""));
  return out;
}

TEST(HullParts, TheMassBudgetsPanelsWithTheirThickness) {
  auto h = fixture::defaultHull();
  const PartsResult r = partsFromHull(*h, {});
  ASSERT_EQ(r.error, "");
  EXPECT_EQ(names(r.parts),
            (std::multiset<std::string>{"p00 stb", "p00 port", "p01 stb", "p01 port", "p02 stb",
                                        "p02 port", "p03 stb", "p03 port", "p04 stb", "p04 port",
                                        "deck 5 stb", "deck 5 port", "transom", "bulkhead 1"}));
  std::map<std::string, double> thick;
  for (const SheetPart& p : r.parts) {
    thick[p.name] = p.thicknessMm;
    EXPECT_TRUE(p.thicknessAssumed);
    EXPECT_EQ(p.densityKgM2, 10);
  }
  EXPECT_EQ(thick["p00"], 9);
  EXPECT_EQ(thick["p02"], 6);
  EXPECT_EQ(thick["transom"], 12);
  EXPECT_EQ(thick["deck 5"], 9);
  EXPECT_EQ(thick["bulkhead 1"], 9);
  // The port copy is the starboard one mirrored: same area, same length.
  const auto plates = developAll(*h);
  for (const SheetPart& p : r.parts)
    for (const DevelopedPlate& d : plates)
      if (d.name == p.name) {
        EXPECT_NEAR(polygonArea(p.outline) / 1e6, d.area, 0.002 * d.area) << p.name;
        EXPECT_NEAR(boundingBox(p.outline).width() / 1000, d.length, 0.001) << p.name;
      }
  // Typed thicknesses come from the thickness screen; the pram bow is added
  // by name, and a plank left out.
  h->plankThick(0) = 0.012;
  h->plankThick(1) = 0.0065;
  SheetOptions o;
  o.skip = {"p04"};
  const PartsResult typed = partsFromHull(*h, o);
  ASSERT_EQ(typed.error, "");
  for (const SheetPart& p : typed.parts) {
    EXPECT_NE(p.name, "p04");
    if (p.name == "p00") {
      EXPECT_NEAR(p.thicknessMm, 12, 1e-9);
    }
    if (p.name == "p01") {
      EXPECT_NEAR(p.thicknessMm, 6.5, 1e-9);
    }
    if (p.name == "p00" || p.name == "p01") {
      EXPECT_FALSE(p.thicknessAssumed);
    }
  }
  auto pram = fixture::pramBowHull();
  o = {};
  o.only = {"bow", "bow", "transom"};
  const PartsResult bows = partsFromHull(*pram, o);
  ASSERT_EQ(bows.error, "");
  EXPECT_EQ(names(bows.parts), (std::multiset<std::string>{"bow", "bow", "transom"}));
}

TEST(HullParts, LapStrakeOutlinesCarryTheLap) {
  auto h = fixture::defaultHull();
  const double plain = [&] {
    for (const SheetPart& p : partsFromHull(*h, {}).parts)
      if (p.name == "p02") return polygonArea(p.outline);
    return 0.0;
  }();
  h->overlapMode = 2;
  for (int k = 0; k <= kMaxLine; ++k)
    for (int i = 0; i <= kLastPoint; ++i) h->overlapWidth(k, i) = k >= 1 ? 0.02 : 0;
  double lapped = 0;
  for (const SheetPart& p : partsFromHull(*h, {}).parts)
    if (p.name == "p02") lapped = polygonArea(p.outline);
  // 20 mm along a lower edge of about 7.1 m.
  EXPECT_NEAR(lapped - plain, 20 * 7100, 0.1 * 20 * 7100);
}

TEST(HullParts, RefusesAFoldedHullAndAHullWithoutPlanks) {
  // 20 planks from 20 to 115 degrees with a stem shape of 0.6: the first
  // chine folds under the second.
  auto h = fixture::foldedHull();
  buildAllStations(*h);
  h->langue = 1;
  const FoldReport f = checkFolds(*h);
  ASSERT_TRUE(f.folded());
  EXPECT_EQ(partsFromHull(*h, {}).error, f.message(1));
  EXPECT_EQ(planSheets(*h, {}).error, f.message(1));
  auto bottomOnly = fixture::defaultHull();
  bottomOnly->nChines = 1;
  bottomOnly->langue = 1;
  EXPECT_NE(partsFromHull(*bottomOnly, {}).error.find("planks are not defined"), std::string::npos);
}

class DxfCollector : public DL_CreationAdapter {
 public:
  void addPolyline(const DL_PolylineData&) override {
    current = getAttributes().getLayer();
    lines.push_back({current, {}});
  }
  void addVertex(const DL_VertexData& d) override {
    if (!lines.empty()) lines.back().second.push_back({d.x, d.y});
  }
  std::string current;
  std::vector<std::pair<std::string, MmPolyline>> lines;
};

TEST(HullSheets, DxfOfEverySheetReadByDxflib) {
  auto h = fixture::defaultHull();
  SheetOptions o;
  o.lengthMm = 3050;
  o.widthMm = 1525;
  const SheetPlan plan = planSheets(*h, o);
  ASSERT_EQ(plan.error, "");
  EXPECT_TRUE(checkLayout(plan).empty());
  const Bom bom = billOfMaterials(plan);
  EXPECT_GE(bom.sheetCount, bom.areaBound);
  // What the nesting reaches: 5 sheets of 6 mm (the planks), 9 of 9 mm
  // (two half decks 1337 mm wide, the bottom 971 mm wide, the bulkhead:
  // none of them goes beside another across a sheet) and the transom; 17
  // before the nesting on columns.
  EXPECT_LE(bom.sheetCount, 15);
  const fs::path file =
      fs::temp_directory_path() / ("tolmar_sheet_" + std::to_string(getpid()) + ".dxf");
  int cuts = 0;
  for (int s = 0; s < static_cast<int>(plan.sheets.size()); ++s) {
    StringSink sink;
    writeSheetDxf(sink, plan, s, "TEST", 1);
    std::ofstream(file, std::ios::binary) << sink.text();
    DxfCollector c;
    DL_Dxf dxf;
    ASSERT_TRUE(dxf.in(file.string(), &c));
    std::map<std::string, int> perLayer;
    for (const auto& [layer, pts] : c.lines) {
      ++perLayer[layer];
      for (const MmPoint& q : pts) {
        EXPECT_GE(q.x, -1e-6);
        EXPECT_GE(q.y, -1e-6);
        EXPECT_LE(q.x, 3050 + 1e-6);
        EXPECT_LE(q.y, 1525 + 1e-6);
      }
      if (layer != "MARK") {
        ASSERT_GE(pts.size(), 4u);
        EXPECT_EQ(pts.front(), pts.back()) << layer;  // closed
      }
    }
    EXPECT_EQ(perLayer["SHEET"], 1);
    EXPECT_EQ(perLayer["CUT"], static_cast<int>(plan.sheets[s].pieces.size()));
    EXPECT_GT(perLayer["MARK"], 0);
    cuts += perLayer["CUT"];
  }
  fs::remove(file);
  EXPECT_EQ(cuts, static_cast<int>(plan.pieces.size()));
  const std::string svg = sheetsSvg(plan, "A & B", 0);
  EXPECT_NE(svg.find("<title>A &amp; B</title>"), std::string::npos);
  EXPECT_EQ(std::count(svg.begin(), svg.end(), '<') - std::count(svg.begin(), svg.end(), '>'), 0);
  EXPECT_NE(svg.find("tribord"), std::string::npos);
}

}  // namespace
}  // namespace tolmar::sheets
