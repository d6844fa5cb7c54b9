// tolmar-cli export and export-all end to end: the files are byte for byte
// those the export tests expect of the default hull, and the error path.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "cli/cli_run.h"

namespace {

using tolmar::testing::CliRun;
using tolmar::testing::runCli;
using tolmar::testing::slurp;

namespace fs = std::filesystem;

class CliExport : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("tolmar_cli_export_" + std::to_string(getpid()));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    // Named as the export tests' hull, so that the names inside match.
    fs::copy_file(fs::path(TOLMAR_GOLDEN) / "default_hull.D50", dir_ / "Tolmar.D50");
  }
  void TearDown() override { fs::remove_all(dir_); }

  CliRun cli(const std::string& args) const { return runCli(args); }
  std::string hull() const { return "'" + (dir_ / "Tolmar.D50").string() + "'"; }
  std::string at(const std::string& name) const { return "'" + (dir_ / name).string() + "'"; }

  fs::path dir_;
};

std::string golden(const std::string& name) {
  return slurp(fs::path(TOLMAR_GOLDEN) / "export" / name);
}

struct KindCase {
  const char* kind;
  const char* out;
  const char* golden;
  const char* options;
};

TEST_F(CliExport, EachKindIsTheFileOfTheDefaultHull) {
  const KindCase cases[] = {
      {"lines2d", "Tolmar.DXF", "Tolmar_2D.DXF", ""},
      {"lines3d", "Tolmar.DXF", "Tolmar_3D.DXF", ""},
      {"lines-xyz", "Tolmar.XYZ", "Tolmar.XYZ", ""},
      {"lines-xyz", "Tolmar.XYZ", "Tolmar_fr.XYZ", "--lang fr"},
      {"vrml", "Tolmar.WRL", "Tolmar.WRL", ""},
      {"plates-dxf", "Tolmar_PLANK.DXF", "Tolmar_PLANK.DXF", ""},
      {"decks-dxf", "Tolmar_DECK.DXF", "Tolmar_DECK.DXF", ""},
      {"station-dxf", "Tolmar_STAT_41.DXF", "Tolmar_STAT_41.DXF", ""},
      {"plank-xyz:0", "Tolmar_P0.XYZ", "Tolmar_P0.XYZ", ""},
      {"plank-xyz:2", "Tolmar_P2.XYZ", "Tolmar_P2.XYZ", ""},
      {"deck-xyz:5", "Tolmar_D5.XYZ", "Tolmar_D5.XYZ", ""},
      {"transom-xyz", "Tolmar_TR.XYZ", "Tolmar_TR.XYZ", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.kind) + " " + c.options);
    const CliRun r = cli("export " + hull() + " " + c.kind + " " + at(c.out) + " " + c.options);
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(slurp(dir_ / c.out), golden(c.golden));
    fs::remove(dir_ / c.out);
  }
}

TEST_F(CliExport, StationAtAnX) {
  const CliRun r = cli("export " + hull() + " station-dxf " + at("s.DXF") + " --station 0.3");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(slurp(dir_ / "s.DXF").substr(0, 17), "999\r\nstation  5\r\n");
}

TEST_F(CliExport, LapStrakeAddsTheOutlineWithMaterial) {
  const CliRun plain = cli("export " + hull() + " plates-dxf " + at("a.DXF"));
  const CliRun lap = cli("export " + hull() + " plates-dxf " + at("b.DXF") +
                         " --overlap lap --set 'overlap1.Text1(0)=9' --set 'overlap1.Text1(1)=25'"
                         " --set 'overlap1.Text2(0)=6' --set 'overlap1.Text2(1)=18'"
                         " --set 'overlap1.Text3(1)=12' --set 'overlap1.Text3(2)=15'");
  ASSERT_EQ(plain.status, 0) << plain.err;
  ASSERT_EQ(lap.status, 0) << lap.err;
  const std::string a = slurp(dir_ / "a.DXF"), b = slurp(dir_ / "b.DXF");
  EXPECT_EQ(a.find(" 62\r\n     1\r\n"), std::string::npos);
  EXPECT_NE(b.find(" 62\r\n     1\r\n"), std::string::npos);
  EXPECT_GT(b.size(), a.size());
}

TEST_F(CliExport, UnwritablePathFailsWithTheExportTitleAndLeavesNothing) {
  const CliRun r = cli("export " + hull() + " lines3d " + at("missing/x.DXF"));
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "Tolmar2008 - Saving Hull line 3D DXF: No such file or directory\n");
  EXPECT_FALSE(fs::exists(dir_ / "missing"));
}

TEST_F(CliExport, WrongCommandLines) {
  EXPECT_EQ(cli("export " + hull() + " bogus " + at("x")).status, 2);
  EXPECT_EQ(cli("export " + hull() + " lines2d").status, 2);
  EXPECT_EQ(cli("export " + hull() + " lines-xyz " + at("x") + " --lang de").status, 2);
  EXPECT_EQ(cli("export " + hull() + " plank-xyz:5 " + at("x")).status, 2);  // planks 0..4
  EXPECT_EQ(cli("export " + hull() + " plates-dxf " + at("x") + " --overlap 1,2").status, 2);
  EXPECT_EQ(
      cli("export " + hull() + " plates-dxf " + at("x") + " --set 'overlap1.Text4(0)=1'").status,
      2);
  EXPECT_EQ(cli("export " + hull() + " plates-dxf " + at("x") + " --overlap cancel").status, 0);
  EXPECT_EQ(cli("export " + at("none.D50") + " lines2d " + at("x")).status, 1);
  EXPECT_FALSE(fs::exists(dir_ / "x"));
}

TEST_F(CliExport, ExportAllWritesEveryFileUnderItsDefaultName) {
  const CliRun r = cli("export-all " + hull() + " " + at("out"));
  ASSERT_EQ(r.status, 0) << r.err;
  const fs::path out = dir_ / "out";
  EXPECT_EQ(slurp(out / "2D" / "Tolmar.DXF"), golden("Tolmar_2D.DXF"));
  EXPECT_EQ(slurp(out / "3D" / "Tolmar.DXF"), golden("Tolmar_3D.DXF"));
  EXPECT_EQ(slurp(out / "Tolmar.WRL"), golden("Tolmar.WRL"));
  EXPECT_EQ(slurp(out / "Tolmar_PLANK.DXF"), golden("Tolmar_PLANK.DXF"));
  EXPECT_EQ(slurp(out / "Tolmar_P2.XYZ"), golden("Tolmar_P2.XYZ"));
  EXPECT_EQ(slurp(out / "Tolmar_STAT_41.DXF"), golden("Tolmar_STAT_41.DXF"));
  int files = 0;
  for (const auto& e : fs::recursive_directory_iterator(out)) files += e.is_regular_file();
  EXPECT_EQ(files, 2 + 2 + 2 + 5 + 5 + 1 + 1);  // lines, XYZ and WRL, plates, P, D, TR, station
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), files);
}

}  // namespace
