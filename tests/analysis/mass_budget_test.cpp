// The mass budget on a box whose plates are measured by hand, the rows that
// the number of chines leaves blank, the limits on what is typed, and the
// hand-over of the mass to the hydrostatics.
#include "analysis/mass_budget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "analysis/analysis_screens.h"
#include "analysis/mass_screen.h"
#include "shape_hulls.h"

namespace tolmar::analysis {
namespace {

// The densities of a new hull.
void massDefaults(HullStore& h) {
  for (int r = 1; r <= 5; ++r) h.panelDensity(r) = 10;
  h.panelDensity(7) = 10;
  h.bulkX(1) = 3.0;
  h.deckDensity(1) = 10;
}

// A box 4 long, half breadth 0.5, with `lines` lines: the flat bottom at
// Z = 0, then vertical sides 1 high each.
std::unique_ptr<HullStore> stackedBox(int lines) {
  auto h = shapes::shapeHull(4, lines, [](int k, double) {
    return k == 0 ? shapes::YZ{0, 0} : shapes::YZ{0.5, k - 1.0};
  });
  massDefaults(*h);
  return h;
}

TEST(MassBudget, BoxPlatesByHand) {
  auto h = stackedBox(2);
  const PlateMeasure bottom = plankMeasure(*h, 0), side = plankMeasure(*h, 1);
  EXPECT_NEAR(bottom.area, 2 * 0.5 * 4, 1e-12);
  EXPECT_NEAR(bottom.x, 2, 1e-6);
  EXPECT_NEAR(side.area, 2 * 1 * 4, 1e-12);
  const PlateMeasure floor = planMeasure(*h, 1);
  EXPECT_NEAR(floor.area, 4, 1e-12);
  EXPECT_NEAR(floor.x, 2, 1e-6);
  const PlateMeasure transom = sectionMeasure(*h, 0);
  EXPECT_NEAR(transom.area, 0.5 * 0.5 + 1 * 1, 1e-12);  // slanted strips, both sides
  EXPECT_EQ(transom.x, 0);
  EXPECT_NEAR(sectionMeasure(*h, kLastPoint).x, 4, 1e-6);
}

TEST(MassBudget, BulkheadStandsOnAStation) {
  auto h = stackedBox(2);
  const std::pair<double, int> table[] = {{-1, 1},   {0, 1},     {0.049, 1}, {0.05, 2},
                                          {3.0, 61}, {3.99, 80}, {4, 81},    {9, 81}};
  for (auto [x, p] : table) EXPECT_EQ(bulkheadPoint(*h, x), p) << x;
}

struct Screen {
  std::unique_ptr<HullStore> h;
  Mass1 s;
};

Screen activated(int lines) {
  Screen m{stackedBox(lines), {}};
  m.h->langue = 1;
  loadMass(m.s, *m.h);
  massActivated(m.s, *m.h);
  return m;
}

// Defaults on the two-line box: bottom 4 m2, side 8 m2, transom, bulkheads
// and bow 1.25 m2 each, floor and deck 4 m2.
TEST(MassBudget, TableOfTheTwoLineBox) {
  Screen m = activated(2);
  EXPECT_EQ(m.s.Text2(1).text, "4.000");
  EXPECT_EQ(m.s.Text3(1).text, "40.000");
  EXPECT_EQ(m.s.Text3(2).text, "80.000");
  EXPECT_EQ(m.s.Text4(7).text, "3.000");  // the bulkhead asked for at 3.0 stands on station 61
  EXPECT_EQ(m.s.Text3(7).text, "12.500");
  EXPECT_EQ(m.s.Text2(6).text, "1.250");  // the bow shows its area, density 0: no mass
  EXPECT_EQ(m.s.Text3(6).text, "0.000");
  EXPECT_EQ(m.s.Text3(23).text, "40.000");
  EXPECT_EQ(m.s.Text2(0).text, "25.000");
  EXPECT_EQ(m.s.Text3(0).text, "185.000");
  EXPECT_EQ(m.s.Text4(0).text, "1.932");  // (80 + 160 + 37.5 + 80) / 185
  EXPECT_DOUBLE_EQ(m.h->totalMass, 185);
  EXPECT_NEAR(m.h->xMass, 357.5 / 185, 1e-12);
  EXPECT_EQ(m.s.Text1(1).text, "10.0");
  EXPECT_EQ(m.s.Label3(4).caption, "Other side planks");
  EXPECT_EQ(m.s.title.caption, "  Mass budget");
}

struct Blanks {
  int lines;
  std::vector<int> blank;
  int floors, decks;
};

// Rows without their plates keep single blanks; row 4 is written in every
// run and shows zeros when there is no plank 3.
TEST(MassBudget, RowsBlankedByTheNumberOfChines) {
  const Blanks table[] = {{2, {3, 22, 24}, 1, 1}, {3, {24}, 2, 1}, {4, {}, 2, 2}};
  for (const Blanks& b : table) {
    Screen m = activated(b.lines);
    EXPECT_EQ(m.s.nFloors, b.floors);
    EXPECT_EQ(m.s.nDecks, b.decks);
    for (int r : {3, 22, 24}) {
      const bool blank = std::find(b.blank.begin(), b.blank.end(), r) != b.blank.end();
      EXPECT_EQ(m.s.Text2(r).text == " " && m.s.Text3(r).text == " " && m.s.Text4(r).text == " ",
                blank)
          << b.lines << " lines, row " << r;
    }
    const std::string row4 = b.lines < 4 ? "0.000" : "8.000";
    EXPECT_EQ(m.s.Text2(4).text, row4) << b.lines;
  }
}

// Six lines: row 4 sums planks 3, 4 and 5, each 8 m2 of side.
TEST(MassBudget, OtherPlanksSummed) {
  Screen m = activated(6);
  EXPECT_EQ(m.s.Text2(4).text, "24.000");
  EXPECT_EQ(m.s.Text3(4).text, "240.000");
  EXPECT_EQ(m.s.Text4(4).text, "2.000");
}

TEST(MassBudget, DensitiesRaisedToTheirMinimum) {
  Screen m = activated(4);
  m.s.Text1(1).text = "0";
  m.s.Text1(2).text = "-5";
  m.s.Text1(5).text = "-3";
  m.s.Text1(6).text = "0";
  m.s.Text1(21).text = "-1";
  m.s.Text1(24).text = "-2";
  calcMass(m.s, *m.h);
  EXPECT_EQ(m.s.Text1(1).text, "1.0");
  EXPECT_EQ(m.s.Text1(2).text, "1.0");
  EXPECT_EQ(m.s.Text1(5).text, "0.0");
  EXPECT_EQ(m.s.Text1(6).text, "0.0");
  EXPECT_EQ(m.s.Text1(21).text, "0.0");
  EXPECT_EQ(m.s.Text1(24).text, "0.0");
  EXPECT_EQ(m.s.Text3(1).text, "4.000");
}

TEST(MassBudget, TypedEquipmentLimitsAndNonNumbers) {
  Screen m = activated(2);
  m.s.Text3(13).text = "abc";   // not a number: 0
  m.s.Text4(13).text = "9";     // beyond the length: 4
  m.s.Text3(14).text = "12,5";  // no cleaning here: reading stops at the comma
  m.s.Text4(14).text = "-2";    // held to 0
  m.s.Text3(15).text = "-20";   // negative masses pass
  m.s.Text4(15).text = "1";
  m.s.Text1(5).text = "heavy";
  massKeyPress(m.s, *m.h, kEnterKey);
  EXPECT_EQ(m.s.Text3(13).text, "0.000");
  EXPECT_EQ(m.s.Text4(13).text, "4.000");
  EXPECT_EQ(m.s.Text3(14).text, "12.000");
  EXPECT_EQ(m.s.Text4(14).text, "0.000");
  EXPECT_EQ(m.s.Text3(15).text, "-20.000");
  EXPECT_EQ(m.s.Text1(5).text, "0.0");
  EXPECT_EQ(m.s.Text3(0).text, "164.500");  // 185 - 12.5 (transom) + 12 - 20
}

// The totals add the shown, rounded fields, not the store's values.
TEST(MassBudget, TotalsFromTheDisplayedFields) {
  Screen m = activated(2);
  m.s.Text3(16).text = "1.0004";
  m.s.Text4(16).text = "2";
  massFieldLeft(m.s, *m.h);
  EXPECT_EQ(m.h->equipMass(4), 1.0004);
  EXPECT_EQ(m.s.Text3(16).text, "1.000");
  EXPECT_DOUBLE_EQ(m.h->totalMass, 186);
}

// All masses at X = 0: the centre of mass is 0, which leaves the
// hydrostatics' pitch alone.
TEST(MassBudget, NoMassNoCentre) {
  Screen m = activated(2);
  for (int r = 1; r <= 8; ++r) m.s.Text1(r).text = "0";
  for (int r = 21; r <= 24; ++r) m.s.Text1(r).text = "0";
  calcMass(m.s, *m.h);
  // Rows 1..4 take at least 1 kg/m2: only the bottom and side remain.
  EXPECT_EQ(m.s.Text3(0).text, "12.000");
  EXPECT_EQ(m.s.Text3(5).text, "0.000");
  EXPECT_NEAR(m.h->xMass, 2, 1e-3);
}

// Calcul1 of mass1: the total mass / 1000 becomes hydro1's displacement,
// hydro1 runs in mode 0 and becomes active; mass1 ceasing to be active
// hands the mass over once more.
TEST(AnalysisScreens, PushDisplacement) {
  auto h = stackedBox(2);
  h->langue = 1;
  AnalysisScreens screens(*h);
  screens.open();
  EXPECT_EQ(screens.active(), ActiveScreen::mass1);
  EXPECT_TRUE(screens.hydro.visible && screens.mass.visible);
  screens.pushDisplacement();
  EXPECT_EQ(screens.active(), ActiveScreen::hydro1);
  EXPECT_EQ(screens.hydro.mode, 0);
  EXPECT_EQ(screens.hydro.Text1(0).text, "0.185");
  EXPECT_DOUBLE_EQ(h->totalMass, 185);
  EXPECT_NEAR(h->dispTarget, 0.185, 1e-12);
  EXPECT_LT(std::fabs(screens.hydro.last.sums.V - 0.185), 0.0001);
  EXPECT_LT(h->pitch, 0);  // xMass 1.93 lies aft of mid-length: bow up
}

}  // namespace
}  // namespace tolmar::analysis
