// Panels on plywood sheets, from the hull to the DXF and SVG text: the
// default hull, the four-line pram-bow hull and the 20-plank hull, scarf
// joints 8:1, kerf 3 mm, margin 10 mm.  The default hull's deck (1337 mm)
// and transom need sheets of 3050 x 1525; on 2440 x 1220 the hulls are
// measured without the parts wider than that sheet.  Counters: sheets, the
// area lower bound (the sum over the thicknesses, one thickness a sheet,
// and over all the pieces as if of one thickness) and the utilisation
// (pieces' area / sheets' area); then per thickness t, "st" the sheets
// and "bt" their area bound.
// Targets: the default hull under 1 s, the 20-plank hull under 10 s.
#include <benchmark/benchmark.h>

#include <cmath>
#include <map>
#include <string>

#include "../tests/development/hull_fixture.h"
#include "sheets/bill_of_materials.h"
#include "sheets/sheet_plan.h"
#include "sheets/sheets_dxf.h"
#include "sheets/sheets_svg.h"

namespace {

using namespace tolmar;
using namespace tolmar::sheets;

std::unique_ptr<HullStore> hull(int which) {
  return which == 0   ? fixture::defaultHull()
         : which == 1 ? fixture::pramBowHull()
                      : fixture::manyLineHull();
}

void BM_Sheets(benchmark::State& state) {
  const auto h = hull(static_cast<int>(state.range(0)));
  SheetOptions o;
  if (state.range(1) == 0) {
    o.lengthMm = 3050;
    o.widthMm = 1525;
  } else {
    // The parts wider than 1200 mm are left out.
    o.skip = {"transom", "bulkhead 1", "deck " + std::to_string(h->nChines)};
  }
  SheetPlan plan;
  for (auto _ : state) {
    plan = planSheets(*h, o);
    std::size_t bytes = 0;
    for (int s = 0; s < static_cast<int>(plan.sheets.size()); ++s) {
      StringSink dxf;
      writeSheetDxf(dxf, plan, s, "bench", 1);
      bytes += dxf.text().size();
    }
    bytes += sheetsSvg(plan, "bench", 1).size();
    benchmark::DoNotOptimize(bytes);
  }
  if (!plan.error.empty()) state.SkipWithError(plan.error.c_str());
  const Bom bom = billOfMaterials(plan);
  state.counters["sheets"] = bom.sheetCount;
  state.counters["bound"] = bom.areaBound;  // summed over the thicknesses
  const double sheetM2 =
      plan.sheets.empty() ? 1 : plan.sheets[0].lengthMm * plan.sheets[0].widthMm / 1e6;
  state.counters["bound_whole"] = std::ceil(bom.usedAreaM2 / sheetM2 - 1e-9);
  state.counters["utilisation"] = bom.utilisation();
  // Per thickness: "s6" sheets of 6 mm, "b6" their area bound.
  std::map<int, double> area;
  for (const BomPiece& p : bom.pieces)
    area[static_cast<int>(std::lround(p.thicknessMm))] += p.areaM2;
  for (const BomSheets& g : bom.sheets)
    state.counters["s" + std::to_string(std::lround(g.thicknessMm))] += g.count;
  for (const auto& [mm, m2] : area)
    state.counters["b" + std::to_string(mm)] = std::ceil(m2 / sheetM2 - 1e-9);
}
// Arguments: hull (0 default, 1 pram bow, 2 20 planks), sheet (0 3050 x 1525, 1 2440 x 1220).
BENCHMARK(BM_Sheets)
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Args({2, 0})
    ->Args({2, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
