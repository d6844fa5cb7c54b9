// The hull geometry engine on a hull of 21 lines: the default bottom under
// 20 side planks of even width, inclined 20, 23, .. 77 degrees, sheer
// 1.3 m forward, 1.0 m at the maximum beam, 1.1 m aft.
#include <benchmark/benchmark.h>

#include "../tests/hull/hull_fixtures.h"
#include "hull/chine_equations.h"
#include "hull/line_generation.h"
#include "hull/stations.h"

namespace {

// Everything a validation rebuilds: lines 0 and 1, the bottom edges, then
// the planes, ends, points and bevels of lines 2..21.
void BM_RebuildAllLines21(benchmark::State& state) {
  tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  for (auto _ : state) {
    tolmar::buildBottomLines(h);
    tolmar::buildBottomEdges(h);
    tolmar::buildUpperLines(h);
    benchmark::DoNotOptimize(h.lineY(21, 41));
  }
  state.counters["nChines"] = h.nChines;
}
BENCHMARK(BM_RebuildAllLines21)->Unit(benchmark::kMicrosecond);

// The station tables of a redraw: rows 0..82, 11 bottom points each.
void BM_BuildAllStations21(benchmark::State& state) {
  tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  for (auto _ : state) {
    tolmar::buildAllStations(h);
    benchmark::DoNotOptimize(h.stationZ(41, 5));
  }
}
BENCHMARK(BM_BuildAllStations21)->Unit(benchmark::kMicrosecond);

// One point of the sheer line: 20 planks carried up from the first chine.
void BM_ChinePointLine21(benchmark::State& state) {
  const tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  double x = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tolmar::chinePoint(h, 21, x));
    x = x < 6 ? x + 0.01 : 0;
  }
}
BENCHMARK(BM_ChinePointLine21);

}  // namespace
