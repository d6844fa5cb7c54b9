// The planks screen: rows by nChines, turn-in options, clamping of
// inclinations and heights, half breadths, the rebuild of the upper lines
// and its refusals.
#include "screens/bouchain2.h"

#include <gtest/gtest.h>

#include <cmath>

#include "hull/angle_constants.h"
#include "hull/chine_equations.h"
#include "hull/geometrie.h"
#include "hull/line_generation.h"
#include "screen_fixtures.h"
#include "screens/field_number.h"
#include "screens/plank_breadths.h"
#include "text/number_text.h"

namespace tolmar {
namespace {

using testing::badTexts;
using testing::bottomValidated;
using testing::findReplacement;
using testing::storeFinite;

struct Opened {
  HullStore h = bottomValidated();
  Bouchain2 s;
  Opened() { s.activate(h); }
};

int chosen(const ControlArray<0, 4>& group) {
  int found = -1;
  for (int i = 0; i <= 4; ++i) {
    if (group(i).value) {
      EXPECT_EQ(found, -1) << "two options chosen";
      found = i;
    }
  }
  return found;
}

TEST(Bouchain2, LoadedEmpty) {
  Bouchain2 s;
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(s.Text1(i).text, "");
    EXPECT_EQ(s.Text4(i).text, "");
  }
  EXPECT_EQ(chosen(s.OptShear), -1);
}

TEST(Bouchain2, DefaultHullActivation) {
  Opened o;
  EXPECT_EQ(chosen(o.s.OptShear), 3);
  EXPECT_EQ(chosen(o.s.OptMarotte), 3);
  EXPECT_EQ(chosen(o.s.OptTableau), 2);
  EXPECT_EQ(o.h.nChines, 5);
  const char* t1[] = {"0.32", "0.7", "1.05", "1.1"};
  const char* t2[] = {"0.2", "0.62", "1", "1.05"};
  const char* t3[] = {"0.3", "0.75", "1.2", "1.25"};
  const char* t4[] = {"45", "70", "85", "90"};
  for (int i = 0; i <= 3; ++i) {
    EXPECT_EQ(o.s.Text1(i).text, t1[i]);
    EXPECT_EQ(o.s.Text2(i).text, t2[i]);
    EXPECT_EQ(o.s.Text3(i).text, t3[i]);
    EXPECT_EQ(o.s.Text4(i).text, t4[i]);
    EXPECT_TRUE(o.s.Text3(i).enabled);
  }
  EXPECT_FALSE(o.s.Text1(4).enabled);
  EXPECT_EQ(o.s.Text1(4).text, "");
}

TEST(Bouchain2, CaptionsByLanguage) {
  Opened o;
  EXPECT_EQ(o.s.title.caption, "  Bordés ");
  EXPECT_EQ(o.s.titre1(0).caption,
            "Définition des bordés et hauteur de leurs bouchains supérieurs");
  EXPECT_EQ(o.s.Label1(4).caption, "Inclinaison du bordé (deg/horizontal)");
  EXPECT_EQ(o.s.Label1(5).caption, "Livet");
  EXPECT_EQ(o.s.Label2(2).caption, "Bordé 3");
  o.h.langue = 1;
  o.s.activate(o.h);
  EXPECT_EQ(o.s.title.caption, "  Planks ");
  EXPECT_EQ(o.s.Valider.caption, "Validation");
  EXPECT_EQ(o.s.Label1(2).caption, "Height at B max");
  EXPECT_EQ(o.s.Label1(5).caption, "Shear line");
  EXPECT_EQ(o.s.Label1(7).caption, "Bow turn");
  EXPECT_EQ(o.s.Label2(4).caption, "Plank 5");
}

TEST(Bouchain2, RowsByNumberOfLines) {
  struct Case {
    int stored, row, lines;
  };
  const Case cases[] = {{0, 0, 2}, {1, 0, 2}, {2, 0, 2}, {3, 1, 3}, {4, 2, 4},
                        {5, 3, 5}, {6, 4, 6}, {7, 4, 6}, {21, 4, 6}};
  for (const Case& c : cases) {
    Opened o;
    o.h.nChines = static_cast<i16>(c.stored);
    o.s.activate(o.h);
    EXPECT_EQ(chosen(o.s.OptShear), c.row) << c.stored;
    EXPECT_EQ(o.h.nChines, c.lines) << c.stored;
    for (int i = 0; i <= 4; ++i) {
      EXPECT_EQ(o.s.Text2(i).enabled, i <= c.row) << c.stored << " row " << i;
    }
  }
}

TEST(Bouchain2, InactiveRowsKeepTheirTexts) {
  Opened o;
  o.s.clickOptShear(o.h, 1);
  EXPECT_EQ(o.h.nChines, 3);
  EXPECT_FALSE(o.s.Text3(3).enabled);
  ASSERT_TRUE(o.s.validerPlanks(o.h));
  EXPECT_EQ(o.s.Text3(3).text, "1.25");
  EXPECT_EQ(o.h.zFwd(5), 1.25);  // stale slot, neither read nor tested
  o.s.clickOptShear(o.h, 3);
  EXPECT_TRUE(o.s.Text3(3).enabled);
  EXPECT_EQ(o.s.Text3(3).text, "1.25");
}

TEST(Bouchain2, TurnOptionBeyondTheLastPlankTakesTheLastRow) {
  Opened o;
  o.s.clickOptShear(o.h, 1);  // nChines = 3
  o.s.clickOptMarotte(o.h, 3);
  EXPECT_EQ(chosen(o.s.OptMarotte), 1);
  EXPECT_EQ(o.h.bowTurn(3), -1);
  EXPECT_EQ(o.h.bowTurn(1), 1);
  EXPECT_EQ(o.h.bowTurn(2), 1);
  EXPECT_EQ(o.h.bowTurn(5), -1);  // flags above are not touched
  o.s.clickOptTableau(o.h, 3);
  EXPECT_EQ(chosen(o.s.OptTableau), 1);
  EXPECT_EQ(o.h.transomTurn(3), -1);
  EXPECT_EQ(o.h.transomTurn(2), 1);
  EXPECT_EQ(o.h.transomTurn(4), -1);
  o.s.clickOptTableau(o.h, 0);
  EXPECT_EQ(o.h.transomTurn(2), -1);
  EXPECT_EQ(o.h.transomTurn(1), 1);
  EXPECT_EQ(o.h.transomTurn(3), -1);  // left as the last click set it
}

// Half breadths on the default hull, step by step from the line below:
// yFwd(1) = 0, yMax(1) = 0.95, yAft(1) = 0.7 at heights 0.1, 0, 0.15.
TEST(Bouchain2, DefaultHullLines) {
  Opened o;
  ASSERT_TRUE(o.s.validerPlanks(o.h));
  const HullStore& h = o.h;
  double yF = 0, yM = 0.95, yA = 0.7, zF = 0.1, zM = 0, zA = 0.15;
  const double zs[][3] = {{0.3, 0.2, 0.32}, {0.75, 0.62, 0.7}, {1.2, 1.0, 1.05}, {1.25, 1.05, 1.1}};
  const int angles[] = {45, 70, 85, 90};
  for (int n = 2; n <= 5; ++n) {
    const double t = std::tan((90 - angles[n - 2]) * M_PI / 180);
    yF += t * (zs[n - 2][0] - zF);
    yM += t * (zs[n - 2][1] - zM);
    yA += t * (zs[n - 2][2] - zA);
    zF = zs[n - 2][0], zM = zs[n - 2][1], zA = zs[n - 2][2];
    EXPECT_NEAR(h.yFwd(n), yF, 1e-12) << n;
    EXPECT_NEAR(h.yMax(n), yM, 1e-12) << n;
    EXPECT_NEAR(h.yAft(n), yA, 1e-12) << n;
    EXPECT_EQ(h.plankAngle(n - 1), angles[n - 2]);
    EXPECT_EQ(h.xMax(n), 3);
    // The plane holds the three control points, and the line its ends.
    auto planeZ = [&h, n](double x, double y) {
      return h.planeA(n) + h.planeB(n) * x + h.planeC(n) * y;
    };
    EXPECT_NEAR(planeZ(0, h.yAft(n)), h.zAft(n), 1e-9);
    EXPECT_NEAR(planeZ(3, h.yMax(n)), h.zMax(n), 1e-9);
    EXPECT_NEAR(planeZ(6, h.yFwd(n)), h.zFwd(n), 1e-9);
    EXPECT_EQ(h.lineX(n, 0), h.xAft(n));
    EXPECT_EQ(h.lineX(n, 82), h.xFwd(n));
    EXPECT_LE(h.xAft(n), 0);
    EXPECT_GE(h.xFwd(n), 6);
    EXPECT_NEAR(chineY(h, n, h.xFwd(n)), 0, 1e-3) << n;  // pointed stem
  }
  EXPECT_DOUBLE_EQ(h.bevelAngle(2, 40), 25 / kDegreesPerRadian);
  EXPECT_DOUBLE_EQ(h.bevelAngle(5, 40), kPi / 2);
  EXPECT_TRUE(storeFinite(h));
  EXPECT_TRUE(o.s.replaced.empty());
}

TEST(Bouchain2, TwoLinesBuildOneLine) {
  Opened o;
  o.s.clickOptShear(o.h, 0);
  ASSERT_TRUE(o.s.validerPlanks(o.h));
  EXPECT_EQ(o.h.nChines, 2);
  EXPECT_DOUBLE_EQ(o.h.bevelAngle(2, 0), kPi / 2);  // the sheer line
  EXPECT_TRUE(storeFinite(o.h));
}

struct Bound {
  int row;
  char column;  // '1'..'4' for Text1..Text4
  const char* typed;
  const char* shown;
  bool replaced;
};

TEST(Bouchain2, BoundsAreReplacedAndPassOnTheSecondPress) {
  const Bound cases[] = {
      {0, '4', "10", "17", true},                                     // plankAngle(0) + 5
      {0, '4', "17", "17", false},     {0, '4', "-60", "60", false},  // absolute value
      {0, '4', "95", "90", true},    // the lowest plank is not beyond the vertical
      {1, '4', "30", "45", true},    // not flatter than the plank below
      {1, '4', "44.5", "45", true},  // rounded half to even, then held
      {3, '4', "180", "175", true},    {0, '3', "0.05", "0.1", true},  // zFwd(1)
      {0, '3', "0.1", "0.1", false},  // equal to the line below: accepted
      {0, '2', "-0.01", "0", true},   // zMax(1)
      {0, '1', "0.15", "0.15", false}, {2, '1', "0.5", "0.7", true},  // zAft(3)
      {3, '2', "0.99", "1", true},
  };
  for (const Bound& c : cases) {
    Opened o;
    ControlArray<0, 4>* cols[] = {&o.s.Text1, &o.s.Text2, &o.s.Text3, &o.s.Text4};
    Field& f = (*cols[c.column - '1'])(c.row);
    const std::string name = controlName(("Text" + std::string(1, c.column)).c_str(), c.row);
    f.text = c.typed;
    EXPECT_EQ(o.s.validerPlanks(o.h), !c.replaced) << name << " " << c.typed;
    EXPECT_EQ(f.backColor, c.replaced ? kYellow : kWhite) << name << " " << c.typed;
    if (c.replaced) {
      EXPECT_EQ(f.text, c.shown) << name;
      const Replacement* r = findReplacement(o.s.replaced, name);
      ASSERT_NE(r, nullptr) << name;
      EXPECT_EQ(r->screen, "bouchain2");
      EXPECT_EQ(r->typed, c.typed);
      EXPECT_EQ(r->kept, c.shown);
    }
    EXPECT_TRUE(o.s.validerPlanks(o.h)) << name << " second press " << c.typed;
    EXPECT_TRUE(storeFinite(o.h));
  }
}

TEST(Bouchain2, VerticalPlankKeepsTheBreadthBelow) {
  Opened o;
  o.s.clickOptShear(o.h, 0);
  o.s.Text4(0).text = "90";
  o.s.Text3(0).text = "0.6";
  ASSERT_TRUE(o.s.validerPlanks(o.h));
  EXPECT_EQ(o.h.yFwd(2), o.h.yFwd(1));
  EXPECT_EQ(o.h.yAft(2), o.h.yAft(1));
}

// Breadths from a prepared line below; t = tanDeg(90 - angle).
TEST(PlankBreadths, CentrePlaneAndMaximumBeamRules) {
  HullStore h;
  h.plankAngle(1) = 135;  // leans inboard: t is about -1
  h.yFwd(1) = 0.21234, h.zFwd(1) = 0;
  h.yAft(1) = 0.3, h.zAft(1) = 0;
  h.yMax(1) = 0.21234, h.zMax(1) = 0;
  h.zFwd(2) = 0.5;
  h.zAft(2) = 0.1;
  h.zMax(2) = 0.5;
  deriveYFwd(h, 2);
  EXPECT_EQ(h.yFwd(2), 0);  // ends on the centre plane at 0.21234, + 0.5 of the last digit
  EXPECT_NEAR(h.zFwd(2), 0.21235, 1e-12);
  deriveYAft(h, 2);
  EXPECT_NEAR(h.yAft(2), 0.2, 1e-12);
  EXPECT_EQ(h.zAft(2), 0.1);
  // Through the centre plane at 0.21234 (rounded down to 0.2123, breadth
  // 0.001), then below yAft(2): lifted from the line below to the aft
  // breadth, rounded up, and its breadth taken again.
  deriveYMax(h, 2);
  EXPECT_NEAR(h.zMax(2), 0.0124, 1e-12);
  EXPECT_NEAR(h.yMax(2), 0.19994, 1e-12);

  h.plankAngle(1) = 45;  // outboard: the maximum beam alone is lifted
  h.yAft(1) = 0.7, h.zAft(1) = 0.15;
  h.yMax(1) = 0.95, h.zMax(1) = 0;
  h.zAft(2) = 0.61234;
  h.zMax(2) = 0.1;
  deriveYAft(h, 2);
  deriveYMax(h, 2);
  EXPECT_NEAR(h.zMax(2), 0.2124, 1e-12);
  EXPECT_NEAR(h.yMax(2), 1.1624, 1e-12);
  EXPECT_GE(h.yMax(2), h.yAft(2));
}

TEST(Bouchain2, PlanksLeaningInboardEndOnTheCentrePlane) {
  Opened o;
  o.s.clickOptShear(o.h, 1);
  o.s.Text3(0).text = "0.31234";
  o.s.Text4(1).text = "135";
  o.s.Text3(1).text = "0.7";
  ASSERT_TRUE(o.s.validerPlanks(o.h));
  EXPECT_EQ(o.h.yFwd(3), 0);
  EXPECT_NEAR(o.h.zFwd(3), 0.52465, 1e-12);
  EXPECT_EQ(o.s.Text3(1).text, "0.7");  // the field keeps what was typed
  EXPECT_TRUE(storeFinite(o.h));
}

// A store whose first chine lies in one line in plan (as a file may hold):
// a vertical plank copies it, and the plane of line 2 cannot be fitted.
TEST(Bouchain2, PlaneThatCannotBeFittedIsRefused) {
  Opened o;
  o.h.yAft(1) = 0, o.h.yMax(1) = 1, o.h.yFwd(1) = 2;
  o.s.clickOptShear(o.h, 0);
  const HullStore before = o.h;
  o.s.Text4(0).text = "90";
  EXPECT_FALSE(o.s.validerPlanks(o.h));
  for (Field* f : {&o.s.Text1(0), &o.s.Text2(0), &o.s.Text3(0), &o.s.Text4(0)}) {
    EXPECT_EQ(f->backColor, kOrange);
  }
  EXPECT_EQ(o.h.planeC, before.planeC);
  EXPECT_EQ(o.h.lineY, before.lineY);
  EXPECT_EQ(o.h.bevelAngle, before.bevelAngle);
  EXPECT_TRUE(storeFinite(o.h));
  const Replacement* r = findReplacement(o.s.replaced, "Text4(0)");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->kept, "90");
  EXPECT_TRUE(r->marked);
  EXPECT_FALSE(o.s.validerPlanks(o.h));  // refused for as long as it stands
}

