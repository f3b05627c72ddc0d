#include "host/host_session.h"
#include "util/misc_files.h"

#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace huebase {
namespace {

class RecordingNotifier : public HostNotifier {
public:
    bool tell(const std::string& status) override {
        statuses.push_back(status);
        return reachable;
    }
    std::string unreachableMessage() const override { return "the host is gone"; }

    bool reachable = true;
    std::vector<std::string> statuses;
};

constexpr ColorValue kRed = 0x0000FF;
constexpr ColorValue kGreen = 0x00FF00;
constexpr ColorValue kBlue = 0xFF0000;

std::string joinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        (text += line) += MiscFiles::kLineEnd;
    return text;
}

class HostSessionTest : public ::testing::Test {
protected:
    HostSessionTest() : session_(folderPath(), notifier_) {}

    std::string folderPath() const {
        const std::u8string utf8 = folder_.path().u8string();
        return std::string(utf8.begin(), utf8.end());
    }
    void writeCol(const std::string& text) { folder_.write("col.tmp", text); }
    void writeLut(const std::string& text) { folder_.write("lut.tmp", text); }
    std::string lutText() const {
        std::ifstream in(folder_.path() / "lut.tmp", std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    bool lutExists() const { return std::filesystem::exists(folder_.path() / "lut.tmp"); }

    // Starts the session and answers with colours by value (black for others).
    void startAndAnswer(const std::map<float, ColorValue>& colors) {
        ASSERT_TRUE(session_.start().has_value());
        session_.answerDefined([&colors](float value) {
            const auto found = colors.find(value);
            return found == colors.end() ? 0 : found->second;
        });
    }

    std::vector<std::string> messageTexts() const {
        std::vector<std::string> texts;
        for (const MessageRequest& request : services_.messages())
            texts.push_back(request.text);
        return texts;
    }

    testing::ScratchFolder folder_;
    testing::ServiceRecorder services_;
    RecordingNotifier notifier_;
    HostSession session_;
};

// --- Start ----------------------------------------------------------------

using HostSessionStart = HostSessionTest;

TEST_F(HostSessionStart, WithoutColTmpTheProgramEndsSilentlyWithCodeZero) {
    EXPECT_FALSE(session_.start().has_value());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_TRUE(notifier_.statuses.empty());
}

TEST_F(HostSessionStart, HandsOverTheDistributionSizedToTheLineCount) {
    writeCol("-20.5,3\r\n0,12\r\n1500,1\r\n");
    const auto table = session_.start();
    ASSERT_TRUE(table.has_value());
    EXPECT_EQ(table->data(), (std::vector<ValuesTable::Row>{{-20.5, 3}, {0, 12}, {1500, 1}}));
    EXPECT_FALSE(services_.ended());
}

TEST_F(HostSessionStart, EmptyColTmpGivesAnEmptyTable) {
    writeCol("");
    const auto table = session_.start();
    ASSERT_TRUE(table.has_value());
    EXPECT_TRUE(table->empty());
    EXPECT_FALSE(services_.ended());
}

TEST_F(HostSessionStart, MoreThan32767LinesIsOverflowAndTheHostIsNotTold) {
    std::string text;
    for (int i = 0; i < 32768; ++i)
        text += "1,1\n";
    writeCol(text);
    EXPECT_FALSE(session_.start().has_value());
    EXPECT_EQ(messageTexts(), std::vector<std::string>{"Error: 6. Overflow"});
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{HostSession::kStartFailedExitCode});
    EXPECT_TRUE(notifier_.statuses.empty());
}

TEST_F(HostSessionStart, RecordsThatDoNotFitTheLinesAreReportedNotKept) {
    writeCol("1,2\n3\n");
    EXPECT_FALSE(session_.start().has_value());
    writeCol("1,2,3\n");
    EXPECT_FALSE(session_.start().has_value());
    EXPECT_EQ(messageTexts(), (std::vector<std::string>{"Error: 62. Input past end of file",
                                                        "Error: 9. Subscript out of range"}));
    EXPECT_EQ(services_.exitCodes(), (std::vector<int>{HostSession::kStartFailedExitCode,
                                                       HostSession::kStartFailedExitCode}));
    EXPECT_TRUE(notifier_.statuses.empty());
}

// --- The answer to a defined table -------------------------------------------

using HostSessionAnswer = HostSessionTest;

TEST_F(HostSessionAnswer, WritesOneLinePerExportRowInRowOrderAndReportsSuccess) {
    writeCol("10,4\n20,5\n30,6\n");
    writeLut("30,7\n10,8\n30,9\n99,10\n20,11\n");
    startAndAnswer({{10.0f, kRed}, {20.0f, kGreen}, {30.0f, kBlue}});

    EXPECT_EQ(lutText(), joinLines({"7.00,255.00", "8.00,16711680.00", "9.00,255.00", "10.00,0.00",
                                    "11.00,65280.00"}));
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"0G"});
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}

