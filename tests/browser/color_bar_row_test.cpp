#include "browser/color_bar_row_model.h"
#include "browser/lut_file.h"

#include "support/service_recorder.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace huebase {
namespace {

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

// A library folder holding .lut files written by the format's own writer.
class RowTest : public ::testing::Test {
protected:
    std::string save(const std::string& name, const LutTable& table, ColorValue noData = 0) {
        const std::string path = folder.file(name);
        folder.write(name, LutFile::text(table, noData, '.'));
        return path;
    }

    ScratchFolder folder;
    ServiceRecorder services;
};

const LutTable kFourNodes = {{0.0f, MethodLin, 0, 50.0f},
                             {50.0f, MethodLin, kRed, 100.0f},
                             {100.0f, MethodLin, kBlue, 200.0f},
                             {200.0f, MethodLin, kWhite, 200.0f}};

// --- Fitting through the properties ------------------------------------------------

TEST_F(RowTest, AFreshRowShowsTheLiteralBoundWords) {
    ColorBarRowModel row("Arial,8");
    EXPECT_EQ(row.min(), "MinVal");
    EXPECT_EQ(row.max(), "MaxVal");
    EXPECT_EQ(row.Pathtxt(), "");
    EXPECT_EQ(row.ApplyOptions(), ClipDataToColors);
    EXPECT_EQ(row.Font(), "Arial,8");
    EXPECT_TRUE(row.lut().empty());
    EXPECT_TRUE(row.barSlices().empty());
}

TEST_F(RowTest, SettingTheFilePathReadsFitsAndShowsThePath) {
    const std::string path = save("four.lut", kFourNodes, kRed);
    ColorBarRowModel row;
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setFilePath(path);
    EXPECT_EQ(row.Pathtxt(), path);
    EXPECT_EQ(row.pathToolTip(), path);
    EXPECT_EQ(row.noDataColor(), kRed);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{0, 50, 100, 200}));
    EXPECT_EQ(row.min(), "0");
    EXPECT_EQ(row.max(), "200");
    EXPECT_TRUE(row.changedProperties().contains("FilePath"));
}

TEST_F(RowTest, EveryModeChangeRereadsTheFileSoFitsNeverAccumulate) {
    const std::string path = save("four.lut", kFourNodes);
    ColorBarRowModel row;
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setFilePath(path);
    row.setApplyOptions(WarpToFitData);
    const LutRecords warped = row.lut();
    EXPECT_EQ(row.min(), "-10");
    EXPECT_EQ(row.max(), "150");
    row.setApplyOptions(WarpToFitData);
    EXPECT_EQ(row.lut(), warped);

    row.setApplyOptions(ClipColorToData);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{-10, 50, 100, 200}));

    // The file on disk is what each change starts from.
    save("four.lut", {{0.0f, MethodLin, 0, 10.0f}, {10.0f, MethodLin, 0, 10.0f}});
    row.setApplyOptions(ClipDataToColors);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{0, 10}));
    EXPECT_TRUE(services.messages().empty());
}

TEST_F(RowTest, AModeChangeWithoutAPathOnlyStoresTheMode) {
    ColorBarRowModel row;
    row.setLut(toRecords(kFourNodes));
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setApplyOptions(WarpToFitData);
    EXPECT_EQ(row.ApplyOptions(), WarpToFitData);
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{0, 50, 100, 200}));
}

TEST_F(RowTest, ATableSetDirectlyIsFittedWithoutAFile) {
    ColorBarRowModel row;
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setApplyOptions(WarpToFitData);
    row.setLut(toRecords({{5.0f, MethodLin, 0, 6.0f}, {6.0f, MethodLin, 0, 6.0f}}));
    EXPECT_EQ(valuesOf(row.lut()), (std::vector<double>{-10, 150}));
    EXPECT_TRUE(row.changedProperties().contains("Lut"));
}

