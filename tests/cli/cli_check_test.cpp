// tolmar-cli check end to end: the default hull's plates as JSON with every
// figure a number, the factor moving the verdicts, and the command line's
// errors.
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "cli/cli_run.h"

namespace {

using tolmar::testing::CliRun;
using tolmar::testing::runCli;
namespace fs = std::filesystem;
using nlohmann::json;

const std::string kDefaultHull = (fs::path(TOLMAR_GOLDEN) / "default_hull.D50").string();

CliRun check(const std::string& args) {
  std::string line = "check '";  // appended: GCC 12 warns falsely on + here (-Wrestrict)
  line.append(kDefaultHull).append("' ").append(args);
  return runCli(line);
}

TEST(CliCheck, EveryPlateOfTheDefaultHull) {
  const CliRun r = check("");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_EQ(j["factor"], 1.0);
  std::vector<std::string> names;
  for (const json& p : j["plates"]) {
    names.push_back(p["name"]);
    for (const char* k :
         {"max_error_mm", "max_error_mm_per_m", "area_change_percent", "min_radius_along_m",
          "min_radius_across_m", "thickness_mm", "twist_deg_per_m"})
      EXPECT_TRUE(p[k].is_number()) << p["name"] << " " << k;  // null if not finite
    EXPECT_TRUE(std::set<std::string>({"fits", "tight", "will_not_bend"}).count(p["verdict"]));
    EXPECT_LT(p["max_error_mm"].get<double>(), 1.0);
  }
  const std::vector<std::string> expected = {"p00",    "p01",    "p02",    "p03",
                                             "p04",    "deck 1", "deck 2", "deck 3",
                                             "deck 4", "deck 5", "transom"};
  EXPECT_EQ(names, expected);
}

TEST(CliCheck, TheFactorScalesTheTable) {
  const json one = json::parse(check("").out);
  const CliRun r = check("--factor 2,5 --thickness 9");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_EQ(j["factor"], 2.5);
  const json& b1 = one["plates"][0];
  const json& b = j["plates"][0];
  EXPECT_EQ(b["thickness_mm"], 9.0);
  // 9 mm needs more than 6 mm, and the factor multiplies it.
  EXPECT_GT(b["needed_radius_along_m"].get<double>(),
            2.5 * b1["needed_radius_along_m"].get<double>());
  EXPECT_EQ(b["min_radius_along_m"], b1["min_radius_along_m"]);
  EXPECT_EQ(json::parse(check("--factor 100").out)["plates"][0]["verdict"], "will_not_bend");
}

TEST(CliCheck, BadArguments) {
  for (const char* a : {"--factor 0", "--factor -1", "--factor x", "--factor", "--thickness -2"}) {
    const CliRun r = check(a);
    EXPECT_EQ(r.status, 2) << a;
    EXPECT_TRUE(r.out.empty()) << a;
    EXPECT_NE(r.err.find("tolmar-cli check"), std::string::npos) << a;
  }
  EXPECT_EQ(runCli("check /nonexistent/hull.D50").status, 1);
}

}  // namespace
