#include "browser/lut_file.h"

#include "browser/lut_test_support.h"
#include "starter_ramps.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace huebase {
namespace {

using testing::contentsOf;
using testing::ScratchFolder;
using testing::ServiceRecorder;

constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kBlue = 0xFF0000;

// Values 0, 100, 200; black "Lin", then white "Log+", then blue.
const LutTable kThree = {{0.0f, MethodLin, 0, 100.0f},
                         {100.0f, MethodLogPlus, kWhite, 200.0f},
                         {200.0f, MethodLin, kBlue, 200.0f}};

TEST(LutFileWriting, PlainIntegerHeaderThenFixedRecordsWithCrlf) {
    EXPECT_EQ(LutFile::text(kThree, kWhite, '.'), "16777215,3\r\n"
                                                  "0.00,0.00,0.00,100.00\r\n"
                                                  "100.00,3.00,16777215.00,200.00\r\n"
                                                  "200.00,0.00,16711680.00,200.00\r\n");
    EXPECT_EQ(LutFile::text({}, -1, '.'), "-1,0\r\n");
    EXPECT_EQ(LutFile::recordLine({-1437.125f, MethodExpPlus, 255, 2205.5f}, '.'),
              "-1437.13,4.00,255.00,2205.50");
    // A decimal comma gives every field its own comma: eight pieces.
    EXPECT_EQ(LutFile::text({{12.5f, MethodLin, kWhite, 0.0f}}, kWhite, ','),
              "16777215,1\r\n12,50,0,00,16777215,00,0,00\r\n");
}

TEST(LutSaving, AnExistingFileIsReplacedOnlyAfterOkAndAnUnwritableOneSaysSo) {
    ScratchFolder folder;
    ServiceRecorder services;
    const std::string path = folder.file("a.lut");
    ASSERT_EQ(LutFile::LutSaveAs(path, {}, 0, '.'), LutFile::SaveResult::Saved);
    EXPECT_TRUE(services.messages().empty());
    services.queueAnswer(MessageAnswer::Cancel);
    EXPECT_EQ(LutFile::LutSaveAs(path, kThree, 0, '.'), LutFile::SaveResult::Cancelled);
    EXPECT_EQ(contentsOf(path), "0,0\r\n");
    services.queueAnswer(MessageAnswer::Ok);
    EXPECT_EQ(LutFile::LutSaveAs(path, kThree, 0, '.'), LutFile::SaveResult::Saved);
    EXPECT_EQ(contentsOf(path), LutFile::text(kThree, 0, '.'));
    const std::string bad = folder.file("missing/folder.lut");
    EXPECT_EQ(LutFile::LutSaveAs(bad, kThree, 0, '.'), LutFile::SaveResult::Failed);

    const auto& shown = services.messages();
    ASSERT_EQ(shown.size(), 3u);
    for (const MessageRequest& question : {shown[0], shown[1]}) {
        EXPECT_EQ(question.text, "Overwrite " + path + " ?");
        EXPECT_EQ(question.title, "File exists ...");
        EXPECT_EQ(question.buttons, MessageButtons::OkCancel);
    }
    EXPECT_EQ(shown[2].text, "Can't access: " + bad);
    EXPECT_EQ(shown[2].buttons, MessageButtons::Ok);
}

// The records as "value method colour upper | ...": empty fields "-", texts quoted.
std::string shapeOf(const LutRecords& lut) {
    std::string shape;
    for (const LutRecord& record : lut)
        for (int f = 0; f < 4; ++f) {
            const Variant& field = record[f];
            shape += f ? " " : shape.empty() ? "" : " | ";
            shape += field.isEmpty()  ? "-"
                     : field.isText() ? "'" + field.toText() + "'"
                                      : field.toText();
        }
    return shape;
}

const LutRecords kOld = toRecords({{-5.0f, MethodNone, 77, 5.0f}, {5.0f, MethodLin, 88, 5.0f}});
const std::string kOldShape = "-5 5 77 5 | 5 0 88 5";

struct Loaded {
    std::vector<std::string> texts; // every one titled "LoadLut", OK only
    std::string shape;
    ColorValue noData;
};

// Reads the path over kOld and no-data colour 42.
Loaded load(const std::string& path) {
    ServiceRecorder services;
    LutRecords lut = kOld;
    ColorValue noData = 42;
    LutFile::LoadLut(path, lut, noData);
    Loaded loaded{{}, shapeOf(lut), noData};
    for (const MessageRequest& message : services.messages()) {
        EXPECT_EQ(message.title, "LoadLut");
        EXPECT_EQ(message.buttons, MessageButtons::Ok);
        loaded.texts.push_back(message.text);
    }
    return loaded;
}

TEST(LutReading, FilesReadAsTheirFieldsWithEachDistinctErrorShownOnce) {
    const std::string e6 = "Error: 6. Overflow";
    const std::string e62 = "Error: 62. Input past end of file";
    const std::string e9 = "Error: 9. Subscript out of range";
    struct Case {
        const char* name; // a file that is not written is absent
        std::optional<std::string> bytes;
        std::vector<std::string> texts;
        ColorValue noData;
        std::string shape;
    } cases[] = {
        // clang-format off
        {"saved", LutFile::text(kThree, kWhite, '.'), {}, kWhite,
         "0 0 0 100 | 100 3 16777215 200 | 200 0 16711680 200"},
        {"quoted", "0,1\r\n\"12.50\",0.00,\"red, really\",20.00\r\n", {}, 0,
         "'12.50' 0 'red, really' 20"},
        {"fewer", "5,3\r\n1.00,0.00,2.00,3.00\r\n", {}, 5, "1 0 2 3 | - - - - | - - - -"},
        {"more", "7,2\r\n0.00,0.00,1.00,10.00\r\n10.00,0.00,2.00,20.00\r\n20.00,0.00,3.00,30.00\r\n"
         "30.00,0.00,4.00,30.00\r\n", {e9}, 7, "0 0 1 10 | 10 0 2 20"},
        // A ramp saved under a decimal-comma locale reads back whole; five to
        // seven pieces are no such record.
        {"decimal comma", LutFile::text(kThree, kWhite, ','), {}, kWhite,
         "0 0 0 100 | 100 3 16777215 200 | 200 0 16711680 200"},
        {"seven pieces", "0,2\r\n12,50,0,00,255,00,7\r\n", {e62}, 0, "12 50 0 0 | 255 0 7 -"},
        {"count 40000", "1,40000\r\n0.00,0.00,0.00,0.00\r\n", {e6}, 1, "0 0 0 0 | 5 0 88 5"},
        // Numbers no node can hold empty the table after one message.
        {"negative colour", "0,2\r\n100.00,0.00,-1.00,200.00\r\n200.00,0.00,0.00,200.00\r\n",
         {e6}, 0, ""},
        {"colour 2^24", "0,1\r\n0.00,0.00,16777216.00,0.00\r\n", {e6}, 0, ""},
        {"method 256", "0,1\r\n0.00,256.00,0.00,0.00\r\n", {e6}, 0, ""},
        {"beyond float", "0,2\r\n-1e39,0.00,0.00,0.00\r\n0,0,0,3.5e38\r\n", {e6}, 0, ""},
        {"empty", "", {e62, e9}, 0, kOldShape},
        {"short last", "0,2\r\n0.00,0.00,1.00,10.00\r\n10.00,0.00\r\n", {e62}, 0,
         "0 0 1 10 | 10 0 - -"},
        {"short middle", "0,2\r\n0.00,0.00\r\n10.00,0.00,2.00,20.00\r\n", {e62}, 0,
         "0 0 10 0 | 2 20 - -"},
        // "0.00,0.00" is taken as the header: colour 0, a count that keeps the old table.
        {"no header", "0.00,0.00,255.00,100.00\r\n100.00,0.00,65280.00,100.00\r\n", {e9, e62}, 0,
         "255 100 100 0 | 65280 100 - -"},
        {"text colour", "\"grey\",1\r\n1.00,0.00,2.00,3.00\r\n", {"Error: 13. Type mismatch"}, 42,
         "1 0 2 3"},
        {"absent.lut", std::nullopt, {"Error: 53. File not found"}, 42, kOldShape},
        {"", std::nullopt, {"Error: 75. Path/File access error"}, 42, kOldShape}, // the folder
        // clang-format on
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ScratchFolder folder;
        const Loaded loaded = load(c.bytes ? folder.write(c.name, *c.bytes) : folder.file(c.name));
        EXPECT_EQ(loaded.texts, c.texts);
        EXPECT_EQ(loaded.noData, c.noData);
        EXPECT_EQ(loaded.shape, c.shape);
    }
    const Loaded noPath = load("");
    EXPECT_TRUE(noPath.texts.empty());
    EXPECT_EQ(noPath.shape, kOldShape);
    EXPECT_EQ(noPath.noData, 42);
}

TEST(LutReading, TheRecordCounterOverflowsPast32767Records) {
    std::string bytes = "0,32767\r\n";
    for (int i = 0; i < 32768; ++i)
        bytes += std::to_string(i) + ".00,0.00,0.00,0.00\r\n";
    ScratchFolder folder;
    const Loaded loaded = load(folder.write("big.lut", bytes));
    EXPECT_EQ(loaded.texts, std::vector<std::string>{"Error: 6. Overflow"});
    // 32,767 records: the counter stuck at the last, which the extra record took.
    EXPECT_TRUE(loaded.shape.ends_with("| 32765 0 0 0 | 32767 0 0 0"));
}

// The starter library data/myLuts, as tools/ writes it.
TEST(StarterLibrary, EveryShippedFileIsWhatTheWriterWritesAndReadsBackTheSame) {
    const std::filesystem::path library = std::filesystem::path(HUEBASE_SOURCE_DIR) / "data/myLuts";
    const auto ramps = starter::starterRamps();
    for (const starter::StarterRamp& ramp : ramps) {
        SCOPED_TRACE(ramp.fileName);
        EXPECT_EQ(contentsOf(library / ramp.fileName),
                  LutFile::text(ramp.table, ramp.noDataColor, '.'));
    }
    ServiceRecorder services;
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(library)) {
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
    EXPECT_EQ(files, ramps.size());
}

} // namespace
} // namespace huebase
