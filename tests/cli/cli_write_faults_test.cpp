// Every file tolmar-cli writes, with one step of the writer failing in turn
// (TOLMAR_WRITE_FAULT): status 1 and a message, the file that was there
// byte for byte as it was, and no temporary file left.  Then the hostile
// paths: a link written through, a FIFO or device refused at once.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "cli_run.h"

namespace tolmar::testing {
namespace {

namespace fs = std::filesystem;

std::string q(const fs::path& p) { return "'" + p.string() + "'"; }

// Every regular file under dir, by its path relative to dir, with its bytes.
std::map<std::string, std::string> snapshot(const fs::path& dir) {
  std::map<std::string, std::string> files;
  for (const auto& e : fs::recursive_directory_iterator(dir)) {
    if (e.is_regular_file()) files[fs::relative(e.path(), dir).string()] = slurp(e.path());
  }
  return files;
}

struct WritePath {
  std::string name;
  std::string args;  // with HULL and OUT for the hull file and the output
  std::string out;   // the output's name in the folder
  bool needsQt = false;
};

std::string fill(std::string s, const fs::path& hull, const fs::path& out) {
  for (const auto& [key, value] : {std::pair{std::string("HULL"), q(hull)}, {"OUT", q(out)}}) {
    for (auto at = s.find(key); at != std::string::npos; at = s.find(key, at + value.size()))
      s.replace(at, key.size(), value);
  }
  return s;
}

const std::vector<WritePath>& writePaths() {
  static const std::vector<WritePath> paths = {
      {"new", "new OUT", "Boat.D50"},
      {"lines2d", "export HULL lines2d OUT", "l2.DXF"},
      {"lines3d", "export HULL lines3d OUT", "l3.DXF"},
      {"lines_xyz", "export HULL lines-xyz OUT", "l.XYZ"},
      {"vrml", "export HULL vrml OUT", "h.WRL"},
      {"plates_dxf", "export HULL plates-dxf OUT", "p.DXF"},
      {"decks_dxf", "export HULL decks-dxf OUT", "d.DXF"},
      {"station_dxf", "export HULL station-dxf OUT", "s.DXF"},
      {"plank_xyz", "export HULL plank-xyz:1 OUT", "p1.XYZ"},
      {"transom_xyz", "export HULL transom-xyz OUT", "t.XYZ"},
      {"export_all", "export-all HULL OUT", "all"},
      {"print", "print HULL data OUT", "d.pdf", true},
      {"print_all", "print HULL all OUT", "a.pdf", true},
      {"draw_png", "draw HULL OUT", "h.png", true},
      {"draw_svg", "draw HULL OUT --size 300x200", "h.svg", true},
  };
  return paths;
}

class CliWriteFaults : public ::testing::TestWithParam<WritePath> {
 protected:
  void SetUp() override {
    if (GetParam().needsQt && runCli("draw --help").status != 0)
      GTEST_SKIP() << "built without the Qt drawing library";
    dir_ = fs::temp_directory_path() /
           ("tolmar_faults_" + std::to_string(getpid()) + "_" + GetParam().name);
    fs::remove_all(dir_);
    fs::create_directories(dir_ / "work");
    hull_ = dir_ / "Hull.D50";
    ASSERT_EQ(runCli("new " + q(hull_)).status, 0);
  }
  void TearDown() override {
    ::unsetenv("TOLMAR_WRITE_FAULT");
    if (!dir_.empty()) fs::remove_all(dir_);
  }
  CliRun run() { return runCli(fill(GetParam().args, hull_, dir_ / "work" / GetParam().out)); }
  fs::path dir_, hull_;
};

TEST_P(CliWriteFaults, AFailedWriteKeepsTheOldFileAndSaysSo) {
  // A first run puts the files in place, then every later run writes over
  // them.
  const CliRun first = run();
  ASSERT_EQ(first.status, 0) << first.err;
  const auto before = snapshot(dir_ / "work");
  ASSERT_FALSE(before.empty());
  // The step and the system's text of the error it fails with.
  const std::vector<std::pair<const char*, const char*>> faults = {
      {"write", "No space left on device"},    {"flush", "No space left on device"},
      {"fsync", "Input/output error"},         {"close", "Input/output error"},
      {"rename", "Invalid cross-device link"}, {"open", "Permission denied"}};
  for (const auto& [step, text] : faults) {
    ::setenv("TOLMAR_WRITE_FAULT", step, 1);
    const CliRun r = run();
    ::unsetenv("TOLMAR_WRITE_FAULT");
    EXPECT_EQ(r.status, 1) << step;
    EXPECT_NE(r.err.find(text), std::string::npos) << step << ": " << r.err;
    EXPECT_TRUE(snapshot(dir_ / "work") == before) << step << ": a file changed or was left";
  }
  EXPECT_EQ(run().status, 0);
  EXPECT_EQ(snapshot(dir_ / "work").size(), before.size());
}

INSTANTIATE_TEST_SUITE_P(EveryWriter, CliWriteFaults, ::testing::ValuesIn(writePaths()),
                         [](const auto& info) { return info.param.name; });

class CliHostilePaths : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() / ("tolmar_hostile_" + std::to_string(getpid()));
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }
  fs::path dir_;
};

