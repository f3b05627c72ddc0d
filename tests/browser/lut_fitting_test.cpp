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

// Records at the given values, each coloured with its own position (1, 2, ...)
// so that moved records can be recognised, method "Lin", upper limit = the
// next value.
LutRecords recordsAt(const std::vector<double>& values) {
    LutRecords records;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double upper = i + 1 < values.size() ? values[i + 1] : values[i];
        records.push_back(
            {Variant(values[i]), Variant(0), Variant(static_cast<int>(i + 1)), Variant(upper)});
    }
    return records;
}

LutFit fitOf(const std::vector<double>& values, std::int16_t mode, float dataMin, float dataMax) {
    LutFit fit;
    fit.lut = recordsAt(values);
    fit.ApplyOptions = mode;
    fit.DataMin = dataMin;
    fit.DataMax = dataMax;
    return fit;
}

std::vector<double> valuesOf(const LutFit& fit) {
    std::vector<double> values;
    for (const LutRecord& record : fit.lut)
        values.push_back(recordValue(record));
    return values;
}

std::vector<double> colorsOf(const LutFit& fit) {
    std::vector<double> colors;
    for (const LutRecord& record : fit.lut)
        colors.push_back(record[FieldColor].toNumber());
    return colors;
}

const std::vector<double> kTen = {0, 10, 20, 30, 40, 50, 60, 70, 80, 90};

// --- Mode 0 ---------------------------------------------------------------------

TEST(ClipDataToColors, LeavesTheTableAndShowsItsEnds) {
    ServiceRecorder services;
    LutFit fit = fitOf({-12.5, 100, 250}, ClipDataToColors, 0, 50);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(fit.lut, recordsAt({-12.5, 100, 250}));
    EXPECT_EQ(fit.min, "-12.5");
    EXPECT_EQ(fit.max, "250");
    EXPECT_TRUE(services.messages().empty());
}

// --- Mode 1, lower end ----------------------------------------------------------

TEST(ClipColorToDataLowerEnd, DataBelowTheTableExtendsTheFirstNode) {
    LutFit fit = fitOf({0, 100, 200}, ClipColorToData, -50.25f, 200);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{-50.25, 100, 200}));
    EXPECT_EQ(fit.min, "-50.25");
    EXPECT_EQ(fit.ApplyOptions, ClipColorToData);
}

TEST(ClipColorToDataLowerEnd, DataStartingOnTheFirstNodeSetsItWithoutASearch) {
    LutFit fit = fitOf({10, 100, 200}, ClipColorToData, 10, 200);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{10, 100, 200}));
    EXPECT_EQ(fit.min, "10");
    EXPECT_EQ(fit.max, "200");
}

TEST(ClipColorToDataLowerEnd, TheTableStartsAtTheLastNodeAtOrBelowTheData) {
    // First node above 25 is node 4 (30): two records go, node 3 (20) keeps its value.
    LutFit fit = fitOf(kTen, ClipColorToData, 25, 90);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{20, 30, 40, 50, 60, 70, 80, 90}));
    EXPECT_EQ(colorsOf(fit), (std::vector<double>{3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(fit.lut.front()[FieldUpper], Variant(30.0));
    EXPECT_EQ(fit.min, "20");
    EXPECT_EQ(fit.ApplyOptions, ClipColorToData);
}

TEST(ClipColorToDataLowerEnd, TenNodesCutAtNodeSevenShortenToFiveAndRefuse) {
    ServiceRecorder services;
    LutFit fit = fitOf(kTen, ClipColorToData, 55, 95);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{50, 60, 70, 80, 90}));
    ASSERT_EQ(services.messages().size(), 1u);
    const MessageRequest& refusal = services.messages()[0];
    EXPECT_EQ(refusal.text,
              "Can't do that for " + kPath + " minimum data is above LUT max bound ...");
    EXPECT_EQ(refusal.icon, MessageIcon::Critical);
    EXPECT_EQ(refusal.buttons, MessageButtons::Ok);
    // Fitting stopped: the upper end was not extended to 95.
    EXPECT_EQ(fit.min, "50");
    EXPECT_EQ(fit.max, "90");
    EXPECT_EQ(fit.ApplyOptions, ClipDataToColors);
}

TEST(ClipColorToDataLowerEnd, TheRefusalFollowsTwiceKAboveNPlusTwo) {
    // n = 10: k = 6 keeps 6 nodes (no refusal), k = 7 keeps 5 (refusal).
    ServiceRecorder services;
    LutFit six = fitOf(kTen, ClipColorToData, 45, 90);
    ApplyLutOptions(six, kPath);
    EXPECT_EQ(six.lut.size(), 6u);
    EXPECT_EQ(six.ApplyOptions, ClipColorToData);
    EXPECT_TRUE(services.messages().empty());

    LutFit seven = fitOf(kTen, ClipColorToData, 50, 90);
    ApplyLutOptions(seven, kPath);
    EXPECT_EQ(seven.lut.size(), 5u);
    EXPECT_EQ(seven.ApplyOptions, ClipDataToColors);
    EXPECT_EQ(services.messages().size(), 1u);
}

