#include "browser/lut_file.h"
#include "util/vb_error.h"

#include "support/service_recorder.h"
#include "support/numeric_locale.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::ScratchFolder;
using testing::ServiceRecorder;

constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kBlue = 0xFF0000;

std::string contentsOf(const std::string& path) {
    std::ifstream in(std::filesystem::path(path), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Values 0, 100, 200; black "Lin", then white "Log+", then blue.
LutTable threeNodes() {
    return {{0.0f, MethodLin, 0, 100.0f},
            {100.0f, MethodLogPlus, kWhite, 200.0f},
            {200.0f, MethodLin, kBlue, 200.0f}};
}

LutRecords someRecords() {
    return toRecords({{-5.0f, MethodNone, 77, 5.0f}, {5.0f, MethodLin, 88, 5.0f}});
}

// --- Writing ------------------------------------------------------------------

TEST(LutFileWriting, HeaderThenOneFixedRecordPerNodeWithCrlfAndNothingAfter) {
    EXPECT_EQ(LutFile::text(threeNodes(), 0, '.'), "0,3\r\n"
                                                   "0.00,0.00,0.00,100.00\r\n"
                                                   "100.00,3.00,16777215.00,200.00\r\n"
                                                   "200.00,0.00,16711680.00,200.00\r\n");
}

TEST(LutFileWriting, ValuesAreRoundedToTwoDecimals) {
    EXPECT_EQ(LutFile::recordLine({-1437.125f, MethodExpPlus, 255, 2205.5f}, '.'),
              "-1437.13,4.00,255.00,2205.50");
}

TEST(LutFileWriting, AnEmptyTableIsAHeaderWithCountZero) {
    EXPECT_EQ(LutFile::text({}, 255, '.'), "255,0\r\n");
    EXPECT_EQ(LutFile::text({}, -1, '.'), "-1,0\r\n");
}

TEST(LutFileWriting, ACommaSeparatorGivesEveryFixedFieldItsOwnComma) {
    const std::string line = LutFile::recordLine({0.0f, MethodLin, 0, 100.0f}, ',');
    EXPECT_EQ(line, "0,00,0,00,0,00,100,00");
    EXPECT_EQ(std::count(line.begin(), line.end(), ','), 7);
    EXPECT_EQ(LutFile::text({{12.5f, MethodLin, kWhite, 0.0f}}, kWhite, ','),
              "16777215,1\r\n12,50,0,00,16777215,00,0,00\r\n");
}

TEST(LutFileWriting, TheDefaultSeparatorIsTheLocales) {
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma installed";
    EXPECT_EQ(LutFile::text({{0.0f, MethodLin, 0, 100.0f}}, 0), "0,1\r\n0,00,0,00,0,00,100,00\r\n");
}

TEST(LutFileWriting, WritingStopsAtTheFirstRefusedLine) {
    std::vector<std::string> taken;
    const bool complete = LutFile::writeLines(
        [&taken](std::string_view line) {
            if (taken.size() == 2)
                return false;
            taken.emplace_back(line);
            return true;
        },
        threeNodes(), 0, '.');
    EXPECT_FALSE(complete);
    EXPECT_EQ(taken, (std::vector<std::string>{"0,3", "0.00,0.00,0.00,100.00"}));
}

// --- Saving -------------------------------------------------------------------

TEST(LutSaving, ANewFileIsWrittenWithoutAQuestion) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path = folder.file("new.lut");
    EXPECT_EQ(LutFile::LutSaveAs(path, threeNodes(), kWhite, '.'), LutFile::SaveResult::Saved);
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(contentsOf(path), LutFile::text(threeNodes(), kWhite, '.'));
}

TEST(LutSaving, AnExistingFileIsReplacedOnlyAfterOk) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string old = "0,9\r\n" + std::string(500, 'x') + "\r\n";
    const std::string path = folder.write("old.lut", old);

    services.queueAnswer(MessageAnswer::Cancel);
    EXPECT_EQ(LutFile::LutSaveAs(path, threeNodes(), 0, '.'), LutFile::SaveResult::Cancelled);
    EXPECT_EQ(contentsOf(path), old);

    services.queueAnswer(MessageAnswer::Ok);
    EXPECT_EQ(LutFile::LutSaveAs(path, threeNodes(), 0, '.'), LutFile::SaveResult::Saved);
    EXPECT_EQ(contentsOf(path), LutFile::text(threeNodes(), 0, '.'));

    ASSERT_EQ(services.messages().size(), 2u);
    for (const MessageRequest& question : services.messages()) {
        EXPECT_EQ(question.text, "Overwrite " + path + " ?");
        EXPECT_EQ(question.title, "File exists ...");
        EXPECT_EQ(question.buttons, MessageButtons::OkCancel);
    }
}

