// A pram-bow hull of four lines, designed through the screens with
// tolmar-cli, and every file export-all writes for it, compared byte for
// byte with the stored ones (TOLMAR_REGENERATE=1 rewrites them; review the
// diff).  The default hull's files are checked in the export tests.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "cli/cli_run.h"
#include "regenerate.h"

namespace {

namespace fs = std::filesystem;
using tolmar::testing::CliRun;
using tolmar::testing::runCli;
using tolmar::testing::slurp;

std::set<std::string> filesUnder(const fs::path& root) {
  std::set<std::string> names;
  for (const auto& e : fs::recursive_directory_iterator(root))
    if (e.is_regular_file()) names.insert(fs::relative(e.path(), root).generic_string());
  return names;
}

TEST(ExportPramBow, EveryFileOfAFourLinePramHull) {
  const fs::path dir =
      fs::temp_directory_path() / ("tolmar_export_pram_" + std::to_string(getpid()));
  fs::remove_all(dir);
  fs::create_directories(dir);
  const fs::path hull = dir / "PRAM.D50";
  const CliRun made = runCli("new '" + hull.string() +
                             "' --set 'bouchain1.Text1(3)=0.35' --set 'bouchain1.Text2(5)=20'"
                             " --set 'bouchain2.OptShear(2)'");
  ASSERT_EQ(made.status, 0) << made.err;
  const CliRun all =
      runCli("export-all '" + hull.string() + "' '" + (dir / "out").string() +
             "' --overlap lap --set 'overlap1.Text1(0)=9' --set 'overlap1.Text1(1)=20'"
             " --set 'overlap1.Text2(0)=6' --set 'overlap1.Text2(1)=15'"
             " --set 'overlap1.Text3(1)=12' --set 'overlap1.Text3(2)=12'");
  ASSERT_EQ(all.status, 0) << all.err;

  const fs::path golden = fs::path(TOLMAR_GOLDEN) / "export" / "pram";
  std::set<std::string> written = filesUnder(dir / "out");
  written.insert("PRAM.D50");
  fs::copy_file(hull, dir / "out" / "PRAM.D50");
  if (tolmar::test::regenerating()) {
    fs::remove_all(golden);
    fs::create_directories(golden);
    fs::copy(dir / "out", golden, fs::copy_options::recursive);
  }
  EXPECT_EQ(written, filesUnder(golden));
  EXPECT_TRUE(written.count("PRAM_BOW.XYZ")) << "a pram bow has its bow plate";
  for (const std::string& name : written) {
    SCOPED_TRACE(name);
    EXPECT_EQ(slurp(dir / "out" / name), slurp(golden / name));
  }
  // Four lines: planks 0..3, decks 1..4.
  EXPECT_TRUE(written.count("PRAM_P3.XYZ"));
  EXPECT_FALSE(written.count("PRAM_P4.XYZ"));
  fs::remove_all(dir);
}

}  // namespace