TEST(ClipColorToDataLowerEnd, DataAboveAllButTheLastNodeLeavesTheLowerEnd) {
    ServiceRecorder services;
    LutFit fit = fitOf({0, 10, 20, 100}, ClipColorToData, 50, 100);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{0, 10, 20, 100}));
    EXPECT_EQ(fit.min, "MinVal");
    EXPECT_EQ(fit.max, "100");
    EXPECT_TRUE(services.messages().empty());
}

// --- Mode 1, upper end ----------------------------------------------------------

TEST(ClipColorToDataUpperEnd, DataAboveTheTableExtendsTheLastNode) {
    LutFit fit = fitOf({0, 100, 200}, ClipColorToData, 0, 2205.5f);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{0, 100, 2205.5}));
    EXPECT_EQ(fit.max, "2205.5");
}

TEST(ClipColorToDataUpperEnd, DataEndingOnTheLastNodeSetsIt) {
    LutFit fit = fitOf({0, 100, 200}, ClipColorToData, 0, 200);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{0, 100, 200}));
    EXPECT_EQ(fit.max, "200");
}

TEST(ClipColorToDataUpperEnd, TheTableEndsOneNodeAfterTheFirstAboveTheData) {
    // First node above 25 is 30 (node 4); node 5 is rebuilt from it at its
    // upper limit and ends the table.
    LutFit fit = fitOf({0, 10, 20, 30, 40, 50}, ClipColorToData, 0, 25);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{0, 10, 20, 30, 40}));
    EXPECT_EQ(colorsOf(fit), (std::vector<double>{1, 2, 3, 4, 4}));
    EXPECT_EQ(fit.max, "40");
}

TEST(ClipColorToDataUpperEnd, DataBelowTheTableRefusesOnTheMaximumSide) {
    ServiceRecorder services;
    // An inverted range: the lower end keeps node 2 (10), the maximum lies under it.
    LutFit fit = fitOf({0, 10, 20, 30, 40}, ClipColorToData, 15, 5);
    ApplyLutOptions(fit, kPath);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text,
              "Can't do that for " + kPath + " maximum data is under LUT min bound ...");
    EXPECT_EQ(services.messages()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{10, 20, 30, 40}));
    EXPECT_EQ(fit.min, "10");
    EXPECT_EQ(fit.max, "40");
    EXPECT_EQ(fit.ApplyOptions, ClipDataToColors);
}

TEST(ClipColorToData, ATextWhereAValueIsComparedIsATypeMismatch) {
    LutFit fit = fitOf({0, 100}, ClipColorToData, -5, 50);
    fit.lut[0][FieldValue] = Variant("low");
    try {
        ApplyLutOptions(fit, kPath);
        FAIL() << "no error";
    } catch (const VbError& error) {
        EXPECT_EQ(error.number(), VbError::TypeMismatch);
    }
}

// --- Mode 2 ---------------------------------------------------------------------

TEST(WarpToFitData, TwoNodesBecomeExactlyTheDataRange) {
    LutFit fit = fitOf({100, 300}, WarpToFitData, -1437, 2205);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(valuesOf(fit), (std::vector<double>{-1437, 2205}));
    EXPECT_EQ(fit.lut[0][FieldUpper], Variant(2205.0));
    EXPECT_EQ(fit.min, "-1437");
    EXPECT_EQ(fit.max, "2205");
}

TEST(WarpToFitData, TheEndsLieExactlyOnTheDataRange) {
    LutFit fit = fitOf({-3.3, 1.7, 9.1, 22.9}, WarpToFitData, 0.1f, 12.5f);
    ApplyLutOptions(fit, kPath);
    EXPECT_EQ(recordValue(fit.lut.front()), static_cast<double>(0.1f));
    EXPECT_EQ(recordValue(fit.lut.back()), static_cast<double>(12.5f));
    EXPECT_EQ(fit.min, "0.1");
    EXPECT_EQ(fit.max, "12.5");
}

TEST(WarpToFitData, InteriorNodesFollowTheTwoPassesInOrder) {
    // w = 200; first pass 0.25, (100 - 0.25) / 200, (200 - 0.49875) / 200;
    // second pass times 1000, then the last node is put on the maximum.
    // A single linear map would put node 3 at 500.
    LutFit fit = fitOf({0, 50, 100, 200}, WarpToFitData, 0, 1000);
    ApplyLutOptions(fit, kPath);
    const std::vector<double> values = valuesOf(fit);
    ASSERT_EQ(values.size(), 4u);
    EXPECT_DOUBLE_EQ(values[1], 250.0);
    EXPECT_DOUBLE_EQ(values[2], 498.75);
    EXPECT_EQ(values[3], 1000.0);
    EXPECT_DOUBLE_EQ(fit.lut[2][FieldUpper].toNumber(), 997.50625);
    EXPECT_EQ(colorsOf(fit), (std::vector<double>{1, 2, 3, 4}));
}

TEST(WarpToFitData, EqualEndsAreADivisionError) {
    auto errorOf = [](const std::vector<double>& values) {
        LutFit fit = fitOf(values, WarpToFitData, 0, 10);
        try {
            ApplyLutOptions(fit, kPath);
        } catch (const VbError& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(errorOf({5, 5}), VbError::Overflow); // 0 / 0
    EXPECT_EQ(errorOf({5, 7, 5}), VbError::DivisionByZero);
}

} // namespace
} // namespace huebase
