// Validating the hull definition screens to the end: the bottom of the
// default hull, its four planks by hand, and twenty automatic planks
// (21 lines, each built through all the lines below it).
#include <benchmark/benchmark.h>

#include <memory>

#include "hull/default_hull.h"
#include "screens/bouchain1.h"
#include "screens/bouchain2.h"
#include "screens/bouchain3.h"

namespace {

std::unique_ptr<tolmar::HullStore> bottomOfDefaultHull() {
  auto h = std::make_unique<tolmar::HullStore>();
  tolmar::initDefaultHull(*h);
  tolmar::Bouchain1 s;
  s.activate(*h);
  s.validerBottom(*h);
  return h;
}

void BM_ValiderBottomDefaultHull(benchmark::State& state) {
  auto h = bottomOfDefaultHull();
  tolmar::Bouchain1 s;
  s.activate(*h);
  for (auto _ : state) {
    const bool closed = s.validerBottom(*h);
    benchmark::DoNotOptimize(closed);
  }
}
BENCHMARK(BM_ValiderBottomDefaultHull)->Unit(benchmark::kMicrosecond);

void BM_ValiderPlanksDefaultHull(benchmark::State& state) {
  auto h = bottomOfDefaultHull();
  tolmar::Bouchain2 s;
  s.activate(*h);
  for (auto _ : state) {
    const bool closed = s.validerPlanks(*h);
    benchmark::DoNotOptimize(closed);
  }
}
BENCHMARK(BM_ValiderPlanksDefaultHull)->Unit(benchmark::kMicrosecond);

void BM_ValiderAuto20Planks(benchmark::State& state) {
  auto h = bottomOfDefaultHull();
  tolmar::Bouchain3 s;
  s.activate(*h);
  s.Text0.text = "20";
  s.Text1(0).text = "20";
  s.Text2(0).text = "77";
  s.Text2(1).text = "1.3";
  s.Text2(2).text = "1";
  s.Text2(3).text = "1.1";
  s.Text4.text = "1.5";
  if (!s.validerAuto(*h)) state.SkipWithError("the twenty planks were not accepted");
  for (auto _ : state) {
    const bool closed = s.validerAuto(*h);
    benchmark::DoNotOptimize(closed);
  }
  state.counters["lines"] = h->nChines;
}
BENCHMARK(BM_ValiderAuto20Planks)->Unit(benchmark::kMicrosecond);

}  // namespace
