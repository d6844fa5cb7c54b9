// Printing every sheet of a 21-line hull of automatic planking (fmenu_P_Tout:
// data, views, 22 offset tables, 21 plates with their tables, end plates)
// on the recording surface, and the three views alone.
#include <benchmark/benchmark.h>

#include "../tests/development/hull_fixture.h"
#include "board/recording_surface.h"
#include "printing/print_menu.h"

namespace {

void BM_PrintAllSheets21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  tolmar::RecordingSurface s(11906, 16838);
  tolmar::FixedDateHost host(std::chrono::year_month_day{
      std::chrono::year{2025}, std::chrono::month{6}, std::chrono::day{15}});
  tolmar::PrintJob job{s, *h, host};
  std::size_t calls = 0, pages = 0;
  for (auto _ : state) {
    s.clear();
    tolmar::fmenu_P_Tout(job, 2);
    calls = s.calls().size();
    benchmark::DoNotOptimize(s.calls().data());
  }
  for (const auto& c : s.calls()) pages += c.op == tolmar::DrawOp::NewPage;
  state.counters["operations"] = static_cast<double>(calls);
  state.counters["pages"] = static_cast<double>(pages + 1);
}
BENCHMARK(BM_PrintAllSheets21Lines)->Unit(benchmark::kMillisecond);

void BM_PrintDrawing21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  tolmar::RecordingSurface s(11906, 16838);
  tolmar::FixedDateHost host(std::chrono::year_month_day{
      std::chrono::year{2025}, std::chrono::month{6}, std::chrono::day{15}});
  tolmar::PrintJob job{s, *h, host};
  for (auto _ : state) {
    s.clear();
    tolmar::fmenu_P_Dessin(job, 2);
    benchmark::DoNotOptimize(s.calls().data());
  }
}
BENCHMARK(BM_PrintDrawing21Lines)->Unit(benchmark::kMicrosecond);

}  // namespace
