// Hydrostatics as a value: the same numbers as the screens' calculation in
// the store, without touching the store, and the box's answers by hand.
#include <gtest/gtest.h>

#include "analysis/hydro_solver.h"
#include "analysis/shape_hulls.h"
#include "development/hull_fixture.h"

namespace tolmar {
namespace {

void expectSameState(const HydroState& a, const HullStore& h) {
  EXPECT_TRUE(a.wlX == h.wlX && a.wlY == h.wlY && a.wlZ == h.wlZ);
  EXPECT_TRUE(a.sectArea == h.sectArea && a.sectX == h.sectX && a.sectZ == h.sectZ);
  EXPECT_EQ(a.pitch, h.pitch);
  EXPECT_EQ(a.xDisp, h.xDisp);
  EXPECT_EQ(a.zDisp, h.zDisp);
}

TEST(HydroResult, WaterlineEqualsTheStoresPassAndLeavesTheStore) {
  const auto h = fixture::defaultHull();
  h->pitch = 0.01;
  const HullStore before = *h;
  const HydroResult r = hydroAtWaterline(*h, 0.12, 0.01);
  EXPECT_EQ(*h, before);

  HullStore s = *h;
  const HydroOutcome o = floatAtWaterline(s, 0.12);
  storeCentres(s, o.sums);
  expectSameState(r.state, s);
  EXPECT_EQ(r.volume(), o.sums.V);
  EXPECT_EQ(r.waterplaneArea(), o.sums.Aw);
  EXPECT_EQ(r.outcome.immersion.immersedChine, o.immersion.immersedChine);
}

TEST(HydroResult, DisplacementEqualsTheStoresSolverAndLeavesTheStore) {
  const auto h = fixture::manyLineHull();
  const HullStore before = *h;
  const HydroResult r = hydroForDisplacement(*h, 0.4, 2.5, 0.05, 0);
  EXPECT_EQ(*h, before);
  EXPECT_NEAR(r.volume(), 0.4, kDispTolerance);

  HullStore s = *h;
  s.dispTarget = 0.4;
  s.xMass = 2.5;
  s.pitch = 0;
  const HydroOutcome o = floatAtDisplacement(s, 0.05);
  expectSameState(r.state, s);
  EXPECT_EQ(r.outcome.zWL, o.zWL);
  EXPECT_EQ(r.outcome.outerPasses, o.outerPasses);
  EXPECT_EQ(r.outcome.innerPasses, o.innerPasses);
}

TEST(HydroResult, BoxByHand) {
  // 4 m by 1 m, floating 0.25 m deep: 1 m3, waterplane 4 m2, centre of
  // buoyancy at half the draft, mid-length.
  const auto h = shapes::boxHull(4, 0.5, 1);
  const HydroResult r = hydroAtWaterline(*h, 0.25, 0);
  EXPECT_NEAR(r.volume(), 1.0, 1e-12);
  EXPECT_NEAR(r.waterplaneArea(), 4.0, 1e-12);
  EXPECT_NEAR(r.state.xDisp, 2.0, 1e-12);
  EXPECT_NEAR(r.state.zDisp, 0.125, 1e-12);
}

}  // namespace
}  // namespace tolmar
