// Automatic planking: the count, the grid of inclinations, the sheer
// margins, the plank widths and a hull of twenty planks.
#include "screens/bouchain3.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "hull/angle_constants.h"
#include "screen_fixtures.h"
#include "screens/field_number.h"
#include "screens/plank_widths.h"

namespace tolmar {
namespace {

using testing::badTexts;
using testing::bottomValidated;
using testing::findReplacement;
using testing::storeFinite;

struct Opened {
  HullStore h = bottomValidated();
  Bouchain3 s;
  Opened() { s.activate(h); }
  void type(const char* planks, const char* first, const char* last) {
    s.Text0.text = planks;
    s.Text1(0).text = first;
    s.Text2(0).text = last;
  }
};

TEST(Bouchain3, ActivationAndCaptions) {
  Opened o;
  EXPECT_EQ(o.s.Text0.text, "4");
  EXPECT_EQ(o.s.Text1(0).text, "45");
  EXPECT_EQ(o.s.Text2(0).text, "90");
  EXPECT_EQ(o.s.Text2(1).text, "1.25");
  EXPECT_EQ(o.s.Text2(2).text, "1.05");
  EXPECT_EQ(o.s.Text2(3).text, "1.1");
  EXPECT_EQ(o.s.Text4.text, "0");
  EXPECT_EQ(o.s.title.caption, "Bordage automatique");
  EXPECT_EQ(o.s.Valider.caption, "Valider/end");
  EXPECT_EQ(o.s.Label0(0).caption,
            "Cet écran vous permez de disposer automatiquement de 2 à 20 bordés latéraux.\n"
            "Les bordés seront répartis uniformement entre le bouchain 1 et le livet.\n"
            "Attention: le temps de calcul augmente exponentiellement avec le nombre de bordés.");
  EXPECT_EQ(o.s.Label1(0).caption, "Ïnclinaison du premier bordé (degrés/horizontal) :");
  EXPECT_EQ(o.s.Label2(3).caption, "Hauteur arrière du livet :");
  EXPECT_EQ(o.s.Label4.caption, "Forme d'étrave :");
  EXPECT_EQ(o.s.Label3.caption, "");
  EXPECT_EQ(o.s.Label3.foreColor, rgb(192, 255, 255));
  o.h.langue = 1;
  o.s.activate(o.h);
  EXPECT_EQ(o.s.title.caption, "Automatic planking");
  EXPECT_EQ(o.s.Valider.caption, "Valider/end");
  EXPECT_EQ(o.s.Label0(1).caption, "Number of side planks (max 20) :");
  EXPECT_EQ(o.s.Label2(0).caption, "Ïnclinaison of the last plank  (degrées/horizontal) :");
  EXPECT_EQ(o.s.Label2(1).caption, "Forward height of sheer line :");
  EXPECT_EQ(o.s.Label4.caption, "Stem shape :");
}

TEST(Bouchain3, DefaultHullFourPlanks) {
  Opened o;
  ASSERT_TRUE(o.s.validerAuto(o.h));
  const HullStore& h = o.h;
  EXPECT_EQ(o.s.angleStep, 15);
  EXPECT_EQ(h.nChines, 5);
  const int angles[] = {45, 60, 75, 90, 105};
  for (int k = 1; k <= 5; ++k) EXPECT_EQ(h.plankAngle(k), angles[k - 1]);
  for (int k = 1; k <= 5; ++k) {
    EXPECT_EQ(h.bowTurn(k), 1);
    EXPECT_EQ(h.transomTurn(k), 1);
  }
  // The sheer lands on the typed heights; with stem shape 0 the planks
  // have one width at each station, which the rise over sin(a) gives back.
  EXPECT_NEAR(h.zFwd(5), 1.25, 1e-12);
  EXPECT_NEAR(h.zMax(5), 1.05, 1e-12);
  EXPECT_NEAR(h.zAft(5), 1.1, 1e-12);
  const double sines = std::sin(45 * kPi / 180) + std::sin(60 * kPi / 180) +
                       std::sin(75 * kPi / 180) + std::sin(90 * kPi / 180);
  const double wFwd = (1.25 - 0.1) / sines;
  for (int n = 2; n <= 5; ++n) {
    const double a = angles[n - 2] * kPi / 180;
    EXPECT_NEAR(h.zFwd(n) - h.zFwd(n - 1), wFwd * std::sin(a), 1e-12) << n;
    EXPECT_NEAR(h.yFwd(n) - h.yFwd(n - 1), wFwd * std::cos(a), 1e-12) << n;
    EXPECT_NEAR(h.yAft(n) - h.yAft(n - 1), (1.1 - 0.15) / sines * std::cos(a), 1e-12) << n;
    EXPECT_EQ(h.xMax(n), 3);
  }
  EXPECT_TRUE(storeFinite(h));
  EXPECT_TRUE(o.s.autoOk);
  EXPECT_EQ(o.s.Label3.caption, "");
}

TEST(Bouchain3, NumberOfPlanks) {
  struct Case {
    const char* typed;
    int lines;
    const char* shown;
    bool replaced;
  };
  const Case cases[] = {
      {"1", 3, "2", true},    {"25", 21, "20", true},   {"20", 21, "20", false},
      {"2", 3, "2", false},   {"20.5", 21, "20", true},  // 21.5 rounds to 22
      {"2.5", 4, "3", false},                            // 3.5 rounds to 4
      {"2,7", 3, "2", false},                            // read before cleaning: "2"
      {"", 3, "2", true},     {"-5", 3, "2", true},
  };
  for (const Case& c : cases) {
    Opened o;
    o.s.Text0.text = c.typed;
    o.s.Text2(0).text = "170";  // room for 3 degrees a plank
    o.s.Text1(0).text = "20";
    o.s.validerAuto(o.h);
    EXPECT_EQ(o.h.nChines, c.lines) << c.typed;
    EXPECT_EQ(o.s.Text0.text, c.shown) << c.typed;
    EXPECT_EQ(o.s.Text0.backColor, c.replaced ? kYellow : kWhite) << c.typed;
    EXPECT_EQ(findReplacement(o.s.replaced, "Text0") != nullptr, c.replaced) << c.typed;
  }
}

TEST(Bouchain3, InclinationGrid) {
  struct Case {
    const char* planks;
    const char* first;
    const char* last;
    int firstKept, lastKept, step;
    bool firstReplaced, lastReplaced;
  };
  const Case cases[] = {
      {"3", "45", "46", 45, 51, 3, false, true},     // step 0 by rounding, replaced by 3
      {"4", "45", "90", 45, 90, 15, false, false},   // on the grid already
      {"4", "45", "92", 45, 93, 16, false, false},   // 47/3 rounds to 16: onto the grid
      {"4", "45", "200", 45, 168, 41, false, true},  // Int((170 - 45)/3)
      {"20", "20", "77", 20, 77, 3, false, false},
      {"2", "10", "30", 16, 30, 14, true, false},  // plankAngle(0) + 4
      {"2", "95", "170", 80, 170, 90, true, false},
      {"2", "-50", "60", 50, 60, 10, false, false},  // absolute values
  };
  for (const Case& c : cases) {
    Opened o;
    o.type(c.planks, c.first, c.last);
    o.s.validerAuto(o.h);
    const int t = o.h.nChines - 1;
    EXPECT_EQ(o.h.plankAngle(1), c.firstKept) << c.planks << " " << c.first << " " << c.last;
    EXPECT_EQ(o.h.plankAngle(t), c.lastKept) << c.planks << " " << c.first << " " << c.last;
    EXPECT_EQ(o.s.angleStep, c.step) << c.planks << " " << c.first << " " << c.last;
    EXPECT_EQ(o.s.Text2(0).text, std::to_string(c.lastKept));
    EXPECT_EQ(o.s.Text1(0).backColor, c.firstReplaced ? kYellow : kWhite);
    EXPECT_EQ(o.s.Text2(0).backColor, c.lastReplaced ? kYellow : kWhite);
    // The grid is stable: the second press keeps the same step and passes.
    EXPECT_TRUE(o.s.validerAuto(o.h)) << c.planks << " " << c.first << " " << c.last;
    EXPECT_EQ(o.s.angleStep, c.step);
    EXPECT_EQ(o.h.plankAngle(o.h.nChines), c.lastKept + c.step);
  }
}

TEST(Bouchain3, FirstPlankAtLeastFiveDegreesWithoutAMark) {
  Opened o;
  o.h.plankAngle(0) = -10;
  o.type("3", "2", "60");
  ASSERT_TRUE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.h.plankAngle(1), 5);
  EXPECT_EQ(o.s.Text1(0).text, "5");
  EXPECT_EQ(o.s.Text1(0).backColor, kWhite);
  const Replacement* r = findReplacement(o.s.replaced, "Text1(0)");
  ASSERT_NE(r, nullptr);
  EXPECT_FALSE(r->marked);
  EXPECT_EQ(r->kept, "5");
}

TEST(Bouchain3, SheerMarginsAboveTheFirstChine) {
  Opened o;  // zFwd(1) = 0.1, zMax(1) = 0, zAft(1) = 0.15, a tenth of yMax(1) is 0.095
  o.s.Text2(1).text = "0.15";
  o.s.Text2(2).text = "-1";
  o.s.Text2(3).text = "0,245";
  EXPECT_FALSE(o.s.validerAuto(o.h));
  EXPECT_FALSE(o.s.autoOk);
  EXPECT_EQ(o.s.Text2(1).text, "0.195");
  EXPECT_EQ(o.s.Text2(2).text, "0.095");
  EXPECT_EQ(o.s.Text2(3).text, "0.245");  // on the margin: accepted
  EXPECT_EQ(o.s.Text2(1).backColor, kYellow);
  EXPECT_EQ(o.s.Text2(3).backColor, kWhite);
  EXPECT_TRUE(o.s.validerAuto(o.h));
  EXPECT_NEAR(o.h.zFwd(5), 0.195, 1e-12);
  EXPECT_NEAR(o.h.zMax(5), 0.095, 1e-12);
}

TEST(Bouchain3, TurnFlagsKeptOnlyForThreeOrFourLines) {
  Opened o;
  o.type("3", "45", "75");
  ASSERT_TRUE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.h.transomTurn(4), -1);
  EXPECT_EQ(o.h.bowTurn(5), -1);
  o.type("4", "45", "90");
  ASSERT_TRUE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.h.transomTurn(4), 1);
  EXPECT_EQ(o.h.bowTurn(5), 1);
}

