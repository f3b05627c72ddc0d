// The library browser's logic share of its speed targets: opening a folder of
// 200 .lut files (each read, fitted and cut into its bar's slices) and
// changing the fitting mode with those 200 rows (each file read again,
// refitted and sliced).

#include "browser/color_bar_row_model.h"
#include "browser/lut_file.h"
#include "util/messages.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace huebase;

constexpr int kFiles = 200;
constexpr float kDataMin = -1437.0f;
constexpr float kDataMax = 2205.0f;

// 200 tables of 2 to 41 nodes over ranges around the data, some wider and
// some narrower, with every method.
class Library {
public:
    Library() : folder_(fs::temp_directory_path() / "huebase-bench-browser") {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        for (int f = 0; f < kFiles; ++f) {
            const int nodes = 2 + f % 40;
            const float from = -2000.0f + 10.0f * static_cast<float>(f % 50);
            const float to = 1500.0f + 20.0f * static_cast<float>(f % 70);
            LutTable table;
            for (int i = 0; i < nodes; ++i) {
                const float value =
                    from + (to - from) * static_cast<float>(i) / static_cast<float>(nodes - 1);
                table.push_back({value, static_cast<std::uint8_t>((f + i) % kMethodCount),
                                 composeColor((i * 37) % 256, (f * 11) % 256, (i * f) % 256),
                                 value});
            }
            for (int i = 0; i + 1 < nodes; ++i)
                table[i].upper = table[i + 1].value;
            const fs::path path = folder_ / ("ramp" + std::to_string(f) + ".lut");
            std::ofstream(path, std::ios::binary) << LutFile::text(table, 0xFFFFFF, '.');
            paths_.push_back(path.string());
        }
    }
    ~Library() { fs::remove_all(folder_); }

    const std::vector<std::string>& paths() const { return paths_; }

private:
    fs::path folder_;
    std::vector<std::string> paths_;
};

// Refusals of the clip mode would otherwise be printed.
class QuietMessages {
public:
    QuietMessages()
        : previous_(setMessageResponder([](const MessageRequest&) { return MessageAnswer::Ok; })) {}
    ~QuietMessages() { setMessageResponder(std::move(previous_)); }

private:
    MessageResponder previous_;
};

void BM_OpenLibrary200(benchmark::State& state) {
    const Library library;
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
    const Library library;
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
