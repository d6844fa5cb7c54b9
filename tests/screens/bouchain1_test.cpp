// The bottom and first chine screen: clamping order, the snap of the
// maximum beam, derived values on the default hull, and any text.
#include "screens/bouchain1.h"

#include <gtest/gtest.h>

#include <cmath>

#include "hull/chine_equations.h"
#include "hull/geometrie.h"
#include "screen_fixtures.h"
#include "screens/field_number.h"

namespace tolmar {
namespace {

using testing::badTexts;
using testing::defaultStore;
using testing::findReplacement;
using testing::storeFinite;

struct Opened {
  HullStore h = defaultStore();
  Bouchain1 s;
  Opened() { s.activate(h); }
};

TEST(Bouchain1, ActivationShowsTheStoreWithAbsoluteAngles) {
  Opened o;
  const char* t1[] = {"6", "3", "0.95", "0", "0.7", "2.5", "2.1"};
  const char* t2[] = {"0.1", "0.15", "1", "12", "40", "15", "25", "0"};
  for (int i = 0; i <= 6; ++i) EXPECT_EQ(o.s.Text1(i).text, t1[i]) << i;
  for (int i = 0; i <= 7; ++i) EXPECT_EQ(o.s.Text2(i).text, t2[i]) << i;
  EXPECT_FALSE(o.s.Text2(5).enabled);  // pointed stem
  o.s.typeText1(3, "0.2");
  EXPECT_TRUE(o.s.Text2(5).enabled);
  o.s.typeText1(3, "0.000");
  EXPECT_FALSE(o.s.Text2(5).enabled);
}

TEST(Bouchain1, CaptionsByLanguage) {
  HullStore h = defaultStore(0);
  Bouchain1 s;
  s.activate(h);
  EXPECT_EQ(s.title.caption, "  Fond ");
  EXPECT_EQ(s.Valider.caption, "Valider");
  EXPECT_EQ(s.titre1(0).caption,
            "Définition du fond et du premier bouchain dans les 3 dimensions X,Y,Z.");
  EXPECT_EQ(s.Label1(0).caption, "Longeur tableau-étrave LWL=");
  EXPECT_EQ(s.Label2(2).caption, "Forme S arrière=");
  h.langue = 1;
  s.activate(h);
  EXPECT_EQ(s.title.caption, "  Bottom ");
  EXPECT_EQ(s.Valider.caption, "Validation");
  EXPECT_EQ(s.titre1(1).caption,
            "Axis definition :  Origin=transom,   X=longitudinal toward stem,   Y=transverse,  "
            "Z=upward");
  EXPECT_EQ(s.titre1(3).caption, "X-Z vertical plane");
  EXPECT_EQ(s.Label1(6).caption, "Power of X aft (2-4)=");
  EXPECT_EQ(s.Label2(6).caption, "Transom incl. (deg/vertical)=");
}

TEST(Bouchain1, DefaultHullGivesTheDocumentedGeometry) {
  Opened o;
  ASSERT_TRUE(o.s.validerBottom(o.h));
  const HullStore& h = o.h;
  EXPECT_EQ(h.iMaxBeam, 41);
  EXPECT_EQ(h.xMax(1), 3);
  EXPECT_EQ(h.xFwd(1), 6);  // the keel meets the chine on the pointed stem
  EXPECT_EQ(h.bowAngle, 15);
  EXPECT_NEAR(h.xAft(1), -0.071208, 5e-7);
  EXPECT_NEAR(firstChineY(h, 1), 0.843304, 5e-7);
  EXPECT_NEAR(firstChineZ(h, 1), 0.085357, 5e-7);
  EXPECT_NEAR(firstChineY(h, 5), 0.605257, 5e-7);
  EXPECT_NEAR(bottomZ(h, 1, 0), -0.093893, 5e-7);
  EXPECT_NEAR(bottomZ(h, 3.4, 0), -0.201929, 5e-7);
  EXPECT_NEAR(h.zMax(0), -0.201929, 5e-7);
  EXPECT_NEAR(bottomZ(h, 3.4, 0.5), -0.095649, 5e-7);
  EXPECT_NEAR(bottomZ(h, 5, 0), -0.164483, 5e-7);
  EXPECT_NEAR(h.xMax(0), 3.797144649618, 1e-12);
  // The plane of line 1 holds its three control points.
  auto planeZ = [&h](double x, double y) {
    return h.planeA(1) + h.planeB(1) * x + h.planeC(1) * y;
  };
  EXPECT_NEAR(planeZ(0, 0.7), 0.15, 1e-12);
  EXPECT_NEAR(planeZ(3, 0.95), 0, 1e-12);
  EXPECT_NEAR(planeZ(6, 0), 0.1, 1e-12);
  // Lines 0 and 1 and the edges are built.
  EXPECT_EQ(h.lineX(1, 0), h.xAft(1));
  EXPECT_EQ(h.lineY(1, 41), 0.95);  // station 41 at X = 3, the maximum beam
  EXPECT_EQ(h.edgeX(1, 83), h.lineX(1, 82));
  EXPECT_TRUE(storeFinite(h));
  EXPECT_TRUE(o.s.replaced.empty());
  for (int i = 0; i <= 6; ++i) EXPECT_EQ(o.s.Text1(i).backColor, kWhite);
}

TEST(Bouchain1, KeelAtMaximumBeamUsesTheAnglesHeldBefore) {
  Opened o;
  o.s.Text2(4).text = "30";
  ASSERT_TRUE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.h.keelAdvance, 30);
  EXPECT_NEAR(o.h.xMax(0), 3 + tanDeg(40) * 0.95, 1e-12);
  o.s.activate(o.h);
  ASSERT_TRUE(o.s.validerBottom(o.h));
  EXPECT_NEAR(o.h.xMax(0), 3 + tanDeg(30) * 0.95, 1e-12);
}

struct Bound {
  int column;  // 1 for Text1, 2 for Text2
  int index;
  const char* typed;
  const char* shown;
  const char* colour;  // "w" accepted, "y" replaced
};

TEST(Bouchain1, BoundsAreReplacedAndPassOnTheSecondPress) {
  const Bound cases[] = {
      {1, 1, "4.5", "4.2", "y"},  // 0.7 L
      {1, 1, "4.2", "4.2", "w"},
      {1, 1, "1", "1.2", "y"},  // 0.2 L
      {1, 1, "1.2", "1.2", "w"},
      {1, 1, "3.04", "3", "w"},       // snapped down onto a station
      {1, 1, "-3.1", "3.075", "w"},   // absolute, then the station below
      {1, 2, "0.05", "0.06", "y"},    // 0.01 L
      {1, 2, "3.5", "3", "y"},        // 0.5 L
      {1, 3, "0.95", "0.9405", "y"},  // tested at 0.991 yMax, replaced at 0.99 yMax
      {1, 3, "0.94", "0.94", "w"},
      {1, 4, "1", "0.95", "y"},  // yMax
      {1, 5, "2", "2.1", "y"},
      {1, 6, "6", "5", "y"},
      {1, 6, "5", "5", "w"},
      {2, 0, "-0.2", "0", "y"},
      {2, 1, "-0.5", "-0.1", "y"},  // -zFwd(1)
      {2, 1, "-0.1", "-0.1", "w"},
      {2, 2, "-7.25", "-7.25", "w"},  // S shapes: no range
      {2, 3, "50", "45", "y"},
      {2, 3, "-25", "-20", "y"},
      {2, 3, "12.5", "12", "w"},  // half to even
      {2, 3, "13.5", "14", "w"},
      {2, 4, "-80", "70", "y"},
      {2, 5, "99", "60", "y"},
      {2, 6, "25", "-25", "w"},  // the stored angle is never positive
      {2, 6, "-30", "-30", "w"},
      {2, 6, "75", "-70", "y"},
  };
  for (const Bound& c : cases) {
    Opened o;
    Field& f = c.column == 1 ? o.s.Text1(c.index) : o.s.Text2(c.index);
    const std::string name = controlName(c.column == 1 ? "Text1" : "Text2", c.index);
    f.text = c.typed;
    const bool replaced = std::string(c.colour) == "y";
    EXPECT_EQ(o.s.validerBottom(o.h), !replaced) << name << " " << c.typed;
    EXPECT_EQ(f.text, c.shown) << name << " " << c.typed;
    EXPECT_EQ(f.backColor, replaced ? kYellow : kWhite) << name << " " << c.typed;
    const Replacement* r = findReplacement(o.s.replaced, name);
    if (replaced) {
      ASSERT_NE(r, nullptr) << name;
      EXPECT_EQ(r->typed, c.typed);
      EXPECT_EQ(r->kept, c.shown);
      EXPECT_TRUE(r->marked);
    }
    EXPECT_TRUE(o.s.validerBottom(o.h)) << name << " second press, " << c.typed;
    EXPECT_EQ(f.backColor, kWhite) << name;
    EXPECT_TRUE(storeFinite(o.h));
  }
}

TEST(Bouchain1, MaximumBeamBoundsPassOnTheSecondPressAtAnyLength) {
  // 0.2 x 6 is 1.2000000000000002 in doubles while the station is 1.2:
  // bounds are tested at the precision of the fields' text, so the bound
  // itself is accepted and the snap lands on stations 17 and 57.
  for (double len : {6.0, 7.3, 4.1, 0.11, 12.345, 5.55, 0.103, 9.99}) {
    for (double factor : {0.2, 0.7, 0.1, 0.9}) {
      Opened o;
      o.s.Text1(0).text = plainText(len);
      o.s.Text1(1).text = plainText(factor * len);
      o.s.Text1(2).text = plainText(0.15 * len);
      o.s.Text1(4).text = plainText(0.1 * len);
      // Heights to the hull's scale: default heights on an 11 cm hull make
      // a chine that never meets its transom, which the screen refuses.
      o.s.Text2(0).text = plainText(0.1 * len / 6);
      o.s.Text2(1).text = plainText(0.15 * len / 6);
      const bool first = o.s.validerBottom(o.h);
      EXPECT_EQ(first, factor == 0.2 || factor == 0.7) << len << " " << factor;
      EXPECT_TRUE(o.s.validerBottom(o.h)) << len << " " << factor;
      const int station = factor < 0.5 ? 17 : 57;
      EXPECT_EQ(o.h.iMaxBeam, station) << len << " " << factor;
      EXPECT_EQ(o.h.xMax(1), (station - 1) * len / 80);
      EXPECT_TRUE(o.s.validerBottom(o.h));
    }
  }
}

TEST(Bouchain1, ShortLengthIsOrangeWithABeepAndSetsTheRelativeBounds) {
  for (const char* typed : {"0", "", "0.1", "-0.05", "abc"}) {
    Opened o;
    o.s.Text1(0).text = typed;
    EXPECT_FALSE(o.s.validerBottom(o.h)) << typed;
    EXPECT_TRUE(o.s.beeped);
    EXPECT_EQ(o.s.Text1(0).text, "0.1");
    EXPECT_EQ(o.s.Text1(0).backColor, kOrange);
    EXPECT_EQ(o.h.xFwd(0), 0.1);
    EXPECT_EQ(o.s.Text1(1).text, "0.07");  // 3 above 0.7 x 0.1
    EXPECT_EQ(o.s.Text1(2).text, "0.05");  // 0.95 above 0.5 x 0.1
    EXPECT_EQ(o.s.Text1(4).text, "0.05");  // 0.7 above yMax(1)
    EXPECT_EQ(o.s.Text1(1).backColor, kYellow);
    // The length must lie above 0.1: the bound itself is refused again.
    EXPECT_FALSE(o.s.validerBottom(o.h));
    EXPECT_EQ(o.s.Text1(0).backColor, kOrange);
    // With a sound length the relative bounds move again: one press
    // replaces, the next passes.
    o.s.Text1(0).text = "0.5";
    EXPECT_FALSE(o.s.validerBottom(o.h)) << typed;
    EXPECT_TRUE(o.s.validerBottom(o.h)) << typed;
    EXPECT_FALSE(o.s.beeped);
    EXPECT_TRUE(storeFinite(o.h));
  }
}

TEST(Bouchain1, TransomAngleSignIsForced) {
  Opened o;
  EXPECT_EQ(o.s.Text2(6).text, "25");
  o.s.Text2(3).text = "60";  // keeps the screen open
  EXPECT_FALSE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.s.Text2(6).text, "-25");
  EXPECT_EQ(o.h.transomAngle, -25);
  EXPECT_TRUE(o.s.validerBottom(o.h));  // "-25" reads as "25"
  EXPECT_EQ(o.h.transomAngle, -25);
  o.s.activate(o.h);
  EXPECT_EQ(o.s.Text2(6).text, "25");
}

