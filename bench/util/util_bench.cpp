// Reading the host's value file (32,767 two-field lines) and counting its
// lines, the two passes made over "col.tmp" at start.
#include "util/comma_reader.h"
#include "util/misc_files.h"
#include "util/vb_format.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr int kLines = 32767;

std::string valueFileText() {
    std::string text;
    for (int i = 0; i < kLines; ++i)
        text += std::to_string(i / 2) + (i % 2 ? ".5," : ",") + std::to_string(i % 97 + 1) + "\r\n";
    return text;
}

// A value file on disk for the lifetime of the program.
class ValueFile {
public:
    ValueFile() : path_(std::filesystem::temp_directory_path() / "huebase-bench-col.tmp") {
        std::ofstream(path_, std::ios::binary) << valueFileText();
    }
    ~ValueFile() { std::filesystem::remove(path_); }
    std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

const ValueFile& valueFile() {
    static const ValueFile file;
    return file;
}

void readRecords(huebase::CommaReader& reader, benchmark::State& state) {
    int records = 0;
    while (!reader.atEnd()) {
        benchmark::DoNotOptimize(reader.readField());
        benchmark::DoNotOptimize(reader.readField());
        ++records;
    }
    if (records != kLines)
        state.SkipWithError("wrong record count");
}

void BM_CommaReaderInMemory(benchmark::State& state) {
    const std::string text = valueFileText();
    for (auto _ : state) {
        huebase::CommaReader reader(text);
        readRecords(reader, state);
    }
}
BENCHMARK(BM_CommaReaderInMemory)->Unit(benchmark::kMillisecond);

void BM_CommaReaderFromFile(benchmark::State& state) {
    const std::string path = valueFile().path();
    for (auto _ : state) {
        huebase::CommaReader reader = huebase::CommaReader::fromFile(path);
        readRecords(reader, state);
    }
}
BENCHMARK(BM_CommaReaderFromFile)->Unit(benchmark::kMillisecond);

void BM_GetFileLineNumber(benchmark::State& state) {
    const std::string path = valueFile().path();
    for (auto _ : state) {
        if (huebase::MiscFiles::getFileLineNumber(path) != kLines)
            state.SkipWithError("wrong line count");
    }
}
BENCHMARK(BM_GetFileLineNumber)->Unit(benchmark::kMicrosecond);

void BM_FormatFixedLine(benchmark::State& state) {
    double value = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(huebase::formatFixed(value, '.'));
        value += 16.25;
    }
}
BENCHMARK(BM_FormatFixedLine);

void BM_FloatText(benchmark::State& state) {
    float value = 0.0f;
    for (auto _ : state) {
        benchmark::DoNotOptimize(huebase::floatText(value, '.'));
        value += 0.37f;
    }
}
BENCHMARK(BM_FloatText);

} // namespace
