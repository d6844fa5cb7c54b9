// The whole development check of a 21-line hull (fold check, every plate
// developed, then measured and judged), and the measuring alone on plates
// developed already: the check window follows every redraw.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "devcheck/plate_check.h"

namespace {

void BM_DevelopmentCheck21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  std::size_t rows = 0;
  for (auto _ : state) {
    const tolmar::devcheck::CheckReport r = tolmar::devcheck::checkDevelopment(*h);
    rows = r.plates.size();
    benchmark::DoNotOptimize(r.plates.data());
  }
  state.counters["plates"] = static_cast<double>(rows);
}
BENCHMARK(BM_DevelopmentCheck21Lines)->Unit(benchmark::kMicrosecond);

void BM_DevelopmentCheckMeasureOnly21Lines(benchmark::State& state) {
  const auto h = tolmar::fixture::manyLineHull();
  const std::vector<tolmar::DevelopedPlate> plates = tolmar::developAll(*h);
  for (auto _ : state) {
    const tolmar::devcheck::CheckReport r = tolmar::devcheck::checkDevelopment(*h, plates);
    benchmark::DoNotOptimize(r.plates.data());
  }
}
BENCHMARK(BM_DevelopmentCheckMeasureOnly21Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