TEST_F(RowTest, ARefusalNamesTheFileAndFallsBackToModeZero) {
    LutTable ten;
    for (int i = 0; i < 10; ++i)
        ten.push_back({10.0f * i, MethodLin, i, 10.0f * (i + 1)});
    const std::string path = save("ten.lut", ten);
    ColorBarRowModel row;
    row.setDataMin(55);
    row.setDataMax(95);
    row.setApplyOptions(ClipColorToData);
    row.setFilePath(path);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text,
              "Can't do that for " + path + " minimum data is above LUT max bound ...");
    EXPECT_EQ(row.ApplyOptions(), ClipDataToColors);
    EXPECT_EQ(row.lut().size(), 5u);
    EXPECT_EQ(row.Pathtxt(), path);
}

TEST_F(RowTest, AWarpOverEqualEndsShowsTheErrorAndLeavesTheRowAsItWas) {
    const std::string good = save("good.lut", kFourNodes, kRed);
    const std::string flat =
        save("flat.lut", {{7.0f, MethodLin, 0, 7.0f}, {7.0f, MethodLin, 0, 7.0f}});
    ColorBarRowModel row;
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setApplyOptions(WarpToFitData);
    row.setFilePath(good);
    const LutRecords before = row.lut();

    row.setFilePath(flat);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Error: 6. Overflow");
    EXPECT_EQ(row.lut(), before);
    EXPECT_EQ(row.Pathtxt(), good);
    EXPECT_EQ(row.noDataColor(), kRed);
    EXPECT_EQ(row.min(), "-10");
    EXPECT_EQ(row.max(), "150");
    EXPECT_EQ(row.ApplyOptions(), WarpToFitData);
}

TEST_F(RowTest, AnUnreadableFileShowsTheLoadErrorAndTheRowStaysUsable) {
    ColorBarRowModel row;
    row.setFilePath(folder.file("gone.lut"));
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].title, "LoadLut");
    EXPECT_TRUE(row.lut().empty());
    EXPECT_EQ(row.min(), "MinVal");
    EXPECT_TRUE(row.barSlices().empty());
    EXPECT_EQ(row.readoutText(0.5), "");
}

TEST_F(RowTest, QuotedTextFieldsGiveAUsableRow) {
    const std::string path =
        folder.write("quoted.lut", "0,3\r\n0.00,0.00,0.00,5.00\r\n\"mid\",0.00,\"red\",9.00\r\n"
                                   "10.00,0.00,255.00,10.00\r\n");
    ColorBarRowModel row;
    row.setFilePath(path);
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(row.min(), "0");
    EXPECT_EQ(row.max(), "10");
    // The two intervals that touch the text record are not painted.
    EXPECT_TRUE(row.barSlices().empty());
    row.setApplyOptions(ClipColorToData);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Error: 13. Type mismatch");
    EXPECT_EQ(row.ApplyOptions(), ClipDataToColors);
}

// --- Persisted properties -------------------------------------------------------

TEST_F(RowTest, AnEmptyBagGivesEveryDefault) {
    ColorBarRowModel row("Tahoma,8");
    row.setMin("1");
    row.ReadProperties({});
    EXPECT_EQ(row.min(), "MinVal");
    EXPECT_EQ(row.max(), "MaxVal");
    EXPECT_EQ(row.Font(), "Tahoma,8");
    EXPECT_EQ(row.BackColor(), 0);
    EXPECT_FALSE(row.Enabled());
    EXPECT_EQ(row.Pathtxt(), "");
    EXPECT_EQ(row.LutName(), "");
    EXPECT_EQ(row.ToolTipText(), "");
    EXPECT_EQ(row.ActiveControl(), "");
}

TEST_F(RowTest, WrittenPropertiesReadBackIntoAnotherRow) {
    ColorBarRowModel row("Tahoma,8");
    row.setBackColor(kRed);
    row.setForeColor(kBlue);
    row.setEnabled(true);
    row.setFont("Arial,10");
    row.setBackStyle(1);
    row.setBorderStyle(1);
    row.setActiveControl("SelectBtn");
    row.setLutName("terrain");
    row.setToolTipText("Hypsometric tints");
    row.setMin("-5");
    row.setMax("12.5");
    const PropertyBag bag = row.WriteProperties();
    for (const char* key : kRowPropertyKeys)
        EXPECT_TRUE(bag.contains(key)) << key;
    EXPECT_EQ(bag.size(), std::size(kRowPropertyKeys));
    EXPECT_EQ(bag.at("Enabled"), Variant(-1));

    ColorBarRowModel other("Courier,9");
    other.ReadProperties(bag);
    EXPECT_EQ(other.WriteProperties(), bag);
    EXPECT_EQ(other.BackColor(), kRed);
    EXPECT_TRUE(other.Enabled());
    EXPECT_EQ(other.min(), "-5");
    EXPECT_EQ(other.max(), "12.5");
}

