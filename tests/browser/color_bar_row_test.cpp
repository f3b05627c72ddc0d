#include "browser/color_bar_row_model.h"

#include "browser/lut_test_support.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::saveLut;
using testing::ScratchFolder;
using testing::ServiceRecorder;

constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kRed = 0x0000FF;
constexpr ColorValue kBlue = 0xFF0000;

std::vector<double> valuesOf(const LutRecords& lut) {
    std::vector<double> values;
    for (const LutRecord& record : lut)
        values.push_back(recordValue(record));
    return values;
}

const LutTable kFour = {{0.0f, MethodLin, 0, 50.0f},
                        {50.0f, MethodLin, kRed, 100.0f},
                        {100.0f, MethodLin, kBlue, 200.0f},
                        {200.0f, MethodLin, kWhite, 200.0f}};

// A row over the data range -10 .. 150, and a folder for its files.
class RowTest : public ::testing::Test {
protected:
    RowTest() {
        row.setDataMin(-10);
        row.setDataMax(150);
    }
    ScratchFolder folder;
    ServiceRecorder services;
    ColorBarRowModel row;
};

TEST_F(RowTest, PropertiesReadBackAndAnEmptyBagGivesTheBoundWords) {
    ColorBarRowModel fresh("Tahoma,8");
    EXPECT_EQ(fresh.min(), "MinVal");
    EXPECT_EQ(fresh.max(), "MaxVal");
    EXPECT_EQ(fresh.Font(), "Tahoma,8");
    row.setBackColor(kRed);
    row.setEnabled(true);
    row.setFont("Arial,10");
    row.setLutName("terrain");
    row.setToolTipText("Hypsometric tints");
    row.setMin("-5");
    PropertyBag bag = row.WriteProperties();
    EXPECT_EQ(bag.size(), std::size(kRowPropertyKeys));
    EXPECT_EQ(bag.at("Enabled"), Variant(-1));
    EXPECT_EQ(bag.at("Max"), Variant("MaxVal"));
    bag["FilePath"] = Variant(saveLut(folder, "four.lut", kFour));

    fresh.ReadProperties(bag);
    EXPECT_EQ(fresh.WriteProperties(), bag);
    EXPECT_TRUE(fresh.lut().empty()) << "the file is read when the mode is set";
    fresh.setApplyOptions(ClipDataToColors);
    EXPECT_EQ(fresh.lut().size(), 4u);
    fresh.ReadProperties({});
    EXPECT_EQ(fresh.min(), "MinVal");
    EXPECT_EQ(fresh.Pathtxt(), "");
    EXPECT_EQ(fresh.Font(), "Tahoma,8") << "a bag without a font gives the container's";
}

TEST_F(RowTest, EveryModeChangeRereadsTheFileSoFitsNeverAccumulate) {
    row.setFilePath(saveLut(folder, "four.lut", kFour));
    EXPECT_EQ(row.max(), "200");
    EXPECT_TRUE(row.changedProperties().contains("FilePath"));
    row.setApplyOptions(WarpToFitData);
    const LutRecords warped = row.lut();
    EXPECT_EQ(row.min(), "-10");
    row.setApplyOptions(WarpToFitData);
    EXPECT_EQ(row.lut(), warped);
    row.setApplyOptions(ClipColorToData);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{-10, 50, 100, 200}));
    saveLut(folder, "four.lut", testing::tableAt({0, 10}));
    row.setApplyOptions(ClipDataToColors);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{0, 10}));
    EXPECT_TRUE(services.messages().empty());
}

TEST_F(RowTest, WithoutAPathAModeIsOnlyStoredAndASetTableIsFitted) {
    row.setLut(toRecords(kFour));
    row.setApplyOptions(WarpToFitData);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{0, 50, 100, 200}));
    row.setLut(toRecords(testing::tableAt({5, 6})));
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{-10, 150}));
    EXPECT_TRUE(row.changedProperties().contains("Lut"));
}

TEST_F(RowTest, ErrorsAreShownAndLeaveTheRowUsableAsItWas) {
    row.setApplyOptions(WarpToFitData);
    const std::string good = saveLut(folder, "good.lut", kFour, kRed);
    row.setFilePath(good);
    const LutRecords before = row.lut();
    row.setFilePath(saveLut(folder, "flat.lut", testing::tableAt({7, 7})));
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Error: 6. Overflow");
    EXPECT_EQ(row.lut(), before);
    EXPECT_EQ(row.Pathtxt(), good);
    EXPECT_EQ(row.noDataColor(), kRed);
    EXPECT_EQ(row.max(), "150");
    EXPECT_EQ(row.ApplyOptions(), WarpToFitData);

    ColorBarRowModel gone;
    gone.setFilePath(folder.file("gone.lut"));
    EXPECT_EQ(services.messages().back().title, "LoadLut");
    EXPECT_TRUE(gone.barSlices().empty());
    EXPECT_EQ(gone.readoutText(0.5), "");

    // Intervals touching a text record are not painted; mode 1 compares it.
    ColorBarRowModel quoted;
    quoted.setFilePath(folder.write("q.lut", "0,3\r\n0.00,0.00,0.00,5.00\r\n\"mid\",0.00,\"red\","
                                             "9.00\r\n10.00,0.00,255.00,10.00\r\n"));
    EXPECT_EQ(quoted.max(), "10");
    EXPECT_TRUE(quoted.barSlices().empty());
    quoted.setApplyOptions(ClipColorToData);
    EXPECT_EQ(services.messages().back().text, "Error: 13. Type mismatch");
    EXPECT_EQ(quoted.ApplyOptions(), ClipDataToColors);
    EXPECT_EQ(services.messages().size(), 3u);
}