TEST(PlankWidths, PowerLawNormalisedToTheSheerHeight) {
  HullStore h = bottomValidated();
  h.nChines = 7;
  for (int k = 1; k <= 6; ++k) h.plankAngle(k) = static_cast<i16>(30 + 10 * k);
  h.zFwd(7) = 1.3, h.zMax(7) = 1.0, h.zAft(7) = 1.1;
  for (double shape : {0.0, 3.0, -2.0}) {
    h.stemShape = shape;
    double rise[3] = {0, 0, 0};
    for (i16 k = 1; k <= 6; ++k) {
      const double s = std::sin(h.plankAngle(k) * kPi / 180);
      rise[0] += plankW_FWD(h, k) * s;
      rise[1] += plankW_MID(h, k) * s;
      rise[2] += plankW_AFT(h, k) * s;
      if (shape == 0) {
        EXPECT_NEAR(plankW_FWD(h, k), plankW_FWD(h, 1), 1e-15);
      }
      if (shape > 0 && k > 1) {
        EXPECT_GT(plankW_FWD(h, k), plankW_FWD(h, k - 1));
      }
    }
    EXPECT_NEAR(rise[0], 1.3 - 0.1, 1e-12) << shape;
    EXPECT_NEAR(rise[1], 1.0 - 0, 1e-12) << shape;
    EXPECT_NEAR(rise[2], 1.1 - 0.15, 1e-12) << shape;
  }
  h.stemShape = 3;  // the stem's exponent is shape/2, the others shape/3
  EXPECT_NEAR(plankW_FWD(h, 6) / plankW_FWD(h, 3), std::pow(2.0, 1.5), 1e-12);
  h.nChines = 1;
  EXPECT_EQ(plankW_MID(h, 1), 0);
}