// Line 2's control points on a plane rising 1/k across, k the plank's dY/dZ:
// the plank runs parallel to the plane and never meets it.
TEST(Bouchain2, PlankParallelToItsPlaneIsRefused) {
  Opened o;
  const double c = 1 / tanDeg(45);
  o.h.yAft(1) = 0, o.h.zAft(1) = 0;
  o.h.yMax(1) = 0, o.h.zMax(1) = 0;
  o.h.yFwd(1) = 1, o.h.zFwd(1) = c;
  o.s.clickOptShear(o.h, 0);
  o.s.Text1(0).text = "0";
  o.s.Text2(0).text = "0";
  o.s.Text3(0).text = decimalText(c, 17);
  o.s.Text4(0).text = "45";
  EXPECT_FALSE(o.s.validerPlanks(o.h));
  EXPECT_EQ(o.s.Text4(0).backColor, kOrange);
  EXPECT_TRUE(storeFinite(o.h));
  HullStore fitted = o.h;  // the inputs stay; the plane is what was refused
  ASSERT_TRUE(fitChinePlane(fitted, 2));
  EXPECT_TRUE(chineDegenerate(fitted, 2));
}

TEST(Bouchain2, AnyTextInAnyField) {
  for (int column = 0; column < 4; ++column) {
    for (int row = 0; row <= 3; ++row) {
      for (const std::string& typed : badTexts()) {
        Opened o;
        ControlArray<0, 4>* cols[] = {&o.s.Text1, &o.s.Text2, &o.s.Text3, &o.s.Text4};
        (*cols[column])(row).text = typed;
        bool second = false;
        ASSERT_NO_THROW({
          o.s.validerPlanks(o.h);
          second = o.s.validerPlanks(o.h);
        });
        EXPECT_TRUE(storeFinite(o.h)) << column << " " << row << " " << typed;
        // Held to a kilometre, a height may still throw the plank's ends
        // kilometres away: refused then, its row in orange.
        if (!second) {
          EXPECT_EQ((*cols[column])(row).backColor, kOrange)
              << column << " " << row << " '" << typed << "'";
        }
      }
    }
  }
}

TEST(Bouchain2, AllFieldsAtOnce) {
  for (const std::string& typed : badTexts()) {
    Opened o;
    for (int row = 0; row <= 3; ++row) {
      for (Field* f : {&o.s.Text1(row), &o.s.Text2(row), &o.s.Text3(row), &o.s.Text4(row)}) {
        f->text = typed;
      }
    }
    ASSERT_NO_THROW({
      o.s.validerPlanks(o.h);
      o.s.validerPlanks(o.h);
    });
    EXPECT_TRUE(storeFinite(o.h)) << typed;
  }
}

}  // namespace
}  // namespace tolmar
