// Meshes from STL files: binary and ASCII read back to the same solid,
// open, non-manifold, inside-out and non-STL files.
#include "stability/stl_mesh.h"

#include <gtest/gtest.h>

#include "shape_meshes.h"
#include "stability/mesh_check.h"
#include "stability/upright_curves.h"

namespace tolmar::stability {
namespace {

TEST(StlMesh, BinaryAndAsciiGiveTheSameSolid) {
  const HullMesh wigley = test::wigleyMesh(6, 0.8, 0.4, 0.2, 40, 20);
  for (bool binary : {true, false}) {
    const StlRead r = readStlBytes(test::stlBytes(wigley, binary), 1);
    ASSERT_TRUE(r.ok()) << r.error;
    EXPECT_EQ(r.mesh.triangles.size(), wigley.triangles.size());
    EXPECT_NEAR(r.mesh.volume(), wigley.volume(), 1e-6 * wigley.volume());
    const UprightRow a = uprightAt(fileHydroMesh(r.mesh), 0.4, 1.0);
    const UprightRow b = uprightAt(fileHydroMesh(wigley), 0.4, 1.0);
    EXPECT_NEAR(a.kb, b.kb, 1e-6);
    EXPECT_NEAR(a.bmt, b.bmt, 1e-6);
  }
}

TEST(StlMesh, InsideOutIsTurnedOutward) {
  HullMesh box = test::boxMesh(2, 1, 1);
  for (auto& t : box.triangles) std::swap(t[1], t[2]);
  const StlRead r = readStlBytes(test::stlBytes(box, true), 1);
  ASSERT_TRUE(r.ok()) << r.error;
  EXPECT_NEAR(r.mesh.volume(), 2, 1e-12);
}

TEST(StlMesh, RefusedWithASentence) {
  HullMesh open = test::boxMesh(2, 1, 1);
  open.triangles.pop_back();
  open.tags.pop_back();
  EXPECT_EQ(readStlBytes(test::stlBytes(open, true), 1).error,
            "The mesh is open: 3 edges have one triangle only. A closed surface is needed.");

  // Two boxes sharing an edge: four triangles on it.
  HullMesh two = test::boxMesh(1, 1, 1);
  const HullMesh other = test::boxMesh(1, 1, 1);
  const int base = static_cast<int>(two.vertices.size());
  for (const Vec3& p : other.vertices) two.vertices.push_back({p.x + 1, p.y + 1, p.z});
  for (const auto& t : other.triangles)
    two.triangles.push_back({t[0] + base, t[1] + base, t[2] + base});
  two.tags.resize(two.triangles.size());
  EXPECT_NE(readStlBytes(test::stlBytes(two, false), 1).error.find("not manifold"),
            std::string::npos);

  HullMesh turned = test::boxMesh(2, 1, 1);
  std::swap(turned.triangles[0][1], turned.triangles[0][2]);
  EXPECT_NE(readStlBytes(test::stlBytes(turned, true), 0).error.find("même sens"),
            std::string::npos);

  EXPECT_EQ(readStlBytes("P3\n2 2\n255\n", 1).error,
            "This file is not an STL file (neither ASCII nor binary).");
  EXPECT_EQ(readStlBytes("", 1).error, "This file is not an STL file (neither ASCII nor binary).");
  EXPECT_EQ(readStlBytes("solid nothing\nendsolid nothing\n", 1).error,
            "The mesh has no triangle.");
  EXPECT_NE(readStlMesh("/nonexistent/hull.stl", 1).error.find("Cannot read"), std::string::npos);
}

}  // namespace
}  // namespace tolmar::stability
