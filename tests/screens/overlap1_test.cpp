#include "screens/overlap1.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tolmar {
namespace {

using G = Overlap1::Group;

// A store with five lines whose bevels are all `angle` radians.
HullStore hullWithBevels(double angle, int langue = 1) {
  HullStore h;
  h.langue = static_cast<i16>(langue);
  h.nChines = 5;
  h.iMaxBeam = 41;
  for (int n = 0; n <= kMaxLine; ++n)
    for (int p = 0; p <= 90; ++p) h.bevelAngle(n, p) = angle;
  return h;
}

struct Opened {
  HullStore h;
  Overlap1 s;
  explicit Opened(HullStore store) : h(std::move(store)) {
    s.load();
    s.activate(h);
  }
};

TEST(Overlap1, LoadAndCaptions) {
  Opened en(hullWithBevels(0.5, 1));
  EXPECT_EQ(en.s.title.caption, "Overlap");
  EXPECT_EQ(en.s.Label1(1).caption, "Width of first side plank overlap to bottom");
  EXPECT_EQ(en.s.Label3(2).caption, "Thickness of bow plate");
  EXPECT_EQ(en.s.Command1(1).caption, "Strip planking/welding\nreset all to 0");
  EXPECT_EQ(en.s.Label9(5).caption, "mm");
  EXPECT_EQ(en.s.Label0.caption.substr(0, 53),
            "This screen allows to enter the thickness of planks \n");
  for (const Field* f : {&en.s.Text1(0), &en.s.Text1(1), &en.s.Text2(0), &en.s.Text2(1),
                         &en.s.Text3(1), &en.s.Text3(2)})
    EXPECT_EQ(f->text, "0");
  EXPECT_EQ(en.s.Label8(0).caption, "");  // fields written with "0" did not change
  Opened fr(hullWithBevels(0.5, 0));
  EXPECT_EQ(fr.s.title.caption, "Overlap");
  EXPECT_EQ(fr.s.Label1(1).caption, "Largeur de recouvrement bordé 1 - fond");
  EXPECT_EQ(fr.s.Command1(2).caption, "Bordé à clin");
  EXPECT_NE(fr.s.Label0.caption.find("supplémetaires.\nAttention:\n"), std::string::npos);
}

TEST(Overlap1, OpeningWritesThicknessesAndAdvises) {
  HullStore h = hullWithBevels(0.5);
  h.plankThick(0) = 0.006;
  h.plankThick(1) = 0.004;
  h.transomThick = 0.012;
  h.bowThick = 0.0095;
  Opened o(h);
  EXPECT_EQ(o.s.Text1(0).text, "6");
  EXPECT_EQ(o.s.Text2(0).text, "4");
  EXPECT_EQ(o.s.Text3(1).text, "12");
  EXPECT_EQ(o.s.Text3(2).text, "9.5");
  // 6 mm / sin 0.5 = 12.515 mm: 13 advised everywhere, first at point 0.
  EXPECT_EQ(o.s.Label8(0).caption,
            "Recommended width of overlap at point 41 (Bmax): 13mm\nand at point 0 : 13mm");
  EXPECT_EQ(o.s.Label8(1).caption, "Recommended width of overlap  12mm ");
}

TEST(Overlap1, AdviceRoundsUpUnlessWithinATenth) {
  HullStore h = hullWithBevels(1.5707963267949);  // a right angle: the width is the thickness
  h.bevelAngle(1, 20) = 0.3;                      // 6 / sin 0.3 = 20.30 mm
  h.bevelAngle(1, 30) = 0.3;                      // a tie: the first point wins
  Opened o(h);
  o.s.typeText(o.h, G::text1, 0, "6,05");
  EXPECT_NEAR(o.h.bevelWidth(1, 41), 0.00605, 1e-9);
  EXPECT_EQ(o.s.bevelMaxAt(1), 20);
  EXPECT_EQ(o.s.Label8(0).caption,
            "Recommended width of overlap at point 41 (Bmax): 6mm\nand at point 20 : 21mm");
  o.s.typeText(o.h, G::text1, 0, "6.15");
  EXPECT_EQ(o.s.Label8(0).caption.substr(0, 53),
            "Recommended width of overlap at point 41 (Bmax): 7mm\n");
  o.s.typeText(o.h, G::text1, 1, "3");  // another field of the group empties the advice
  EXPECT_EQ(o.s.Label8(0).caption, "");
}

TEST(Overlap1, FrenchAdvice) {
  HullStore h = hullWithBevels(1.5707963267949, 0);
  Opened o(h);
  o.s.typeText(o.h, G::text1, 0, "5");
  o.s.typeText(o.h, G::text2, 0, "1.5");
  EXPECT_EQ(o.s.Label8(0).caption,
            "Largeur de recouvrement proposée au point 41 (Bmax): 5mm\net au point 0 : 5mm");
  EXPECT_EQ(o.s.Label8(1).caption, "Largeur de recouvrement proposée  4.5mm ");
}

TEST(Overlap1, BevelWidthEdgeCases) {
  HullStore h = hullWithBevels(0.001);  // exactly the flat limit: no lap
  h.bevelAngle(2, 5) = -0.4;            // planks in reversed order: no lap
  h.bevelAngle(2, 6) = 1.5707963267949;
  h.bevelAngle(2, 7) = std::nan("");
  Opened o(h);
  o.s.typeText(o.h, G::text2, 0, "4");
  EXPECT_EQ(o.h.bevelWidth(1, 10), 0.0);
  EXPECT_EQ(o.h.bevelWidth(2, 5), 0.0);
  EXPECT_NEAR(o.h.bevelWidth(2, 6), 0.004, 1e-12);
  EXPECT_EQ(o.h.bevelWidth(2, 7), 0.0);
  EXPECT_EQ(o.s.bevelMaxAt(2), 6);
}

TEST(Overlap1, LapsAreUniformAlongEachLine) {
  Opened o(hullWithBevels(0.5));
  o.s.typeText(o.h, G::text1, 1, "25");
  o.s.typeText(o.h, G::text2, 1, "18");
  for (int p : {0, 41, 82}) {
    EXPECT_NEAR(o.h.overlapWidth(1, p), 0.025, 1e-12);
    for (int n = 2; n <= 5; ++n) EXPECT_NEAR(o.h.overlapWidth(n, p), 0.018, 1e-12);
  }
  EXPECT_EQ(o.h.overlapWidth(0, 10), 0.0);
  EXPECT_EQ(o.h.overlapWidth(6, 10), 0.0);  // above nChines untouched
}

TEST(Overlap1, FieldsReadTolerantlyAndShowTheirValue) {
  Opened o(hullWithBevels(0.5));
  o.s.typeText(o.h, G::text1, 0, "-6,5");
  EXPECT_EQ(o.s.Text1(0).text, "-6,5");  // kept while typing
  EXPECT_NEAR(o.h.plankThick(0), 0.0065, 1e-12);
  o.s.leaveField(o.h, G::text1, 0);
  EXPECT_EQ(o.s.Text1(0).text, "6.5");
  o.s.typeText(o.h, G::text3, 1, "1.");  // a point typed last stays
  EXPECT_EQ(o.s.Text3(1).text, "1.");
  EXPECT_NEAR(o.h.transomThick, 0.001, 1e-12);
  o.s.typeText(o.h, G::text3, 2, "abc");
  EXPECT_EQ(o.s.Text3(1).text, "1");  // rewritten when another field changed
  EXPECT_EQ(o.h.bowThick, 0.0);
  o.s.typeText(o.h, G::text2, 0, "1e400");
  EXPECT_TRUE(std::isfinite(o.h.plankThick(1)));
  EXPECT_TRUE(std::isfinite(o.h.bevelWidth(2, 3)));
  o.s.leaveField(o.h, G::text2, 0);
  EXPECT_TRUE(std::isfinite(std::stod(o.s.Text2(0).text)));
}

TEST(Overlap1, SidePlankThicknessGoesToLinesOneToNChinesMinusOne) {
  HullStore h = hullWithBevels(0.5);
  h.nChines = 2;
  h.plankThick(2) = 0.777;
  Opened o(h);
  o.s.typeText(o.h, G::text2, 0, "4");
  EXPECT_NEAR(o.h.plankThick(1), 0.004, 1e-12);
  EXPECT_EQ(o.h.plankThick(2), 0.777);
}

TEST(Overlap1, ButtonsLeaveTheModeAndHide) {
  Opened o(hullWithBevels(0.5));
  o.s.typeText(o.h, G::text1, 0, "6");
  o.s.typeText(o.h, G::text1, 1, "20");
  o.s.clickCommand1(o.h, 0);  // Cancel keeps what was typed
  EXPECT_EQ(o.h.overlapMode, 0);
  EXPECT_FALSE(o.s.visible);
  EXPECT_NEAR(o.h.plankThick(0), 0.006, 1e-12);
  EXPECT_EQ(o.s.Text1(1).text, "20");

  o.s.activate(o.h);
  o.s.clickCommand1(o.h, 2);
  EXPECT_EQ(o.h.overlapMode, 2);
  EXPECT_NEAR(o.h.overlapWidth(1, 40), 0.020, 1e-12);

  o.s.activate(o.h);
  EXPECT_EQ(o.s.Text1(1).text, "20");  // the laps live in the screen
  o.s.clickCommand1(o.h, 1);
  EXPECT_EQ(o.h.overlapMode, 1);
  EXPECT_EQ(o.h.plankThick(0), 0.0);
  EXPECT_EQ(o.h.transomThick, 0.0);
  for (int n = 1; n <= 5; ++n) {
    EXPECT_EQ(o.h.overlapWidth(n, 40), 0.0);
    EXPECT_EQ(o.h.bevelWidth(n, 40), 0.0);
  }
  EXPECT_EQ(o.s.Text2(1).text, "0");
}

}  // namespace
}  // namespace tolmar
