// Developing every plate of a 21-line hull of automatic planking: the
// bottom and 20 planks, then the 21 decks and the transom.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"

namespace {

void BM_DevelopAllPlates21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  for (auto _ : state) {
    tolmar::developBottom(*h);
    benchmark::DoNotOptimize(h->devXs(83));
    for (int k = 1; k <= h->nChines - 1; ++k) {
      tolmar::developPlank(*h, k);
      benchmark::DoNotOptimize(h->devXs(82));
    }
  }
  state.counters["plates"] = h->nChines;
}
BENCHMARK(BM_DevelopAllPlates21Lines)->Unit(benchmark::kMicrosecond);

void BM_DevelopDecksAndTransom21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  for (auto _ : state) {
    for (int k = 1; k <= h->nChines; ++k) {
      tolmar::developDeck(*h, k);
      benchmark::DoNotOptimize(h->devXs(82));
    }
    tolmar::calcTransomPlate(*h);
    benchmark::DoNotOptimize(h->transomPlate(1, 30));
  }
}
BENCHMARK(BM_DevelopDecksAndTransom21Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
