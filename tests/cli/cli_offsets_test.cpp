// tolmar-cli offsets end to end: the JSON and the CSV beside the hull file
// agree, stations every step from one end of the baseline to the other,
// the refusals of a bad step or plate, a CSV that cannot be written; and
// the printed "Panel offsets" in both languages.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>

#include "cli_run.h"
#include "pdf_probe.h"

namespace {

namespace fs = std::filesystem;
using namespace tolmar::testing;

class CliOffsets : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("tolmar_offsets_" + std::to_string(getpid()));
    fs::create_directories(dir_);
    hull_ = dir_ / "BOAT.D50";
    fs::copy_file(fs::path(TOLMAR_GOLDEN) / "default_hull.D50", hull_);
  }
  void TearDown() override {
    if (!dir_.empty()) fs::remove_all(dir_);
  }
  CliRun offsets(const std::string& more = "") {
    return runCli("offsets " + quoted(hull_) + " " + more);
  }
  fs::path dir_, hull_;
};

int lines(const std::string& text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

TEST_F(CliOffsets, JsonAndCsvOfEveryPlate) {
  const CliRun r = offsets("--step-mm 250");
  ASSERT_EQ(r.status, 0) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  EXPECT_EQ(j["hull"], "BOAT");
  EXPECT_EQ(j["stepMm"], 250);
  std::vector<std::string> names;
  int stations = 0;
  for (const auto& p : j["plates"]) {
    names.push_back(p["name"]);
    const double length = p["baselineMm"];
    const auto& st = p["stations"];
    ASSERT_GE(st.size(), 2u);
    EXPECT_EQ(st.front()["at"], 0);
    EXPECT_NEAR(st.back()["at"].get<double>(), length, 0.01);
    if (p["name"] != "transom") {
      EXPECT_EQ(st.size(), static_cast<std::size_t>(std::floor(length / 250)) + 2) << p["name"];
      EXPECT_NEAR(st.front()["lower"].get<double>(), 0, 0.01) << "on the chord's end";
    }
    // The upper edge is given wherever it reaches, between its two ends.
    const double a0 = p["upperEnds"][0][0], a1 = p["upperEnds"][1][0];
    for (const auto& s : st) {
      const double at = s["at"];
      if (at >= std::min(a0, a1) + 0.01 && at <= std::max(a0, a1) - 0.01)
        EXPECT_TRUE(s["upper"].is_number()) << p["name"].get<std::string>() << " at " << at;
    }
    stations += static_cast<int>(st.size());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"p00", "p01", "p02", "p03", "p04", "transom"}));
  const fs::path csv = dir_ / "BOAT_offsets.csv";
  ASSERT_TRUE(fs::exists(csv));
  EXPECT_EQ(j["csv"], csv.string());
  const std::string text = slurp(csv);
  EXPECT_EQ(text.rfind("plate,at_mm,lower_mm,upper_mm,lap_mm\r\n", 0), 0u);
  EXPECT_EQ(lines(text), stations + 1);
}

TEST_F(CliOffsets, RefusalsWriteNothing) {
  for (const std::string more : {"--step-mm 0", "--step-mm -100", "--step-mm x", "--plates p99",
                                 "--plates ,", "--step-mm"}) {
    SCOPED_TRACE(more);
    const CliRun r = offsets(more);
    EXPECT_EQ(r.status, 2) << r.err;
    EXPECT_FALSE(r.err.empty());
    EXPECT_TRUE(r.out.empty());
    EXPECT_FALSE(fs::exists(dir_ / "BOAT_offsets.csv"));
  }
  EXPECT_NE(offsets("--step-mm 0 --lang fr").err.find("pas des stations"), std::string::npos);
  const CliRun r = offsets("--csv " + quoted(dir_ / "no" / "such" / "x.csv"));
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("cannot write"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(dir_ / "no"));
}

TEST_F(CliOffsets, PrintedInBothLanguages) {
  if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
  if (!popplerReady()) GTEST_SKIP() << "poppler missing";
  const fs::path en = dir_ / "en.pdf", fr = dir_ / "fr.pdf";
  ASSERT_EQ(runCli("print " + quoted(hull_) + " panels " + quoted(en)).status, 0);
  ASSERT_EQ(runCli("print " + quoted(hull_) + " panels " + quoted(fr) + " --lang fr").status, 0);
  EXPECT_GE(pdfPages(en), 6) << "a plate a page at least";
  const std::string all = shell("pdftotext " + quoted(en) + " -").out;
  EXPECT_TRUE(std::regex_search(all, std::regex("Panel offsets: p01 +plank 1 +cut 2, mirrored")));
  EXPECT_NE(all.find("Baseline: the centre line of the panel"), std::string::npos);
  const std::string tous = shell("pdftotext " + quoted(fr) + " -").out;
  EXPECT_TRUE(std::regex_search(tous, std::regex("Cotes des panneaux : p01 +bordé 1")));
}

// The printed offsets of the plates named, at the step asked: p01 alone,
// a station every 50 mm; a bad step or an unknown plate prints nothing.
TEST_F(CliOffsets, PrintedForChosenPlatesAndStep) {
  if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
  if (!popplerReady()) GTEST_SKIP() << "poppler missing";
  const fs::path one = dir_ / "one.pdf";
  const CliRun r =
      runCli("print " + quoted(hull_) + " panels " + quoted(one) + " --plates p01 --step-mm 50");
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string text = shell("pdftotext " + quoted(one) + " -").out;
  EXPECT_TRUE(std::regex_search(text, std::regex("Panel offsets: p01 +plank 1")));
  EXPECT_EQ(text.find("p02"), std::string::npos);
  EXPECT_EQ(text.find("p00"), std::string::npos);
  EXPECT_TRUE(std::regex_search(text, std::regex("\\n50\\.0\\n100\\.0\\n150\\.0\\n"))) << text;

  for (const char* bad : {"--step-mm 0", "--step-mm abc", "--plates p09", "--plates ,"}) {
    const fs::path none = dir_ / "none.pdf";
    const CliRun b = runCli("print " + quoted(hull_) + " panels " + quoted(none) + " " + bad);
    EXPECT_EQ(b.status, 2) << bad;
    EXPECT_FALSE(fs::exists(none)) << bad;
  }
}

}  // namespace
