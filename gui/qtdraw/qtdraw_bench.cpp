// The board's full redraw of a 21-line hull on a 1600 x 1000 picture: the
// drawing code and QPainter together, as a double click costs it.
#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include "../../tests/development/hull_fixture.h"
#include "board/views.h"
#include "qtdraw/image_surface.h"

namespace {

void BM_DessineImage21Lines(benchmark::State& state) {
  auto h = tolmar::fixture::manyLineHull();
  tolmar::qtdraw::ImageSurface s(QSize(1600, 1000));
  for (auto _ : state) {
    tolmar::dessine(s, *h, 2);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_DessineImage21Lines)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM",
          qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
