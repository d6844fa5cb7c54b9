// The board's full redraw (Cls, fit, stations, grid, lines and sections
// with the planks) of a 21-line hull on the recording surface: the cost of
// the drawing code itself, without a device behind it.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "board/recording_surface.h"
#include "board/views.h"

namespace {

void BM_DessineRecorded21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  tolmar::RecordingSurface s(24000, 15000);
  for (auto _ : state) {
    s.clear();
    tolmar::dessine(s, *h, 2);
    benchmark::DoNotOptimize(s.calls().data());
  }
  state.counters["operations"] = static_cast<double>(s.calls().size());
}
BENCHMARK(BM_DessineRecorded21Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