TEST(LutSaving, AnUnwritablePathSaysItCannotAccessIt) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path = folder.file("missing/folder.lut");
    EXPECT_EQ(LutFile::LutSaveAs(path, threeNodes(), 0, '.'), LutFile::SaveResult::Failed);
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Can't access: " + path);
    EXPECT_EQ(services.messages()[0].buttons, MessageButtons::Ok);
}

// --- Reading ------------------------------------------------------------------

TEST(LutReading, WhatIsSavedReadsBackNodeForNode) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path = folder.file("round.lut");
    ASSERT_EQ(LutFile::LutSaveAs(path, threeNodes(), kWhite, '.'), LutFile::SaveResult::Saved);

    LutRecords lut = someRecords();
    ColorValue noData = 0;
    LutFile::LoadLut(path, lut, noData);
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(noData, kWhite);
    EXPECT_EQ(toTable(lut), threeNodes());
    EXPECT_EQ(lut[1][FieldColor], Variant(16777215.0));
    EXPECT_EQ(lut[2][FieldColor], Variant(16711680.0));
}

TEST(LutReading, AnEmptyPathKeepsTheTableAndColour) {
    ServiceRecorder services;
    LutRecords lut = someRecords();
    ColorValue noData = 42;
    LutFile::LoadLut("", lut, noData);
    EXPECT_EQ(lut, someRecords());
    EXPECT_EQ(noData, 42);
    EXPECT_TRUE(services.messages().empty());
}

TEST(LutReading, QuotedFieldsAreTexts) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path =
        folder.write("quoted.lut", "0,1\r\n\"12.50\",0.00,\"red, really\",20.00\r\n");
    LutRecords lut;
    ColorValue noData = 0;
    LutFile::LoadLut(path, lut, noData);
    EXPECT_TRUE(services.messages().empty());
    ASSERT_EQ(lut.size(), 1u);
    EXPECT_EQ(lut[0][FieldValue], Variant("12.50"));
    EXPECT_EQ(lut[0][FieldColor], Variant("red, really"));
    EXPECT_EQ(lut[0][FieldUpper], Variant(20.0));
}

TEST(LutReading, FewerRecordsThanAnnouncedLeaveEmptyRecords) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path = folder.write("few.lut", "5,3\r\n1.00,0.00,2.00,3.00\r\n");
    LutRecords lut;
    ColorValue noData = 0;
    LutFile::LoadLut(path, lut, noData);
    EXPECT_TRUE(services.messages().empty());
    EXPECT_EQ(noData, 5);
    ASSERT_EQ(lut.size(), 3u);
    EXPECT_EQ(lut[0][FieldUpper], Variant(3.0));
    EXPECT_TRUE(lut[2][FieldValue].isEmpty());
}

// --- Reading malformed files --------------------------------------------------

struct Shown {
    std::vector<std::string> texts;
    LutRecords lut;
    ColorValue noData;
};

// Loads the bytes over someRecords() and colour 42 and returns what was shown
// (every message must be titled "LoadLut" and have only OK).
Shown load(const std::string& bytes) {
    ScratchFolder folder;
    ServiceRecorder services;
    Shown shown{{}, someRecords(), 42};
    LutFile::LoadLut(folder.write("bad.lut", bytes), shown.lut, shown.noData);
    for (const MessageRequest& message : services.messages()) {
        EXPECT_EQ(message.title, "LoadLut");
        EXPECT_EQ(message.buttons, MessageButtons::Ok);
        shown.texts.push_back(message.text);
    }
    return shown;
}

