// Both windows' colour bars, rendered for the starter library over the demo
// data at a few widths and compared pixel for pixel (by checksum) with the
// renderings kept in color_bar_pixels.txt. Setting HUEBASE_RECORD_COLOR_BARS
// to a file name writes the renderings there instead of comparing.

#include "browser/color_bar_row_model.h"
#include "browser/lut_file.h"
#include "browser/lut_fitting.h"
#include "browser/row_color_bar.h"
#include "editor/color_bar_view.h"
#include "editor/lut_editor_model.h"

#include "support/service_recorder.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace huebase {
namespace {

const std::filesystem::path kSource = HUEBASE_SOURCE_DIR;
const std::filesystem::path kReference = kSource / "tests/browser/color_bar_pixels.txt";
constexpr int kWidths[] = {1, 97, 400};
constexpr int kHeight = 3;

std::vector<DistributionRow> demoDistribution() {
    std::ifstream in(kSource / "data/demo/col.tmp");
    std::vector<DistributionRow> rows;
    float value = 0;
    char comma = 0;
    double count = 0;
    while (in >> value >> comma >> count)
        rows.push_back({value, count});
    return rows;
}

std::vector<std::filesystem::path> starterLibrary() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(kSource / "data/myLuts"))
        if (entry.path().extension() == ".lut")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// FNV-1a over every pixel as 0xAARRGGBB, row by row.
std::uint64_t checksum(const QImage& image) {
    std::uint64_t hash = 14695981039346656037ull;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            for (int shift = 0; shift < 32; shift += 8) {
                hash ^= (pixel >> shift) & 0xFF;
                hash *= 1099511628211ull;
            }
        }
    return hash;
}

template <typename Widget, typename Model> std::uint64_t rendered(Model& model, int width) {
    Widget bar(model);
    bar.resize(width, kHeight);
    return checksum(bar.grab().toImage());
}

class Renderings {
public:
    void editor(const std::string& name, const std::vector<DistributionRow>& data,
                const LutTable& table) {
        LutEditorModel model;
        model.InitFromOrderedArray(data);
        model.SetLutTable(table);
        for (const int width : kWidths)
            add("editor " + name, width, rendered<ColorBarView>(model, width));
    }

    void row(const std::string& name, const ColorBarRowModel& model) {
        for (const int width : kWidths)
            add("row " + name, width, rendered<RowColorBar>(model, width));
    }

    const std::map<std::string, std::uint64_t>& all() const { return all_; }

private:
    void add(const std::string& name, int width, std::uint64_t sum) {
        all_[name + " " + std::to_string(width)] = sum;
    }

    std::map<std::string, std::uint64_t> all_;
};

ColorBarRowModel fittedRow(const std::filesystem::path& file, std::int16_t mode, float dataMin,
                           float dataMax) {
    ColorBarRowModel row;
    row.setDataMin(dataMin);
    row.setDataMax(dataMax);
    row.setApplyOptions(mode);
    row.setFilePath(file.string());
    return row;
}

Renderings renderAll() {
    const std::vector<DistributionRow> demo = demoDistribution();
    const float dataMin = demo.front().value;
    const float dataMax = demo.back().value;
    Renderings out;
    for (const std::filesystem::path& file : starterLibrary()) {
        const std::string name = file.stem().string();
        LutRecords records;
        ColorValue noData = 0;
        LutFile::LoadLut(file.string(), records, noData);
        out.editor(name + " as-read", demo, toTable(records));
        for (const std::int16_t mode : {ClipDataToColors, ClipColorToData, WarpToFitData}) {
            const ColorBarRowModel row = fittedRow(file, mode, dataMin, dataMax);
            out.row(name + " mode" + std::to_string(mode), row);
            out.editor(name + " handed-over" + std::to_string(mode), demo, row.Selected().table);
        }
    }

    // Flat intervals, nodes far outside the data, a descending pair and an
    // empty interval, on the demo data and on a short range inside it.
    const LutTable mixed = {
        {-5000.0f, MethodLog, 0x102030, -200.0f}, {-200.0f, MethodNone, 0x00A0FF, 150.0f},
        {150.0f, MethodExp, 0xFF8000, 150.0f},    {150.0f, MethodExpPlus, 0x40C040, 900.0f},
        {900.0f, MethodNone, 0x800080, 700.0f},   {700.0f, MethodLogPlus, 0xFFFFFF, 1.5e5f},
        {1.5e5f, MethodLin, 0x000000, 1.5e5f}};
    out.editor("mixed demo", demo, mixed);
    out.editor("mixed short", {{-300.0f, 1}, {0.0f, 4}, {1000.0f, 2}}, mixed);
    ColorBarRowModel row;
    row.setLut(toRecords(mixed));
    for (const auto& [low, high] : {std::pair<std::string, std::string>{"-1437", "2205"},
                                    {"-300", "1000"},
                                    {"1000", "-300"},
                                    {"3.5", "3.5"}}) {
        row.setMin(low);
        row.setMax(high);
        out.row("mixed " + low + ".." + high, row);
    }
    return out;
}

TEST(ColorBarPixels, BothWindowsPaintTheLibraryAsTheyAlwaysHave) {
    testing::ServiceRecorder services;
    const Renderings renderings = renderAll();
    EXPECT_TRUE(services.messages().empty());
    ASSERT_GT(renderings.all().size(), 150u);

    if (const char* record = std::getenv("HUEBASE_RECORD_COLOR_BARS")) {
        std::ofstream out(record);
        for (const auto& [name, sum] : renderings.all())
            out << name << " " << std::hex << sum << std::dec << "\n";
        GTEST_SKIP() << "recorded " << renderings.all().size() << " renderings to " << record;
    }

    std::map<std::string, std::uint64_t> expected;
    std::ifstream in(kReference);
    for (std::string line; std::getline(in, line);) {
        const auto space = line.rfind(' ');
        expected[line.substr(0, space)] = std::stoull(line.substr(space + 1), nullptr, 16);
    }
    ASSERT_EQ(expected.size(), renderings.all().size()) << kReference;
    for (const auto& [name, sum] : renderings.all()) {
        const auto reference = expected.find(name);
        ASSERT_NE(reference, expected.end()) << name;
        EXPECT_EQ(sum, reference->second) << name;
    }
}

} // namespace
} // namespace huebase