TEST_F(RowTest, ReadingAPathShowsItButReadsNoFileUntilTheModeIsSet) {
    const std::string path = save("four.lut", kFourNodes);
    ColorBarRowModel row;
    row.ReadProperties({{"FilePath", Variant(path)}});
    EXPECT_EQ(row.Pathtxt(), path);
    EXPECT_TRUE(row.lut().empty());
    row.setApplyOptions(ClipDataToColors);
    EXPECT_EQ(row.lut().size(), 4u);
}

// --- The bar ------------------------------------------------------------------------

TEST_F(RowTest, TheBarIsPaintedInSlicesOfA256thOfTheShownRange) {
    ColorBarRowModel row;
    row.setLut(toRecords({{0.0f, MethodLin, 0, 256.0f}, {256.0f, MethodLin, kWhite, 256.0f}}));
    const std::vector<BarSlice> slices = row.barSlices();
    ASSERT_EQ(slices.size(), 257u);
    for (int k : {0, 1, 128, 255}) {
        EXPECT_EQ(slices[k].x0, static_cast<float>(k));
        EXPECT_EQ(slices[k].x1, static_cast<float>(k + 1));
        EXPECT_EQ(slices[k].color, BlendColor(0, kWhite, static_cast<float>(k) / 256.0f));
    }
    EXPECT_EQ(slices[128].color, composeColor(128, 128, 128));
    EXPECT_EQ(slices[256].color, kWhite);
}

TEST_F(RowTest, SliceColoursFollowEachNodesRamp) {
    ColorBarRowModel row;
    row.setLut(toRecords({{0.0f, MethodLog, 0, 128.0f},
                          {128.0f, MethodExp, kWhite, 256.0f},
                          {256.0f, MethodLin, 0, 256.0f}}));
    const std::vector<BarSlice> slices = row.barSlices();
    ASSERT_EQ(slices.size(), 2u * 129u);
    // Half-way through the first interval: t * t = 0.25; the second: sqrt(0.5).
    EXPECT_EQ(slices[64].color, BlendColor(0, kWhite, 0.25f));
    EXPECT_EQ(slices[129 + 64].color, BlendColor(kWhite, 0, std::sqrt(0.5f)));
}

TEST_F(RowTest, NoneIntervalsAreOneFlatBoxInTheLowerColour) {
    ColorBarRowModel row;
    row.setLut(toRecords({{0.0f, MethodNone, kRed, 100.0f},
                          {100.0f, MethodNone, kBlue, 300.0f},
                          {300.0f, MethodNone, kWhite, 300.0f}}));
    EXPECT_EQ(row.barSlices(),
              (std::vector<BarSlice>{{0.0f, 100.0f, kRed}, {100.0f, 300.0f, kBlue}}));
}

TEST_F(RowTest, ANodeFarOutsideTheShownRangeCostsNoSlices) {
    // Clip colour to data keeps the first node far below the data minimum.
    ColorBarRowModel row;
    row.setDataMin(0);
    row.setDataMax(10);
    row.setApplyOptions(ClipColorToData);
    row.setLut(toRecords({{-1.0e7f, MethodLin, 0, 5.0f},
                          {5.0f, MethodLin, kWhite, 1.0e7f},
                          {1.0e7f, MethodLin, 0, 1.0e7f}}));
    EXPECT_EQ(row.lut().size(), 3u);
    EXPECT_EQ(row.min(), "-1E+07");
    EXPECT_EQ(row.max(), "MaxVal"); // no node but the last lies above the data
    row.setMin("0");
    row.setMax("10");
    const std::vector<BarSlice> slices = row.barSlices();
    EXPECT_LE(slices.size(), 260u);
    EXPECT_GE(slices.size(), 256u);
    for (const BarSlice& slice : slices) {
        EXPECT_LE(slice.x0, 10.0f);
        EXPECT_GE(slice.x1, 0.0f);
    }
}

