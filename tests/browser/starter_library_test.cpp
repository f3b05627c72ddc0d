#include "browser/lut_file.h"
#include "browser/lut_fitting.h"

#include "starter_ramps.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace huebase {
namespace {

namespace fs = std::filesystem;

const fs::path kLibrary = fs::path(HUEBASE_SOURCE_DIR) / "data" / "myLuts";

std::string contentsOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(StarterLibrary, EveryRampIsShippedExactlyAsTheWriterWritesIt) {
    for (const testing::StarterRamp& ramp : testing::starterRamps()) {
        SCOPED_TRACE(ramp.fileName);
        EXPECT_EQ(contentsOf(kLibrary / ramp.fileName),
                  LutFile::text(ramp.table, ramp.noDataColor, '.'));
    }
}

TEST(StarterLibrary, EveryShippedFileReadsBackToTheSameBytes) {
    testing::ServiceRecorder services;
    int files = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(kLibrary)) {
        if (entry.path().extension() != ".lut")
            continue;
        SCOPED_TRACE(entry.path().string());
        ++files;
        LutRecords lut;
        ColorValue noData = 0;
        LutFile::LoadLut(entry.path().string(), lut, noData);
        EXPECT_EQ(LutFile::text(toTable(lut), noData, '.'), contentsOf(entry.path()));
    }
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(files, static_cast<int>(testing::starterRamps().size()));
}

TEST(StarterLibrary, RampsAscendAndCoverTheDemoData) {
    // The demo grid spans -1437 .. 2205 m.
    for (const testing::StarterRamp& ramp : testing::starterRamps()) {
        SCOPED_TRACE(ramp.fileName);
        ASSERT_GE(ramp.table.size(), 2u);
        EXPECT_TRUE(
            std::is_sorted(ramp.table.begin(), ramp.table.end(),
                           [](const LutNode& a, const LutNode& b) { return a.value < b.value; }));
        for (std::size_t i = 0; i + 1 < ramp.table.size(); ++i)
            EXPECT_EQ(ramp.table[i].upper, ramp.table[i + 1].value);
        const bool landOnly = ramp.fileName == "terrain.lut";
        const bool seaOnly = ramp.fileName == "bathymetry.lut";
        EXPECT_LE(ramp.table.front().value, landOnly ? 0.0f : -1437.0f);
        EXPECT_GE(ramp.table.back().value, seaOnly ? 0.0f : 2205.0f);
    }
}

TEST(StarterLibrary, TopoBathymetricBreaksSharplyAtSeaLevel) {
    for (const testing::StarterRamp& ramp : testing::starterRamps()) {
        if (ramp.fileName != "topo_bathymetric.lut")
            continue;
        const auto land = std::find_if(ramp.table.begin(), ramp.table.end(),
                                       [](const LutNode& node) { return node.value >= 0.0f; });
        ASSERT_NE(land, ramp.table.begin());
        EXPECT_EQ(land->value, 0.0f);
        // The shore step is flat, so nothing of the land colour leaks below 0.
        EXPECT_EQ((land - 1)->method, MethodNone);
        EXPECT_GT((land - 1)->value, -0.02f);
        return;
    }
    FAIL() << "no topo-bathymetric ramp";
}

TEST(StarterLibrary, HoldsTheEightKindsWithAClassedOne) {
    const auto ramps = testing::starterRamps();
    EXPECT_GE(ramps.size(), 8u);
    std::set<std::string> names;
    for (const testing::StarterRamp& ramp : ramps)
        names.insert(ramp.fileName);
    EXPECT_EQ(names.size(), ramps.size());
    const auto classed = std::find_if(ramps.begin(), ramps.end(), [](const auto& ramp) {
        return std::all_of(ramp.table.begin(), ramp.table.end(),
                           [](const LutNode& node) { return node.method == MethodNone; });
    });
    EXPECT_NE(classed, ramps.end());
}

} // namespace
} // namespace huebase
