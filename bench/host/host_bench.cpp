#include "core/clut_table.h"
#include "host/host_session.h"
#include "util/messages.h"
#include "util/program_exit.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace huebase {
namespace {

constexpr int kRows = 32767;

class SilentNotifier : public HostNotifier {
public:
    bool tell(const std::string&) override { return true; }
    std::string unreachableMessage() const override { return {}; }
};

// A scratch folder with a 32,767-row "col.tmp" (ascending values with
// counts) and the text of a 32,767-row "lut.tmp" whose values are those of
// col.tmp in shuffled order, keyed 1..32,767. Program exits and messages are
// swallowed while it lives.
class Exchange {
public:
    Exchange() {
        std::random_device device;
        folder_ = std::filesystem::temp_directory_path() /
                  ("huebase-bench-host-" + std::to_string(device()));
        std::filesystem::create_directories(folder_);
        std::string col;
        std::vector<std::string> values;
        for (int i = 0; i < kRows; ++i) {
            values.push_back(std::to_string(-1000 + i * 0.25));
            col += values.back() + "," + std::to_string(1 + i % 97) + "\r\n";
        }
        write("col.tmp", col);
        std::shuffle(values.begin(), values.end(), std::mt19937(7));
        for (int i = 0; i < kRows; ++i)
            lut_ += values[static_cast<std::size_t>(i)] + "," + std::to_string(i + 1) + "\r\n";
        previousExit_ = setProgramExitHandler([](int) {});
        previousResponder_ =
            setMessageResponder([](const MessageRequest&) { return MessageAnswer::Ok; });
    }
    ~Exchange() {
        setProgramExitHandler(std::move(previousExit_));
        setMessageResponder(std::move(previousResponder_));
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }

    std::string folder() const { return folder_.string(); }
    void writeLut() const { write("lut.tmp", lut_); }

private:
    void write(const char* name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::filesystem::path folder_;
    std::string lut_;
    ProgramExitHandler previousExit_;
    MessageResponder previousResponder_;
};

// A ramp of a few nodes over the data range, as a user would define it.
ClutTable ramp() {
    LutTable table;
    const ColorValue colors[] = {0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF, 0x0000FF, 0xFFFFFF};
    for (int k = 0; k < 6; ++k) {
        const float value = -1000.0f + k * (kRows * 0.25f / 5);
        table.push_back({value, static_cast<std::uint8_t>(k % 5), colors[k], value});
    }
    ClutTable clut;
    clut.setTable(table, 0x808080);
    return clut;
}

// From the control's LUTDefined to "lut.tmp" rewritten and the host told.
void BM_AnswerDefined(benchmark::State& state) {
    const Exchange exchange;
    const ClutTable clut = ramp();
    SilentNotifier notifier;
    for (auto _ : state) {
        state.PauseTiming();
        exchange.writeLut();
        HostSession session(exchange.folder(), notifier);
        if (!session.start())
            state.SkipWithError("col.tmp not read");
        state.ResumeTiming();
        session.answerDefined(clut);
    }
}
BENCHMARK(BM_AnswerDefined)->Unit(benchmark::kMillisecond);

// Start: "col.tmp" line count, table sized and filled, copy handed over.
void BM_Start(benchmark::State& state) {
    const Exchange exchange;
    SilentNotifier notifier;
    for (auto _ : state) {
        HostSession session(exchange.folder(), notifier);
        benchmark::DoNotOptimize(session.start());
    }
}
BENCHMARK(BM_Start)->Unit(benchmark::kMillisecond);

// 32,767 look-ups of export values among 32,767 input rows, index included.
void BM_FindColorInInputArray(benchmark::State& state) {
    const Exchange exchange;
    SilentNotifier notifier;
    HostSession loaded(exchange.folder(), notifier);
    const ValuesTable input = *loaded.start();
    std::vector<Variant> queries;
    for (int row = 1; row <= input.rows(); ++row)
        queries.push_back(input.at(row, 1));
    std::shuffle(queries.begin(), queries.end(), std::mt19937(3));
    for (auto _ : state) {
        HostSession session(exchange.folder(), notifier);
        session.sizeInputArray(kRows);
        state.PauseTiming();
        session.GetOrderedFile(session.colPath());
        state.ResumeTiming();
        std::int64_t sum = 0;
        for (const Variant& value : queries)
            sum += session.FindColorInInputArrayFromValue(value);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_FindColorInInputArray)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace huebase
