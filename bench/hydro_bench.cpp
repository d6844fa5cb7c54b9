// The hydrostatic solver on the default hull, floated at the displacement
// and trimmed to the centre of mass of its default mass budget; and the
// solver's worst case, 30 outer passes of 31 integration passes, as that
// many passes of the default hull.
#include <benchmark/benchmark.h>

#include "../tests/analysis/default_hull.h"
#include "analysis/hydro_solver.h"
#include "analysis/mass_screen.h"
#include "hull/angle_constants.h"

namespace {

std::unique_ptr<tolmar::HullStore> budgetedDefaultHull() {
  auto h = tolmar::shapes::validatedDefaultHull();
  tolmar::analysis::Mass1 mass;
  tolmar::analysis::loadMass(mass, *h);
  tolmar::analysis::massActivated(mass, *h);
  h->dispTarget = h->totalMass / 1000;
  return h;
}

void BM_SolverDefaultHullMassBudget(benchmark::State& state) {
  auto h = budgetedDefaultHull();
  tolmar::HydroOutcome o;
  for (auto _ : state) {
    h->pitch = 0;
    o = tolmar::floatAtDisplacement(*h, h->xFwd(0) / 100);
    benchmark::DoNotOptimize(o.sums.V);
  }
  state.counters["outer"] = o.outerPasses;
  state.counters["counted"] = o.innerPasses;
  state.counters["V_m3"] = o.sums.V;
  state.counters["pitch_deg"] = h->pitch * 180 / tolmar::kPi;
}
BENCHMARK(BM_SolverDefaultHullMassBudget)->Unit(benchmark::kMicrosecond);

void BM_SolverWorstCasePasses(benchmark::State& state) {
  auto h = budgetedDefaultHull();
  for (auto _ : state) {
    double v = 0;
    for (int outer = 0; outer < tolmar::kSolverPasses; ++outer) {
      v += tolmar::integratePass(*h, 0.1, tolmar::LevelRef::firstChine, nullptr).V;
      tolmar::Immersion imm;
      for (int inner = 0; inner < tolmar::kSolverPasses; ++inner)
        v += tolmar::integratePass(*h, 0.1, tolmar::LevelRef::lastWaterline, &imm).V;
    }
    benchmark::DoNotOptimize(v);
  }
  state.counters["passes"] = tolmar::kSolverPasses * (tolmar::kSolverPasses + 1);
}
BENCHMARK(BM_SolverWorstCasePasses)->Unit(benchmark::kMillisecond);

}  // namespace
