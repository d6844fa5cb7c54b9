// Full-size patterns of the 21-line hull of automatic planking (the bottom,
// 20 planks and the transom) on A4, to a PDF in memory as tolmar-cli print
// patterns makes it: developing every plate, the plan of the tiles and the
// pages.  The target is under 2 s.  Reports the pages, and the A4 pages of
// the default hull.
#ifdef TOLMAR_HAVE_QTDRAW

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <cstdlib>

#include "../tests/development/hull_fixture.h"
#include "bench_app.h"
#include "development/developed_plate.h"
#include "printing/pattern_pages.h"
#include "qtdraw/paged_surface.h"

namespace {

// One document; its pages and bytes.
std::pair<int, qsizetype> patternsPdf(const tolmar::HullStore& h) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  int pages = 0;
  {
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    tolmar::qtdraw::PaperOptions paper;
    paper.marginMm = tolmar::kDefaultPdfMarginMm;
    tolmar::qtdraw::PagedSurface s(writer, paper);
    const auto plates = tolmar::developAll(h);
    std::vector<std::string> unknown;
    const auto plan = tolmar::planPatterns(s, tolmar::choosePlates(plates, {}, unknown), 10);
    tolmar::PrintHost host;
    tolmar::printPatterns(s, h, host, plan, "A4");
    pages = plan.pages;
  }
  return {pages, pdf.size()};
}

void BM_FullSizePatterns21LinesA4(benchmark::State& state) {
  tolmar::bench::app();
  auto h = tolmar::fixture::manyLineHull();
  std::pair<int, qsizetype> r{};
  for (auto _ : state) {
    r = patternsPdf(*h);
    benchmark::DoNotOptimize(r);
  }
  state.counters["pages"] = r.first;
  state.counters["MB"] = static_cast<double>(r.second) / 1e6;
  state.counters["default_hull_A4_pages"] = patternsPdf(*tolmar::fixture::defaultHull()).first;
}
BENCHMARK(BM_FullSizePatterns21LinesA4)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

#endif  // TOLMAR_HAVE_QTDRAW
