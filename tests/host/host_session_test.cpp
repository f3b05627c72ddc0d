#include "host/export_format.h"
#include "host/host_session.h"
#include "host/value_index.h"
#include "util/misc_files.h"

#include "support/flat_colors.h"
#include "support/numeric_locale.h"
#include "support/recording_notifier.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace huebase {
namespace {

constexpr ColorValue kRed = 0x0000FF, kGreen = 0x00FF00, kBlue = 0xFF0000;
using Texts = std::vector<std::string>;

using testing::flatColors;
using testing::RecordingNotifier;

// A session on a scratch folder holding the exchange files given.
struct Session {
    explicit Session(const std::optional<std::string>& col,
                     const std::optional<std::string>& lut = std::nullopt) {
        if (col)
            folder.write("col.tmp", *col);
        if (lut)
            folder.write("lut.tmp", *lut);
    }
    std::optional<std::string> lut() const {
        if (!std::filesystem::exists(folder.path() / "lut.tmp"))
            return std::nullopt;
        std::ostringstream text;
        text << std::ifstream(folder.path() / "lut.tmp", std::ios::binary).rdbuf();
        return text.str();
    }
    // Each message shown: its text, then any title, a critical icon and other buttons.
    Texts messages() const {
        Texts texts;
        for (const MessageRequest& m : services.messages())
            texts.push_back(m.text + (m.title.empty() ? "" : " /" + m.title) +
                            (m.icon == MessageIcon::Critical ? " !" : "") +
                            (m.buttons == MessageButtons::Ok ? "" : " +buttons"));
        return texts;
    }