TEST(Bouchain3, TwentyPlanksFiniteEverywhere) {
  Opened o;
  o.type("20", "20", "77");
  o.s.Text2(1).text = "1.3";
  o.s.Text2(2).text = "1";
  o.s.Text2(3).text = "1.1";
  o.s.Text4.text = "1.5";
  ASSERT_TRUE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.h.nChines, 21);
  EXPECT_EQ(o.s.angleStep, 3);
  EXPECT_EQ(o.h.plankAngle(21), 80);
  EXPECT_NEAR(o.h.zFwd(21), 1.3, 1e-12);
  EXPECT_NEAR(o.h.zMax(21), 1.0, 1e-12);
  EXPECT_NEAR(o.h.zAft(21), 1.1, 1e-12);
  EXPECT_TRUE(storeFinite(o.h));
  for (int n = 2; n <= 21; ++n) {
    EXPECT_GT(o.h.zFwd(n), o.h.zFwd(n - 1)) << n;
    EXPECT_EQ(o.h.lineX(n, 82), o.h.xFwd(n)) << n;
  }
  EXPECT_DOUBLE_EQ(o.h.bevelAngle(21, 0), kPi / 2);
}

TEST(Bouchain3, ProgressCaptions) {
  Opened o;
  o.type("2", "45", "60");
  std::vector<std::pair<std::string, std::int32_t>> seen;
  o.s.refresh = [&o, &seen] { seen.emplace_back(o.s.Label3.caption, o.s.Label3.foreColor); };
  ASSERT_TRUE(o.s.validerAuto(o.h));
  const std::int32_t cyan = rgb(192, 255, 255), pale = rgb(255, 255, 192),
                     pink = rgb(255, 192, 192);
  const std::vector<std::pair<std::string, std::int32_t>> expected = {
      {"Positioning chine  2", cyan},
      {"Positioning chine  3", cyan},
      {"Computing line  2  of  3", pale},
      {"Computing points of line  2  of  3", pink},
      {"Computing line  3  of  3", pale},
      {"Computing points of line  3  of  3", pink},
      {"", pink},
  };
  EXPECT_EQ(seen, expected);
}

