// Nesting and its check on parts of known shape: rectangles whose best
// packing is known, the area bound, the refusal of parts wider than the
// sheet and of choices that make no sense, the check failing on layouts
// made wrong on purpose, and the same plan from the same input.
#include <gtest/gtest.h>

#include <cmath>

#include "sheet_fixtures.h"
#include "sheets/bill_of_materials.h"
#include "sheets/layout_check.h"
#include "sheets/sheet_plan.h"

namespace tolmar::sheets {
namespace {

using testing::curvedStrip;
using testing::rectangle;

// "r3": built by appending, as GCC 12 warns falsely (-Wrestrict) on "r" + s.
std::string named(const char* stem, int i) {
  std::string s = stem;
  s += std::to_string(i);
  return s;
}

std::vector<SheetPart> eightRectangles() {
  std::vector<SheetPart> parts;
  for (int i = 0; i < 8; ++i) parts.push_back(rectangle(named("r", i), 1000, 500));
  return parts;
}

TEST(PlanParts, RectanglesFourToASheet) {
  // 2420 x 1200 inside the margins takes two by two of 1000 x 500.
  const SheetPlan plan = planParts(eightRectangles(), SheetOptions{}, 1);
  ASSERT_EQ(plan.error, "");
  EXPECT_EQ(plan.sheets.size(), 2u);
  EXPECT_TRUE(checkLayout(plan).empty());
  const Bom bom = billOfMaterials(plan);
  EXPECT_EQ(bom.areaBound, 2);  // 4 m2 on sheets of 2.9768 m2
  EXPECT_NEAR(bom.usedAreaM2, 4.0, 1e-9);
  EXPECT_NEAR(bom.massKg, 20.0, 1e-9);  // 5 kg/m2
  EXPECT_NEAR(bom.wastePercent, 100 * (1 - 4.0 / (2 * 2.44 * 1.22)), 1e-6);
}

TEST(PlanParts, OneThicknessPerSheetAndNeverBelowTheAreaBound) {
  std::vector<SheetPart> parts;
  for (int i = 0; i < 7; ++i) {
    parts.push_back(
        curvedStrip(named("s", i), 2000 + 250 * i, 300 + 20 * i, 120, 180, i % 2 ? 6 : 9));
    parts.push_back(rectangle(named("b", i), 300 + 90 * i, 250 + 40 * i, 12));
  }
  const SheetPlan plan = planParts(parts, SheetOptions{}, 1);
  ASSERT_EQ(plan.error, "");
  EXPECT_TRUE(checkLayout(plan).empty());
  for (const Sheet& s : plan.sheets)
    for (const PlacedPiece& pp : s.pieces)
      EXPECT_EQ(plan.parts[plan.pieces[pp.piece].part].thicknessMm, s.thicknessMm);
  const Bom bom = billOfMaterials(plan);
  EXPECT_GE(bom.sheetCount, bom.areaBound);
  EXPECT_GE(bom.areaBound, 3);  // three thicknesses
  EXPECT_EQ(bom.sheets.size(), 3u);
}

TEST(PlanParts, APartWiderThanTheSheetIsRefusedWithTheWidthItNeeds) {
  std::vector<SheetPart> parts = {rectangle("transom", 700, 1300, 12)};
  SheetPlan plan = planParts(parts, SheetOptions{}, 1);
  EXPECT_NE(plan.error.find("transom"), std::string::npos) << plan.error;
  EXPECT_NE(plan.error.find("1300 mm"), std::string::npos) << plan.error;
  EXPECT_TRUE(plan.sheets.empty());
  // A sheet of 1220 x 600 for a transom 700 mm across.
  SheetOptions small;
  small.lengthMm = 1220;
  small.widthMm = 600;
  plan = planParts({rectangle("transom", 900, 700, 12)}, small, 0);
  EXPECT_NE(plan.error.find("transom demande une largeur de 700 mm"), std::string::npos)
      << plan.error;
  // Turned across the grain it fits.
  small.rotate90 = true;
  plan = planParts({rectangle("transom", 500, 700, 12)}, small, 1);
  EXPECT_EQ(plan.error, "");
  EXPECT_EQ(plan.sheets.size(), 1u);
}

TEST(PlanParts, ChoicesThatMakeNoSenseAreRefused) {
  const auto parts = eightRectangles();
  auto refused = [&](SheetOptions o, const char* what) {
    const SheetPlan plan = planParts(parts, o, 1);
    EXPECT_NE(plan.error.find(what), std::string::npos) << plan.error;
    EXPECT_TRUE(plan.sheets.empty());
  };
  SheetOptions o;
  o.kerfMm = 0;
  refused(o, "kerf");
  o = {};
  o.kerfMm = -1;
  refused(o, "kerf");
  o = {};
  o.scarfRatio = 0;
  refused(o, "scarf ratio");
  o = {};
  o.joint = JointKind::butt;
  o.strapWidthMm = -5;
  refused(o, "strap");
  o = {};
  o.marginMm = 700;
  refused(o, "margins");
  o = {};
  o.lengthMm = NAN;
  refused(o, "size");
}

TEST(PlanParts, LongPartsAreJointedAndEveryPieceFits) {
  std::vector<SheetPart> parts;
  for (int side : {1, -1}) {
    SheetPart p = curvedStrip("p01", 5200, 450, 180, 300, 6);
    p.side = side;
    parts.push_back(p);
  }
  const SheetPlan plan = planParts(parts, SheetOptions{}, 1);
  ASSERT_EQ(plan.error, "");
  EXPECT_TRUE(checkLayout(plan).empty());
  EXPECT_EQ(plan.joints.size(), 4u);  // 3 pieces each
  for (const Joint& j : plan.joints) {
    EXPECT_GE(j.atMm, kJointEndClearanceMm);
    EXPECT_LE(j.atMm, 5200 - kJointEndClearanceMm);
  }
}

TEST(PlanParts, SameInputSamePlan) {
  std::vector<SheetPart> parts = eightRectangles();
  parts.push_back(curvedStrip("p01", 4100, 380, 150, 260, 9));
  const SheetPlan a = planParts(parts, SheetOptions{}, 1), b = planParts(parts, SheetOptions{}, 1);
  ASSERT_EQ(a.sheets.size(), b.sheets.size());
  for (std::size_t s = 0; s < a.sheets.size(); ++s) {
    ASSERT_EQ(a.sheets[s].pieces.size(), b.sheets[s].pieces.size());
    for (std::size_t i = 0; i < a.sheets[s].pieces.size(); ++i)
      EXPECT_EQ(a.sheets[s].pieces[i].outline, b.sheets[s].pieces[i].outline);
  }
}

// The check, on a sound plan spoiled in one way at a time.
class LayoutCheck : public ::testing::Test {
 protected:
  void SetUp() override {
    plan = planParts(eightRectangles(), SheetOptions{}, 1);
    ASSERT_EQ(plan.error, "");
    ASSERT_TRUE(checkLayout(plan).empty());
  }
  // Moves piece i of sheet 0 by (dx, dy).
  void move(std::size_t i, double dx, double dy) {
    for (MmPoint& q : plan.sheets[0].pieces[i].outline) q.x += dx, q.y += dy;
  }
  bool says(const char* what) {
    for (const std::string& s : checkLayout(plan))
      if (s.find(what) != std::string::npos) return true;
    return false;
  }
  SheetPlan plan;
};

TEST_F(LayoutCheck, PiecesOnTopOfEachOther) {
  plan.sheets[0].pieces[1].outline = plan.sheets[0].pieces[0].outline;
  EXPECT_TRUE(says("closer than the kerf"));
}

TEST_F(LayoutCheck, PiecesCloserThanTheKerf) {
  // Bring the second piece to 2 mm of the first (the kerf is 3 mm).
  const MmBox a = boundingBox(plan.sheets[0].pieces[0].outline);
  for (std::size_t i = 1; i < plan.sheets[0].pieces.size(); ++i) {
    MmBox b = boundingBox(plan.sheets[0].pieces[i].outline);
    if (std::abs(b.y0 - a.y0) < 1 && b.x0 > a.x1) {
      move(i, a.x1 + 2 - b.x0, 0);
      EXPECT_TRUE(says("closer than the kerf"));
      return;
    }
  }
  FAIL() << "no piece beside the first";
}

TEST_F(LayoutCheck, PieceInTheMargin) {
  const MmBox a = boundingBox(plan.sheets[0].pieces[0].outline);
  move(0, 5 - a.x0, 0);  // 5 mm from the edge, the margin is 10
  EXPECT_TRUE(says("not inside the sheet"));
}

TEST_F(LayoutCheck, PieceMissingOrTwice) {
  PlacedPiece gone = plan.sheets[1].pieces.back();
  plan.sheets[1].pieces.pop_back();
  EXPECT_TRUE(says("placed 0 times"));
  plan.sheets[1].pieces.push_back(gone);
  plan.sheets[1].pieces.push_back(gone);
  EXPECT_TRUE(says("placed 2 times"));
}

TEST_F(LayoutCheck, PieceOfAnotherShapeOrThickness) {
  plan.sheets[0].pieces[0].outline.pop_back();  // a triangle now
  EXPECT_TRUE(says("does not have its own area"));
  plan.sheets[1].thicknessMm = 6;
  EXPECT_TRUE(says("not of the sheet's thickness"));
}

}  // namespace
}  // namespace tolmar::sheets
