// The paper's side of printing: the checks of a margin and a printer's
// factors, their reading from a command line, and where the 200 mm
// calibration bars find room.
#include "printing/paper_setup.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tolmar {
namespace {

TEST(PaperSetup, FactorsBetweenNineAndElevenTenths) {
  for (double ok : {0.9, 0.998, 1.0, 1.002, 1.1}) EXPECT_EQ(calibrationError(ok, 1), "") << ok;
  for (double bad :
       {0.0, -1.0, 0.899, 1.101, 2.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_NE(calibrationError(bad, 1).find("between 0.9 and 1.1"), std::string::npos) << bad;
    EXPECT_NE(calibrationError(bad, 0).find("entre 0,9 et 1,1"), std::string::npos) << bad;
  }
}

TEST(PaperSetup, MarginLeavesSomePaper) {
  // A4: half of its smaller side is 105 mm.
  EXPECT_EQ(marginError(0, 210, 297, 1), "");
  EXPECT_EQ(marginError(5, 210, 297, 1), "");
  EXPECT_EQ(marginError(104.9, 297, 210, 1), "");
  EXPECT_NE(marginError(105, 210, 297, 1).find("105.0 mm"), std::string::npos);
  EXPECT_NE(marginError(-0.1, 210, 297, 0).find("105,0 mm"), std::string::npos);
  EXPECT_NE(marginError(std::nan(""), 210, 297, 1), "");
}

TEST(PaperSetup, ReadsOneOrTwoFactors) {
  PrintCalibration c;
  ASSERT_TRUE(parseCalibration("1.002,0.998", c));
  EXPECT_DOUBLE_EQ(c.x, 1.002);
  EXPECT_DOUBLE_EQ(c.y, 0.998);
  ASSERT_TRUE(parseCalibration("0.99", c));
  EXPECT_DOUBLE_EQ(c.x, 0.99);
  EXPECT_DOUBLE_EQ(c.y, 0.99);
  for (const char* bad : {"", ",", "1,", ",1", "1,2,3", "1.0x", "one", "1 ,1", "nan", "inf,1"}) {
    PrintCalibration kept{1.01, 0.97};
    EXPECT_FALSE(parseCalibration(bad, kept)) << bad;
    EXPECT_EQ(kept.x, 1.01) << "a refused text changes nothing";
  }
  double v = 0;
  EXPECT_TRUE(parsePaperNumber("12.5", v));
  EXPECT_EQ(v, 12.5);
  EXPECT_FALSE(parsePaperNumber("12,5", v));
}

TEST(PaperSetup, TwentyCentimetresPerMetreIsOneToFifty) {
  // 1136 twips per metre of hull: 20 mm on paper for 1000 mm.
  EXPECT_DOUBLE_EQ(1136 * kMmPerTwip, 20.0);
  EXPECT_DOUBLE_EQ(568 * kMmPerTwip, 10.0);
}

TEST(PaperSetup, BarsWhereTheyFit) {
  struct Case {
    double w, h;
    bool horizontal, vertical;
  };
  // A4 and Letter within 5 mm margins, A4 landscape, A4 with wide printer
  // margins, A5 portrait just high enough, a little less, and a card.
  for (const Case& c :
       {Case{200, 287, true, true}, Case{205.9, 269.4, true, true}, Case{287, 200, true, false},
        Case{197.3, 284.3, false, true}, Case{138, 200, false, true}, Case{138, 199, false, false},
        Case{90, 50, false, false}}) {
    SCOPED_TRACE(std::to_string(c.w) + " x " + std::to_string(c.h));
    const CalibrationLayout l = calibrationLayout(c.w, c.h);
    EXPECT_EQ(l.horizontal, c.horizontal);
    EXPECT_EQ(l.vertical, c.vertical);
    EXPECT_DOUBLE_EQ(l.drawW, c.w - (c.vertical ? CalibrationLayout::kBandMm : 0));
    EXPECT_DOUBLE_EQ(l.drawH, c.h - (c.horizontal ? CalibrationLayout::kBandMm : 0));
    if (l.horizontal) {
      EXPECT_GE(l.hx, 0);
      EXPECT_LE(l.hx + kCalibrationBarMm, c.w);
      EXPECT_GE(l.hy - CalibrationLayout::kLabelDrop, l.drawH) << "label below the page";
      EXPECT_LE(l.hy + CalibrationLayout::kTickMm, c.h);
    }
    if (l.vertical) {
      EXPECT_GE(l.vy, 0);
      EXPECT_LE(l.vy + kCalibrationBarMm, l.drawH);
      EXPECT_GE(l.vx - CalibrationLayout::kLabelDrop, l.drawW) << "label right of the page";
      EXPECT_LE(l.vx + CalibrationLayout::kTickMm, c.w);
    }
  }
  const CalibrationLayout none = calibrationLayout(std::nan(""), 100);
  EXPECT_FALSE(none.horizontal || none.vertical);
}

TEST(PaperSetup, CaptionsInBothLanguages) {
  EXPECT_EQ(calibrationLabel('X', 1.002, 1), "calibration bar 200 mm, X factor 1.0020");
  EXPECT_EQ(calibrationLabel('Y', 0.998, 0), "barre d'étalonnage 200 mm, facteur Y 0,9980");
}

}  // namespace
}  // namespace tolmar