TEST(LutReadingErrors, AnUnreadablePathShowsOneErrorAndKeepsTheTable) {
    ScratchFolder folder;
    ServiceRecorder services;
    LutRecords lut = someRecords();
    ColorValue noData = 42;
    LutFile::LoadLut(folder.file("absent.lut"), lut, noData);
    LutFile::LoadLut(folder.file(""), lut, noData); // a folder
    ASSERT_EQ(services.messages().size(), 2u);
    EXPECT_EQ(services.messages()[0].text, "Error: 53. File not found");
    EXPECT_EQ(services.messages()[0].title, "LoadLut");
    EXPECT_EQ(services.messages()[1].text, "Error: 75. Path/File access error");
    EXPECT_EQ(lut, someRecords());
    EXPECT_EQ(noData, 42);
}

TEST(LutReadingErrors, AnEmptyFileIsInputPastTheEndThenABadCount) {
    const Shown shown = load("");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 62. Input past end of file",
                                                     "Error: 9. Subscript out of range"}));
    EXPECT_EQ(shown.lut, someRecords());
    EXPECT_EQ(shown.noData, 0); // the unread header field counts as 0
}

TEST(LutReadingErrors, RecordsBeyondTheCountAreReportedAndDropped) {
    const Shown shown = load("7,2\r\n"
                             "0.00,0.00,1.00,10.00\r\n"
                             "10.00,0.00,2.00,20.00\r\n"
                             "20.00,0.00,3.00,30.00\r\n"
                             "30.00,0.00,4.00,30.00\r\n");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 9. Subscript out of range",
                                                     "Error: 9. Subscript out of range"}));
    ASSERT_EQ(shown.lut.size(), 2u);
    EXPECT_EQ(shown.lut[1][FieldColor], Variant(2.0));
    EXPECT_EQ(shown.noData, 7);
}

TEST(LutReadingErrors, AShortLastRecordIsStoredWithEmptyFields) {
    const Shown shown = load("0,2\r\n0.00,0.00,1.00,10.00\r\n10.00,0.00\r\n");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 62. Input past end of file"}));
    ASSERT_EQ(shown.lut.size(), 2u);
    EXPECT_EQ(shown.lut[1][FieldValue], Variant(10.0));
    EXPECT_TRUE(shown.lut[1][FieldColor].isEmpty());
    EXPECT_TRUE(shown.lut[1][FieldUpper].isEmpty());
}

TEST(LutReadingErrors, AShortRecordInTheMiddleShiftsTheFieldsThatFollow) {
    const Shown shown = load("0,2\r\n0.00,0.00\r\n10.00,0.00,2.00,20.00\r\n");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 62. Input past end of file"}));
    ASSERT_EQ(shown.lut.size(), 2u);
    EXPECT_EQ(shown.lut[0][FieldColor], Variant(10.0));
    EXPECT_EQ(shown.lut[1][FieldValue], Variant(2.0));
}

TEST(LutReadingErrors, AMissingHeaderReadsTheFirstRecordAsTheHeader) {
    // "0.00,0.00" is taken as colour 0 and count 0; the old table stays and
    // takes the fields that follow, four at a time.
    const Shown shown = load("0.00,0.00,255.00,100.00\r\n100.00,0.00,65280.00,100.00\r\n");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 9. Subscript out of range",
                                                     "Error: 62. Input past end of file"}));
    ASSERT_EQ(shown.lut.size(), 2u);
    EXPECT_EQ(shown.lut[0][FieldValue], Variant(255.0));
    EXPECT_EQ(shown.noData, 0);
}

TEST(LutReadingErrors, AHeaderColourThatIsNoNumberIsATypeMismatch) {
    const Shown shown = load("\"grey\",1\r\n1.00,0.00,2.00,3.00\r\n");
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 13. Type mismatch"}));
    EXPECT_EQ(shown.noData, 42);
    ASSERT_EQ(shown.lut.size(), 1u);
    EXPECT_EQ(shown.lut[0][FieldUpper], Variant(3.0));
}

TEST(LutReadingErrors, TheRecordCounterOverflowsPast32767Records) {
    std::string bytes = "0,32767\r\n";
    for (int i = 0; i < 32768; ++i)
        bytes += std::to_string(i) + ".00,0.00,0.00,0.00\r\n";
    const Shown shown = load(bytes);
    EXPECT_EQ(shown.texts, (std::vector<std::string>{"Error: 6. Overflow", "Error: 6. Overflow"}));
    ASSERT_EQ(shown.lut.size(), 32767u);
    // The counter stuck at its last value: the extra record took that place.
    EXPECT_EQ(shown.lut.back()[FieldValue], Variant(32767.0));
}

} // namespace
} // namespace huebase
