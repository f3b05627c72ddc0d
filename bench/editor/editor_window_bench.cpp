// The LUT editor window's speed targets, painting included: a large
// distribution taken in and drawn, a full table loaded into the rows and
// scrolled end to end (with the memory it costs), one drag step among 1,000
// nodes, and "Individual values" over the largest distribution. Rendered on
// the offscreen platform; grab() forces the painting.

#include "editor/color_bar_view.h"
#include "editor/lut_editor_window.h"
#include "editor/node_tab_strip.h"
#include "editor/value_rows_panel.h"
#include "editor_bench_data.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

using namespace huebase;
using bench::distribution;
using bench::rampTable;

constexpr int kLargest = NodeRows::kMaxRows;

QApplication& application() {
    static int argc = 1;
    static char name[] = "huebase_bench_editor_ui";
    static char* argv[] = {name, nullptr};
    static std::unique_ptr<QApplication> app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }();
    return *app;
}

// A shown editor window at its usual size.
std::unique_ptr<LutEditorWindow> shownEditor() {
    application();
    auto window = std::make_unique<LutEditorWindow>();
    window->resize(980, 600);
    window->show();
    QApplication::processEvents();
    return window;
}

double residentMegabytes() {
    long pages = 0, resident = 0;
    if (FILE* f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(f);
    }
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

void BM_InitFromOrderedArrayPainted(benchmark::State& state) {
    const std::vector<DistributionRow> rows = distribution(kLargest);
    auto window = shownEditor();
    for (auto _ : state) {
        window->model().InitFromOrderedArray(rows, -1);
        benchmark::DoNotOptimize(window->grab());
    }
}
BENCHMARK(BM_InitFromOrderedArrayPainted)->Unit(benchmark::kMillisecond);

void BM_SetLutTablePainted(benchmark::State& state) {
    auto window = shownEditor();
    window->model().InitFromOrderedArray(distribution(kLargest), -1);
    const LutTable table = rampTable(kLargest, -1500.0f, 14883.0f);
    for (auto _ : state) {
        window->SetLutTable(table);
        benchmark::DoNotOptimize(window->grab());
    }
}
BENCHMARK(BM_SetLutTablePainted)->Unit(benchmark::kMillisecond);

// One step of the scroll bar (one row) with the rows repainted, over a full
// table, wrapping around at the end; and the memory the full table took.
void BM_ScrollStep(benchmark::State& state) {
    auto window = shownEditor();
    const double before = residentMegabytes();
    window->model().InitFromOrderedArray(distribution(kLargest), -1);
    window->SetLutTable(rampTable(kLargest, -1500.0f, 14883.0f));
    auto* panel = window->findChild<ValueRowsPanel*>();
    QScrollBar& scroll = panel->scrollBar();
    const int step = state.range(0) == 0 ? scroll.singleStep() : scroll.pageStep();
    // The memory of a full table once scrolled from top to bottom, taken on
    // the first run: later runs reuse what it freed.
    static const double growth = [&] {
        for (int value = 0; value <= scroll.maximum(); value += scroll.pageStep()) {
            scroll.setValue(value);
            benchmark::DoNotOptimize(panel->grab());
        }
        scroll.setValue(0);
        return residentMegabytes() - before;
    }();
    for (auto _ : state) {
        const int next = scroll.value() + step;
        scroll.setValue(next > scroll.maximum() ? 0 : next);
        benchmark::DoNotOptimize(panel->grab());
    }
    state.counters["rss_growth_MB"] = growth;
    state.counters["steps_end_to_end"] = static_cast<double>(scroll.maximum() / step + 1);
}
BENCHMARK(BM_ScrollStep)->Arg(0)->Arg(1)->ArgNames({"page"})->Unit(benchmark::kMillisecond);

// A move over the graph while a middle node is dragged: node, neighbours,
// its row, its button and the colour bar updated and repainted.
void BM_DragStep(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    auto window = shownEditor();
    window->model().InitFromOrderedArray(distribution(kLargest), -1);
    window->SetLutTable(rampTable(n, -1500.0f, 14883.0f));
    const int k = n / 2;
    window->model().pressOnTab(k, MouseButton::Right, ShiftKey);
    auto* graph = window->findChild<QWidget*>("Graph");
    auto* bar = window->findChild<ColorBarView*>("ColorBar");
    auto* tabs = window->findChild<NodeTabStrip*>("GraphColorTab");
    const GraphCoordinates& c = window->model().graphCoordinates();
    const float lo = window->model().row(k).lower, hi = window->model().row(k).upper;
    const QPointF a(c.xToPixel(lo + (hi - lo) * 0.3, graph->width()), 20);
    const QPointF b(c.xToPixel(lo + (hi - lo) * 0.7, graph->width()), 20);
    bool flip = false;
    for (auto _ : state) {
        const QPointF at = (flip = !flip) ? a : b;
        QMouseEvent move(QEvent::MouseMove, at, graph->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(graph, &move);
        benchmark::DoNotOptimize(bar->grab());
        benchmark::DoNotOptimize(tabs->grab());
    }
    if (window->model().dragIndex() != k)
        state.SkipWithError("the drag ended");
}
BENCHMARK(BM_DragStep)->Arg(1000)->Unit(benchmark::kMillisecond);

// "Individual values" from two end nodes over 32,767 distinct values, and
// the window painted with the result.
void BM_IndivPainted(benchmark::State& state) {
    auto window = shownEditor();
    window->model().InitFromOrderedArray(distribution(kLargest), -1);
    const LutTable ends = rampTable(2, -1500.0f, 14883.0f);
    auto* indiv = window->findChild<QPushButton*>("Indiv");
    for (auto _ : state) {
        state.PauseTiming();
        window->SetLutTable(ends);
        state.ResumeTiming();
        indiv->click();
        benchmark::DoNotOptimize(window->grab());
    }
    if (window->model().rowCount() != kLargest)
        state.SkipWithError("not every value became a node");
}
BENCHMARK(BM_IndivPainted)->Unit(benchmark::kMillisecond);

} // namespace
