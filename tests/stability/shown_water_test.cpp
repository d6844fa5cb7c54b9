// The water the 3-D view shows: the store's last waterline read back as
// the height the hydrostatics floated the hull at, nothing before any
// result, and the heeled water of a box, whose level turns about the
// upright waterline's centre while the waterline stays on the sides.
#include "stability/shown_water.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "analysis/hydro_solver.h"
#include "development/hull_fixture.h"
#include "shape_meshes.h"
#include "stability/vec3_ops.h"

namespace tolmar::stability {
namespace {

constexpr double kDeg = 3.14159265358979323846 / 180;

TEST(ShownWater, TheStoresWaterlineGivesBackTheHeightItWasFloatedAt) {
  auto h = fixture::defaultHull();
  EXPECT_FALSE(lastWaterHeight(*h)) << "no hydrostatic result yet";
  const HydroMesh m = hullHydroMesh(*h);
  EXPECT_FALSE(shownWater(*h, m, 0));
  const double zWL = m.low.z + 0.3 * (m.curveTop - m.low.z);
  hydroAtWaterline(*h, zWL, 0).state.storeInto(*h);
  ASSERT_TRUE(lastWaterHeight(*h));
  EXPECT_NEAR(*lastWaterHeight(*h), zWL, 1e-9);
  const auto upright = shownWater(*h, m, 0);
  ASSERT_TRUE(upright);
  EXPECT_NEAR(upright->level, zWL, 1e-9);
  for (const Vec3& c : upright->corners) EXPECT_NEAR(c.z, zWL, 1e-9);

  // Trimmed by the solver: the plane still passes within a few millimetres
  // of every wet section's water.
  auto trimmed = fixture::defaultHull();
  const HydroResult r = hydroForDisplacement(
      *trimmed, 0.6 * hydroAtWaterline(*trimmed, zWL, 0).volume(), 0.4 * m.high.x, zWL, 0);
  r.state.storeInto(*trimmed);
  ASSERT_TRUE(lastWaterHeight(*trimmed));
  for (int i = 1; i < kLastPoint; ++i) {
    if (!(trimmed->sectArea(i) > 0)) continue;
    EXPECT_NEAR(*lastWaterHeight(*trimmed) + std::tan(trimmed->pitch) * trimmed->wlX(i),
                trimmed->wlZ(i), 0.005);
  }

  // A value that is not finite is no result.
  trimmed->wlZ(40) = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(lastWaterHeight(*trimmed));
}

TEST(ShownWater, AHeeledBoxKeepsItsVolumeAboutTheUprightWaterlinesCentre) {
  // 10 x 4 x 2 m, floating 0.8 m deep: 32 m3.  Heeled while the water
  // stays on the sides (to 20 degrees it rises and falls 2 tan 20 = 0.73 m
  // of the 0.8), the wedge that comes out equals the one that goes in, so
  // the plane turns about (y 0, z 0.8).
  const HydroMesh m = fileHydroMesh(test::boxMesh(10, 4, 2));
  HullStore h;
  for (int i = 1; i <= 81; ++i) {
    h.wlX(i) = (i - 1) * 0.125;
    h.wlZ(i) = 0.8;
    h.sectArea(i) = 3.2;
  }
  for (const double heel : {0.0, 10.0, -10.0, 20.0}) {
    SCOPED_TRACE(heel);
    const auto w = shownWater(h, m, heel);
    ASSERT_TRUE(w);
    EXPECT_NEAR(w->volume, 32, 1e-9);
    EXPECT_NEAR(w->level, 0.8 * std::cos(heel * kDeg), 1e-6);
    // Starboard (Y > 0) down for a positive heel: the water up there.
    EXPECT_NEAR(w->frame.up.y, -std::sin(heel * kDeg), 1e-12);
    for (const Vec3& c : w->corners) EXPECT_NEAR(dot(w->frame.up, c), w->level, 1e-9);
    // The rectangle reaches past both ends and both sides.
    double lo = 1e9, hi = -1e9, left = 1e9, right = -1e9;
    for (const Vec3& c : w->corners) {
      lo = std::min(lo, c.x), hi = std::max(hi, c.x);
      left = std::min(left, c.y), right = std::max(right, c.y);
    }
    EXPECT_LT(lo, 0);
    EXPECT_GT(hi, 10);
    EXPECT_LT(left, -2);
    EXPECT_GT(right, 2);
  }
  // A box floated past its deck cannot show heeled water.
  for (int i = 1; i <= 81; ++i) h.wlZ(i) = 2.5;
  EXPECT_FALSE(shownWater(h, m, 10));
}

}  // namespace
}  // namespace tolmar::stability
