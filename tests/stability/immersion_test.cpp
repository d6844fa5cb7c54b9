// The water cutting closed meshes of known shape: a box gives its exact
// waterplane and volume at any level, upright and heeled; a V-shaped prism
// its KB and BM; a fine Wigley hull the published coefficients.
#include "stability/immersion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "shape_meshes.h"
#include "stability/float_solver.h"
#include "stability/mesh_check.h"
#include "stability/upright_curves.h"

namespace tolmar::stability {
namespace {

constexpr double kDeg = std::numbers::pi / 180;

TEST(Immersion, BoxGivesItsExactWaterplaneAtEveryDraft) {
  const double L = 6, B = 2.4, D = 1.2;
  const HydroMesh m = fileHydroMesh(test::boxMesh(L, B, D));
  for (double T : {0.05, 0.3, 0.6, 1.1, D}) {
    const ImmersedBody b = immerse(m, frameAt(0, 0), T);
    SCOPED_TRACE(T);
    EXPECT_NEAR(b.volume, L * B * T, 1e-12);
    EXPECT_NEAR(b.buoyancy.x, L / 2, 1e-12);
    EXPECT_NEAR(b.buoyancy.y, 0, 1e-12);
    EXPECT_NEAR(b.buoyancy.z, T / 2, 1e-12);
    EXPECT_NEAR(b.plane.area, L * B, 1e-12);
    EXPECT_NEAR(b.plane.centre.x, L / 2, 1e-12);
    EXPECT_NEAR(b.plane.centre.y, 0, 1e-12);
    EXPECT_NEAR(b.plane.iAlong, L * B * B * B / 12, 1e-11);
    EXPECT_NEAR(b.plane.iAcross, B * L * L * L / 12, 1e-10);
    EXPECT_NEAR(b.plane.length, L, 1e-12);
    EXPECT_NEAR(b.plane.breadth, B, 1e-12);
    // Bottom and the sides up to the water; at the top the deck is dry.
    EXPECT_NEAR(b.wetted, L * B + 2 * (L + B) * T, 1e-11);
    EXPECT_NEAR(b.depth, T, 1e-12);
    EXPECT_NEAR(b.freeboard, D - T, 1e-12);
  }
}

TEST(Immersion, HeeledBoxBeforeTheDeckEdgeIsWallSided) {
  // Heeled 10 degrees at a level through the middle of the waterline: the
  // volume is that of the upright box, and B moves by (B^2 tan / 12T) across.
  const double L = 5, B = 2, T = 0.5;
  const HydroMesh m = fileHydroMesh(test::boxMesh(L, B, 1.5));
  const double phi = 10 * kDeg;
  const Frame f = frameAt(phi, 0);
  const ImmersedBody b = immerse(m, f, std::cos(phi) * T);  // the plane through (., 0, T)
  EXPECT_NEAR(b.volume, L * B * T, 1e-12);
  const double t = std::tan(phi);
  EXPECT_NEAR(b.buoyancy.y, B * B * t / (12 * T), 1e-12);
  EXPECT_NEAR(b.buoyancy.z, T / 2 + B * B * t * t / (24 * T), 1e-12);
  EXPECT_NEAR(b.plane.area, L * B / std::cos(phi), 1e-12);
  EXPECT_NEAR(b.plane.breadth, B / std::cos(phi), 1e-12);
}

TEST(Immersion, NothingOrEverythingUnderWaterHasNoNaN) {
  const HydroMesh m = fileHydroMesh(test::boxMesh(2, 1, 1));
  for (double heel : {0.0, 33.0, 90.0, 180.0}) {
    const Frame f = frameAt(heel * kDeg, 0.1);
    const LevelRange r = levelRange(m, f.up);
    const ImmersedBody dry = immerse(m, f, r.low - 1);
    const ImmersedBody wet = immerse(m, f, r.high + 1);
    EXPECT_EQ(dry.volume, 0);
    EXPECT_EQ(dry.plane.area, 0);
    EXPECT_NEAR(wet.volume, 2, 1e-12);
    EXPECT_EQ(wet.plane.area, 0);
    for (const ImmersedBody& b : {dry, wet})
      for (double v : {b.buoyancy.x, b.buoyancy.y, b.buoyancy.z, b.plane.centre.x, b.wetted,
                       b.depth, b.freeboard})
        EXPECT_TRUE(std::isfinite(v));
  }
  EXPECT_FALSE(floatVolume(m, frameAt(0, 0), 0, NAN));
  EXPECT_FALSE(floatVolume(m, frameAt(0, 0), 2, NAN));  // it sinks
  EXPECT_FALSE(floatVolume(m, frameAt(0, 0), NAN, NAN));
}

TEST(Immersion, VPrismKbAndBm) {
  // Apex down, half breadth 1 at height 2: at draft T the half breadth is
  // b = T / 2, KB = 2T/3 and BM = 2 b^2 / 3T.
  const HydroMesh m = fileHydroMesh(test::prismMesh(8, 1, 2));
  for (double T : {0.2, 0.75, 1.5, 1.9}) {
    const UprightRow r = uprightAt(m, T, 1.0);
    const double b = T / 2;
    SCOPED_TRACE(T);
    EXPECT_NEAR(r.kb, 2 * T / 3, 1e-12);
    EXPECT_NEAR(r.bmt, 2 * b * b / (3 * T), 1e-12);
    EXPECT_NEAR(r.volume, 8 * b * T, 1e-12);
    EXPECT_NEAR(r.cb, 0.5, 1e-12);
    EXPECT_NEAR(r.cm, 0.5, 1e-12);
    EXPECT_NEAR(r.cwp, 1.0, 1e-12);
    EXPECT_NEAR(r.tpc, 8 * 2 * b / 100, 1e-12);
  }
}

TEST(Immersion, WigleyHullCoefficients) {
  // y = B/2 (1 - (2x/L)^2)(1 - (z/T)^2): Cb = 4/9, Cwp = Cm = Cp = 2/3,
  // KB = 5T/8, BMt = 3 B^2 / 35 T.
  const double L = 10, B = 1, T = 0.625;
  const HullMesh mesh = test::wigleyMesh(L, B, T, 0.3, 200, 100);
  ASSERT_TRUE(checkClosedMesh(mesh).ok());
  const UprightRow r = uprightAt(fileHydroMesh(mesh), T, 1.025);
  auto near = [](double v, double expected) { EXPECT_NEAR(v / expected, 1, 0.005) << v; };
  near(r.cb, 4.0 / 9);
  near(r.cwp, 2.0 / 3);
  near(r.cm, 2.0 / 3);
  near(r.cp, 2.0 / 3);
  near(r.kb, 5 * T / 8);
  near(r.bmt, 3 * B * B / (35 * T));
  near(r.volume, 4.0 / 9 * L * B * T);
  near(r.displacement, 1.025 * 4.0 / 9 * L * B * T);
  EXPECT_NEAR(r.lcb, 0, 1e-9);
  EXPECT_NEAR(r.lcf, 0, 1e-9);
}

TEST(Immersion, CurvesRunFromTheKeelToTheTop) {
  const HydroMesh m = fileHydroMesh(test::boxMesh(4, 2, 1));
  const std::vector<double> d = curveDrafts(m, 0.3);
  ASSERT_EQ(d.size(), 4u);
  EXPECT_DOUBLE_EQ(d[2], 0.9);
  EXPECT_DOUBLE_EQ(d.back(), 1.0);
  EXPECT_TRUE(curveDrafts(m, 0).empty());
  EXPECT_TRUE(curveDrafts(m, -1).empty());
  EXPECT_TRUE(curveDrafts(m, 1e-7).empty());  // too many rows
  const UprightRow top = uprightAt(m, 1.0, 1.0);
  EXPECT_NEAR(top.waterplane, 8, 1e-12);  // the deck itself is the waterplane
  EXPECT_NEAR(top.mct, 1.0 * 2 * 64 / 12 / (100 * 4), 1e-12);
}

}  // namespace
}  // namespace tolmar::stability
