// Stability on the 20-plank hull: the righting-arm curve of 37 angles
// (0 to 180 by 5) with free trim (target under 200 ms), the same with its
// marks (GM, largest arm, vanishing and deck-edge angles, areas), and the
// upright curves at 20 drafts (target under 50 ms).  The hull's mass
// budget gives the displacement and the centre of gravity.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "stability/gz_curve.h"
#include "stability/stability_run.h"
#include "stability/upright_curves.h"

namespace {

using namespace tolmar::stability;

struct Case {
  HydroMesh mesh;
  Loading load;
};

const Case& twentyPlanks() {
  static const Case c = [] {
    const auto budget = withMassBudget(*tolmar::fixture::manyLineHull());
    StabilityOptions o;
    o.toDeg = 0;  // the loading only
    o.fromDeg = 0;
    o.stepDeg = 1;
    const StabilityResult r = runStability(*budget, o, 1);
    return Case{hullHydroMesh(*budget), r.load};
  }();
  return c;
}

void BM_GzCurve37Angles20Planks(benchmark::State& state) {
  const Case& c = twentyPlanks();
  const std::vector<double> angles = heelAngles(0, 180, 5);
  for (auto _ : state) benchmark::DoNotOptimize(gzCurve(c.mesh, c.load, angles));
  state.counters["triangles"] = static_cast<double>(c.mesh.triangles.size());
  int floating = 0;
  for (const GzPoint& p : gzCurve(c.mesh, c.load, angles)) floating += p.floats ? 1 : 0;
  state.counters["floating"] = floating;
}
BENCHMARK(BM_GzCurve37Angles20Planks)->Unit(benchmark::kMillisecond);

void BM_GzCurveAndMarks20Planks(benchmark::State& state) {
  const Case& c = twentyPlanks();
  const std::vector<double> angles = heelAngles(0, 180, 5);
  for (auto _ : state) {
    const std::vector<GzPoint> curve = gzCurve(c.mesh, c.load, angles);
    benchmark::DoNotOptimize(summarize(c.mesh, c.load, curve));
  }
}
BENCHMARK(BM_GzCurveAndMarks20Planks)->Unit(benchmark::kMillisecond);

void BM_UprightCurves20Drafts20Planks(benchmark::State& state) {
  const Case& c = twentyPlanks();
  const double step = (c.mesh.curveTop - c.mesh.low.z) / 20;
  for (auto _ : state) benchmark::DoNotOptimize(uprightCurves(c.mesh, step, 1.025));
  state.counters["rows"] = static_cast<double>(uprightCurves(c.mesh, step, 1.025).size());
}
BENCHMARK(BM_UprightCurves20Drafts20Planks)->Unit(benchmark::kMillisecond);

}  // namespace