TEST_F(HostSessionAnswer, LookupSeesSinglePrecisionValues) {
    writeCol("0.1,1\n\"2.5\",1\n");
    writeLut("");
    ASSERT_TRUE(session_.start().has_value());
    std::vector<float> asked;
    session_.answerDefined([&asked](float value) {
        asked.push_back(value);
        return 0;
    });
    EXPECT_EQ(asked, (std::vector<float>{0.1f, 2.5f}));
}

TEST_F(HostSessionAnswer, LaterEqualInputRowGivesTheColour) {
    writeCol("5,1\n5,2\n6,1\n");
    writeLut("5,1\n");
    ASSERT_TRUE(session_.start().has_value());
    // A different colour per call tells the rows apart.
    const std::vector<ColorValue> byCall{kRed, kBlue, kGreen};
    std::size_t call = 0;
    session_.answerDefined([&](float) { return byCall.at(call++); });
    EXPECT_EQ(lutText(), joinLines({"1.00,255.00"}));
}

TEST_F(HostSessionAnswer, QuotedValueNeverMatchesANumber) {
    writeCol("\"5\",1\n");
    writeLut("5,1\n\"5\",2\n");
    startAndAnswer({{5.0f, kRed}});
    EXPECT_EQ(lutText(), joinLines({"1.00,0.00", "2.00,16711680.00"}));
}

TEST_F(HostSessionAnswer, MissingLutTmpEndsSilentlyWithoutTellingTheHost) {
    writeCol("1,1\n");
    startAndAnswer({{1.0f, kRed}});
    EXPECT_FALSE(lutExists());
    EXPECT_TRUE(notifier_.statuses.empty());
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}

TEST_F(HostSessionAnswer, UnreadableExportTableIsReportedAndLeftAlone) {
    writeCol("1,1\n");
    writeLut("1,2\n3\n");
    startAndAnswer({{1.0f, kRed}});
    ASSERT_EQ(services_.messages().size(), 1u);
    const MessageRequest& message = services_.messages().front();
    EXPECT_EQ(message.text, "Can't find export values table");
    EXPECT_EQ(message.title, "");
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
    EXPECT_EQ(lutText(), "1,2\n3\n");
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"-1G"});
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}

TEST_F(HostSessionAnswer, RunTimeErrorsAreShownAndReportedAsFailure) {
    struct Case {
        std::string col;
        std::string lut;
        ColorValue color;
        std::string message;
    };
    const std::vector<Case> cases{
        {"abc,1\n", "1,1\n", kRed, "Error: 13. Type mismatch"},
        {"1e39,1\n", "1,1\n", kRed, "Error: 6. Overflow"},
        {"1,1\n", "1,1\n", 0x01000000, "Error: 6. Overflow"},
        {"1,1\n", std::string(40000, '\n'), kRed, "Error: 6. Overflow"},
    };
    for (const Case& c : cases) {
        testing::ServiceRecorder services;
        RecordingNotifier notifier;
        HostSession session(folderPath(), notifier);
        writeCol(c.col);
        writeLut(c.lut);
        ASSERT_TRUE(session.start().has_value()) << c.col;
        session.answerDefined([&c](float) { return c.color; });
        ASSERT_EQ(services.messages().size(), 1u) << c.message;
        EXPECT_EQ(services.messages()[0].text, c.message);
        EXPECT_EQ(notifier.statuses, std::vector<std::string>{"-1G"}) << c.message;
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0}) << c.message;
    }
}

TEST_F(HostSessionAnswer, ErrorFromTheLookupIsShownAndReportedAsFailure) {
    writeCol("1,1\n");
    writeLut("1,1\n");
    ASSERT_TRUE(session_.start().has_value());
    session_.answerDefined([](float) -> ColorValue { throw VbError(VbError::DivisionByZero); });
    EXPECT_EQ(messageTexts(), std::vector<std::string>{"Error: 11. Division by zero"});
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"-1G"});
    EXPECT_EQ(lutText(), "1,1\n");
}

