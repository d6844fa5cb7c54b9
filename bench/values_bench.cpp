// The calculations that return values on a 21-line hull: every plate at
// once, the closed hull surface, and hydrostatics without the store.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "analysis/hydro_solver.h"
#include "development/developed_plate.h"
#include "surface/hull_mesh.h"

namespace {

void BM_DevelopAll21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  std::size_t plates = 0;
  for (auto _ : state) {
    const auto all = tolmar::developAll(*h);
    plates = all.size();
    benchmark::DoNotOptimize(all.data());
  }
  state.counters["plates"] = static_cast<double>(plates);
}
BENCHMARK(BM_DevelopAll21Lines)->Unit(benchmark::kMicrosecond);

void BM_HullMesh21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  std::size_t triangles = 0;
  for (auto _ : state) {
    const tolmar::HullMesh m = tolmar::buildHullMesh(*h);
    triangles = m.triangles.size();
    benchmark::DoNotOptimize(m.vertices.data());
  }
  state.counters["triangles"] = static_cast<double>(triangles);
}
BENCHMARK(BM_HullMesh21Lines)->Unit(benchmark::kMicrosecond);

void BM_WeldedHullMesh21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  const tolmar::HullMesh m = tolmar::buildHullMesh(*h);
  for (auto _ : state) {
    const tolmar::HullMesh w = tolmar::weldedMesh(m);
    benchmark::DoNotOptimize(w.vertices.data());
  }
}
BENCHMARK(BM_WeldedHullMesh21Lines)->Unit(benchmark::kMicrosecond);

void BM_HydroResultSolver21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  for (auto _ : state) {
    const tolmar::HydroResult r = tolmar::hydroForDisplacement(*h, 0.4, 2.5, 0.05, 0);
    benchmark::DoNotOptimize(r.outcome.sums.V);
  }
}
BENCHMARK(BM_HydroResultSolver21Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
