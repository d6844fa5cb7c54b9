// The printed page on paper, measured by poppler: 568 twips to the
// centimetre, every word and line inside the printable area, the
// calibration bars and factors, and the refusals of a bad margin or factor.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "cli_run.h"
#include "development/hull_fixture.h"
#include "pdf_probe.h"
#include "printing/page_scale.h"
#include "printing/paper_setup.h"

namespace {

namespace fs = std::filesystem;
using namespace tolmar::testing;

class PrintPaper : public ::testing::Test {
 protected:
  void SetUp() override {
    if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
    if (!popplerReady()) GTEST_SKIP() << "poppler, python3 or pdf_measure.py missing";
    dir_ = fs::temp_directory_path() / ("tolmar_paper_" + std::to_string(getpid()));
    fs::create_directories(dir_);
    hull_ = dir_ / "BOAT.D50";
    fs::copy_file(fs::path(TOLMAR_GOLDEN) / "default_hull.D50", hull_);
  }
  void TearDown() override {
    if (!dir_.empty()) fs::remove_all(dir_);
  }
  CliRun print(const std::string& kind, const fs::path& pdf, const std::string& more = "") {
    return runCli("print " + quoted(hull_) + " " + kind + " " + quoted(pdf) + " " + more);
  }
  fs::path dir_, hull_;
};

// Horizontal segments of `mm` +- tol starting at x0 +- tol.
int horizontalAt(const std::vector<Segment>& segs, double x0, double mm, double tol) {
  return static_cast<int>(std::count_if(segs.begin(), segs.end(), [&](const Segment& s) {
    return s.horizontal && std::fabs(s.lengthMm - mm) <= tol &&
           std::fabs(std::min(s.x0, s.x1) - x0) <= tol;
  }));
}

bool hasLength(const std::vector<Segment>& segs, bool vertical, double mm, double tol) {
  return std::any_of(segs.begin(), segs.end(), [&](const Segment& s) {
    return (vertical ? s.vertical : s.horizontal) && std::fabs(s.lengthMm - mm) <= tol;
  });
}

// The default hull on A4 lies at 1136 twips per metre: 1:50.  Its scale bar's
// 1 m mark then measures 20 mm and the 2 m mark 40 mm, from the left margin
// of 681.6 twips (12 mm) inside the printable area.
TEST_F(PrintPaper, OneToFiftyIsExact) {
  const fs::path pdf = dir_ / "develop.pdf";
  ASSERT_EQ(print("develop", pdf).status, 0);
  const auto segs = segments(pdf, 1);
  ASSERT_FALSE(segs.empty());
  // The left edge of the printable area: the 5 mm margin in whole points,
  // 15 pt.  A4 across is 595 pt, so the 200 mm bar stands upright.
  const double left = 15 * kMmPerPt;
  EXPECT_TRUE(hasLength(segs, true, 200.0, 0.01)) << "no calibration bar";
  EXPECT_FALSE(hasLength(segs, false, 200.0, 0.5));
  EXPECT_EQ(horizontalAt(segs, left + 12.0, 20.0, 0.01), 1) << "the 1 m mark at 1:50";
  EXPECT_EQ(horizontalAt(segs, left + 12.0, 40.0, 0.01), 1) << "the 2 m mark at 1:50";

  // The core's scale for the drawing area that page offers: A4 less the
  // margins, less the bands of the bars, in twips of 568 to the centimetre.
  const auto h = tolmar::fixture::defaultHull();
  const double w = (595 * kMmPerPt - 2 * left - 7) / tolmar::kMmPerTwip;
  const double ht = (842 * kMmPerPt - 2 * left) / tolmar::kMmPerTwip;
  tolmar::pageScale(*h, std::round(w), std::round(ht));
  EXPECT_EQ(h->printScaleX, 1136.0f);
}

// A printer that stretches X by 1 % and shrinks Y by 2 % gets a page drawn
// 1/1.01 and 1/0.98 of true, bars included, and the factors in the captions.
TEST_F(PrintPaper, CalibrationShrinksThePage) {
  const fs::path pdf = dir_ / "calibrated.pdf";
  ASSERT_EQ(print("develop", pdf, "--calibrate 1.01,0.98").status, 0);
  const auto segs = segments(pdf, 2);
  EXPECT_TRUE(hasLength(segs, false, 200 / 1.01, 0.01));
  EXPECT_TRUE(hasLength(segs, true, 200 / 0.98, 0.01));
  EXPECT_TRUE(hasLength(segs, false, 20 / 1.01, 0.01)) << "the 1 m mark";
  const std::string text = pageText(pdf, 2);
  EXPECT_NE(text.find("X factor 1.0100"), std::string::npos) << text;

  // 200 mm drawn 1/0.995 of true need more than the 200 mm across A4 within
  // its margins: the X bar goes on a landscape page.
  const fs::path fr = dir_ / "fr.pdf";
  ASSERT_EQ(print("data", fr, "--lang fr --calibrate 0.995").status, 0);
  EXPECT_EQ(pageText(fr, 1).find("facteur X"), std::string::npos);
  EXPECT_NE(pageText(fr, 1).find("facteur Y 0,9950"), std::string::npos);
  ASSERT_EQ(print("data", fr, "--lang fr --calibrate 0.995 --landscape").status, 0);
  EXPECT_NE(pageText(fr, 1).find("facteur X 0,9950"), std::string::npos) << pageText(fr, 1);
}

// Every word and every line of a page lies inside the margin, also for a
// hull whose figures run off the sheet and for reports that fill pages.
TEST_F(PrintPaper, EverythingInsideThePrintableArea) {
  struct Case {
    const char* kind;
    std::string more;
    double margin;
  };
  for (const Case& c : {Case{"all", "--margin-mm 12", 12}, Case{"develop", "--paper Letter", 5},
                        Case{"drawing", "--set 'bouchain1.Text1(0)=40' --margin-mm 20", 20}}) {
    SCOPED_TRACE(std::string(c.kind) + " " + c.more);
    const fs::path pdf = dir_ / "inside.pdf";
    ASSERT_EQ(print(c.kind, pdf, c.more).status, 0);
    const int n = pdfPages(pdf);
    ASSERT_GT(n, 0);
    const std::string info = shell("pdfinfo " + quoted(pdf)).out;
    const bool letter = info.find("letter") != std::string::npos;
    const double W = (letter ? 612 : 595) * kMmPerPt, H = (letter ? 792 : 842) * kMmPerPt;
    const double lo = c.margin - 0.01;
    for (int p = 1; p <= n; ++p) {
      SCOPED_TRACE("page " + std::to_string(p));
      const auto ws = words(pdf, p);
      EXPECT_FALSE(ws.empty());
      for (const Box& b : ws) {
        EXPECT_GE(std::min(b.x0, b.x1), lo) << b.text;
        EXPECT_GE(std::min(b.y0, b.y1), lo) << b.text;
        EXPECT_LE(std::max(b.x0, b.x1), W - lo) << b.text;
        EXPECT_LE(std::max(b.y0, b.y1), H - lo) << b.text;
      }
      if (p > 6 && p != n) continue;  // the lines of the first pages and the last
      const auto segs = segments(pdf, p);
      EXPECT_FALSE(segs.empty());
      for (const Segment& s : segs) {
        for (const auto& [x, y] : {std::pair{s.x0, s.y0}, std::pair{s.x1, s.y1}}) {
          EXPECT_GE(x, lo);
          EXPECT_GE(y, lo);
          EXPECT_LE(x, W - lo);
          EXPECT_LE(y, H - lo);
        }
      }
    }
  }
}

TEST_F(PrintPaper, BadMarginOrFactorPrintsNothing) {
  const fs::path pdf = dir_ / "refused.pdf";
  for (const std::string more :
       {"--calibrate 0", "--calibrate 0.89,1", "--calibrate 1,1.11", "--calibrate nan",
        "--calibrate 1.0,x", "--calibrate", "--margin-mm 105", "--margin-mm -1",
        "--margin-mm 150 --paper A3", "--margin-mm inf", "--margin-mm 5mm"}) {
    SCOPED_TRACE(more);
    const CliRun r = print("data", pdf, more);
    EXPECT_EQ(r.status, 2) << r.err;
    EXPECT_FALSE(r.err.empty());
    EXPECT_FALSE(fs::exists(pdf));
  }
  const CliRun fr = print("data", pdf, "--lang fr --calibrate 1.2");
  EXPECT_NE(fr.err.find("entre 0,9 et 1,1"), std::string::npos) << fr.err;
  // The bounds themselves are accepted.
  EXPECT_EQ(print("data", pdf, "--calibrate 0.9,1.1 --margin-mm 0").status, 0);
}

}  // namespace
