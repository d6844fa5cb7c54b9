// STL and OBJ of the 20-plank hull: mesh, weld and bytes, then the same
// through the safe writer to a temporary folder.  Target: under 50 ms.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "../tests/hull/hull_fixtures.h"
#include "mesh_export/mesh_files.h"

namespace {

void BM_StlBytes21(benchmark::State& state) {
  const tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  for (auto _ : state)
    benchmark::DoNotOptimize(tolmar::stlBytes(tolmar::weldedMesh(tolmar::buildHullMesh(h)), {}));
}
BENCHMARK(BM_StlBytes21)->Unit(benchmark::kMillisecond);

void BM_ObjText21(benchmark::State& state) {
  const tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  for (auto _ : state)
    benchmark::DoNotOptimize(tolmar::objText(h, tolmar::weldedMesh(tolmar::buildHullMesh(h)), {}));
}
BENCHMARK(BM_ObjText21)->Unit(benchmark::kMillisecond);

void BM_WriteModel21(benchmark::State& state) {
  const tolmar::HullStore h = tolmar::testing::twentyPlankHull();
  const auto dir =
      std::filesystem::temp_directory_path() / ("tolmar_bench_model_" + std::to_string(getpid()));
  std::filesystem::create_directories(dir);
  const auto format = state.range(0) ? tolmar::MeshFormat::obj : tolmar::MeshFormat::stl;
  const std::string path = (dir / (state.range(0) ? "h.obj" : "h.stl")).string();
  for (auto _ : state) benchmark::DoNotOptimize(tolmar::writeHullModel(h, format, {}, path).ok());
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(path));
  std::filesystem::remove_all(dir);
}
BENCHMARK(BM_WriteModel21)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
