// Stability on the program's own hulls: the mesh cut upright agrees with
// the hydrostatics' section integration when both count the same body
// (points 1..81), the mass budget's centre of gravity, a whole run on the
// default hull, and the hulls and inputs that are refused.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "analysis/hydro_solver.h"
#include "development/hull_fixture.h"
#include "hull/fold_check.h"
#include "stability/hydro_mesh.h"
#include "stability/immersion.h"
#include "stability/mass_centre.h"
#include "stability/stability_run.h"
#include "surface/hull_mesh.h"

namespace tolmar::stability {
namespace {

std::unique_ptr<HullStore> hullNamed(const std::string& name) {
  if (name == "default") return fixture::defaultHull();
  if (name == "pram") return fixture::pramBowHull();
  return fixture::manyLineHull();
}

class TestHull : public ::testing::TestWithParam<std::string> {};

TEST_P(TestHull, UprightAgreesWithTheSectionIntegrationOverTheSameSpan) {
  const auto h = hullNamed(GetParam());
  ASSERT_FALSE(checkFolds(*h).folded());
  // Points 1..81: the body the sections count, without the overhangs of
  // transom and stem beyond X = 0 and X = xFwd(0).
  const HydroMesh span = hydroMeshOf(buildHullMesh(*h, MeshSpan{1, 81}), {});
  const HydroMesh whole = hullHydroMesh(*h);
  for (double part : {0.25, 0.5, 0.8}) {
    const double zWL = whole.low.z + part * (whole.curveTop - whole.low.z);
    SCOPED_TRACE(zWL);
    const HydroResult sections = hydroAtWaterline(*h, zWL, 0);
    const ImmersedBody mesh = immerse(span, frameAt(0, 0), zWL);
    ASSERT_GT(sections.volume(), 0);
    EXPECT_NEAR(mesh.volume / sections.volume(), 1, 0.005);
    EXPECT_NEAR(mesh.buoyancy.x, sections.state.xDisp, 0.005);
    EXPECT_NEAR(mesh.buoyancy.z, sections.state.zDisp, 0.005);
    EXPECT_NEAR(mesh.plane.area / sections.waterplaneArea(), 1, 0.005);
    // The whole hull holds the overhangs as well.
    EXPECT_GE(immerse(whole, frameAt(0, 0), zWL).volume, mesh.volume);
  }
}

INSTANTIATE_TEST_SUITE_P(Hulls, TestHull, ::testing::Values("default", "pram", "twenty"));

TEST(HullStability, DefaultHullWithItsMassBudget) {
  const auto h = fixture::defaultHull();
  const auto budget = withMassBudget(*h);
  EXPECT_EQ(h->totalMass, 0);  // the user's store is left as it was
  ASSERT_GT(budget->totalMass, 0);
  StabilityOptions o;
  o.crewKg = 80;
  const StabilityResult r = runStability(*budget, o, 1);
  ASSERT_TRUE(r.ok()) << r.error;
  EXPECT_EQ(r.volumeFrom, GSource::massBudget);
  EXPECT_EQ(r.kgFrom, GSource::massBudget);
  EXPECT_NEAR(r.load.volume, budget->totalMass / 1000, 1e-12);
  EXPECT_DOUBLE_EQ(r.lcg, budget->xMass);
  EXPECT_GT(r.kg, 0);
  EXPECT_LT(r.kg, r.sheerTop);
  ASSERT_EQ(r.gz.size(), 37u);
  ASSERT_TRUE(r.summary.gm);
  EXPECT_GT(*r.summary.gm, 0);
  // A small arm's slope at the origin is GM (per radian).
  EXPECT_NEAR(r.gz[1].gz / (5 * 3.141592653589793 / 180), *r.summary.gm, 0.1 * *r.summary.gm);
  ASSERT_TRUE(r.crewAsked);
  // Default distance: the half beam at the sheer at LCG.
  EXPECT_NEAR(r.crewY, sheerHalfBeamAt(hullHydroMesh(*budget), r.lcg), 1e-12);
  EXPECT_GT(r.crewY, 0.3);
  for (const GzPoint& p : r.gz)
    for (double v : {p.gz, p.moment, p.pitch, p.draft, p.freeboard}) EXPECT_TRUE(std::isfinite(v));
  EXPECT_EQ(r.curves.back().draft, r.curves.back().draft);
  for (const UprightRow& row : r.curves)
    for (double v : {row.volume, row.kb, row.bmt, row.bml, row.cb, row.cp, row.cm, row.cwp, row.mct,
                     row.wetted})
      EXPECT_TRUE(std::isfinite(v));
}

TEST(HullStability, MassBudgetHeights) {
  const auto budget = withMassBudget(*fixture::defaultHull());
  const HullMesh mesh = buildHullMesh(*budget);
  std::array<double, kEquipmentRows> equip;
  equip.fill(std::numeric_limits<double>::quiet_NaN());
  const MassCentre plates = massCentre(*budget, mesh, equip);
  ASSERT_GT(plates.mass, 0);
  for (const MassItem& i : plates.items) {
    if (i.plank < 0) continue;
    // A plank's centre lies between the lowest and highest points of its two lines.
    double lo = 1e9, hi = -1e9;
    for (int line : {i.plank, i.plank + 1})
      for (int p = 0; p <= kLastPoint; ++p) {
        lo = std::min(lo, budget->lineZ(line, p));
        hi = std::max(hi, budget->lineZ(line, p));
      }
    EXPECT_GT(i.z, lo) << i.plank;
    EXPECT_LT(i.z, hi) << i.plank;
  }
  // An engine of 30 kg: on the keel at its X unless lifted; lifting it by
  // 0.4 m lifts G by 30 x 0.4 / total.
  budget->equipMass(1) = 30;
  budget->equipX(1) = 1.5;
  const MassCentre low = massCentre(*budget, mesh, equip);
  EXPECT_NEAR(low.items.back().z, keelZAt(*budget, 1.5), 1e-12);
  equip[0] = low.items.back().z + 0.4;
  const MassCentre high = massCentre(*budget, mesh, equip);
  EXPECT_NEAR(high.z - low.z, 30 * 0.4 / high.mass, 1e-12);
}

TEST(HullStability, RefusedWithASentence) {
  const auto budget = withMassBudget(*fixture::defaultHull());
  const HydroMesh m = hullHydroMesh(*budget);
  auto error = [&](StabilityOptions o) { return runStability(*budget, o, 1).error; };
  StabilityOptions o;
  o.volume = 0;
  EXPECT_EQ(error(o), "The displacement must be above 0.");
  o.volume = m.volume * 1.01;
  EXPECT_NE(error(o).find("The hull sinks"), std::string::npos);
  o.volume = 0.3;
  o.kg = 5;
  EXPECT_NE(error(o).find("above the sheer"), std::string::npos);
  o.kg = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(error(o), "One of the values given is not a number.");
  o.kg = 0.2;
  o.stepDeg = 0;
  EXPECT_NE(error(o).find("Heel angles"), std::string::npos);
  o.stepDeg = 5;
  o.toDeg = 200;
  EXPECT_NE(error(o).find("Heel angles"), std::string::npos);
  o.toDeg = 180;
  o.crewKg = -1;
  EXPECT_NE(error(o).find("crew"), std::string::npos);
  o.crewKg.reset();
  EXPECT_EQ(runStability(*budget, o, 0).error, "");

  // A hull whose first plank folds under line 1 is refused with the fold
  // check's own sentence.
  auto folded = fixture::foldedHull();
  const FoldReport report = checkFolds(*folded);
  ASSERT_TRUE(report.folded());
  EXPECT_EQ(runStability(*withMassBudget(*folded), StabilityOptions{}, 1).error, report.message(1));
}

}  // namespace
}  // namespace tolmar::stability
