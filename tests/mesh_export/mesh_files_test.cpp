// The STL and OBJ models read back by Debian's own readers: admesh for the
// STL (one closed part, no degenerate facet, its volume that of the mesh),
// assimp for the OBJ (a group per plate, the lines as polylines); and
// exact answers on a unit cube.
#include "mesh_export/mesh_files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

#include "hull/hull_fixtures.h"

namespace tolmar {
namespace {

namespace fs = std::filesystem;

std::string run(const std::string& cmd) {
  std::string out;
  FILE* p = popen((cmd + " 2>&1").c_str(), "r");
  if (!p) return out;
  char buf[4096];
  std::size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
  pclose(p);
  return out;
}

bool haveTool(const char* name) {
  return run(std::string("command -v ") + name).find(name) != std::string::npos;
}

double number(const std::string& text, const std::string& label) {
  std::smatch m;
  const std::regex re(label + R"(\s*[:=]\s*([-0-9.e+]+))");
  if (!std::regex_search(text, m, re)) return NAN;
  return std::stod(m[1]);
}

// The twelve triangles of the unit cube [0,1]^3, anticlockwise from outside.
HullMesh unitCube() {
  HullMesh m;
  for (int i = 0; i < 8; ++i)
    m.vertices.push_back({double(i & 1), double(i >> 1 & 1), double(i >> 2)});
  const int q[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                       {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
  for (const auto& f : q) {
    m.triangles.push_back({f[0], f[1], f[2]});
    m.triangles.push_back({f[0], f[2], f[3]});
  }
  m.tags.assign(12, MeshTag{});
  return m;
}

class ModelFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::temp_directory_path() /
           ("tolmar_mesh_" + std::to_string(getpid()) + "_" +
            ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }
  fs::path dir_;
};

TEST(ModelScale, AcceptsOneToNAndRefusesTheRest) {
  double n = 0;
  EXPECT_TRUE(parseScale("1:10", n));
  EXPECT_EQ(n, 10);
  EXPECT_TRUE(parseScale("1/12.5", n));
  EXPECT_EQ(n, 12.5);
  EXPECT_TRUE(parseScale("20", n));
  EXPECT_EQ(n, 20);
  for (const char* bad : {"0", "1:0", "1:-5", "-3", "2:10", "1:", "", "1:abc", "1:inf", "1:nan"})
    EXPECT_FALSE(parseScale(bad, n)) << bad;
  MeshUnits u;
  u.millimetres = true;
  u.scaleDenominator = 10;
  EXPECT_DOUBLE_EQ(u.factor(), 100);
}

TEST(ModelStl, UnitCubeLayout) {
  MeshUnits mm;
  mm.millimetres = true;
  const std::string s = stlBytes(unitCube(), mm);
  ASSERT_EQ(s.size(), 84u + 12u * 50u);
  EXPECT_NE(s.rfind("solid", 0), 0u);  // a binary file must not read as ASCII
  std::uint32_t count;
  std::memcpy(&count, s.data() + 80, 4);
  EXPECT_EQ(count, 12u);
  // First facet: the face z = 0, outward normal -Z, corners in millimetres.
  float f[12];
  std::memcpy(f, s.data() + 84, sizeof f);
  EXPECT_FLOAT_EQ(f[2], -1);
  EXPECT_FLOAT_EQ(f[0] * f[0] + f[1] * f[1], 0);
  EXPECT_FLOAT_EQ(f[3 + 3 + 1], 1000);  // corner 2 = (0, 1, 0) m
}

TEST_F(ModelFiles, AdmeshReadsTheCubeAndTheHulls) {
  if (!haveTool("admesh")) GTEST_SKIP() << "admesh is not installed";
  {
    ASSERT_TRUE(io::writeFileSafely((dir_ / "cube.stl").string(), stlBytes(unitCube(), {})).ok());
    const std::string a = run("admesh '" + (dir_ / "cube.stl").string() + "'");
    EXPECT_NEAR(number(a, "Volume"), 1.0, 1e-6) << a;
  }
  const HullStore hulls[] = {testing::validatedDefaultHull(), testing::twentyPlankHull()};
  for (const HullStore& h : hulls) {
    SCOPED_TRACE(h.nChines);
    const HullMesh m = weldedMesh(buildHullMesh(h));
    for (const bool mm : {false, true}) {
      MeshUnits u;
      u.millimetres = mm;
      u.scaleDenominator = mm ? 10 : 1;
      const fs::path p = dir_ / "hull.stl";
      ASSERT_TRUE(writeHullModel(h, MeshFormat::stl, u, p.string()).ok());
      const std::string a = run("admesh '" + p.string() + "'");
      const double k = u.factor();
      EXPECT_NEAR(number(a, "Volume"), m.volume() * k * k * k, m.volume() * k * k * k * 1e-3) << a;
      EXPECT_EQ(number(a, "Number of parts"), 1) << a;
      EXPECT_EQ(number(a, "Degenerate facets"), 0) << a;
      EXPECT_EQ(number(a, "Total disconnected facets"), 0) << a;
      EXPECT_EQ(number(a, "Backwards edges"), 0) << a;
      EXPECT_EQ(number(a, "Facets reversed"), 0) << a;
      EXPECT_NEAR(number(a, "Max X"), m.high().x * k, 1e-3 * k);
      EXPECT_NEAR(number(a, "Min Z"), m.low().z * k, 1e-3 * k);
    }
  }
}

TEST_F(ModelFiles, AssimpReadsAGroupPerPlateAndTheLines) {
  if (!haveTool("assimp")) GTEST_SKIP() << "assimp-utils is not installed";
  const HullStore h = testing::twentyPlankHull();
  ASSERT_EQ(h.nChines, 21);
  const HullMesh m = weldedMesh(buildHullMesh(h));
  const fs::path p = dir_ / "hull.obj";
  ASSERT_TRUE(writeHullModel(h, MeshFormat::obj, {}, p.string()).ok());
  const std::string a = run("assimp info '" + p.string() + "'");
  // One mesh a group: "    3 (p02): [331 / 0 / 328 | triangle]".
  const std::regex row(R"(\d+ \(([a-z0-9]+)\): \[(\d+) / \d+ / (\d+) \| (\w+)\])");
  std::map<std::string, std::pair<std::string, int>> meshes;
  for (auto it = std::sregex_iterator(a.begin(), a.end(), row); it != std::sregex_iterator(); ++it)
    meshes[(*it)[1]] = {(*it)[4], std::stoi((*it)[3])};
  int triangles = 0;
  for (const char* g : {"bottom", "transom", "lid"}) {
    ASSERT_TRUE(meshes.count(g)) << g << "\n" << a;
    EXPECT_EQ(meshes[g].first, "triangle");
  }
  for (int k = 1; k <= 20; ++k) {
    char g[8];
    std::snprintf(g, sizeof g, "p%02d", k);
    ASSERT_TRUE(meshes.count(g)) << g;
    EXPECT_EQ(meshes[g].first, "triangle");
  }
  for (const auto& [name, kind] : meshes)
    if (kind.first == "triangle") triangles += kind.second;
  EXPECT_EQ(triangles, static_cast<int>(m.triangles.size()));
  for (int k = 1; k <= 20; ++k) {
    char g[12];
    std::snprintf(g, sizeof g, "chine%02d", k);
    ASSERT_TRUE(meshes.count(g)) << g;
    EXPECT_EQ(meshes[g].first, "line");
  }
  ASSERT_TRUE(meshes.count("sheer"));
  EXPECT_EQ(meshes["sheer"].first, "line");
  EXPECT_GE(meshes["sheer"].second, 2 * 80);  // both sides, a segment between points
}

}  // namespace
}  // namespace tolmar
