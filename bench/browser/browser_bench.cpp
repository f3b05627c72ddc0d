// The library browser's logic share of its speed targets: opening a folder of
// 200 .lut files (each read, fitted and cut into its bar's slices) and
// changing the fitting mode with those 200 rows (each file read again,
// refitted and sliced).

#include "bench_library.h"
#include "browser/color_bar_row_model.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace huebase;
using huebase::bench::kDataMax;
using huebase::bench::kDataMin;
using huebase::bench::kFiles;
using huebase::bench::QuietMessages;

const std::filesystem::path kFolder =
    std::filesystem::temp_directory_path() / "huebase-bench-browser";

void BM_OpenLibrary200(benchmark::State& state) {
    const bench::Library library(kFolder);
    const QuietMessages quiet;
    std::size_t slices = 0;
    for (auto _ : state) {
        std::vector<ColorBarRowModel> rows(kFiles);
        for (int f = 0; f < kFiles; ++f) {
            rows[f].setDataMin(kDataMin);
            rows[f].setDataMax(kDataMax);
            rows[f].setFilePath(library.paths()[f]);
            slices += rows[f].barSlices().size();
        }
        benchmark::DoNotOptimize(rows.data());
    }
    benchmark::DoNotOptimize(slices);
}
BENCHMARK(BM_OpenLibrary200)->Unit(benchmark::kMillisecond);

void BM_ModeChange200(benchmark::State& state) {
    const bench::Library library(kFolder);
    const QuietMessages quiet;
    std::vector<ColorBarRowModel> rows(kFiles);
    for (int f = 0; f < kFiles; ++f) {
        rows[f].setDataMin(kDataMin);
        rows[f].setDataMax(kDataMax);
        rows[f].setFilePath(library.paths()[f]);
    }
    std::int16_t mode = 0;
    std::size_t slices = 0;
    for (auto _ : state) {
        mode = static_cast<std::int16_t>((mode + 1) % 3);
        for (ColorBarRowModel& row : rows) {
            row.setApplyOptions(mode);
            slices += row.barSlices().size();
        }
    }
    benchmark::DoNotOptimize(slices);
}
BENCHMARK(BM_ModeChange200)->Unit(benchmark::kMillisecond);

} // namespace