TEST(Bouchain1, StemInclinationIsReadWhileGreyedOut) {
  Opened o;
  ASSERT_FALSE(o.s.Text2(5).enabled);
  o.s.Text2(5).text = "75";
  EXPECT_FALSE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.h.bowAngle, 60);
  EXPECT_EQ(o.s.Text2(5).backColor, kYellow);
}

TEST(Bouchain1, PramBowKeepsItsRake) {
  Opened o;
  o.s.typeText1(3, "0.3");
  EXPECT_TRUE(o.s.Text2(5).enabled);
  ASSERT_TRUE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.h.bowAngle, 15);
  EXPECT_EQ(o.h.yFwd(1), 0.3);
  EXPECT_GT(o.h.xFwd(1), 6);  // the chine lies above the keel: the raked bow is forward
  EXPECT_TRUE(o.s.replaced.empty());
}

TEST(Bouchain1, StemRakedTooFarLosesDegreesWithoutAMark) {
  Opened o;
  o.s.typeText1(3, "0.001");
  o.s.Text2(5).text = "60";
  ASSERT_TRUE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.h.bowAngle, 54);
  EXPECT_GE(firstChineY(o.h, o.h.xFwd(1)), 0);
  EXPECT_GT(o.h.xFwd(1), 6);
  EXPECT_EQ(o.s.Text2(5).backColor, kWhite);
  const Replacement* r = findReplacement(o.s.replaced, "Text2(5)");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->screen, "bouchain1");
  EXPECT_EQ(r->typed, "60");
  EXPECT_EQ(r->kept, "54");
  EXPECT_FALSE(r->marked);
}

