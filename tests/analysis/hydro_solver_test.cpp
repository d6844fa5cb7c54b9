// Mode 1 against volumes, waterplanes and centres computed by hand, and the
// solver of mode 0 against the displacement it is asked for.
#include "analysis/hydro_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "shape_hulls.h"

namespace tolmar {
namespace {

bool finiteTables(const HullStore& h) {
  for (int i = 0; i <= kLastPoint; ++i)
    for (double v :
         {h.wlX(i), h.wlY(i), h.wlZ(i), h.sectArea(i), h.sectX(i), h.sectY(i), h.sectZ(i)})
      if (!std::isfinite(v)) return false;
  return std::isfinite(h.pitch) && std::isfinite(h.xDisp) && std::isfinite(h.zDisp);
}

// Box 4 x 1 (half breadth 0.5) x 1: V = 4 z, Aw = 4, centre (2, 0, z/2).
TEST(FloatAtWaterline, BoxByHand) {
  for (double z : {0.1, 0.25, 0.6, 0.999}) {
    auto h = shapes::boxHull(4, 0.5, 1);
    const HydroOutcome o = floatAtWaterline(*h, z);
    storeCentres(*h, o.sums);
    EXPECT_NEAR(o.sums.V, 4 * z, 1e-12) << z;
    EXPECT_NEAR(o.sums.Aw, 4, 1e-12) << z;
    EXPECT_NEAR(h->xDisp, 2, 1e-12) << z;
    EXPECT_EQ(h->yDisp, 0);
    EXPECT_NEAR(h->zDisp, z / 2, 1e-12) << z;
    EXPECT_EQ(o.immersion.immersedChine, 1);
    EXPECT_FALSE(o.immersion.allImmersed);
  }
}

// Wedge: half breadth 0.5 z / 0.2 under the chine, so V = L b z^2 / rise,
// Aw = 2 L b z / rise, zDisp = 2z/3.
TEST(FloatAtWaterline, WedgeByHand) {
  auto h = shapes::wedgeHull(4, 0.5, 0.2, 1);
  const double z = 0.12;
  const HydroOutcome o = floatAtWaterline(*h, z);
  storeCentres(*h, o.sums);
  EXPECT_NEAR(o.sums.V, 4 * 0.5 * z * z / 0.2, 1e-12);
  EXPECT_NEAR(o.sums.Aw, 2 * 4 * 0.5 * z / 0.2, 1e-12);
  EXPECT_NEAR(h->xDisp, 2, 1e-12);
  EXPECT_NEAR(h->zDisp, 2 * z / 3, 1e-12);
  EXPECT_EQ(o.immersion.immersedChine, 0);
}

// Tapered plan, half breadth 0.3 aft to 0.6 forward: the longitudinal
// centre is the centroid of the trapezium, within the step of the stations.
TEST(FloatAtWaterline, TaperedBoxCentre) {
  auto h = shapes::taperedBox(4, 0.3, 0.6, 1);
  const double z = 0.2, L = 4, b0 = 0.3, b1 = 0.6;
  const HydroOutcome o = floatAtWaterline(*h, z);
  storeCentres(*h, o.sums);
  EXPECT_NEAR(o.sums.V, z * L * (b0 + b1), 1e-12);
  EXPECT_NEAR(o.sums.Aw, L * (b0 + b1), 1e-12);
  const double xc = L * (b0 / 2 + (b1 - b0) / 3) / (b0 + (b1 - b0) / 2);
  EXPECT_NEAR(h->xDisp, xc, 1e-4);
}

// Pitch raises the level forward: on the box V = 2b (z0 L + tan(p) L^2/2).
TEST(FloatAtWaterline, PitchedLevel) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->pitch = 0.05;
  const HydroOutcome o = floatAtWaterline(*h, 0.2);
  EXPECT_NEAR(o.sums.V, 0.2 * 4 + std::tan(0.05) * 8, 1e-12);
  EXPECT_NEAR(h->wlZ(kLastPoint), 0.2 + std::tan(0.05) * 4, 1e-12);
  EXPECT_NEAR(h->wlZ(0), 0.2, 1e-12);
}

// The water over the sheer everywhere: the full volume, no waterplane.
TEST(FloatAtWaterline, OverTheDeck) {
  auto h = shapes::boxHull(4, 0.5, 1);
  const HydroOutcome o = floatAtWaterline(*h, 1.5);
  EXPECT_NEAR(o.sums.V, 4, 1e-12);
  EXPECT_EQ(o.sums.Aw, 0);
  EXPECT_TRUE(o.immersion.allImmersed);
  EXPECT_EQ(o.immersion.immersedChine, 2);
}

struct Target {
  double disp;
  double zByHand;
};

TEST(FloatAtDisplacement, BoxFloatsAtTheAskedDisplacement) {
  for (const Target t : {Target{0.4, 0.1}, Target{1.0, 0.25}, Target{2.6, 0.65}}) {
    auto h = shapes::boxHull(4, 0.5, 1);
    h->dispTarget = t.disp;
    const HydroOutcome o = floatAtDisplacement(*h, 0.04);
    EXPECT_LT(std::fabs(o.sums.V - t.disp), kDispTolerance) << t.disp;
    EXPECT_NEAR(o.zWL, t.zByHand, kDispTolerance / 4) << t.disp;
    EXPECT_EQ(o.outerPasses, 1);  // no centre of mass: the pitch stays
    EXPECT_EQ(h->pitch, 0);
    EXPECT_LE(o.innerPasses, kSolverPasses);
  }
}

TEST(FloatAtDisplacement, WedgeFloatsAtTheAskedDisplacement) {
  auto h = shapes::wedgeHull(4, 0.5, 0.2, 1);
  h->dispTarget = 0.3;
  const HydroOutcome o = floatAtDisplacement(*h, 0.04);
  EXPECT_LT(std::fabs(o.sums.V - 0.3), kDispTolerance);
  EXPECT_NEAR(o.zWL, std::sqrt(0.3 * 0.2 / 2), 1e-4);  // still under the chine
}

// A centre of mass aft of the box's centre trims it bow up (negative
// pitch), forward of it bow down; either way it floats at the target with
// the centre of displacement over the mass.
TEST(FloatAtDisplacement, PitchSteersTowardsTheCentreOfMass) {
  for (double xMass : {1.8, 2.2}) {
    auto h = shapes::boxHull(4, 0.5, 1);
    h->dispTarget = 1.0;
    h->xMass = xMass;
    const HydroOutcome o = floatAtDisplacement(*h, 0.04);
    EXPECT_LT(o.outerPasses, kSolverPasses) << xMass;
    EXPECT_GT(o.outerPasses, 1) << xMass;
    EXPECT_LE(std::fabs(h->xDisp - xMass), 4 * 0.002) << xMass;
    EXPECT_EQ(h->pitch < 0, xMass < 2) << xMass;
    EXPECT_LT(std::fabs(o.sums.V - 1.0), kDispTolerance) << xMass;
  }
}

// The first pitch step is -0.03 (bow up) or, after its change of
// direction, +0.009.
TEST(FloatAtDisplacement, FirstPitchSteps) {
  for (auto [xMass, firstPitch] : {std::pair{1.8, -0.03}, std::pair{2.2, 0.009}}) {
    auto h = shapes::boxHull(4, 0.5, 1);
    h->dispTarget = 1.0;
    h->xMass = xMass;
    double pitchAfterFirst = 0;
    floatAtDisplacement(*h, 0.04, [&](double) {
      if (pitchAfterFirst == 0) pitchAfterFirst = h->pitch;  // 0 through the first outer pass
    });
    EXPECT_NEAR(pitchAfterFirst, firstPitch, 1e-15) << xMass;
  }
}

// A centre of mass within 0.2% of the length of the centre of displacement,
// or not forward of a tenth of the length: one outer pass, pitch as given.
TEST(FloatAtDisplacement, NoPitchStepNearOrWithoutAMass) {
  for (auto [xMass, pitch] :
       {std::pair{2.0 + 0.007, 0.0}, std::pair{0.0, 0.01}, std::pair{0.4, 0.01}}) {
    auto h = shapes::boxHull(4, 0.5, 1);
    h->dispTarget = 1.0;
    h->xMass = xMass;
    h->pitch = pitch;
    const HydroOutcome o = floatAtDisplacement(*h, 0.04);
    EXPECT_EQ(o.outerPasses, 1) << xMass;
    EXPECT_EQ(h->pitch, pitch) << xMass;
  }
}

// More than the hull can carry: the waterplane vanishes above the sheer and
// the inner loop stops there with the full volume and the deck under water.
TEST(FloatAtDisplacement, TargetBeyondTheHull) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->dispTarget = 10;
  const HydroOutcome o = floatAtDisplacement(*h, 0.04);
  EXPECT_NEAR(o.sums.V, 4, 1e-12);
  EXPECT_EQ(o.immersion.immersedChine, 2);
  EXPECT_GT(o.zWL, 1);
  EXPECT_TRUE(finiteTables(*h));
}