TEST_F(RowTest, TheBarIsPaintedInSlicesOfA256thOfTheRangeOnEachNodesRamp) {
    row.setLut(toRecords({{0.0f, MethodLin, 0, 256.0f}, {256.0f, MethodLin, kWhite, 256.0f}}));
    const std::vector<ColorSlice> slices = row.barSlices();
    ASSERT_EQ(slices.size(), 257u);
    EXPECT_EQ(slices[128], (ColorSlice{128.0f, 129.0f, composeColor(128, 128, 128)}));
    EXPECT_EQ(slices[256], (ColorSlice{256.0f, 257.0f, kWhite}));
    EXPECT_EQ(row.readoutText(0.5), "128.00");
}

TEST_F(RowTest, NodesFarOutsideTheShownRangeOrOutOfOrderCostOnlyTheShownSlices) {
    const std::vector<LutTable> tables = {
        {{-1.0e7f, MethodLin, 0, 5.0f},
         {5.0f, MethodLin, kWhite, 1.0e7f},
         {1.0e7f, MethodLin, 0, 1.0e7f}},
        // Descending back far below the range: slice numbers pass 2^53.
        {{0.0f, MethodLin, 0, 1.0f},
         {1.0f, MethodLin, kWhite, -1.0e15f},
         {-1.0e15f, MethodLin, kRed, 1.0f},
         {1.0f, MethodLin, kBlue, 1.0f}},
        {{-3.4e38f, MethodLin, 0, 3.4e38f}, {3.4e38f, MethodLin, kWhite, 3.4e38f}},
    };
    for (const LutTable& table : tables) {
        row.setLut(toRecords(table));
        row.setMin("0");
        row.setMax("10");
        const std::vector<ColorSlice> slices = row.barSlices();
        EXPECT_LE(slices.size(), 2u * 260u);
        EXPECT_GE(slices.size(), &table == &tables.front() ? 256u : 1u);
        for (const ColorSlice& slice : slices) {
            EXPECT_LE(slice.x0, 10.0f);
            EXPECT_GE(slice.x1, 0.0f);
        }
    }
    EXPECT_TRUE(services.messages().empty());
}

TEST(LutSelection, TheHandedOverTableIsCutToTheDataWithRampColouredEnds) {
    const LutTable steps = {{0.0f, MethodNone, kRed, 10.0f},
                            {10.0f, MethodNone, kBlue, 20.0f},
                            {20.0f, MethodNone, kWhite, 20.0f}};
    const LutTable ramp = {{0.0f, MethodLin, 0, 100.0f}, {100.0f, MethodLin, kWhite, 100.0f}};
    struct Case {
        LutTable fitted;
        std::int16_t mode;
        float dataMin, dataMax;
        LutTable expected;
    } cases[] = {
        // clang-format off
        {kFour, ClipDataToColors, 25, 150, {{25.0f, MethodLin, BlendColor(0, kRed, 0.5f), 50.0f},
             kFour[1], kFour[2], {150.0f, MethodLin, BlendColor(kBlue, kWhite, 0.5f), 150.0f}}},
        {kFour, WarpToFitData, 25, 150, kFour},
        {steps, ClipDataToColors, 10, 20, {{10.0f, MethodNone, kBlue, 20.0f}, steps[2]}},
        {steps, ClipColorToData, 2, 10,
             {{2.0f, MethodNone, kRed, 10.0f}, {10.0f, MethodNone, kBlue, 10.0f}}},
        {ramp, ClipDataToColors, -50, 500, ramp},
        {ramp, ClipDataToColors, 200, 500, ramp},
        {ramp, ClipDataToColors, -50, 50,
             {ramp[0], {50.0f, MethodLin, BlendColor(0, kWhite, 0.5f), 50.0f}}},
        // clang-format on
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.mode << ": " << c.dataMin << " .. " << c.dataMax);
        EXPECT_EQ(selectedTable(toRecords(c.fitted), c.mode, c.dataMin, c.dataMax), c.expected);
    }
}

} // namespace
} // namespace huebase
