#include "core/clut_table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace huebase {
namespace {

// An ascending table of n rows over [0, 1000) with one method throughout,
// and 4096 queries spread over the table's range.
struct Workload {
    ClutTable clut;
    std::vector<float> queries;

    Workload(int n, std::uint8_t method) {
        std::mt19937 random(12345);
        std::uniform_real_distribution<float> value(0.0f, 1000.0f);
        std::vector<float> values(n);
        for (float& v : values)
            v = value(random);
        std::sort(values.begin(), values.end());
        LutTable table;
        for (const float v : values)
            table.push_back({v, method, static_cast<ColorValue>(random() & 0xFFFFFF), v});
        clut.setTable(table, 0x808080);
        std::uniform_real_distribution<float> query(values.front(), values.back());
        queries.resize(4096);
        for (float& x : queries)
            x = query(random);
    }
};

void BM_ClutInterpolate(benchmark::State& state) {
    const Workload work(static_cast<int>(state.range(0)),
                        static_cast<std::uint8_t>(state.range(1)));
    std::size_t k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.clut.ClutInterpolate(work.queries[k]));
        k = (k + 1) & 4095;
    }
    state.SetLabel(methodName(static_cast<std::uint8_t>(state.range(1))));
}
BENCHMARK(BM_ClutInterpolate)->ArgsProduct({{8, 256, 4096}, {0, 1, 2, 3, 4, 5}});

// The row-by-row reference, for comparison.
void BM_ClutInterpolateByScan(benchmark::State& state) {
    const Workload work(static_cast<int>(state.range(0)), MethodLin);
    std::size_t k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.clut.ClutInterpolateByScan(work.queries[k]));
        k = (k + 1) & 4095;
    }
}
BENCHMARK(BM_ClutInterpolateByScan)->Arg(8)->Arg(256)->Arg(4096);

} // namespace
} // namespace huebase
