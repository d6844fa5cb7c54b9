// tolmar-cli on a hull that folds: the 20 automatic planks whose first
// plank folds under line 1 are told on stderr by every command and listed
// in dump's warnings; sound hulls stay silent.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/cli_run.h"

namespace {

using tolmar::testing::CliRun;
using tolmar::testing::runCli;

namespace fs = std::filesystem;
using nlohmann::json;

constexpr const char* kFoldEn =
    "warning: Plank 1 folds under line 1 from X = 3.8 m to 5.5 m (up to 23 mm)\n";
constexpr const char* kFoldFr =
    "warning: Le bordé 1 se replie sous le bouchain 1 de X = 3.8 m à 5.5 m (jusqu'à 23 mm)\n";

class FoldCli : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("tolmar_fold_" + std::to_string(getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }
  CliRun cli(const std::string& args) const { return runCli(args, dir_); }

  // 20 planks from 20 to 115 degrees, sheer 1.2 / 0.95 / 1.0 m, stem shape
  // 0.6, typed into bouchain3.
  CliRun newFolded() const {
    return cli(
        "new f20.D50 --set bouchain3.Text0=20 --set 'bouchain3.Text1(0)=20'"
        " --set 'bouchain3.Text2(0)=115' --set 'bouchain3.Text2(1)=1.2'"
        " --set 'bouchain3.Text2(2)=0.95' --set 'bouchain3.Text2(3)=1.0'"
        " --set bouchain3.Text4=0.6");
  }

  fs::path dir_;
};

TEST_F(FoldCli, DumpListsTheFoldAmongItsWarnings) {
  const CliRun made = newFolded();
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.err, kFoldEn);  // the screens accept every number as typed

  const CliRun r = cli("dump f20.D50");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, kFoldEn);
  const json w = json::parse(r.out)["warnings"];
  ASSERT_EQ(w.size(), 1u) << w.dump();
  EXPECT_EQ(w[0]["fold"], "under");
  EXPECT_EQ(w[0]["plank"], 1);
  EXPECT_EQ(w[0]["line"], 1);
  EXPECT_EQ(w[0]["fromPoint"], 51);
  EXPECT_EQ(w[0]["toPoint"], 74);
  EXPECT_DOUBLE_EQ(w[0]["fromX"].get<double>(), 3.75);  // stations every 6/80 m
  EXPECT_DOUBLE_EQ(w[0]["toX"].get<double>(), 5.475);
  EXPECT_NEAR(w[0]["depth"].get<double>(), 0.023, 0.0005);
  EXPECT_EQ(w[0]["message"], "Plank 1 folds under line 1 from X = 3.8 m to 5.5 m (up to 23 mm)");
}

TEST_F(FoldCli, EveryCommandTellsItOnStderr) {
  ASSERT_EQ(newFolded().status, 0);
  const std::string commands[] = {
      "open f20.D50",
      "draw f20.D50 f20.svg --size 400x250",
      "export f20.D50 lines2d f20.dxf",
      "export-all f20.D50 all",
      "hydro f20.D50 --zwl 0.1",
      "print f20.D50 data f20.pdf",
  };
  // draw and print exist only in a build with the Qt drawing library.
  const bool qtDrawing = cli("draw --help").status == 0;
  for (const std::string& c : commands) {
    SCOPED_TRACE(c);
    if (!qtDrawing && (c.rfind("draw ", 0) == 0 || c.rfind("print ", 0) == 0)) continue;
    const CliRun r = cli(c);
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.err.find(kFoldEn), std::string::npos) << r.err;
  }
  const CliRun fr = cli("export f20.D50 lines-xyz f20.xyz --lang fr");
  EXPECT_EQ(fr.status, 0) << fr.err;
  EXPECT_NE(fr.err.find(kFoldFr), std::string::npos) << fr.err;
}

TEST_F(FoldCli, SoundHullsSayNothing) {
  const std::string hulls[] = {
      "new default.D50",
      "new pram.D50 --set 'bouchain1.Text1(3)=0.35' --set 'bouchain1.Text2(5)=20'"
      " --set 'bouchain2.OptShear(2)'",
      "new two.D50 --set 'bouchain2.OptShear(0)'",
      "new auto20.D50 --set bouchain3.Text0=20 --set 'bouchain3.Text2(0)=102'",
  };
  for (const std::string& made : hulls) {
    SCOPED_TRACE(made);
    const CliRun n = cli(made);
    ASSERT_EQ(n.status, 0) << n.err;
    EXPECT_EQ(n.err, "");
    const std::string file = made.substr(4, made.find(".D50") - 4 + 4);
    const CliRun d = cli("dump " + file);
    ASSERT_EQ(d.status, 0) << d.err;
    EXPECT_EQ(d.err, "");
    EXPECT_EQ(json::parse(d.out)["warnings"], json::array());
    const CliRun o = cli("open " + file);
    EXPECT_EQ(o.err, "");
  }
}

}  // namespace
