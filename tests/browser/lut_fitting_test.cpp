#include "browser/lut_fitting.h"
#include "util/vb_error.h"

#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::ServiceRecorder;

const std::string kPath = "C:\\maps\\myLuts\\ten.lut";
const std::vector<double> kTen = {0, 10, 20, 30, 40, 50, 60, 70, 80, 90};

// Records at the values, method "Lin", each coloured with its position (1, 2,
// ...) so that moved records can be recognised, upper limit the next value.
LutFit fitOf(const std::vector<double>& values, std::int16_t mode, float dataMin, float dataMax) {
    LutFit fit;
    for (std::size_t i = 0; i < values.size(); ++i)
        fit.lut.push_back({Variant(values[i]), Variant(0), Variant(static_cast<int>(i + 1)),
                           Variant(i + 1 < values.size() ? values[i + 1] : values[i])});
    fit.ApplyOptions = mode;
    fit.DataMin = dataMin;
    fit.DataMax = dataMax;
    return fit;
}

// "value:colour value:colour ..."
std::string nodesOf(const LutFit& fit) {
    std::string nodes;
    for (const LutRecord& record : fit.lut)
        nodes += (nodes.empty() ? "" : " ") + record[FieldValue].toText() + ":" +
                 record[FieldColor].toText();
    return nodes;
}

TEST(LutFitting, ModesClipAndRefuseAsTheDataRangeAsks) {
    const std::string below = " minimum data is above LUT max bound ...";
    const std::string above = " maximum data is under LUT min bound ...";
    struct Case {
        const char* what;
        LutFit fit;
        std::string nodes, min, max;
        std::int16_t modeAfter;
        std::string refusal; // after "Can't do that for <path>"
    } cases[] = {
        {"mode 0 leaves the table", fitOf({-12.5, 100, 250}, ClipDataToColors, 0, 50),
         "-12.5:1 100:2 250:3", "-12.5", "250", ClipDataToColors, ""},
        {"data beyond both ends extends them",
         fitOf({0, 100, 200}, ClipColorToData, -50.25f, 2205.5f), "-50.25:1 100:2 2205.5:3",
         "-50.25", "2205.5", ClipColorToData, ""},
        {"data on both end nodes", fitOf({10, 100, 200}, ClipColorToData, 10, 200),
         "10:1 100:2 200:3", "10", "200", ClipColorToData, ""},
        {"lower cut keeps the last node at or below", fitOf(kTen, ClipColorToData, 25, 90),
         "20:3 30:4 40:5 50:6 60:7 70:8 80:9 90:10", "20", "90", ClipColorToData, ""},
        {"k = 6 of 10 keeps six nodes", fitOf(kTen, ClipColorToData, 45, 90),
         "40:5 50:6 60:7 70:8 80:9 90:10", "40", "90", ClipColorToData, ""},
        {"k = 6 of 9 refuses: 2k > n + 2",
         fitOf({0, 10, 20, 30, 40, 50, 60, 70, 80}, ClipColorToData, 45, 80),
         "40:5 50:6 60:7 70:8 80:9", "40", "80", ClipDataToColors, below},
        // Fitting stops: the upper end is not extended to 95.
        {"k = 7 of 10 refuses", fitOf(kTen, ClipColorToData, 55, 95), "50:6 60:7 70:8 80:9 90:10",
         "50", "90", ClipDataToColors, below},
        {"all but the last node below the data", fitOf({0, 10, 20, 100}, ClipColorToData, 50, 100),
         "0:1 10:2 20:3 100:4", "MinVal", "100", ClipColorToData, ""},
        // Record 5 is rebuilt from record 4 at its upper limit.
        {"upper cut ends one node after the first above",
         fitOf({0, 10, 20, 30, 40, 50}, ClipColorToData, 0, 25), "0:1 10:2 20:3 30:4 40:4", "0",
         "40", ClipColorToData, ""},
        {"data maximum under the table", fitOf({0, 10, 20, 30, 40}, ClipColorToData, 15, 5),
         "10:2 20:3 30:4 40:5", "10", "40", ClipDataToColors, above},
        {"a two-node warp is the data range", fitOf({100, 300}, WarpToFitData, -1437, 2205),
         "-1437:1 2205:2", "-1437", "2205", WarpToFitData, ""},
    };
    for (Case& c : cases) {
        SCOPED_TRACE(c.what);
        ServiceRecorder services;
        ApplyLutOptions(c.fit, kPath);
        EXPECT_EQ(nodesOf(c.fit), c.nodes);
        EXPECT_EQ(c.fit.min, c.min);
        EXPECT_EQ(c.fit.max, c.max);
        EXPECT_EQ(c.fit.ApplyOptions, c.modeAfter);
        if (c.refusal.empty()) {
            EXPECT_TRUE(services.messages().empty());
            continue;
        }
        ASSERT_EQ(services.messages().size(), 1u);
        EXPECT_EQ(services.messages()[0].text, "Can't do that for " + kPath + c.refusal);
        EXPECT_EQ(services.messages()[0].icon, MessageIcon::Critical);
        EXPECT_EQ(services.messages()[0].buttons, MessageButtons::Ok);
    }
}

TEST(LutFitting, AWarpPutsTheEndsExactlyOnTheDataAfterTwoPassesInOrder) {
    LutFit odd = fitOf({-3.3, 1.7, 9.1, 22.9}, WarpToFitData, 0.1f, 12.5f);
    ApplyLutOptions(odd, kPath);
    EXPECT_EQ(recordValue(odd.lut.front()), static_cast<double>(0.1f));
    EXPECT_EQ(recordValue(odd.lut.back()), static_cast<double>(12.5f));
    EXPECT_EQ(odd.min, "0.1");
    EXPECT_EQ(odd.max, "12.5");

    // w = 200; first pass 0.25, (100 - 0.25) / 200, (200 - 0.49875) / 200;
    // then times 1000. A single linear map would put node 3 at 500.
    LutFit fit = fitOf({0, 50, 100, 200}, WarpToFitData, 0, 1000);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(nodesOf(fit), "0:1 250:2 498.75:3 1000:4");
    EXPECT_DOUBLE_EQ(fit.lut[2][FieldUpper].toNumber(), 997.50625);
}

TEST(LutFitting, TextsWhereNumbersAreNeededAndEqualWarpEndsAreErrors) {
    auto errorOf = [](LutFit fit) {
        try {
            ApplyLutOptions(fit, kPath);
        } catch (const VbError& error) {
            return error.number();
        }
        return 0;
    };
    LutFit text = fitOf({0, 100}, ClipColorToData, -5, 50);
    text.lut[0][FieldValue] = Variant("low");
    EXPECT_EQ(errorOf(text), VbError::TypeMismatch);
    EXPECT_EQ(errorOf(fitOf({5, 5}, WarpToFitData, 0, 10)), VbError::Overflow); // 0 / 0
    EXPECT_EQ(errorOf(fitOf({5, 7, 5}, WarpToFitData, 0, 10)), VbError::DivisionByZero);
}

} // namespace
} // namespace huebase