TEST_F(RowTest, ThePointerReadOutIsTheDataValueInFixed) {
    ColorBarRowModel row;
    row.setLut(toRecords({{0.0f, MethodLin, 0, 7.0f}, {7.0f, MethodLin, kWhite, 7.0f}}));
    EXPECT_EQ(row.readoutText(0.5), "3.50");
    EXPECT_EQ(row.readoutText(0.0), "0.00");
    EXPECT_EQ(row.readoutText(1.0), "7.00");
}

// --- Selection ------------------------------------------------------------------------

TEST_F(RowTest, TheWarpedTableIsHandedOverUnchanged) {
    const std::string path = save("four.lut", kFourNodes, kBlue);
    ColorBarRowModel row;
    row.setDataMin(-10);
    row.setDataMax(150);
    row.setApplyOptions(WarpToFitData);
    row.setFilePath(path);
    const LutSelection selection = row.Selected();
    EXPECT_EQ(selection.table, toTable(row.lut()));
    EXPECT_EQ(selection.noDataColor, kBlue);
}

TEST_F(RowTest, OtherModesHandOverTheTableCutToTheDataWithRampColouredEnds) {
    const std::string path = save("four.lut", kFourNodes, kWhite);
    ColorBarRowModel row;
    row.setDataMin(25);
    row.setDataMax(150);
    row.setFilePath(path);
    const LutSelection selection = row.Selected();
    ASSERT_EQ(selection.table.size(), 4u);
    EXPECT_EQ(selection.table[0], (LutNode{25.0f, MethodLin, BlendColor(0, kRed, 0.5f), 50.0f}));
    EXPECT_EQ(selection.table[1], kFourNodes[1]);
    EXPECT_EQ(selection.table[2], kFourNodes[2]);
    EXPECT_EQ(selection.table[3],
              (LutNode{150.0f, MethodLin, BlendColor(kBlue, kWhite, 0.5f), 150.0f}));
    EXPECT_EQ(selection.noDataColor, kWhite);
}

TEST(LutSelectionCut, EndsOnNodesKeepTheNodesAndNoneKeepsTheLowerColour) {
    const LutRecords stepped = toRecords({{0.0f, MethodNone, kRed, 10.0f},
                                          {10.0f, MethodNone, kBlue, 20.0f},
                                          {20.0f, MethodNone, kWhite, 20.0f}});
    const LutTable onNodes = selectedTable(stepped, ClipDataToColors, 10, 20);
    EXPECT_EQ(onNodes, (LutTable{{10.0f, MethodNone, kBlue, 20.0f}, toNode(stepped[2])}));

    const LutTable inside = selectedTable(stepped, ClipColorToData, 2, 10);
    EXPECT_EQ(inside,
              (LutTable{{2.0f, MethodNone, kRed, 10.0f}, {10.0f, MethodNone, kBlue, 10.0f}}));
}

TEST(LutSelectionCut, DataBeyondTheTableKeepsTheTablesOwnEnds) {
    const LutRecords ramp =
        toRecords({{0.0f, MethodLin, 0, 100.0f}, {100.0f, MethodLin, kWhite, 100.0f}});
    EXPECT_EQ(selectedTable(ramp, ClipDataToColors, -50, 500), toTable(ramp));
    EXPECT_EQ(selectedTable(ramp, ClipDataToColors, 200, 500), toTable(ramp));
    const LutTable lower = selectedTable(ramp, ClipDataToColors, -50, 50);
    ASSERT_EQ(lower.size(), 2u);
    EXPECT_EQ(lower[0], toNode(ramp[0]));
    EXPECT_EQ(lower[1].value, 50.0f);
    EXPECT_EQ(lower[1].color, BlendColor(0, kWhite, 0.5f));
}

} // namespace
} // namespace huebase
