// tolmar-cli print end to end through poppler: pages, paper, the page head,
// the length of the printed scale bar's 1 m mark, and the errors.  Skipped
// in a build without the Qt drawing library or without poppler.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>

#include "cli/pdf_probe.h"
#include "development/hull_fixture.h"
#include "printing/page_scale.h"
#include "printing/paper_setup.h"

namespace {

namespace fs = std::filesystem;

using tolmar::testing::Shell;

// A shell command's status and stdout; stderr joins stdout.
Shell sh(const std::string& cmd) { return tolmar::testing::shell(cmd, true); }

std::string q(const fs::path& p) { return "'" + p.string() + "'"; }

Shell print(const std::string& args) {
  return sh("'" + std::string(TOLMAR_CLI) + "' print " + args);
}

std::string slurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

class CliPrint : public ::testing::Test {
 protected:
  void SetUp() override {
    if (print("--help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
    if (sh("pdfinfo -v").status != 0 || sh("pdftotext -v").status != 0)
      GTEST_SKIP() << "poppler missing";
    dir_ = fs::temp_directory_path() / ("tolmar_print_" + std::to_string(getpid()));
    fs::create_directories(dir_);
    hull_ = dir_ / "BOAT.D50";
    fs::copy_file(fs::path(TOLMAR_GOLDEN) / "default_hull.D50", hull_);
  }
  void TearDown() override {
    if (!dir_.empty()) fs::remove_all(dir_);
  }
  std::string info(const fs::path& pdf) { return sh("pdfinfo " + q(pdf)).out; }
  std::string text(const fs::path& pdf, int page) {
    return sh("pdftotext -f " + std::to_string(page) + " -l " + std::to_string(page) + " " +
              q(pdf) + " -")
        .out;
  }
  fs::path dir_, hull_;
};

int pages(const std::string& info) {
  std::smatch m;
  return std::regex_search(info, m, std::regex("Pages:\\s+(\\d+)")) ? std::stoi(m[1]) : -1;
}

TEST_F(CliPrint, DrawingOnA4) {
  const fs::path pdf = dir_ / "drawing.pdf";
  const Shell r = print(q(hull_) + " drawing " + q(pdf));
  ASSERT_EQ(r.status, 0) << r.out;
  const std::string i = info(pdf);
  EXPECT_EQ(pages(i), 3);
  EXPECT_NE(i.find("595 x 842 pts (A4)"), std::string::npos) << i;
  for (int p = 1; p <= 3; ++p) {
    EXPECT_TRUE(std::regex_search(
        text(pdf, p), std::regex("BOAT\\s+date:\\d\\d-\\d\\d-\\d{4}\\s+page " + std::to_string(p))))
        << text(pdf, p);
  }
}

// The bar from 0 to the 1 m mark is printScaleX twips long on the paper, at
// 568 twips to the centimetre, as the core computes it for this hull on the
// part of the page inside the 5 mm margins (15 pt, as Qt keeps whole
// points) and the calibration bars' bands.
TEST_F(CliPrint, OneMetreOfTheScaleBar) {
  if (!tolmar::testing::popplerReady())
    GTEST_SKIP() << "poppler, python3 or pdf_measure.py missing";
  struct Paper {
    const char* args;
    double widthPt, heightPt;
  };
  for (const Paper& paper : {Paper{"", 595, 842}, Paper{"--paper A3 --landscape", 1191, 842},
                             Paper{"--paper Letter", 612, 792}}) {
    SCOPED_TRACE(paper.args);
    const fs::path pdf = dir_ / "bar.pdf";
    ASSERT_EQ(print(q(hull_) + " develop " + q(pdf) + " " + paper.args).status, 0);
    auto h = tolmar::fixture::defaultHull();
    const tolmar::CalibrationLayout area = tolmar::calibrationLayout(
        (paper.widthPt - 30) * 25.4 / 72, (paper.heightPt - 30) * 25.4 / 72);
    tolmar::pageScale(*h, std::round(area.drawW / tolmar::kMmPerTwip),
                      std::round(area.drawH / tolmar::kMmPerTwip));
    const double mm = h->printScaleX * tolmar::kMmPerTwip;
    std::ostringstream expect;
    expect.precision(6);
    expect << mm;
    const Shell m = sh("python3 " + std::string(tolmar::testing::kPdfMeasure) + " " + q(pdf) +
                       " --page 1 --expect " + expect.str() + " --tol-mm 0.01");
    EXPECT_EQ(m.status, 0) << "scale " << h->printScaleX << "\n" << m.out;
  }
}

TEST_F(CliPrint, PaperSizesAndLanguages) {
  const fs::path a3 = dir_ / "a3.pdf";
  ASSERT_EQ(print(q(hull_) + " data " + q(a3) + " --paper A3 --landscape --lang fr").status, 0);
  EXPECT_NE(info(a3).find("1191 x 842 pts (A3)"), std::string::npos) << info(a3);
  EXPECT_NE(text(a3, 1).find("fichier BOAT"), std::string::npos) << text(a3, 1);

  const fs::path letter = dir_ / "letter.pdf";
  ASSERT_EQ(print(q(hull_) + " all " + q(letter) + " --paper Letter").status, 0);
  EXPECT_NE(info(letter).find("612 x 792 pts (letter)"), std::string::npos) << info(letter);
  const std::string all = sh("pdftotext " + q(letter) + " -").out;
  EXPECT_NE(all.find("offsets : Line of the keel"), std::string::npos);
  EXPECT_NE(all.find("Maximum beam station"), std::string::npos);
  EXPECT_GE(pages(info(letter)), 23);

  const fs::path station = dir_ / "station.pdf";
  ASSERT_EQ(print(q(hull_) + " station " + q(station) + " --station 1,5").status, 0);
  EXPECT_EQ(pages(info(station)), 1);
  EXPECT_TRUE(std::regex_search(text(station, 1), std::regex("Station X= ?1\\.5")));
}

TEST_F(CliPrint, UnwritablePdfLosesNothing) {
  const std::string before = slurp(hull_);
  const fs::path old = dir_ / "old.pdf";
  std::ofstream(old) << "an earlier file";
  const Shell r = print(q(hull_) + " all " + q(dir_ / "no" / "such" / "dir.pdf"));
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.out.find("cannot write"), std::string::npos) << r.out;
  const Shell asDir = print(q(hull_) + " data " + q(dir_));
  EXPECT_EQ(asDir.status, 1) << asDir.out;
  EXPECT_EQ(slurp(hull_), before);
  EXPECT_EQ(slurp(old), "an earlier file");
  EXPECT_FALSE(fs::exists(dir_ / "no"));
}

TEST_F(CliPrint, BadCommandLines) {
  const std::string pdf = q(dir_ / "x.pdf");
  EXPECT_EQ(print(q(hull_) + " poster " + pdf).status, 2);
  EXPECT_EQ(print(q(hull_) + " data").status, 2);
  EXPECT_EQ(print(q(hull_) + " data " + pdf + " --paper A5").status, 2);
  EXPECT_EQ(print(q(hull_) + " data " + pdf + " --lang de").status, 2);
  EXPECT_EQ(print(q(hull_) + " data " + pdf + " --frob").status, 2);
  EXPECT_EQ(print(q(dir_ / "none.D50") + " data " + pdf).status, 1);
  EXPECT_FALSE(fs::exists(dir_ / "x.pdf"));
}

// A hull far too long for the paper prints at a scale below the last step.
TEST_F(CliPrint, HullTooBigForThePaper) {
  const fs::path pdf = dir_ / "big.pdf";
  // A kilometre, the longest hull the bottom screen takes.
  const Shell r = print(q(hull_) + " all " + q(pdf) + " --set 'bouchain1.Text1(0)=1000'");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_GE(pages(info(pdf)), 20);
  EXPECT_NE(text(pdf, 3).find("1000"), std::string::npos) << "the 1 km mark of a scale below 11.34";
}

}  // namespace