TEST_F(CliHostilePaths, ALinkIsWrittenThroughAndKeepsItsTargetsMode) {
  const fs::path real = dir_ / "real" / "Boat.D50";
  fs::create_directories(real.parent_path());
  ASSERT_EQ(runCli("new " + q(real)).status, 0);
  ::chmod(real.c_str(), 0600);
  fs::create_symlink(real, dir_ / "Link.D50");
  const CliRun r = runCli("new " + q(dir_ / "Link.D50") + " --set 'bouchain1.Text1(0)=6'");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(fs::is_symlink(dir_ / "Link.D50"));
  EXPECT_NE(slurp(real).find("\r\n 6\r\n"), std::string::npos);
  EXPECT_EQ(fs::status(real).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(CliHostilePaths, AFifoOrDeviceIsRefusedAtOnce) {
  ASSERT_EQ(::mkfifo((dir_ / "f.D50").c_str(), 0644), 0);
  // A read of the FIFO would wait for a writer forever; `timeout` turns a
  // hang into a failure.
  for (const char* cmd : {"open", "dump"}) {
    const CliRun r = runCli("--help >/dev/null; timeout 20 '" + std::string(TOLMAR_CLI) + "' " +
                            std::string(cmd) + " " + q(dir_ / "f.D50"));
    EXPECT_EQ(r.status, 1) << cmd;
    EXPECT_NE(r.err.find("Not a regular file"), std::string::npos) << r.err;
  }
  const CliRun zero = runCli("dump /dev/zero");
  EXPECT_EQ(zero.status, 1);
  EXPECT_NE(zero.err.find("Not a regular file"), std::string::npos) << zero.err;
  // And as the target of a write.
  const CliRun hull = runCli("export-all /dev/null " + q(dir_));
  EXPECT_NE(hull.status, 0);
  ASSERT_EQ(runCli("new " + q(dir_ / "h.D50")).status, 0);
  const CliRun out = runCli("export " + q(dir_ / "h.D50") + " vrml " + q(dir_ / "f.D50"));
  EXPECT_EQ(out.status, 1);
  EXPECT_NE(out.err.find("Not a regular file"), std::string::npos) << out.err;
}

TEST_F(CliHostilePaths, EmptyOrBinaryFilesAreNoHullFiles) {
  { std::ofstream(dir_ / "empty.D50"); }
  const CliRun empty = runCli("dump " + q(dir_ / "empty.D50"));
  EXPECT_EQ(empty.status, 1);
  EXPECT_NE(empty.err.find("not a hull file"), std::string::npos) << empty.err;
  const CliRun binary = runCli("dump '" + std::string(TOLMAR_CLI) + "'");
  EXPECT_EQ(binary.status, 1);
  EXPECT_NE(binary.err.find("not a hull file"), std::string::npos) << binary.err;
  std::ofstream(dir_ / "words.D50") << "Dear crew,\r\nthe boat is ready.\r\n";
  EXPECT_EQ(runCli("dump " + q(dir_ / "words.D50")).status, 1);
  // A file of the old layout with a word where a number is due still opens.
  const CliRun old = runCli("dump '" + std::string(TOLMAR_TEST_DATA) + "/hull/old_no_version.D50'");
  EXPECT_EQ(old.status, 0) << old.err;
}

TEST_F(CliHostilePaths, AHullFileNeedsAName) {
  for (const std::string& name : {std::string("''"), q(dir_) + "/"}) {
    const CliRun r = runCli("new " + name, dir_);
    EXPECT_EQ(r.status, 2) << name;
    EXPECT_NE(r.err.find("needs a name"), std::string::npos) << r.err;
  }
  EXPECT_TRUE(fs::is_empty(dir_));
}

}  // namespace
}  // namespace tolmar::testing
