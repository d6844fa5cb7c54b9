// tolmar-cli sheets end to end: the files of a plan and what they hold
// (one DXF per sheet, the JSON's sheets and bill, a PDF page per sheet and
// one for the bill), the same bytes from the same input, and every kind of
// bad input refused with status 2 and nothing written.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "cli_run.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;
using testing::runCli;
using testing::slurp;

const std::string kHull = std::string(TOLMAR_GOLDEN) + "/default_hull.D50";
const std::string kPram = std::string(TOLMAR_GOLDEN) + "/export/pram/PRAM.D50";

class CliSheets : public ::testing::Test {
 protected:
  void SetUp() override {
    if (runCli("sheets --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
    std::string name = "tolmar_sheets_";
    name += std::to_string(getpid());
    name += '_';
    name += ::testing::UnitTest::GetInstance()->current_test_info()->name();
    dir = fs::temp_directory_path() / name;
    fs::remove_all(dir);
  }
  void TearDown() override { fs::remove_all(dir); }
  testing::CliRun sheets(const std::string& hull, const fs::path& out, const std::string& opts) {
    return runCli("sheets '" + hull + "' '" + out.string() + "' " + opts);
  }
  std::map<std::string, std::string> files(const fs::path& d) {
    std::map<std::string, std::string> out;
    if (fs::exists(d))
      for (const auto& e : fs::directory_iterator(d)) out[e.path().filename()] = slurp(e.path());
    return out;
  }
  fs::path dir;
};

TEST_F(CliSheets, PlanOfTheDefaultHullOnLargeSheets) {
  const auto r = sheets(kHull, dir, "--sheet 3050x1525 --kerf 4 --margin 12 --lang en");
  ASSERT_EQ(r.status, 0) << r.err;
  const auto f = files(dir);
  const nlohmann::json j = nlohmann::json::parse(f.at("default_hull_SHEETS.json"));
  const int n = j["bom"]["sheet_count"];
  ASSERT_EQ(static_cast<int>(j["sheets"].size()), n);
  EXPECT_GE(n, j["bom"]["area_lower_bound"].get<int>());
  EXPECT_EQ(f.size(), static_cast<std::size_t>(n) + 3);  // DXFs, svg, pdf, json
  for (int s = 1; s <= n; ++s) {
    char name[64];
    std::snprintf(name, sizeof name, "default_hull_SHEET%02d.DXF", s);
    ASSERT_TRUE(f.count(name)) << name;
    const std::string& dxf = f.at(name);
    EXPECT_NE(dxf.find("\r\nSHEET\r\n"), std::string::npos);
    EXPECT_NE(dxf.find("\r\nCUT\r\n"), std::string::npos);
    EXPECT_NE(dxf.find("\r\nMARK\r\n"), std::string::npos);
    EXPECT_EQ(dxf.find("\nTEXT\r"), std::string::npos);  // text only as stroke polylines
  }
  // Every piece once, inside its sheet less the margin; one thickness a sheet.
  std::set<std::string> seen;
  double used = 0;
  for (const auto& s : j["sheets"]) {
    EXPECT_EQ(s["width_mm"], 3050);
    EXPECT_EQ(s["height_mm"], 1525);
    for (const auto& p : s["pieces"]) {
      const std::string key = p["part"].get<std::string>() + "/" + p["side"].get<std::string>() +
                              "/" + std::to_string(p["piece"].get<int>());
      EXPECT_TRUE(seen.insert(key).second) << key;
      for (const auto& q : p["outline"]) {
        EXPECT_GE(q[0].get<double>(), 12 - 0.011);
        EXPECT_LE(q[0].get<double>(), 3050 - 12 + 0.011);
        EXPECT_GE(q[1].get<double>(), 12 - 0.011);
        EXPECT_LE(q[1].get<double>(), 1525 - 12 + 0.011);
      }
    }
  }
  for (const auto& p : j["bom"]["pieces"]) used += p["area_m2"].get<double>();
  EXPECT_NEAR(used, j["bom"]["used_area_m2"].get<double>(), 0.01);
  EXPECT_EQ(seen.size(), j["bom"]["pieces"].size());
  // The budget's panels of the default hull: bottom, four planks and the
  // deck twice, transom and bulkhead once; the planks 6 mm, assumed.
  std::set<std::string> parts;
  for (const auto& p : j["bom"]["pieces"]) parts.insert(p["part"]);
  EXPECT_EQ(parts, (std::set<std::string>{"p00", "p01", "p02", "p03", "p04", "deck 5", "transom",
                                          "bulkhead 1"}));
  for (const auto& g : j["bom"]["sheets"]) EXPECT_TRUE(g["thickness_assumed"].get<bool>());
  // A scarf of 8 x 6 mm on the planks.
  for (const auto& jt : j["bom"]["joints"]) {
    if (jt["part"] == "p01") {
      EXPECT_EQ(jt["overlap_mm"], 48);
    }
  }
  if (std::system("pdfinfo -v >/dev/null 2>&1") == 0) {
    const std::string cmd = "pdfinfo '" + (dir / "default_hull_SHEETS.pdf").string() + "'";
    FILE* p = popen(cmd.c_str(), "r");
    std::string out;
    char buf[4096];
    std::size_t k;
    while ((k = std::fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, k);
    pclose(p);
    const std::size_t at = out.find("Pages:");
    ASSERT_NE(at, std::string::npos) << out;
    // The bill of materials (one page or more), then a page per sheet.
    EXPECT_GE(std::stoi(out.substr(at + 6)), n + 1) << out;
    FILE* t =
        popen(("pdftotext '" + (dir / "default_hull_SHEETS.pdf").string() + "' -").c_str(), "r");
    std::string text;
    while ((k = std::fread(buf, 1, sizeof buf, t)) > 0) text.append(buf, k);
    pclose(t);
    EXPECT_NE(text.find("Bill of materials"), std::string::npos);
    std::string last = "sheet ";  // appended: GCC 12 warns falsely (-Wrestrict) on "x" + s
    last += std::to_string(n);
    last += " / ";
    last += std::to_string(n);
    EXPECT_NE(text.find(last), std::string::npos);
  }
}

TEST_F(CliSheets, SameInputSameBytes) {
  const std::string opts = "--sheet 3050x1525 --joint butt:200 --kerf 2.5 --lang fr";
  ASSERT_EQ(sheets(kPram, dir / "a", opts).status, 0);
  ASSERT_EQ(sheets(kPram, dir / "b", opts).status, 0);
  const auto a = files(dir / "a"), b = files(dir / "b");
  ASSERT_FALSE(a.empty());
  EXPECT_EQ(a, b);
  // Butt straps are parts of their own, named in French.
  EXPECT_NE(a.begin()->second.size(), 0u);
  bool strap = false;
  for (const auto& [name, bytes] : a)
    if (name.find(".json") != std::string::npos)
      strap = bytes.find("couvre-joint") != std::string::npos;
  EXPECT_TRUE(strap);
}

// A folder that holds the files of an earlier plan of more sheets: this
// plan's sheets replace theirs, the sheets beyond go (they would be cut
// too), and files of another name or after a gap stay.
TEST_F(CliSheets, SheetsOfALongerEarlierPlanGo) {
  ASSERT_EQ(sheets(kHull, dir, "--sheet 3050x1525").status, 0);
  const int n = static_cast<int>(
      nlohmann::json::parse(files(dir).at("default_hull_SHEETS.json"))["bom"]["sheet_count"]);
  const auto touch = [&](const std::string& name) { std::ofstream(dir / name) << "old\r\n"; };
  char name[64];
  for (int s = n + 1; s <= n + 3; ++s) {
    std::snprintf(name, sizeof name, "default_hull_SHEET%02d.DXF", s);
    touch(name);
  }
  std::snprintf(name, sizeof name, "default_hull_SHEET%02d.DXF", n + 5);
  const std::string afterGap = name;
  touch(afterGap);
  touch("other_SHEET40.DXF");

  const auto r = sheets(kHull, dir, "--sheet 3050x1525");
  ASSERT_EQ(r.status, 0) << r.err;
  const auto f = files(dir);
  EXPECT_EQ(f.size(), static_cast<std::size_t>(n) + 3 + 2);
  for (int s = n + 1; s <= n + 3; ++s) {
    std::snprintf(name, sizeof name, "default_hull_SHEET%02d.DXF", s);
    EXPECT_FALSE(f.count(name)) << name;
    EXPECT_NE(r.err.find(std::string(name) + " of an earlier plan"), std::string::npos) << r.err;
  }
  EXPECT_TRUE(f.count(afterGap));
  EXPECT_TRUE(f.count("other_SHEET40.DXF"));
}

// One sheet's file cannot be written (a folder holds its name): no file
// of the plan is replaced, those of the plan before stay as they were.
TEST_F(CliSheets, AllFilesOrNone) {
  ASSERT_EQ(sheets(kHull, dir, "--sheet 3050x1525").status, 0);
  const auto before = files(dir);
  fs::remove(dir / "default_hull_SHEET03.DXF");
  fs::create_directory(dir / "default_hull_SHEET03.DXF");
  const auto r = sheets(kHull, dir, "--sheet 3050x1525 --kerf 5");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("default_hull_SHEET03.DXF: Is a directory"), std::string::npos) << r.err;
  fs::remove(dir / "default_hull_SHEET03.DXF");
  auto after = files(dir);
  auto expected = before;
  expected.erase("default_hull_SHEET03.DXF");
  EXPECT_TRUE(after == expected) << "a file of the failed plan replaced one of the plan before";
}

TEST_F(CliSheets, BadInputIsRefusedAndNothingIsWritten) {
  struct Case {
    std::string opts, says;
  };
  const Case cases[] = {
      {"--sheet 2440x1220", "deck 5 needs a width of 13"},  // the deck is wider
      {"--sheet 1220x600 --skip 'deck 5'", "needs a width of"},
      {"--sheet 3050x1525 --kerf 0", "kerf"},
      {"--sheet 3050x1525 --kerf -2", "kerf"},
      {"--sheet 3050x1525 --joint scarf:0", "scarf ratio"},
      {"--sheet 3050x1525 --joint none", "Pick a joint"},
      {"--sheet 3050x1525 --joint-at p01:0.1", "300 mm"},
      {"--sheet 3050x1525 --joint-at p01:9", "outside the part"},
      {"--sheet 3050x1525 --only p09", "no part named"},
      {"--sheet axb", "--sheet takes"},
      {"--sheet 3050x1525 --joint glue", "--joint takes"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.opts);
    const auto r = sheets(kHull, dir, c.opts + " --lang en");
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find(c.says), std::string::npos) << r.err;
    EXPECT_FALSE(fs::exists(dir));
  }
  // A hull that folds: 20 planks from 20 to 115 degrees with a stem shape.
  const auto r = sheets(kHull, dir,
                        "--sheet 3050x1525 --set bouchain3.Text0=20 --set 'bouchain3.Text1(0)=20' "
                        "--set 'bouchain3.Text2(0)=115' --set 'bouchain3.Text2(1)=1.2' "
                        "--set 'bouchain3.Text2(2)=0.95' --set 'bouchain3.Text2(3)=1.0' "
                        "--set bouchain3.Text4=0.6 --lang en");
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("fold"), std::string::npos) << r.err;
  EXPECT_FALSE(fs::exists(dir));
}

}  // namespace
}  // namespace tolmar
