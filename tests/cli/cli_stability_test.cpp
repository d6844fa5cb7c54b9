// tolmar-cli stability, curves and print stability end to end: the default
// hull with its mass budget, a box barge read from an STL file against its
// wall-sided arms, the CSV forms and the inputs that are refused.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/cli_run.h"

namespace {

using nlohmann::json;
using tolmar::testing::CliRun;
using tolmar::testing::runCli;
namespace fs = std::filesystem;

const std::string kDefaultHull =
    "'" + (fs::path(TOLMAR_GOLDEN) / "default_hull.D50").string() + "'";

// A box 4 x 2 x 1 m as an ASCII STL, X 0..4, Y -1..1, Z 0..1; `drop`
// leaves that many facets out.
std::string boxStl(int drop = 0) {
  const double v[8][3] = {{0, -1, 0}, {4, -1, 0}, {0, 1, 0}, {4, 1, 0},
                          {0, -1, 1}, {4, -1, 1}, {0, 1, 1}, {4, 1, 1}};
  const int quads[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                           {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
  std::string s = "solid box\n";
  int facets = 0;
  for (const auto& q : quads)
    for (const auto& t :
         {std::array<int, 3>{q[0], q[1], q[2]}, std::array<int, 3>{q[0], q[2], q[3]}}) {
      if (facets++ >= 12 - drop) continue;
      s += "facet normal 0 0 0\nouter loop\n";
      for (int k : t)
        s += "vertex " + std::to_string(v[k][0]) + " " + std::to_string(v[k][1]) + " " +
             std::to_string(v[k][2]) + "\n";
      s += "endloop\nendfacet\n";
    }
  return s + "endsolid box\n";
}

std::string tempFile(const std::string& name, const std::string& text) {
  const fs::path p = fs::temp_directory_path() / (std::to_string(getpid()) + "_" + name);
  std::ofstream(p, std::ios::binary) << text;
  return p.string();
}

void allFinite(const json& j) {
  if (j.is_object() || j.is_array()) {
    for (const json& v : j) allFinite(v);
  } else if (j.is_number()) {
    EXPECT_TRUE(std::isfinite(j.get<double>()));
  }
}

TEST(CliStability, DefaultHullWithItsMassBudgetAndACrew) {
  const CliRun r = runCli("stability " + kDefaultHull + " --crew 80");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  ASSERT_EQ(j["gz"].size(), 37u);
  for (const json& row : j["gz"]) {
    ASSERT_TRUE(row["floats"].get<bool>()) << row;
    for (const char* k : {"heel_deg", "gz_m", "draft_m", "pitch_deg", "righting_moment_kgm"})
      EXPECT_TRUE(row[k].is_number()) << k;
    EXPECT_NEAR(row["righting_moment_kgm"].get<double>(),
                row["gz_m"].get<double>() * j["displacement_kg"].get<double>(), 1e-6);
  }
  for (const char* k : {"gm_m", "max_gz_m", "max_gz_deg", "vanishing_deg", "deck_edge_deg",
                        "area_30_mrad", "area_40_mrad", "crew_heel_deg", "crew_freeboard_m"})
    EXPECT_TRUE(j[k].is_number()) << k;
  EXPECT_EQ(j["displacement_from"], "mass budget");
  EXPECT_EQ(j["kg_from"], "mass budget");
  EXPECT_GT(j["kg_m"].get<double>(), 0);  // above the keel
  EXPECT_GT(j["crew_heel_deg"].get<double>(), 0);
  EXPECT_LT(j["crew_heel_deg"].get<double>(), j["deck_edge_deg"].get<double>());
  allFinite(j);

  const CliRun csv = runCli("stability " + kDefaultHull + " --csv --angles 0:90:10");
  ASSERT_EQ(csv.status, 0) << csv.err;
  EXPECT_EQ(csv.out.rfind("heel_deg,floats,gz_m,draft_m,pitch_deg,righting_moment_kgm,", 0), 0u);
  EXPECT_NE(csv.out.find("\n90,1,"), std::string::npos);
  EXPECT_NE(csv.out.find("\ngm_m,"), std::string::npos);
}

TEST(CliStability, AnEngineTypedIntoTheMassBudgetAndLifted) {
  // 40 kg at X = 1 m: on the keel, then 1 m above it; G rises by 40 x
  // (1 - its height on the keel) / total.
  const std::string engine = " --set 'mass1.Text3(13)=40' --set 'mass1.Text4(13)=1'";
  const CliRun low = runCli("stability " + kDefaultHull + engine + " --angles 0:10:5");
  const CliRun high =
      runCli("stability " + kDefaultHull + engine + " --equip-z 13=1 --angles 0:10:5");
  ASSERT_EQ(low.status, 0) << low.err;
  ASSERT_EQ(high.status, 0) << high.err;
  const json a = json::parse(low.out), b = json::parse(high.out);
  double keel = -1;
  for (const json& row : a["mass_rows"])
    if (row["row"] == 13) keel = row["z_m"].get<double>();
  ASSERT_GE(keel, 0);
  EXPECT_NEAR(b["kg_m"].get<double>() - a["kg_m"].get<double>(),
              40 * (1 - keel) / a["displacement_kg"].get<double>(), 1e-3);
  EXPECT_EQ(runCli("stability " + kDefaultHull + " --equip-z 12=1").status, 2);
}

TEST(CliStability, BoxBargeFromAnStlFile) {
  // 4 x 2 x 1 m box at 0.25 m draft, KG 0.5: wall-sided to 10 degrees,
  // GZ = sin(phi) (KB + BM (1 + tan^2 / 2) - KG), GM = KB + BM - KG.
  const std::string stl = tempFile("box.stl", boxStl());
  const CliRun r = runCli("stability --mesh '" + stl + "' --disp 2 --kg 0.5 --angles 0:10:5");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  EXPECT_EQ(j["source"], "mesh");
  const double kb = 0.125, bm = 4.0 / 12 / 0.25;
  EXPECT_NEAR(j["gm_m"].get<double>(), kb + bm - 0.5, 1e-6);
  EXPECT_NEAR(j["lcg_m"].get<double>(), 2, 1e-9);  // the upright centre of buoyancy
  for (const json& row : j["gz"]) {
    const double phi = row["heel_deg"].get<double>() * 3.141592653589793 / 180;
    const double t = std::tan(phi);
    EXPECT_NEAR(row["gz_m"].get<double>(), std::sin(phi) * (kb + bm * (1 + t * t / 2) - 0.5), 1e-6);
  }
  const CliRun curves = runCli("curves --mesh '" + stl + "' --step 0.25 --csv");
  ASSERT_EQ(curves.status, 0) << curves.err;
  EXPECT_EQ(curves.out.rfind("draft_m,volume_m3,displacement_t,lcb_m,kb_m,waterplane_m2,", 0), 0u);
  EXPECT_NE(curves.out.find("\n0.5,4,4,2,0.25,8,2,"), std::string::npos) << curves.out;
  fs::remove(stl);
}

TEST(CliStability, CurvesOfTheDefaultHull) {
  const CliRun r = runCli("curves " + kDefaultHull + " --step 0.1 --density 1.025");
  ASSERT_EQ(r.status, 0) << r.err;
  const json j = json::parse(r.out);
  ASSERT_GE(j["rows"].size(), 10u);
  double last = 0;
  for (const json& row : j["rows"]) {
    EXPECT_GT(row["volume_m3"].get<double>(), last);
    last = row["volume_m3"].get<double>();
    EXPECT_NEAR(row["displacement_t"].get<double>(), 1.025 * last, 1e-9);
  }
  allFinite(j);
  EXPECT_NE(runCli("curves --help").out.find("ABOVE THE LOWEST POINT"), std::string::npos);
  EXPECT_NE(runCli("stability --help").out.find("ABOVE THE LOWEST POINT"), std::string::npos);
}

TEST(CliStability, BadInputIsRefusedWithStatusTwo) {
  const std::string open = tempFile("open.stl", boxStl(1));
  const std::string text = tempFile("text.stl", "this is no mesh at all\n");
  const std::string box = tempFile("box2.stl", boxStl());
  struct Case {
    std::string args, message;
  };
  const Case cases[] = {
      {"stability --mesh '" + open + "' --disp 1 --kg 0.2", "The mesh is open"},
      {"stability --mesh '" + text + "' --disp 1 --kg 0.2", "not an STL file"},
      {"curves --mesh '" + open + "'", "The mesh is open"},
      {"stability --mesh '" + box + "' --disp 1", "give the displacement and KG"},
      {"stability --mesh '" + box + "' --disp 9 --kg 0.2", "The hull sinks"},
      {"stability --mesh '" + box + "' --disp 0 --kg 0.2", "above 0"},
      {"stability " + kDefaultHull + " --kg 5", "above the sheer"},
      {"stability " + kDefaultHull + " --disp 1e6", "The hull sinks"},
      {"stability " + kDefaultHull + " --angles 0:200:5", "Heel angles"},
      {"stability " + kDefaultHull + " --disp x", "--disp takes a number"},
      {"stability " + kDefaultHull + " --disp 1 --mass", "--disp or --mass"},
      {"curves " + kDefaultHull + " --step 0", "--step"},
      // Twenty planks from 20 to 115 degrees: the first folds under line 1.
      {"stability " + kDefaultHull +
           " --auto --set 'bouchain3.Text0=20' --set 'bouchain3.Text1(0)=20'"
           " --set 'bouchain3.Text2(0)=115' --set 'bouchain3.Text2(1)=1.2'"
           " --set 'bouchain3.Text2(2)=0.95' --set 'bouchain3.Text2(3)=1.0' --set "
           "'bouchain3.Text4=0.6'",
       "folds"},
  };
  for (const Case& c : cases) {
    const CliRun r = runCli(c.args);
    EXPECT_EQ(r.status, 2) << c.args;
    EXPECT_NE(r.err.find(c.message), std::string::npos) << c.args << "\n" << r.err;
    EXPECT_TRUE(r.out.empty()) << c.args;
  }
  for (const std::string& f : {open, text, box}) fs::remove(f);
}

TEST(CliStability, PrintedPages) {
  if (runCli("print --help").status != 0) GTEST_SKIP() << "built without the Qt drawing library";
  const fs::path pdf = fs::temp_directory_path() / (std::to_string(getpid()) + "_stability.pdf");
  const CliRun r = runCli("print " + kDefaultHull + " stability '" + pdf.string() + "'");
  ASSERT_EQ(r.status, 0) << r.err;
  std::ifstream in(pdf, std::ios::binary);
  std::string head(5, '\0');
  in.read(head.data(), 5);
  EXPECT_EQ(head, "%PDF-");
  fs::remove(pdf);
}

}  // namespace
