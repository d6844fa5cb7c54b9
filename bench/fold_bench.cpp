// The fold check after a validation, on 21 lines: the sound 20-plank hull
// of the geometry benchmarks, and 20 planks from 20 to 115 degrees whose
// first plank folds under line 1.  Target: under 1 ms.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "../tests/hull/hull_fixtures.h"
#include "hull/fold_check.h"

namespace {

void BM_CheckFoldsSound21(benchmark::State& state) {
  const tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  for (auto _ : state) benchmark::DoNotOptimize(tolmar::checkFolds(h));
  state.counters["stretches"] = static_cast<double>(tolmar::checkFolds(h).stretches.size());
}
BENCHMARK(BM_CheckFoldsSound21)->Unit(benchmark::kMicrosecond);

void BM_CheckFoldsFolded21(benchmark::State& state) {
  const auto h = tolmar::fixture::foldedHull();
  for (auto _ : state) benchmark::DoNotOptimize(tolmar::checkFolds(*h));
  state.counters["stretches"] = static_cast<double>(tolmar::checkFolds(*h).stretches.size());
}
BENCHMARK(BM_CheckFoldsFolded21)->Unit(benchmark::kMicrosecond);

}  // namespace
