// The nesting on shapes whose best packing is known: the columns an
// outline is seen through hold all of it, rectangles that fill their
// sheets exactly, wedges that fill a sheet only in pairs turned half round
// each other, and a part and its mirrored copy kept from crossing.
#include "sheets/nesting.h"

#include <gtest/gtest.h>

#include <cmath>

#include "sheet_fixtures.h"
#include "sheets/bill_of_materials.h"
#include "sheets/clipper_geometry.h"
#include "sheets/column_profile.h"
#include "sheets/layout_check.h"
#include "sheets/sheet_plan.h"

namespace tolmar::sheets {
namespace {

using ClipperLib::cInt;
using testing::curvedStrip;
using testing::rectangle;

std::string named(const char* stem, int i) {
  std::string s = stem;
  s += std::to_string(i);
  return s;
}

TEST(ColumnProfile, RectangleTriangleAndColumnBoundaries) {
  // A rectangle from X 500 to 1000: the column before it holds its left
  // edge, which lies on the boundary.
  const ClipperLib::Path rect = toPath({{500, 100}, {1000, 100}, {1000, 300}, {500, 300}});
  auto cols = columnProfile(rect, 0, 50000);
  ASSERT_EQ(cols.size(), 2u);
  for (const ColumnSpan& c : cols) {
    EXPECT_EQ(c.lo, 10000);
    EXPECT_EQ(c.hi, 30000);
  }
  // A triangle rising to the right: a column reaches as high as its right
  // boundary, or `reach` further.
  const ClipperLib::Path tri = toPath({{0, 0}, {1000, 0}, {1000, 1000}});
  cols = columnProfile(tri, 0, 10000);
  ASSERT_EQ(cols.size(), 10u);
  for (std::size_t j = 0; j < cols.size(); ++j) {
    EXPECT_EQ(cols[j].lo, 0);
    EXPECT_EQ(cols[j].hi, 10000 * cInt(j + 1));
  }
  cols = columnProfile(tri, 0, 10000, 5000);
  for (std::size_t j = 0; j < cols.size(); ++j)
    EXPECT_EQ(cols[j].hi, std::min<cInt>(100000, 10000 * cInt(j + 1) + 5000));
  // Columns left of the outline are empty.
  cols = columnProfile(tri, -30000, 10000);
  ASSERT_EQ(cols.size(), 13u);
  EXPECT_GT(cols[0].lo, cols[0].hi);
  EXPECT_EQ(cols[3].hi, 10000);
}

TEST(ColumnProfile, EveryPointOfACurvedOutlineLiesInItsColumns) {
  const SheetPart strip = curvedStrip("s", 3100, 420, 130, 260);
  const ClipperLib::Path p = toPath(strip.outline);
  for (cInt start : {cInt(0), cInt(-137), cInt(-499)})
    for (cInt reach : {cInt(0), cInt(100)}) {
      const auto cols = columnProfile(p, start, 500, reach);
      for (std::size_t i = 0; i < p.size(); ++i) {
        const auto& a = p[i];
        const auto& b = p[(i + 1) % p.size()];
        for (int k = 0; k <= 20; ++k) {
          const double x = a.X + (b.X - a.X) * k / 20.0, y = a.Y + (b.Y - a.Y) * k / 20.0;
          // Every column whose stretch (closed, `reach` wider) holds x.
          int holding = 0;
          for (std::size_t j = 0; j < cols.size(); ++j) {
            const double c0 = double(start) + 500.0 * double(j);
            if (x < c0 || x > c0 + 500 + double(reach)) continue;
            ++holding;
            EXPECT_GE(y, double(cols[j].lo));
            EXPECT_LE(y, double(cols[j].hi));
          }
          EXPECT_GE(holding, 1);
        }
      }
    }
}

// Sheets of 2440 x 1220 with the default margin (10 mm) and kerf (3 mm):
// 2420 x 1200 to lay pieces on.
SheetPlan planned(const std::vector<SheetPart>& parts) {
  SheetPlan plan = planParts(parts, SheetOptions{}, 1);
  EXPECT_EQ(plan.error, "");
  EXPECT_TRUE(checkLayout(plan).empty());
  return plan;
}

TEST(Nesting, RectanglesThatFillTheirSheetsExactly) {
  // Two along and two across, a kerf between: 1208.5 + 3 + 1208.5 = 2420
  // and 598.5 + 3 + 598.5 = 1200.
  std::vector<SheetPart> parts;
  for (int i = 0; i < 12; ++i) parts.push_back(rectangle(named("r", i), 1208.5, 598.5));
  const SheetPlan plan = planned(parts);
  EXPECT_EQ(plan.sheets.size(), 3u);
  for (const Sheet& s : plan.sheets) EXPECT_EQ(s.pieces.size(), 4u);
  // Pieces of every size that add up to the sheets: 1200 across in three
  // rows of 398, two pieces to a row, of lengths that pair to 2417.
  parts.clear();
  for (int i = 0; i < 6; ++i) {
    parts.push_back(rectangle(named("a", i), 1500 - 100 * i, 398));
    parts.push_back(rectangle(named("b", i), 917 + 100 * i, 398));
  }
  EXPECT_EQ(planned(parts).sheets.size(), 2u);
}

// A wedge along the whole sheet, 100 mm wide at one end and 480 at the
// other: turned half round, a second one fills the slope of the first.
SheetPart wedge(std::string name) {
  SheetPart p = rectangle(std::move(name), 2400, 480);
  p.outline[3].y = 100;
  return p;
}

TEST(Nesting, WedgesPairedHalfRoundFillTheSheets) {
  // Four a sheet (100 + 480 + the kerf across the slope, twice, is 1169
  // of 1200); the same way up only two would go.
  std::vector<SheetPart> parts;
  for (int i = 0; i < 8; ++i) parts.push_back(wedge(named("w", i)));
  const SheetPlan plan = planned(parts);
  EXPECT_EQ(plan.sheets.size(), 2u);
  EXPECT_EQ(billOfMaterials(plan).areaBound, 2);
  int turned = 0;
  for (const Sheet& s : plan.sheets)
    for (const PlacedPiece& pp : s.pieces) turned += std::abs(pp.rotation) > 1;
  EXPECT_EQ(turned, 4);
}

TEST(Nesting, AStripAndItsMirroredCopyDoNotCross) {
  // Strips rising 600 mm along the sheet, 150 wide, and their mirrored
  // copies falling as much: three of one kind fit across a sheet (750 + 2
  // x 153), a rising and a falling one only 753 apart.  The best is one
  // kind a sheet.
  std::vector<SheetPart> parts;
  for (int i = 0; i < 12; ++i) {
    SheetPart p = rectangle(named("s", i), 2400, 150);
    p.outline = {{0, 0}, {2400, 600}, {2400, 750}, {0, 150}};
    if (i % 2)
      for (MmPoint& q : p.outline) q.y = 750 - q.y;
    parts.push_back(p);
  }
  const SheetPlan plan = planned(parts);
  EXPECT_EQ(plan.sheets.size(), 4u);
}

TEST(Nesting, ASheetAThousandKilometresLongTakesWiderColumns) {
  // At 5 mm a column it would need 200 million columns a sheet.
  SheetOptions o;
  o.lengthMm = 1e9;
  std::vector<SheetPart> parts;
  for (int i = 0; i < 6; ++i) parts.push_back(wedge(named("w", i)));
  const SheetPlan plan = planParts(parts, o, 1);
  ASSERT_EQ(plan.error, "");
  EXPECT_TRUE(checkLayout(plan).empty());
  EXPECT_EQ(plan.sheets.size(), 1u);
}

TEST(Nesting, SameRequestSameResultWhateverTheThreads) {
  NestRequest r;
  for (int i = 0; i < 10; ++i)
    r.shapes.push_back(toPath(curvedStrip("s", 1500 + 137 * i, 300, 90, 140 + 20 * i).outline));
  r.x0 = r.y0 = 1000;
  r.x1 = 243000;
  r.y1 = 121000;
  r.gap = 300;
  const NestResult one = nestBest(r, 1), three = nestBest(r, 3);
  ASSERT_EQ(one.places.size(), three.places.size());
  EXPECT_EQ(one.sheets, three.sheets);
  for (std::size_t i = 0; i < one.places.size(); ++i) {
    EXPECT_EQ(one.places[i].bin, three.places[i].bin);
    EXPECT_EQ(one.places[i].dx, three.places[i].dx);
    EXPECT_EQ(one.places[i].dy, three.places[i].dy);
    EXPECT_EQ(one.places[i].rotation, three.places[i].rotation);
  }
}

}  // namespace
}  // namespace tolmar::sheets