#ifndef _WIN32
// Lowers the largest file this process may write, so that writes fail for
// real (EFBIG) even with full permissions.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = previous_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit previous_{};
    void (*previousHandler_)(int) = nullptr;
};

TEST_F(HostSessionAnswer, FailedAppendIsReportedAsFailureWithoutAMessage) {
    writeCol("1,1\n");
    writeLut("1,100\n1,200\n1,300\n");
    ASSERT_TRUE(session_.start().has_value());
    {
        FileSizeLimit limit(16);
        session_.answerDefined([](float) { return kRed; });
    }
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"-1G"});
    EXPECT_TRUE(services_.messages().empty());
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}
#endif

TEST_F(HostSessionAnswer, UnreachableHostIsToldToTheUser) {
    writeCol("1,1\n");
    writeLut("1,1\n");
    notifier_.reachable = false;
    startAndAnswer({{1.0f, kRed}});
    EXPECT_EQ(notifier_.statuses, std::vector<std::string>{"0G"});
    ASSERT_EQ(services_.messages().size(), 1u);
    const MessageRequest& message = services_.messages().front();
    EXPECT_EQ(message.text, "the host is gone");
    EXPECT_EQ(message.title, "Problem");
    EXPECT_EQ(message.icon, MessageIcon::Critical);
    EXPECT_EQ(services_.exitCodes(), std::vector<int>{0});
}

// --- Operations of the session ---------------------------------------------

using HostSessionOperations = HostSessionTest;

TEST_F(HostSessionOperations, FindColorConvertsTheLastMatchToAnInteger) {
    writeCol("1,2.5\n1,3.5\n2,\"7\"\n3,x\n");
    session_.sizeInputArray(4);
    ASSERT_TRUE(session_.GetOrderedFile(session_.colPath()));
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(1), 4);
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(2), 7);
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(4), 0);
    try {
        session_.FindColorInInputArrayFromValue(3);
        FAIL() << "no error";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), VbError::TypeMismatch);
    }
}

TEST_F(HostSessionOperations, FindColorFollowsARefilledTable) {
    writeCol("1,10\n");
    session_.sizeInputArray(1);
    ASSERT_TRUE(session_.GetOrderedFile(session_.colPath()));
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(1), 10);
    writeCol("2,20\n");
    ASSERT_TRUE(session_.GetOrderedFile(session_.colPath()));
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(1), 0);
    EXPECT_EQ(session_.FindColorInInputArrayFromValue(2), 20);
}

TEST_F(HostSessionOperations, ReadersAnswerFalseAndKeepTheError) {
    session_.sizeInputArray(1);
    EXPECT_FALSE(session_.GetOutPutFile(session_.lutPath()));
    ASSERT_TRUE(session_.lastReadError().has_value());
    EXPECT_EQ(session_.lastReadError()->number(), VbError::FileNotFound);
    writeCol("1,1\n");
    EXPECT_TRUE(session_.GetOrderedFile(session_.colPath()));
    EXPECT_FALSE(session_.lastReadError().has_value());
}

int scalePercentError(double value, double total) {
    try {
        HostSession::ScalePercent(value, total);
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

TEST(HostSessionScalePercent, FloorsThePercentage) {
    EXPECT_EQ(HostSession::ScalePercent(1, 3), 33);
    EXPECT_EQ(HostSession::ScalePercent(-1, 3), -34);
    EXPECT_EQ(HostSession::ScalePercent(2, 3), 66);
    EXPECT_EQ(HostSession::ScalePercent(50, 200), 25);
    EXPECT_EQ(HostSession::ScalePercent(3, -2), -150);
}

TEST(HostSessionScalePercent, ZeroTotalsAndLargeResultsAreErrors) {
    EXPECT_EQ(scalePercentError(1, 0), VbError::DivisionByZero);
    EXPECT_EQ(scalePercentError(0, 0), VbError::Overflow);
    EXPECT_EQ(scalePercentError(32767, 100), 0);
    EXPECT_EQ(scalePercentError(32768, 100), VbError::Overflow);
}

} // namespace
} // namespace huebase
