#include "core/sort.h"
#include "util/variant.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace huebase {
namespace {

// Sorting the editor's data values: random numbers held as variants.
void BM_QuickSortRangeVariants(benchmark::State& state) {
    const auto n = static_cast<std::int32_t>(state.range(0));
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(-500.0, 9000.0);
    std::vector<Variant> input;
    for (std::int32_t k = 0; k < n; ++k)
        input.emplace_back(value(random));
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<Variant> a = input;
        state.ResumeTiming();
        Sort::QuickSortRange(a, 0, n - 1);
        benchmark::DoNotOptimize(a.data());
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_QuickSortRangeVariants)->Arg(1000)->Arg(100000);

} // namespace
} // namespace huebase
