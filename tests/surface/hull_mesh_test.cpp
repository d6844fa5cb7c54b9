// The closed hull surface: closed and consistently turned on every test
// hull, its volume against the section integration of the hydrostatics,
// and exact answers on a box.
#include "surface/hull_mesh.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <utility>

#include "analysis/hydro_solver.h"
#include "analysis/shape_hulls.h"
#include "development/hull_fixture.h"

namespace tolmar {
namespace {

// Every directed edge once, and its reverse once: closed, two triangles to
// an edge, neighbours turning the same way.
::testing::AssertionResult closedAndOriented(const HullMesh& m) {
  std::map<std::pair<int, int>, int> directed;
  for (const auto& t : m.triangles)
    for (int e = 0; e < 3; ++e) ++directed[{t[e], t[(e + 1) % 3]}];
  for (const auto& [edge, count] : directed) {
    if (count != 1)
      return ::testing::AssertionFailure()
             << "edge " << edge.first << "-" << edge.second << " run " << count << " times";
    const auto back = directed.find({edge.second, edge.first});
    if (back == directed.end())
      return ::testing::AssertionFailure()
             << "edge " << edge.first << "-" << edge.second << " has no neighbour";
  }
  if (m.tags.size() != m.triangles.size()) return ::testing::AssertionFailure() << "tags";
  return ::testing::AssertionSuccess();
}

// Volume below the sheer by the hydrostatics' own section integration: the
// pass with the water above the whole hull.
double sectionVolume(const HullStore& h) {
  const HydroResult r = hydroAtWaterline(h, h.xFwd(0) * 10, 0);
  return r.volume();
}

struct Case {
  const char* name;
  std::unique_ptr<HullStore> (*make)();
};

class TestHulls : public ::testing::TestWithParam<Case> {};

TEST_P(TestHulls, ClosedOrientedAndOfTheSectionsVolume) {
  const auto h = GetParam().make();
  const HullStore before = *h;
  const HullMesh m = buildHullMesh(*h);
  EXPECT_EQ(*h, before);
  EXPECT_TRUE(closedAndOriented(m));
  const HullMesh w = weldedMesh(m);
  EXPECT_TRUE(closedAndOriented(w));
  EXPECT_LT(w.vertices.size(), m.vertices.size());  // the keel at least is shared

  // The sections span X = 0 to xFwd(0), points 1 to 81; the overhang of
  // the raked transom and stem beyond them is the mesh's alone.
  const double v = sectionVolume(*h);
  ASSERT_GT(v, 0);
  const HullMesh body = buildHullMesh(*h, {1, 81});
  EXPECT_TRUE(closedAndOriented(body));
  EXPECT_NEAR(body.volume(), v, 0.005 * v);
  EXPECT_GT(m.volume(), body.volume());
  EXPECT_NEAR(w.volume(), m.volume(), 1e-12);
  // Symmetric about the centre plane.
  EXPECT_NEAR(m.volumeCentre().y, 0, 1e-9);
}

TEST_P(TestHulls, EveryPlateHasTrianglesOnBothSides) {
  const auto h = GetParam().make();
  const HullMesh m = buildHullMesh(*h);
  std::map<std::pair<int, int>, int> planks;  // (index, side)
  int transom = 0, lid = 0;
  for (const MeshTag& t : m.tags) {
    if (t.part == SurfacePart::plank) ++planks[{t.index, t.side}];
    if (t.part == SurfacePart::transom) ++transom;
    if (t.part == SurfacePart::lid) ++lid;
  }
  EXPECT_EQ(planks.size(), static_cast<std::size_t>(2 * (h->nChines - 1)));
  EXPECT_GT(transom, 0);
  EXPECT_EQ(lid, 2 * kLastPoint);
}

INSTANTIATE_TEST_SUITE_P(Hulls, TestHulls,
                         ::testing::Values(Case{"Default", fixture::defaultHull},
                                           Case{"PramBow", fixture::pramBowHull},
                                           Case{"TwoLines", fixture::twoLineHull},
                                           Case{"TwentyPlanks", fixture::manyLineHull}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(BoxMesh, ExactVolumeCentreAndArea) {
  const double L = 4, b = 0.5, d = 1;
  const auto h = shapes::boxHull(L, b, d);
  const HullMesh m = buildHullMesh(*h);
  EXPECT_TRUE(closedAndOriented(m));
  EXPECT_NEAR(m.volume(), L * 2 * b * d, 1e-12);
  const Vec3 c = m.volumeCentre();
  EXPECT_NEAR(c.x, L / 2, 1e-12);
  EXPECT_NEAR(c.y, 0, 1e-12);
  EXPECT_NEAR(c.z, d / 2, 1e-12);
  EXPECT_NEAR(m.surfaceArea(), 2 * (L * 2 * b + L * d + 2 * b * d), 1e-12);
  EXPECT_EQ(m.low(), (Vec3{0, -b, 0}));
  EXPECT_EQ(m.high(), (Vec3{L, b, d}));
}

TEST(BoxMesh, TaperedBoxIsAFrustumOfKnownVolume) {
  // Half breadth 0.3 aft to 0.6 forward, linear: the mean breadth times
  // length and depth.
  const auto h = shapes::taperedBox(5, 0.3, 0.6, 0.8);
  const HullMesh m = buildHullMesh(*h);
  EXPECT_NEAR(m.volume(), 5 * (0.3 + 0.6) * 0.8, 1e-12);
  // Centroid of a trapezoid of parallel sides 0.6 and 1.2 over length 5.
  EXPECT_NEAR(m.volumeCentre().x, 5 * (0.6 + 2 * 1.2) / (3 * (0.6 + 1.2)), 1e-12);
}

TEST(HullMeshDegenerate, AnEmptyStoreGivesAFiniteFlatMesh) {
  HullStore h;
  const HullMesh m = buildHullMesh(h);
  EXPECT_TRUE(closedAndOriented(m));
  EXPECT_EQ(m.volume(), 0);
  for (const Vec3& p : m.vertices) EXPECT_TRUE(std::isfinite(p.x + p.y + p.z));
  EXPECT_TRUE(weldedMesh(m).triangles.empty());
}

}  // namespace
}  // namespace tolmar