// Every field, every bad text: never an exception, never a non-finite
// store, and the screen settles: the third press does what the second did.
TEST(Bouchain1, AnyTextInAnyField) {
  for (int column = 1; column <= 2; ++column) {
    for (int i = 0; i <= (column == 1 ? 6 : 7); ++i) {
      for (const std::string& typed : badTexts()) {
        Opened o;
        Field& f = column == 1 ? o.s.Text1(i) : o.s.Text2(i);
        f.text = typed;
        bool second = false;
        ASSERT_NO_THROW({
          o.s.validerBottom(o.h);
          second = o.s.validerBottom(o.h);
        });
        EXPECT_TRUE(storeFinite(o.h)) << column << " " << i << " " << typed;
        const bool lengthRefused = column == 1 && i == 0 && !(o.h.xFwd(0) > 0.1);
        // A transom height or aft shape far out of scale makes a chine that
        // never meets the transom: refused, and the field says so.
        const bool aftEndRefused = column == 2 && (i == 1 || i == 2) && f.backColor == kOrange;
        if (!lengthRefused && !aftEndRefused) {
          EXPECT_TRUE(second) << column << " " << i << " '" << typed << "'";
        }
        EXPECT_EQ(o.s.validerBottom(o.h), second);
      }
    }
  }
}

