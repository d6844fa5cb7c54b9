// tolmar-cli export stl / obj end to end: units and scale as admesh reads
// them, and the refusals (bad scale, unwritable path, folded hull) that
// leave no file or the old one.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <regex>
#include <string>

#include "cli/cli_run.h"

namespace {

using tolmar::testing::CliRun;
using tolmar::testing::runCli;
using tolmar::testing::slurp;

namespace fs = std::filesystem;

class CliModel : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("tolmar_cli_model_" + std::to_string(getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  CliRun exportModel(const std::string& rest) const {
    return runCli("export '" + std::string(TOLMAR_GOLDEN) + "/default_hull.D50' " + rest, dir_);
  }
  fs::path dir_;
};

double admeshVolume(const fs::path& stl) {
  std::string out;
  FILE* p = popen(("admesh '" + stl.string() + "' 2>&1").c_str(), "r");
  char buf[4096];
  std::size_t n;
  while (p && (n = std::fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
  if (p) pclose(p);
  std::smatch m;
  if (!std::regex_search(out, m, std::regex(R"(Volume\s*:\s*([-0-9.e+]+))"))) return NAN;
  return std::stod(m[1]);
}

TEST_F(CliModel, MetresMillimetresAndScaleModel) {
  ASSERT_EQ(exportModel("stl m.stl").status, 0);
  ASSERT_EQ(exportModel("stl mm.stl --mm").status, 0);
  ASSERT_EQ(exportModel("stl model.stl --mm --scale 1:20").status, 0);
  const CliRun obj = exportModel("obj hull.obj --scale 1:20");
  ASSERT_EQ(obj.status, 0) << obj.err;
  EXPECT_EQ(obj.err, "");
  EXPECT_NE(slurp(dir_ / "hull.obj").find("\ng p01\n"), std::string::npos);
  if (system("command -v admesh >/dev/null 2>&1") != 0) GTEST_SKIP() << "admesh is not installed";
  const double v = admeshVolume(dir_ / "m.stl");
  // The default hull below its sheer: about 6.5 x 2.7 x 1.5 m, well under the box.
  EXPECT_GT(v, 5);
  EXPECT_LT(v, 6.6 * 2.7 * 1.6);
  EXPECT_NEAR(admeshVolume(dir_ / "mm.stl"), v * 1e9, v * 1e9 * 1e-5);
  EXPECT_NEAR(admeshVolume(dir_ / "model.stl"), v * 1e9 / 8000, v * 1e9 / 8000 * 1e-5);
}

TEST_F(CliModel, RefusalsLeaveNoFileAndKeepTheOldOne) {
  for (const char* bad : {"--scale 0", "--scale 1:-2", "--scale abc", "--scale"}) {
    SCOPED_TRACE(bad);
    const CliRun r = exportModel(std::string("stl new.stl ") + bad);
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("--scale"), std::string::npos) << r.err;
    EXPECT_FALSE(fs::exists(dir_ / "new.stl"));
  }
  const CliRun lines = exportModel("lines2d l.dxf --mm");
  EXPECT_EQ(lines.status, 2);
  EXPECT_FALSE(fs::exists(dir_ / "l.dxf"));

  const CliRun nowhere = exportModel("obj no/such/folder/h.obj");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_NE(nowhere.err.find("no/such/folder/h.obj"), std::string::npos) << nowhere.err;
  fs::create_directory(dir_ / "folder.stl");
  EXPECT_EQ(exportModel("stl folder.stl").status, 1);
  EXPECT_TRUE(fs::is_directory(dir_ / "folder.stl"));

  // A hull whose first plank folds under line 1: refused, the old file kept.
  {
    std::FILE* f = std::fopen((dir_ / "old.stl").c_str(), "w");
    std::fputs("good", f);
    std::fclose(f);
  }
  const CliRun folded = exportModel(
      "stl old.stl --auto --set bouchain3.Text0=20 --set 'bouchain3.Text1(0)=20' "
      "--set 'bouchain3.Text2(0)=115' --set 'bouchain3.Text2(1)=1.2' "
      "--set 'bouchain3.Text2(2)=0.95' --set 'bouchain3.Text2(3)=1.0' --set bouchain3.Text4=0.6");
  EXPECT_EQ(folded.status, 2);
  EXPECT_NE(folded.err.find("Plank 1 folds under line 1"), std::string::npos) << folded.err;
  EXPECT_EQ(slurp(dir_ / "old.stl"), "good");
}

}  // namespace
