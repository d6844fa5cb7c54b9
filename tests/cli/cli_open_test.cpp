// tolmar-cli open end to end: the JSON of a hull file in the current and
// an old layout, doubles to 17 digits, and the error path.
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

CliRun openFile(const fs::path& file) { return runCli("open '" + file.string() + "'"); }

const fs::path kData = fs::path(TOLMAR_TEST_DATA) / "hull";

TEST(CliOpen, DefaultHullFileGivesTheStoreUnderItsOwnNames) {
  const CliRun r = openFile(fs::path(TOLMAR_GOLDEN) / "default_hull.D50");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.err, "");
  const fs::path golden = fs::path(TOLMAR_GOLDEN) / "cli_open_default.json";
  if (tolmar::test::regenerating()) std::ofstream(golden, std::ios::binary) << r.out;
  EXPECT_EQ(r.out, slurp(golden));

  const json j = json::parse(r.out);
  const char* keys[] = {"hullName",     "nChines",    "iMaxBeam",  "powerFwd",    "powerAft",
                        "shapeAft",     "shapeFwd",   "stemShape", "keelAdvance", "bowAngle",
                        "transomAngle", "plankAngle", "bowTurn",   "transomTurn", "xAft",
                        "yAft",         "zAft",       "xMax",      "yMax",        "zMax",
                        "xFwd",         "yFwd",       "zFwd",      "planeA",      "planeB",
                        "planeC",       "lineX",      "lineY",     "lineZ",       "edgeX",
                        "edgeY",        "edgeZ"};
  EXPECT_EQ(j.size(), std::size(keys));
  for (const char* k : keys) EXPECT_TRUE(j.contains(k)) << k;
  EXPECT_EQ(j["hullName"], "default_hull");
  EXPECT_EQ(j["nChines"], 5);
  EXPECT_EQ(j["powerFwd"], 2.5);
  EXPECT_EQ(j["transomAngle"], -25);
  EXPECT_EQ(j["plankAngle"], json({12, 45, 70, 85, 90, 0}));
  EXPECT_EQ(j["bowTurn"][5], -1);
  EXPECT_EQ(j["transomTurn"][4], -1);
  EXPECT_EQ(j["zFwd"].size(), 6u);
  ASSERT_EQ(j["lineZ"].size(), 6u);
  for (const auto& row : j["lineZ"]) EXPECT_EQ(row.size(), 83u);
  ASSERT_EQ(j["edgeX"].size(), 2u);
  for (const auto& row : j["edgeY"]) EXPECT_EQ(row.size(), 84u);
  EXPECT_EQ(j["lineX"][0][81], 6.0);
  EXPECT_EQ(j["lineY"][0][40], 0.0);
  EXPECT_GT(j["lineY"][1][40].get<double>(), 0.5);
}

TEST(CliOpen, OldLayoutAndSeventeenDigits) {
  const CliRun r = openFile(kData / "old_no_version.D50");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(
      r.out.find("\"yFwd\": [0, 0.10000000000000001, 0.20000000000000001, 0.29999999999999999]"),
      std::string::npos);
  const json j = json::parse(r.out);
  EXPECT_EQ(j["nChines"], 3);
  EXPECT_EQ(j["bowTurn"][3], -1);
  EXPECT_EQ(j["stemShape"], 0.8);
  EXPECT_EQ(j["lineX"].size(), 4u);
}

TEST(CliOpen, UnreadableFileFailsWithTheSystemsText) {
  CliRun r = openFile(kData / "no_such_hull.D50");
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_NE(r.err.find("No such file or directory"), std::string::npos) << r.err;

  std::string text = "&C26\r\n";
  for (int i = 0; i < 26 * 14 + 10; ++i) text += " 1\r\n";
  const fs::path big =
      fs::temp_directory_path() / ("tolmar_open_26_" + std::to_string(getpid()) + ".D50");
  std::ofstream(big, std::ios::binary) << text;
  r = openFile(big);
  fs::remove(big);
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("Subscript out of range"), std::string::npos) << r.err;
}

}  // namespace
