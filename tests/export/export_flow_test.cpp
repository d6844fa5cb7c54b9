#include "export/export_flow.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>

#include "export/preset_host.h"
#include "golden_file.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;

class ExportFlow : public testing::Test {
 protected:
  void SetUp() override {
    dir_ =
        fs::temp_directory_path() / ("tolmar_export_flow_" + std::to_string(::getpid()) + "_" +
                                     testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
    h_.hullName = "Tolmar";
  }
  void TearDown() override { fs::remove_all(dir_); }

  ExportFile lines2D() const {
    ExportFile f;
    f.title = "Tolmar2008 - Save hull lines as 2D DXF file";
    f.filter = "Lines (*.DXF)|*.DXF";
    f.defaultName = h_.hullName + ".DXF";
    f.errorTitle = "Tolmar2008 - Saving Hull line 2D DXF";
    f.hullNameFollows = true;
    f.showHullName = true;
    f.focusCancel = true;
    return f;
  }

  // Files left in the folder, temporary ones included.
  std::vector<std::string> filesLeft() const {
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(dir_)) names.push_back(e.path().filename());
    return names;
  }

  fs::path dir_;
  HullStore h_;
};

TEST_F(ExportFlow, WritesTheLinesAndFollowsTheFileName) {
  auto host = PresetHost::toPath((dir_ / "BOAT.V2.DXF").string());
  std::string nameSeen;
  const auto r = runExport(host, h_, lines2D(), [&](TextSink& out) {
    nameSeen = h_.hullName;  // the name has changed before the lines go out
    out.line("999");
  });
  EXPECT_EQ(r, ExportOutcome::written);
  EXPECT_EQ(nameSeen, "BOAT");
  EXPECT_EQ(h_.hullName, "BOAT");
  EXPECT_EQ(host.shownName, "BOAT");
  EXPECT_EQ(host.cancelFocused, 1);
  EXPECT_TRUE(host.errors.empty());
  EXPECT_EQ(test::readBytes((dir_ / "BOAT.V2.DXF").string()), "999\r\n");
  EXPECT_EQ(filesLeft().size(), 1U);
  ASSERT_EQ(host.requests.size(), 1U);
  EXPECT_EQ(host.requests[0].defaultName, "Tolmar.DXF");
  EXPECT_FALSE(host.requests[0].initialFolder.has_value());
}

TEST_F(ExportFlow, ReplacesAnExistingFile) {
  const auto path = dir_ / "old.DXF";
  std::ofstream(path) << "a much longer old content that must disappear entirely";
  auto host = PresetHost::toPath(path.string());
  EXPECT_EQ(runExport(host, h_, lines2D(), [](TextSink& out) { out.line("new"); }),
            ExportOutcome::written);
  EXPECT_EQ(test::readBytes(path.string()), "new\r\n");
}

TEST_F(ExportFlow, CancelWritesNothingAndSaysNothing) {
  auto host = PresetHost::cancelling();
  bool called = false;
  EXPECT_EQ(runExport(host, h_, lines2D(), [&](TextSink&) { called = true; }),
            ExportOutcome::cancelled);
  EXPECT_FALSE(called);
  EXPECT_TRUE(host.errors.empty());
  EXPECT_EQ(h_.hullName, "Tolmar");
  EXPECT_EQ(host.cancelFocused, 0);
  EXPECT_TRUE(filesLeft().empty());
}

TEST_F(ExportFlow, UnwritablePathTakesTheErrorPathAndKeepsTheName) {
  auto host = PresetHost::toPath((dir_ / "no_such_folder" / "BOAT.DXF").string());
  bool called = false;
  EXPECT_EQ(runExport(host, h_, lines2D(), [&](TextSink&) { called = true; }),
            ExportOutcome::failed);
  EXPECT_FALSE(called);
  EXPECT_EQ(h_.hullName, "Tolmar");  // the file did not open: the name stays
  ASSERT_EQ(host.errors.size(), 1U);
  EXPECT_EQ(host.errors[0], "Tolmar2008 - Saving Hull line 2D DXF: No such file or directory");
  EXPECT_TRUE(filesLeft().empty());
}

TEST_F(ExportFlow, PathThatIsAFolderLeavesNothing) {
  fs::create_directories(dir_ / "A.DXF");
  auto host = PresetHost::toPath((dir_ / "A.DXF").string());
  EXPECT_EQ(runExport(host, h_, lines2D(), [](TextSink& out) { out.line("x"); }),
            ExportOutcome::failed);
  ASSERT_EQ(host.errors.size(), 1U);
  EXPECT_EQ(filesLeft(), std::vector<std::string>{"A.DXF"});
  EXPECT_TRUE(fs::is_directory(dir_ / "A.DXF"));
}

TEST_F(ExportFlow, FullDiskLeavesNoPartialFile) {
  // A file size limit makes the writes fail as a full disk does.
  const auto path = dir_ / "big.DXF";
  std::ofstream(path) << "previous";
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const auto oldHandler = signal(SIGXFSZ, SIG_IGN);
  rlimit small = old;
  small.rlim_cur = 100000;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  auto host = PresetHost::toPath(path.string());
  const auto r = runExport(host, h_, lines2D(), [](TextSink& out) {
    for (int i = 0; i < 20000; ++i) out.line(" 0.0000 ");
  });
  setrlimit(RLIMIT_FSIZE, &old);
  signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(r, ExportOutcome::failed);
  ASSERT_EQ(host.errors.size(), 1U);
  EXPECT_EQ(host.errors[0], "Tolmar2008 - Saving Hull line 2D DXF: File too large");
  EXPECT_EQ(test::readBytes(path.string()), "previous");  // the old file stands
  EXPECT_EQ(filesLeft().size(), 1U);
  EXPECT_EQ(host.cancelFocused, 0);
}

struct NameCase {
  const char* name;  // of the test
  const char* file;
  const char* hull;
};

void PrintTo(const NameCase& c, std::ostream* os) { *os << c.name; }

class HullNameFromFile : public testing::TestWithParam<NameCase> {};

TEST_P(HullNameFromFile, CutBeforeTheFirstDotFromTheSecondCharacterOn) {
  EXPECT_EQ(hullNameFromFile(GetParam().file), GetParam().hull);
}

INSTANTIATE_TEST_SUITE_P(
    Names, HullNameFromFile,
    testing::Values(NameCase{"TwoDots", "BOAT.V2.DXF", "BOAT"}, NameCase{"NoDot", "BOAT", "BOAT"},
                    NameCase{"DotFirst", ".DXF", ".DXF"}, NameCase{"OneLetter", "B.DXF", "B"},
                    NameCase{"DotsOnly", "..x", "..x"}, NameCase{"Empty", "", ""}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(NameStem, FirstFifteenCharacters) {
  EXPECT_EQ(nameStem("Tolmar"), "Tolmar");
  EXPECT_EQ(nameStem("ABCDEFGHIJKLMNOPQRS"), "ABCDEFGHIJKLMNO");
  EXPECT_EQ(nameStem("ééééééééééééééééé"), "ééééééééééééééé");
}

}  // namespace
}  // namespace tolmar