    testing::ScratchFolder folder;
    testing::ServiceRecorder services;
    RecordingNotifier notifier;
    HostSession session{folder.file(""), notifier};
};

// Each field tagged by its kind: 7|"key";_|2.5;
std::string render(const ValuesTable& table) {
    std::string text;
    for (const ValuesTable::Row& row : table.data())
        for (std::size_t column = 0; column < 2; ++column) {
            const Variant& field = row[column];
            text += field.isEmpty()  ? "_"
                    : field.isText() ? '"' + field.toText() + '"'
                                     : field.toText();
            text += column == 0 ? '|' : ';';
        }
    return text;
}

template <typename Action> int errorOf(Action action) {
    try {
        action();
    } catch (const VbError& error) {
        return error.number();
    }
    return 0;
}

TEST(HostSessionStart, ReadsColTmpOneRowPerLineOrEndsTheProgram) {
    std::string tooLong;
    for (int i = 0; i < 32768; ++i)
        tooLong += "1,1\n";
    const int kFailed = HostSession::kStartFailedExitCode;
    const struct {
        std::optional<std::string> col;
        std::string rows;
        Texts messages;
        std::vector<int> exits;
    } cases[] = {
        {std::nullopt, "", {}, {0}},
        {"", "", {}, {}},
        {"-12.5,3\r\n0,17\n1250.25,1", "-12.5|3;0|17;1250.25|1;", {}, {}},
        {"-12.5,3\r0,17\r", "-12.5|3;0|17;", {}, {}},
        {"  7 ,\t\"key, one\"  \n\"8\", 2.50 \n \"text\" , \"\"\n9,\n",
         "7|\"key, one\";\"8\"|2.5;\"text\"|\"\";9|_;",
         {},
         {}},
        // Blank lines at the end are no rows; one between records is a field.
        {"1,2\n3,4\n\n \t\r\n", "1|2;3|4;", {}, {}},
        {"1,2\n\n3\n", "1|2;_|3;_|_;", {}, {}},
        // Records are not lines: each row takes the next two fields.
        {"1,2,3\n4\n", "1|2;3|4;", {}, {}},
        {"1,10\n2\n", "1|10;2|_;", {"Error: 62. Input past end of file"}, {kFailed}},
        {"1\n2,20\n", "1|2;20|_;", {"Error: 62. Input past end of file"}, {kFailed}},
        {"1,10,100\n2,20\n", "1|10;100|2;", {"Error: 9. Subscript out of range"}, {kFailed}},
        {"1,10,\n", "1|10;", {"Error: 9. Subscript out of range"}, {kFailed}},
        {tooLong, "", {"Error: 6. Overflow"}, {kFailed}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.col ? c.col->substr(0, 40) : "no col.tmp");
        Session s(c.col);
        const ValuesTable* table = s.session.start();
        EXPECT_EQ(table ? render(*table) : "ended", c.exits.empty() ? c.rows : "ended");
        EXPECT_EQ(render(s.session.InputArray()), c.rows);
        EXPECT_EQ(s.messages(), c.messages);
        EXPECT_EQ(s.services.exitCodes(), c.exits);
        EXPECT_TRUE(s.notifier.statuses.empty());
    }
}

TEST(HostSessionAnswer, RewritesLutTmpInRowOrderWithTheLastEqualValuesHostColour) {
    Session s("0.1,1\n10,4\n20,5\n10,6\n\"30\",1\n",
              "30,7\n10,8\n99,-3.456\n10,8\n20,\" 42\"\n\"30\",\"road\"\n0.1,\n");
    ASSERT_TRUE(s.session.start());
    // The text "30" of col.tmp is coloured as the number 30, but only the
    // text "30" of lut.tmp finds it.
    s.session.answerDefined(flatColors({{0.1f, kGreen}, {10, kRed}, {20, kBlue}, {30, kGreen}}));
    std::string expected;
    for (const char* line : {"7.00,0.00", "8.00,16711680.00", "-3.46,0.00", "8.00,16711680.00",
                             "42.00,255.00", "road,65280.00", ",65280.00"})
        (expected += line) += MiscFiles::kLineEnd;
    EXPECT_EQ(s.lut(), expected);
    EXPECT_EQ(s.notifier.statuses, Texts{"0G"});
    EXPECT_TRUE(s.services.messages().empty());
    EXPECT_EQ(s.services.exitCodes(), std::vector<int>{0});
}

TEST(HostSessionAnswer, BlankLinesAtTheEndAreNoRowsAndAnEmptyTableLeavesAnEmptyFile) {
    // Pure red at the highest value, black below: a DataMax taken from an
    // Empty row past the last record would colour 100 black.
    const ClutTable ramp = flatColors({{100, kRed}});
    const std::string end(MiscFiles::kLineEnd);
    const std::pair<const char*, std::string> cases[] = {
        {"0,1\n100,2\n\n", "1.00,0.00" + end + "2.00,16711680.00" + end},
        {"100,2\r\n \r\n\t\r\n", "2.00,16711680.00" + end},
        {"", ""},
        {"\n\n", ""},
    };
    for (const auto& [lut, answer] : cases) {
        SCOPED_TRACE(lut);
        Session s("0,1\n100,1\n\n", lut);
        const ValuesTable* table = s.session.start();
        ASSERT_TRUE(table);
        EXPECT_EQ(render(*table), "0|1;100|1;");
        s.session.answerDefined(ramp);
        EXPECT_EQ(s.lut(), answer);
        EXPECT_EQ(s.notifier.statuses, Texts{"0G"});
        EXPECT_TRUE(s.services.messages().empty());
    }
}

TEST(HostSessionAnswer, FailuresAreShownAndToldAsMinusOneLeavingLutTmp) {
    std::string tooLong;
    for (int i = 0; i < 32768; ++i)
        tooLong += "1,1\n";
    const ClutTable red = testing::oneColor(kRed);
    const ClutTable tooBright = flatColors({{0, 0}}, 0x01000000);
    const struct {
        std::string col;
        std::optional<std::string> lut;
        const ClutTable& colors;
        Texts messages;
        Texts statuses;
        bool reachable = true;
    } cases[] = {
        {"1,1\n", std::nullopt, red, {}, {}},
        {"1,1\n", "1,2\n3\n", red, {"Can't find export values table"}, {"-1G"}},
        {"abc,1\n", "1,1\n", red, {"Error: 13. Type mismatch"}, {"-1G"}},
        {"1e39,1\n", "1,1\n", red, {"Error: 6. Overflow"}, {"-1G"}},
        {"1,1\n", "1,1\n", tooBright, {"Error: 6. Overflow"}, {"-1G"}},
        {"1,1\n", tooLong, red, {"Error: 6. Overflow"}, {"-1G"}},
        {"1,1\n", "1,1\n", tooBright, {"Error: 6. Overflow", "gone /Problem !"}, {"-1G"}, false},
    };
    int row = 0;
    for (const auto& c : cases) {
        SCOPED_TRACE("row " + std::to_string(++row));
        Session s(c.col, c.lut);
        s.notifier.reachable = c.reachable;
        ASSERT_TRUE(s.session.start());
        s.session.answerDefined(c.colors);
        EXPECT_EQ(s.lut(), c.lut);
        EXPECT_EQ(s.notifier.statuses, c.statuses);
        EXPECT_EQ(s.services.exitCodes(), std::vector<int>{0});
        EXPECT_EQ(s.messages(), c.messages);
    }
}

#ifndef _WIN32
TEST(HostSessionAnswer, AFailedAppendIsToldAsMinusOneWithoutAMessage) {
    Session s("1,1\n", "1,100\n1,200\n1,300\n");
    ASSERT_TRUE(s.session.start());
    // Writes beyond 16 bytes fail for real (EFBIG), whatever the permissions.
    rlimit previous{};
    getrlimit(RLIMIT_FSIZE, &previous);
    rlimit limit = previous;
    limit.rlim_cur = 16;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    s.session.answerDefined(testing::oneColor(kRed));
    setrlimit(RLIMIT_FSIZE, &previous);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(s.notifier.statuses, Texts{"-1G"});
    EXPECT_TRUE(s.services.messages().empty());
    EXPECT_EQ(s.services.exitCodes(), std::vector<int>{0});
}
#endif

TEST(HostSessionFindColor, TakesTheLastMatchOfTheCurrentFillingAsAnInteger) {
    Session s("1,2.5\n1,3.5\n2,\"7\"\n3,x\n");
    HostSession& session = s.session;
    session.sizeInputArray(4);
    ASSERT_TRUE(session.GetOrderedFile(session.colPath()));
    EXPECT_EQ(session.FindColorInInputArrayFromValue(1), 4); // 3.5 to even
    EXPECT_EQ(session.FindColorInInputArrayFromValue(2), 7);
    EXPECT_EQ(session.FindColorInInputArrayFromValue(4), 0);
    EXPECT_EQ(errorOf([&] { session.FindColorInInputArrayFromValue(3); }), VbError::TypeMismatch);
    s.folder.write("col.tmp", "5,50\n6,60\n7,70\n8,80\n");
    ASSERT_TRUE(session.GetOrderedFile(session.colPath()));
    EXPECT_EQ(session.FindColorInInputArrayFromValue(1), 0);
    EXPECT_EQ(session.FindColorInInputArrayFromValue(8), 80);
}

TEST(ValueIndex, AgreesWithARowByRowScanOnRandomMixedTables) {
    const Variant fields[] = {Variant(), "", "a", "0", "1", -0.0, 0, 0.5, 1, 1.5, 2};
    std::mt19937 random(20240611);
    const auto pick = [&] { return fields[random() % std::size(fields)]; };
    for (int round = 0; round < 200; ++round) {
        ValuesTable table(static_cast<int>(random() % 25));
        for (int row = 1; row <= table.rows(); ++row)
            table.at(row, 1) = pick();
        const ValueIndex index(table);
        for (const Variant& value : fields) {
            int expected = 0;
            for (int row = 1; row <= table.rows(); ++row)
                expected = table.at(row, 1) == value ? row : expected;
            ASSERT_EQ(index.lastEqualRow(value), expected)
                << "round " << round << " value " << value.toText();
        }
    }
}

TEST(HostSessionScalePercent, FloorsThePercentageOrFails) {
    const auto scaled = [](double value, double total) {
        std::string result;
        const int error =
            errorOf([&] { result = std::to_string(HostSession::ScalePercent(value, total)); });
        return error == 0 ? result : "error " + std::to_string(error);
    };
    EXPECT_EQ(scaled(1, 3), "33");
    EXPECT_EQ(scaled(-1, 3), "-34");
    EXPECT_EQ(scaled(3, -2), "-150");
    EXPECT_EQ(scaled(32767, 100), "32767");
    EXPECT_EQ(scaled(1, 0), "error 11");
    EXPECT_EQ(scaled(0, 0), "error 6");
    EXPECT_EQ(scaled(32768, 100), "error 6");
    EXPECT_EQ(scaled(-32769, 100), "error 6");
}

TEST(ExportLine, DecimalSeparatorFollowsTheLocale) {
    EXPECT_EQ(exportLine(1.5, 255, ','), "1,50,255,00");
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma installed";
    EXPECT_EQ(exportLine(12, 16711680), "12,00,16711680,00");
}

} // namespace
} // namespace huebase
