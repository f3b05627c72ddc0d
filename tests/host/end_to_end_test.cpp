// The real program in a real X window: started on exchange files in a
// scratch folder as a host would start it, confirmed with a click on the
// editor's OK, and judged by the files it leaves and the status it hands
// to the notify command.
#include "core/color_value.h"
#include "host/export_format.h"

#include "support/scratch_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace huebase {
namespace {

constexpr int kWindowTimeoutMs = 20000;
constexpr int kEndTimeoutMs = 20000;

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Runs xdotool with the arguments and answers its standard output, or
// nothing when it failed or outlived the timeout (it is then killed).
std::optional<QString> xdotool(const QStringList& arguments, int timeoutMs = 10000) {
    QProcess tool;
    tool.start(HUEBASE_XDOTOOL, arguments);
    if (!tool.waitForFinished(timeoutMs)) {
        tool.kill();
        tool.waitForFinished();
        return std::nullopt;
    }
    if (tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

class EndToEnd : public ::testing::Test {
protected:
    ~EndToEnd() override {
        if (program_.state() != QProcess::NotRunning) {
            program_.kill();
            program_.waitForFinished();
        }
    }

    std::filesystem::path statusPath() const { return folder_.path() / "status.txt"; }

    // Starts the program on the scratch folder in the C locale (so "Fixed"
    // numbers carry a point), telling the host by writing the status to a file.
    void startProgram() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "C");
        environment.remove("QT_QPA_PLATFORM");
        program_.setProcessEnvironment(environment);
        const QString folder = QString::fromStdString(folder_.path().string());
        const QString notify =
            QString("printf %s >'%1'").arg(QString::fromStdString(statusPath().string()));
        program_.start(HUEBASE_EXECUTABLE, {"--folder", folder, "--notify-command", notify});
        ASSERT_TRUE(program_.waitForStarted(kWindowTimeoutMs)) << "huebase did not start";
    }

    // Waits for the program to end; kills it when it does not.
    bool ended() {
        if (program_.waitForFinished(kEndTimeoutMs))
            return true;
        program_.kill();
        program_.waitForFinished();
        return false;
    }

    std::string errors() { return program_.readAllStandardError().toStdString(); }

    testing::ScratchFolder folder_;
    QProcess program_;
};

TEST_F(EndToEnd, ConfirmingTheEditorRewritesLutTmpAndTellsTheHost) {
    ASSERT_NE(std::string(HUEBASE_XDOTOOL), "") << "xdotool was not found when configuring";
    // CRLF, spaces around fields and no line end on the last line, as hosts write them.
    folder_.write("col.tmp", "10, 3\r\n20,1\r\n 30 ,5");
    folder_.write("lut.tmp", "30,1\n10,2.5\n20,3\n30,1\n-4,7\n");
    startProgram();

    const std::optional<QString> found =
        xdotool({"search", "--sync", "--onlyvisible", "--name", "^Color LUT$"}, kWindowTimeoutMs);
    ASSERT_TRUE(found.has_value() && !found->isEmpty())
        << "no \"Color LUT\" window appeared; " << errors();
    const QString window = found->split('\n').first();

    // OK is the last button of the bottom row, at the window's lower right corner.
    const std::optional<QString> geometry = xdotool({"getwindowgeometry", "--shell", window});
    ASSERT_TRUE(geometry.has_value());
    const auto field = [&](const char* name) {
        const auto match = QRegularExpression(QString("%1=(\\d+)").arg(name)).match(*geometry);
        return match.captured(1).toInt();
    };
    const int width = field("WIDTH");
    const int height = field("HEIGHT");
    ASSERT_GT(width, 100);
    ASSERT_GT(height, 100);
    // Other tests may share the X server: the editor goes above their windows first.
    ASSERT_TRUE(xdotool({"windowraise", window}));
    ASSERT_TRUE(xdotool({"mousemove", "--window", window, QString::number(width - 52),
                         QString::number(height - 23), "click", "1"}));

    ASSERT_TRUE(ended()) << "the program did not end after OK; " << errors();
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0) << errors();

    // The editor's first ramp runs from black at the lowest value to white at
    // the highest; a key whose value is not among the host's values gets 0.
    const std::string white = std::to_string(hostColor(0xFFFFFF)) + ".00";
    const std::string middle = std::to_string(hostColor(BlendColor(0, 0xFFFFFF, 0.5f))) + ".00";
    EXPECT_EQ(readFile(folder_.path() / "lut.tmp"), "1.00," + white + "\n2.50,0.00\n3.00," +
                                                        middle + "\n1.00," + white +
                                                        "\n7.00,0.00\n");
    EXPECT_EQ(readFile(statusPath()), "0G");
    EXPECT_EQ(readFile(folder_.path() / "col.tmp"), "10, 3\r\n20,1\r\n 30 ,5");
}

TEST_F(EndToEnd, WithoutColTmpTheProgramEndsAtOnceSilently) {
    folder_.write("lut.tmp", "10,1\n");
    startProgram();
    ASSERT_TRUE(ended()) << "the program stayed up without col.tmp; " << errors();
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), 0);
    EXPECT_TRUE(program_.readAllStandardOutput().isEmpty());
    EXPECT_FALSE(std::filesystem::exists(statusPath()));
    EXPECT_EQ(readFile(folder_.path() / "lut.tmp"), "10,1\n");
}

} // namespace
} // namespace huebase
