// tolmar-cli hydro end to end: the default hull with its mass budget
// against a golden file, a waterline typed with a decimal comma, and the
// command line's errors.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
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

const std::string kDefaultHull = (fs::path(TOLMAR_GOLDEN) / "default_hull.D50").string();

CliRun hydro(const std::string& args) { return runCli("hydro " + args); }

bool allNumbers(const json& a) {
  if (!a.is_array() || a.size() != 83) return false;
  for (const json& v : a)
    if (!v.is_number()) return false;  // a non-finite double would be null
  return true;
}

TEST(CliHydro, DefaultHullWithItsMassBudget) {
  const CliRun r = hydro("'" + kDefaultHull + "' --mass");
  ASSERT_EQ(r.status, 0) << r.err;
  const fs::path golden = fs::path(TOLMAR_GOLDEN) / "cli_hydro_default_mass.json";
  if (tolmar::test::regenerating()) std::ofstream(golden, std::ios::binary) << r.out;
  EXPECT_EQ(r.out, slurp(golden));

  const json j = json::parse(r.out);
  EXPECT_EQ(j["hydro1"]["mode"], 0);
  // The mass budget's total, rounded to the field, is the displacement.
  const json& total = j["mass1"].back();
  EXPECT_EQ(total["row"], 0);
  EXPECT_NEAR(j["dispTarget"].get<double>(), std::stod(total["Text3"].get<std::string>()) / 1000,
              0.0005);
  EXPECT_LT(std::abs(j["V"].get<double>() - j["dispTarget"].get<double>()), 0.0001);
  EXPECT_EQ(j["mass1"].size(), 19u);
  for (const char* a : {"wlX", "wlY", "wlZ", "sectArea"}) EXPECT_TRUE(allNumbers(j[a])) << a;
}

TEST(CliHydro, WaterlineWithADecimalComma) {
  const CliRun r = hydro("'" + kDefaultHull + "' --zwl 0,1 --pitch 2");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_EQ(j["hydro1"]["mode"], 1);
  EXPECT_EQ(j["hydro1"]["Text1(1)"]["text"], "0.100");
  EXPECT_EQ(j["hydro1"]["Text3(0)"]["text"], "2.0");
  EXPECT_EQ(j["hydro1"]["Label2(0)"]["caption"], "Chine 2  is immersed");
  EXPECT_FALSE(j.contains("mass1"));
}

TEST(CliHydro, TwentyAutomaticPlanksFloatAtTheAskedDisplacement) {
  const fs::path file =
      fs::temp_directory_path() / ("tolmar_hydro_20_" + std::to_string(getpid()) + ".D50");
  ASSERT_EQ(runCli("new '" + file.string() + "' --set bouchain3.Text0=20").status, 0);
  const CliRun r = hydro("'" + file.string() + "' --disp 0.4 --auto");
  fs::remove(file);
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_NEAR(j["V"].get<double>(), 0.4, 1e-4);
  EXPECT_EQ(j["dispTarget"].get<double>(), 0.4);
}

TEST(CliHydro, BeyondTheHullSinks) {
  const CliRun r = hydro("'" + kDefaultHull + "' --disp 50");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_EQ(j["hydro1"]["Label2(0)"]["backColor"], 255);
  EXPECT_EQ(j["immersedChine"], 5);
}

TEST(CliHydro, NumbersWithACommaOrBlanksAreTaken) {
  const CliRun r = hydro("'" + kDefaultHull + "' --disp ' 0,4 ' --pitch 44.9");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_NEAR(j["pitch"].get<double>(), 44.9 * 3.14159265358979 / 180, 1e-12);
}

TEST(CliHydro, CommandLineErrors) {
  const std::pair<std::string, int> table[] = {
      {"'" + kDefaultHull + "'", 2},                                   // no mode
      {"'" + kDefaultHull + "' --zwl 1 --disp 2", 2},                  // both modes
      {"'" + kDefaultHull + "' --mass --set 'mass1.Text1(13)=5'", 2},  // equipment has no density
      {"'" + kDefaultHull + "' --disp 1 --set 'mass1.Text3(13)=5'", 2},
      {"'" + kDefaultHull + "' --disp", 2},
      {"/nonexistent/hull.D50 --disp 1", 1},
      // Read silently as 0 or as the largest double by the screen's field,
      // and a hull on its side or beyond: refused on the command line.
      {"'" + kDefaultHull + "' --disp nan", 2},
      {"'" + kDefaultHull + "' --disp inf", 2},
      {"'" + kDefaultHull + "' --disp 1e999", 2},
      {"'" + kDefaultHull + "' --disp -1", 2},
      {"'" + kDefaultHull + "' --disp 0.4x", 2},
      {"'" + kDefaultHull + "' --zwl 1e999", 2},
      {"'" + kDefaultHull + "' --disp 0.4 --pitch 90", 2},
      {"'" + kDefaultHull + "' --disp 0.4 --pitch -45", 2},
  };
  for (const auto& [args, status] : table) {
    const CliRun r = hydro(args);
    EXPECT_EQ(r.status, status) << args;
    EXPECT_EQ(r.out, "") << args;
    EXPECT_NE(r.err, "") << args;
  }
}

}  // namespace
