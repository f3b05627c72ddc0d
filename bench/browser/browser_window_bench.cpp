// The library browser's speed targets with its windows: opening the browser
// on a folder of 200 .lut files with every row read, fitted and painted, and
// changing the fitting mode with those 200 rows, each row painted again.
// Runs on the offscreen platform; every row is rendered, not only those the
// viewport shows, so scrolling later costs nothing new.

#include "bench_library.h"
#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"

#include <QApplication>
#include <QPixmap>
#include <QRadioButton>

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

using namespace huebase;
using huebase::bench::kDataMax;
using huebase::bench::kDataMin;
using huebase::bench::kFiles;

const std::filesystem::path kProgram =
    std::filesystem::temp_directory_path() / "huebase-bench-browser-window";

// Paints the window as shown and then every row, into one reused pixmap.
void paintAll(LUTBrowser& browser) {
    QPixmap rowImage(browser.rows().front()->size());
    benchmark::DoNotOptimize(browser.grab());
    for (ColorBarRow* row : browser.rows())
        row->render(&rowImage);
}

// Opens the browser on the benchmark library over the demo range and paints
// the window and every row.
void openAndPaint(LUTBrowser& browser) {
    browser.setDataMin(kDataMin);
    browser.setDataMax(kDataMax);
    browser.loadLibrary(kProgram.string());
    browser.resize(980, 640);
    browser.show();
    paintAll(browser);
}

void BM_OpenBrowser200(benchmark::State& state) {
    const bench::Library library(kProgram / "myLuts");
    const bench::QuietMessages quiet;
    for (auto _ : state) {
        LUTBrowser browser;
        openAndPaint(browser);
        if (browser.rows().size() != static_cast<std::size_t>(kFiles))
            state.SkipWithError("not every file became a row");
    }
}
BENCHMARK(BM_OpenBrowser200)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ModeChange200(benchmark::State& state) {
    const bench::Library library(kProgram / "myLuts");
    const bench::QuietMessages quiet;
    LUTBrowser browser;
    openAndPaint(browser);
    std::int16_t mode = 0;
    for (auto _ : state) {
        mode = static_cast<std::int16_t>((mode + 1) % 3);
        browser.setFittingMode(mode);
        paintAll(browser);
    }
}
BENCHMARK(BM_ModeChange200)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
