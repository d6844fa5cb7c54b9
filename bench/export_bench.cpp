// Every export of a hull of 21 lines (20 side planks), written into memory:
// the cost of the writers and of the developments they run, without the disk.
#include <benchmark/benchmark.h>

#include "../tests/hull/hull_fixtures.h"
#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "export/dxf_records.h"
#include "export/end_plates_dxf.h"
#include "export/lines_dxf.h"
#include "export/plate_dxf.h"
#include "export/vrml_file.h"
#include "export/xyz_files.h"
#include "hull/stations.h"

namespace {

using namespace tolmar;

HullStore& hull() {
  static HullStore h = [] {
    HullStore s = testing::twentyPlankHull();
    buildAllStations(s);
    calcTransomPlate(s);
    for (int n = 0; n <= kMaxLine; ++n)
      for (int p = 0; p <= kLastPoint; ++p) s.overlapWidth(n, p) = 0.018;
    s.transomThick = 0.012;
    s.bowThick = 0.012;
    return s;
  }();
  return h;
}

template <typename F>
void writeInto(benchmark::State& state, F write) {
  std::size_t bytes = 0;
  for (auto _ : state) {
    StringSink out;
    write(out);
    bytes = out.text().size();
    benchmark::DoNotOptimize(out.text().data());
  }
  state.counters["bytes"] = static_cast<double>(bytes);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}

void BM_DxfNumber(benchmark::State& state) {
  double x = -1.2345678;
  for (auto _ : state) {
    benchmark::DoNotOptimize(dxfNumber(x));
    x += 0.001;
  }
}
BENCHMARK(BM_DxfNumber);

void BM_Lines2D(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeLines2D(o, hull(), hullExtremes(hull())); });
}
BENCHMARK(BM_Lines2D)->Unit(benchmark::kMillisecond);

void BM_Lines3D(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeLines3D(o, hull(), hullExtremes(hull())); });
}
BENCHMARK(BM_Lines3D)->Unit(benchmark::kMillisecond);

void BM_LinesXyz(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeLinesXyz(o, hull()); });
}
BENCHMARK(BM_LinesXyz)->Unit(benchmark::kMillisecond);

void BM_Vrml(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeVrml(o, hull()); });
}
BENCHMARK(BM_Vrml)->Unit(benchmark::kMillisecond);

void BM_PlateFilePlain(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writePlateFile(o, hull(), hull().nChines - 1, false); });
}
BENCHMARK(BM_PlateFilePlain)->Unit(benchmark::kMillisecond);

void BM_PlateFileLap(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writePlateFile(o, hull(), hull().nChines - 1, true); });
}
BENCHMARK(BM_PlateFileLap)->Unit(benchmark::kMillisecond);

void BM_DeckFile(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeDeckFile(o, hull(), hull().nChines); });
}
BENCHMARK(BM_DeckFile)->Unit(benchmark::kMillisecond);

// The XYZ files of fmenu_SD_XYZ: every plate developed, then written.
void BM_PlateXyzAll(benchmark::State& state) {
  writeInto(state, [](TextSink& o) {
    HullStore& h = hull();
    for (const DevelopedPlate& p : developAll(h)) {
      if (p.kind == PlateKind::bottom || p.kind == PlateKind::plank) writePlankXyz(o, h, p);
      if (p.kind == PlateKind::deck) writeDeckXyz(o, h, p);
    }
    calcTransomPlate(h);
    writeTransomXyz(o, h);
  });
}
BENCHMARK(BM_PlateXyzAll)->Unit(benchmark::kMillisecond);

void BM_StationFile(benchmark::State& state) {
  writeInto(state, [](TextSink& o) { writeStationFile(o, hull(), 41); });
}
BENCHMARK(BM_StationFile)->Unit(benchmark::kMicrosecond);

// Everything a user can export from the hull, one after the other.
void BM_EveryExport(benchmark::State& state) {
  writeInto(state, [](TextSink& o) {
    HullStore& h = hull();
    const HullExtremes e = hullExtremes(h);
    writeLines2D(o, h, e);
    writeLines3D(o, h, e);
    writeLinesXyz(o, h);
    writeVrml(o, h);
    writePlateFile(o, h, h.nChines - 1, true);
    writeDeckFile(o, h, h.nChines);
    for (const DevelopedPlate& p : developAll(h)) {
      if (p.kind == PlateKind::bottom || p.kind == PlateKind::plank) writePlankXyz(o, h, p);
      if (p.kind == PlateKind::deck) writeDeckXyz(o, h, p);
    }
    calcTransomPlate(h);
    writeTransomXyz(o, h);
    writeStationFile(o, h, h.iMaxBeam);
  });
}
BENCHMARK(BM_EveryExport)->Unit(benchmark::kMillisecond);

}  // namespace