TEST(Bouchain3, HugeStemShapeIsHeldToTheScaleOfAHull) {
  Opened o;
  o.s.Text4.text = "-1e999";
  EXPECT_FALSE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.h.stemShape, -kLargestTyped);
  EXPECT_EQ(o.s.Text4.text, "-1000");
  EXPECT_EQ(o.s.Text4.backColor, kYellow);
  EXPECT_TRUE(o.s.validerAuto(o.h));
  EXPECT_TRUE(storeFinite(o.h));
  o.s.Text4.text = "2";
  EXPECT_TRUE(o.s.validerAuto(o.h));
}

// A sheer line typed a kilometre high is held there, but the lines it
// gives run to tens of thousands of kilometres (their ends are powers of
// it): refused, the fields that shape every line in orange, the hull as it
// was.
TEST(Bouchain3, SheerBeyondTheScaleOfAHullIsRefused) {
  Opened o;
  o.s.Text0.text = "19";
  o.s.Text2(3).text = "1e7";
  EXPECT_FALSE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.s.Text2(3).text, "1000");
  EXPECT_EQ(o.s.Text2(3).backColor, kYellow);
  const HullStore before = o.h;
  EXPECT_FALSE(o.s.validerAuto(o.h));
  EXPECT_EQ(o.s.Text2(3).backColor, kOrange);
  EXPECT_EQ(o.s.Text1(0).backColor, kOrange);
  EXPECT_EQ(o.h.lineX, before.lineX);
  EXPECT_EQ(o.h.lineZ, before.lineZ);
  EXPECT_TRUE(storeFinite(o.h));
}

TEST(Bouchain3, AnyTextInAnyField) {
  for (int field = 0; field <= 5; ++field) {
    for (const std::string& typed : badTexts()) {
      Opened o;
      Field* fields[] = {&o.s.Text0,    &o.s.Text1(0), &o.s.Text2(0),
                         &o.s.Text2(1), &o.s.Text2(2), &o.s.Text4};
      fields[field]->text = typed;
      bool second = false;
      ASSERT_NO_THROW({
        o.s.validerAuto(o.h);
        second = o.s.validerAuto(o.h);
      });
      EXPECT_TRUE(storeFinite(o.h)) << field << " " << typed;
      EXPECT_EQ(o.s.validerAuto(o.h), second) << field << " " << typed;
      if (!second) {
        EXPECT_EQ(fields[field]->backColor, kOrange) << field << " " << typed;
      }
    }
  }
}

}  // namespace
}  // namespace tolmar