// A target of 0 drives the water down until the volume is within the
// tolerance of nothing.
TEST(FloatAtDisplacement, ZeroTarget) {
  auto h = shapes::wedgeHull(4, 0.5, 0.2, 1);
  h->dispTarget = 0;
  const HydroOutcome o = floatAtDisplacement(*h, 0.04);
  EXPECT_LT(o.sums.V, kDispTolerance);
  EXPECT_LT(o.zWL, 0.01);
  EXPECT_TRUE(finiteTables(*h));
}

// Water under the hull everywhere with a volume still to find: no
// waterplane ends the inner loop, and below 0 no line counts as wet.
TEST(FloatAtDisplacement, WaterUnderTheHull) {
  auto h = shapes::shapeHull(4, 2, [](int k, double) {
    return k == 0 ? shapes::YZ{0, 0.5} : k == 1 ? shapes::YZ{0.5, 0.5} : shapes::YZ{0.5, 1.5};
  });
  h->dispTarget = 0.0002;
  const HydroOutcome o = floatAtDisplacement(*h, -1);
  EXPECT_EQ(o.sums.V, 0);
  EXPECT_LT(o.zWL, 0);
  EXPECT_EQ(o.immersion.immersedChine, -1);
  EXPECT_EQ(o.innerPasses, 1);
}

// A hull of no length or no beam has no floor for the first step; the
// solver stands still and everything stays finite.
TEST(FloatAtDisplacement, DegenerateHullsStayFinite) {
  auto flat = shapes::boxHull(4, 0, 1);
  auto empty = std::make_unique<HullStore>();
  empty->nChines = 2;
  for (HullStore* h : {flat.get(), empty.get()}) {
    h->dispTarget = 1;
    h->xMass = 3;
    const HydroOutcome o = floatAtDisplacement(*h, 0.04);
    EXPECT_TRUE(std::isfinite(o.zWL));
    EXPECT_EQ(o.sums.V, 0);
    EXPECT_TRUE(finiteTables(*h));
  }
}

// The hook sees every counted pass, and only those.
TEST(FloatAtDisplacement, HookOncePerCountedPass) {
  auto h = shapes::boxHull(4, 0.5, 1);
  h->dispTarget = 1.0;
  h->xMass = 1.8;
  int calls = 0;
  const HydroOutcome o = floatAtDisplacement(*h, 0.04, [&](double) { ++calls; });
  EXPECT_EQ(calls, o.innerPasses);
  EXPECT_LE(o.innerPasses, kSolverPasses * o.outerPasses);
}

}  // namespace
}  // namespace tolmar
