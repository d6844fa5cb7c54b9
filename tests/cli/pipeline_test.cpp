// tolmar-cli new and dump end to end: a session replayed on the default
// hull and on a hull of 20 automatic planks, the fields that validation
// replaces, the hulls that cannot be validated and the wrong --set forms.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "cli/cli_run.h"
#include "regenerate.h"

namespace {

using tolmar::testing::CliRun;
using tolmar::testing::runCli;
using tolmar::testing::slurp;

namespace fs = std::filesystem;
using nlohmann::json;

class Pipeline : public ::testing::Test {
 protected:
  void SetUp() override {
    // One folder per process and test: other builds may run the same tests at once.
    dir_ = fs::temp_directory_path() /
           ("tolmar_pipeline_" + std::to_string(getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  // Runs tolmar-cli in the test's folder; arguments are quoted for the shell.
  CliRun cli(const std::string& args) const { return runCli(args, dir_); }

  json dump(const std::string& args) const {
    const CliRun r = cli("dump " + args);
    EXPECT_EQ(r.status, 0) << r.err;
    return r.status == 0 ? json::parse(r.out) : json();
  }

  fs::path dir_;
};

// The station and bevel tables have the announced extents, hold finite
// numbers, and agree with the line points that the redraw sampled.
void expectTables(const json& d) {
  const int n = d["nChines"];
  ASSERT_EQ(d["stationX"].size(), 83u);
  ASSERT_EQ(d["bevelAngle"].size(), static_cast<std::size_t>(n));
  for (const char* k : {"stationX", "stationY", "stationZ"}) {
    for (const auto& row : d[k]) {
      ASSERT_EQ(row.size(), static_cast<std::size_t>(n + 10)) << k;
      for (const auto& v : row) ASSERT_TRUE(v.is_number() && std::isfinite(v.get<double>())) << k;
    }
  }
  for (const auto& row : d["bevelAngle"]) {
    ASSERT_EQ(row.size(), 83u);
    for (const auto& v : row) ASSERT_TRUE(v.is_number() && std::isfinite(v.get<double>()));
  }
  for (int p = 0; p <= 81; ++p) {
    EXPECT_EQ(d["stationX"][p][0], d["lineX"][0][p]) << p;
    EXPECT_NEAR(d["stationY"][p][10].get<double>(), d["lineY"][1][p].get<double>(), 1e-12) << p;
    for (int line = 2; line <= n; ++line) {
      EXPECT_EQ(d["stationX"][p][line + 9], d["lineX"][line][p]) << p << " " << line;
      EXPECT_EQ(d["stationZ"][p][line + 9], d["lineZ"][line][p]) << p << " " << line;
    }
  }
}

void expectGolden(const std::string& text, const std::string& name) {
  const fs::path golden = fs::path(TOLMAR_GOLDEN) / name;
  if (tolmar::test::regenerating()) {
    std::ofstream(golden, std::ios::binary) << text;
    return;
  }
  EXPECT_EQ(text, slurp(golden)) << "golden " << golden
                                 << " differs (TOLMAR_REGENERATE=1 rewrites it)";
}

TEST_F(Pipeline, DefaultHullThroughBottomAndPlanks) {
  const CliRun made = cli("new default.D50");
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.err, "");  // the default hull passes its screens untouched
  EXPECT_EQ(made.out, "default.D50\n");
  const std::string file = slurp(dir_ / "default.D50");
  EXPECT_EQ(file.rfind("default - Tolmar2008\r\n&NNNNNRRRC05\r\n", 0), 0u);
  expectGolden(file, "pipeline_new_default.D50");

  const CliRun r = cli("dump default.D50");
  ASSERT_EQ(r.status, 0) << r.err;
  expectGolden(r.out, "pipeline_dump_default.json");
  const json d = json::parse(r.out);
  EXPECT_EQ(d["hullName"], "default");
  EXPECT_EQ(d["nChines"], 5);
  EXPECT_EQ(d["stepIndex"], 1);
  EXPECT_EQ(d["iMaxBeam"], 41);
  EXPECT_EQ(d["xFwd"][0], 6.0);
  EXPECT_EQ(d["warnings"], json::array());
  expectTables(d);
}

TEST_F(Pipeline, TwentyAutomaticPlanks) {
  const CliRun made = cli("new auto20.D50 --set bouchain3.Text0=20");
  ASSERT_EQ(made.status, 0) << made.err;
  // 45 to 90 degrees over 19 steps rounds to 2, below the least step of 3.
  EXPECT_NE(made.err.find("bouchain3 Text2(0): typed \"90\", kept \"102\""), std::string::npos)
      << made.err;
  EXPECT_NE(slurp(dir_ / "auto20.D50").find("C21\r\n"), std::string::npos);

  const json d = dump("auto20.D50");  // more than six lines: automatic planking without --auto
  EXPECT_EQ(d["nChines"], 21);
  EXPECT_EQ(d["stepIndex"], 2);
  EXPECT_EQ(d["warnings"], json::array());
  const auto& a = d["plankAngle"];
  for (int k = 2; k <= 21; ++k) EXPECT_EQ(a[k].get<int>() - a[k - 1].get<int>(), 3) << k;
  for (int k = 1; k <= 21; ++k) {
    EXPECT_EQ(d["bowTurn"][k], 1);
    EXPECT_EQ(d["transomTurn"][k], 1);
  }
  expectTables(d);
}

TEST_F(Pipeline, ReplacedFieldsAreWarnedAndKept) {
  ASSERT_EQ(cli("new h.D50").status, 0);
  const CliRun r = cli("dump h.D50 --set 'bouchain1.Text1(1)=5' --set 'bouchain1.Text2(3)=-30'");
  ASSERT_EQ(r.status, 0) << r.err;
  const json d = json::parse(r.out);
  const json want = json::array({
      {{"screen", "bouchain1"}, {"control", "Text1(1)"}, {"typed", "5"}, {"kept", "4.2"}},
      {{"screen", "bouchain1"}, {"control", "Text2(3)"}, {"typed", "-30"}, {"kept", "-20"}},
  });
  EXPECT_EQ(d["warnings"], want);
  EXPECT_NEAR(d["xMax"][1].get<double>(), 4.2, 1e-12);
  EXPECT_EQ(d["plankAngle"][0], -20);
  EXPECT_NE(r.err.find("replaced: bouchain1 Text1(1): typed \"5\""), std::string::npos) << r.err;
  expectTables(d);
}

TEST_F(Pipeline, OptionsAreClickedAndAutoChoosesBouchain3) {
  ASSERT_EQ(cli("new h.D50 --set 'bouchain2.OptShear(1)'").status, 0);
  const json three = dump("h.D50");
  EXPECT_EQ(three["nChines"], 3);
  EXPECT_EQ(three["stepIndex"], 1);
  expectTables(three);
  const json autoDump = dump("h.D50 --auto --set bouchain3.Text0=4");
  EXPECT_EQ(autoDump["nChines"], 5);
  EXPECT_EQ(autoDump["stepIndex"], 2);
}

TEST_F(Pipeline, HullThatCannotBeValidatedExitsWithStatus2) {
  // A length is taken only above 0.1: 0 becomes 0.1, which is refused again.
  const CliRun r = cli("new bad.D50 --set 'bouchain1.Text1(0)=0'");
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("bouchain1 does not pass after 3 validations"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(dir_ / "bad.D50"));
}

// A refused hull is told by what is wrong with it, and written nowhere.
TEST_F(Pipeline, RefusedHullsSayWhy) {
  const CliRun transom =
      cli("new t.D50 --set 'bouchain1.Text1(0)=9.82' --set 'bouchain1.Text1(6)=4.99'"
          " --set 'bouchain1.Text2(2)=-10' --set 'bouchain1.Text2(6)=70'");
  EXPECT_EQ(transom.status, 2);
  EXPECT_NE(transom.err.find("the first chine never meets its transom plane"), std::string::npos)
      << transom.err;
  EXPECT_NE(transom.err.find("Text2(6)=-70"), std::string::npos) << transom.err;
  // A sheer line typed 10 000 km high is held to a kilometre, which still
  // throws the lines beyond any hull's scale.
  const CliRun sheer = cli("new s.D50 --set bouchain3.Text0=19 --set 'bouchain3.Text2(3)=1e7'");
  EXPECT_EQ(sheer.status, 2);
  EXPECT_NE(sheer.err.find("kept \"1000\""), std::string::npos) << sheer.err;
  EXPECT_NE(sheer.err.find("bouchain3 refuses these values: line"), std::string::npos) << sheer.err;
  EXPECT_NE(sheer.err.find("beyond any hull's scale"), std::string::npos) << sheer.err;
  EXPECT_FALSE(fs::exists(dir_ / "t.D50"));
  EXPECT_FALSE(fs::exists(dir_ / "s.D50"));
}

TEST_F(Pipeline, WrongCommandLinesAndFiles) {
  ASSERT_EQ(cli("new h.D50").status, 0);
  struct Case {
    const char* args;
    int status;
    const char* says;
  };
  const Case cases[] = {
      {"dump missing.D50", 1, "Opening file"},
      {"dump h.D50 --set bouchain9.Text1=1", 2, "no hull screen bouchain9"},
      {"dump h.D50 --set bouchain1", 2, "SCREEN.CONTROL"},
      {"dump h.D50 --set 'bouchain1.Text1(x)=1'", 2, "index"},
      {"dump h.D50 --set 'bouchain1.Text1(7)=1'", 2, "index 0..6"},
      {"dump h.D50 --set bouchain1.Label1=1", 2, "no control Label1"},
      {"dump h.D50 --set 'bouchain1.Text1(0)'", 2, "needs =VALUE"},
      {"dump h.D50 --set 'bouchain2.OptShear(1)=1'", 2, "takes no value"},
      {"dump h.D50 --set 'bouchain2.Text1(4)=2'", 2, "disabled"},   // row beyond the sheer line
      {"dump h.D50 --set 'bouchain1.Text2(5)=20'", 2, "disabled"},  // pointed stem: no bow angle
      {"dump h.D50 --auto --set 'bouchain2.Text1(0)=1'", 2, "bouchain2 is not shown"},
      {"dump h.D50 --set bouchain3.Text0=3 --set 'bouchain2.Text1(0)=1'", 2,
       "bouchain2 is not shown"},
      {"dump h.D50 --frobnicate", 2, "unknown option"},
      {"dump", 2, "a hull file is needed"},
      {"new a.D50 --auto", 2, "unknown option"},
  };
  for (const auto& c : cases) {
    const CliRun r = cli(c.args);
    EXPECT_EQ(r.status, c.status) << c.args << "\n" << r.err;
    EXPECT_NE(r.err.find(c.says), std::string::npos) << c.args << "\n" << r.err;
  }
}

TEST_F(Pipeline, PramBowEnablesTheBowAngle) {
  ASSERT_EQ(cli("new h.D50").status, 0);
  const json d = dump("h.D50 --set 'bouchain1.Text1(3)=0.3' --set 'bouchain1.Text2(5)=20'");
  EXPECT_EQ(d["bowAngle"], 20);
  EXPECT_EQ(d["yFwd"][1], 0.3);
}

}  // namespace
