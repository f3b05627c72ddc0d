// The editor model's share of the LUT editor's speed targets: taking in a
// large distribution, loading a full table into the rows, "Individual values"
// over the largest distribution the rows can hold, and one drag step.

#include "editor/lut_editor_model.h"
#include "core/lut_editor_owner.h"
#include "editor_bench_data.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

namespace {

using huebase::DistributionRow;
using huebase::LutEditorModel;
using huebase::LutTable;
using huebase::NodeRows;
using huebase::bench::distribution;
using huebase::bench::rampTable;

constexpr int kLargest = NodeRows::kMaxRows;

// Takes the table by copy, as the LUT control does.
class CopyingOwner : public huebase::LutEditorOwner {
public:
    void receiveLutTable(const LutTable& table) override { held = table; }
    void OK_Clicked() override {}
    void resetLutTable() override {}
    LutTable held;
};

void BM_InitFromOrderedArray(benchmark::State& state) {
    const std::vector<DistributionRow> rows = distribution(kLargest);
    LutEditorModel editor;
    CopyingOwner owner;
    editor.setOwner(&owner);
    for (auto _ : state) {
        editor.InitFromOrderedArray(rows, -1);
        benchmark::DoNotOptimize(editor.colorBar().slices().data());
    }
}
BENCHMARK(BM_InitFromOrderedArray)->Unit(benchmark::kMillisecond);

void BM_SetLutTable(benchmark::State& state) {
    const std::vector<DistributionRow> rows = distribution(kLargest);
    LutEditorModel editor;
    editor.InitFromOrderedArray(rows, -1);
    const LutTable table = rampTable(kLargest, rows.front().value, rows.back().value);
    for (auto _ : state) {
        editor.SetLutTable(table);
        benchmark::DoNotOptimize(editor.rowCount());
    }
}
BENCHMARK(BM_SetLutTable)->Unit(benchmark::kMillisecond);

void BM_IndividualValues(benchmark::State& state) {
    const std::vector<DistributionRow> rows = distribution(kLargest);
    LutEditorModel editor;
    editor.InitFromOrderedArray(rows, -1);
    const LutTable ends = editor.lutTable();
    for (auto _ : state) {
        state.PauseTiming();
        editor.SetLutTable(ends);
        state.ResumeTiming();
        editor.Indiv();
        benchmark::DoNotOptimize(editor.rowCount());
    }
    state.counters["nodes"] = editor.rowCount();
}
BENCHMARK(BM_IndividualValues)->Unit(benchmark::kMillisecond);

// One pointer move during a drag: the node, its neighbours' bounds and the
// colour bar (slices and table) are updated.
void BM_DragStep(benchmark::State& state) {
    const int nodes = static_cast<int>(state.range(0));
    LutEditorModel editor;
    editor.InitFromOrderedArray(distribution(kLargest), -1);
    editor.SetLutTable(rampTable(nodes, editor.DataMin(), editor.DataMax()));
    const int d = nodes / 2;
    editor.pressOnTab(d, huebase::MouseButton::Right, huebase::ShiftKey);
    const float lo = editor.row(d).lower;
    const float hi = editor.row(d).upper;
    bool forth = true;
    for (auto _ : state) {
        const float x = forth ? lo + (hi - lo) * 0.75f : lo + (hi - lo) * 0.25f;
        forth = !forth;
        benchmark::DoNotOptimize(editor.moveOnGraph(x));
    }
}
BENCHMARK(BM_DragStep)->Arg(1000)->Arg(kLargest)->Unit(benchmark::kMicrosecond);

} // namespace