// A steep transom over a strongly S-shaped, high-powered chine: the ten
// passes that find the chine's aft end run away (hundreds of metres aft of
// a 10 m hull).  The screen refuses it in orange and keeps the store.
TEST(Bouchain1, ChineThatNeverMeetsItsTransomIsRefused) {
  Opened o;
  const HullStore before = o.h;
  o.s.typeText1(0, "9.82");
  o.s.typeText1(6, "4.99");
  o.s.Text2(2).text = "-10";
  o.s.Text2(6).text = "70";
  EXPECT_FALSE(o.s.validerBottom(o.h));
  EXPECT_FALSE(o.s.validerBottom(o.h));
  for (int i : {1, 2, 6}) EXPECT_EQ(o.s.Text2(i).backColor, kOrange) << i;
  EXPECT_EQ(o.s.Text1(6).backColor, kOrange);
  EXPECT_EQ(o.h.xAft(1), before.xAft(1));
  EXPECT_EQ(o.h.lineX, before.lineX);
  // A milder transom finds its end and passes.
  o.s.Text2(6).text = "46";
  EXPECT_TRUE(o.s.validerBottom(o.h));
  EXPECT_GT(o.h.xAft(1), -1.0);
  EXPECT_EQ(o.s.Text2(6).backColor, kWhite);
}

TEST(Bouchain1, AllFieldsAtOnce) {
  for (const std::string& typed : badTexts()) {
    Opened o;
    for (int i = 0; i <= 6; ++i) o.s.Text1(i).text = typed;
    for (int i = 0; i <= 7; ++i) o.s.Text2(i).text = typed;
    ASSERT_NO_THROW({
      o.s.validerBottom(o.h);
      o.s.validerBottom(o.h);
    });
    EXPECT_TRUE(storeFinite(o.h)) << typed;
  }
}

TEST(Bouchain1, HugeNumbersAreHeldToTheScaleOfAHull) {
  Opened o;
  o.s.Text1(0).text = "1e999";
  o.s.Text2(0).text = "1234567890123456789012345678901234567890";
  o.s.Text2(2).text = "-1e999";
  EXPECT_FALSE(o.s.validerBottom(o.h));
  EXPECT_EQ(o.h.xFwd(0), kLargestTyped);
  EXPECT_EQ(o.s.Text1(0).text, "1000");
  EXPECT_EQ(o.s.Text1(0).backColor, kYellow);
  EXPECT_EQ(o.h.zFwd(1), kLargestTyped);
  EXPECT_EQ(o.h.shapeAft, -kLargestTyped);
  EXPECT_EQ(o.s.Text2(2).backColor, kYellow);
  const Replacement* r = findReplacement(o.s.replaced, "Text1(0)");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->typed, "1e999");
  EXPECT_EQ(r->kept, "1000");
  o.s.validerBottom(o.h);
  EXPECT_TRUE(storeFinite(o.h));
}

}  // namespace
}  // namespace tolmar
