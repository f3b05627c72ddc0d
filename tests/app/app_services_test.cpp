#include "app/first_paint_stamp.h"
#include "app/process_exit.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <string>

namespace huebase {
namespace {

TEST(ProcessExitDeathTest, EndsFromInsideNestedLoopsWithTheCodeAndFlushesPendingOutput) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            // Fully buffered, so only a flush gets the text out before the end.
            static char buffer[4096];
            std::setvbuf(stderr, buffer, _IOFBF, sizeof buffer);
            std::fprintf(stderr, "written before the end");
            // Should the process go on, the loops must not hold the test.
            QTimer::singleShot(2000, [] { std::_Exit(98); });
            QEventLoop outer;
            QTimer::singleShot(0, [] {
                QEventLoop inner;
                QTimer::singleShot(0, [] { endProcess(3); });
                inner.exec();
            });
            outer.exec();
            std::fprintf(stderr, "went on after the end");
            std::fflush(stderr);
            std::_Exit(99);
        },
        ::testing::ExitedWithCode(3), "written before the end$");
}

// What was written to a temporary stream.
std::string contents(std::FILE* file) {
    std::fflush(file);
    std::rewind(file);
    std::string text(4096, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file));
    return text;
}

long long steadyNs() {
    return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
}

void showAndPaint(QWidget& window) {
    window.resize(120, 80);
    window.show();
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

TEST(FirstPaintStamp, WritesOneLineWithTheSteadyClockOnceTheNamedWindowIsPainted) {
    std::FILE* out = std::tmpfile();
    FirstPaintStamp stamp("lut", out);
    qApp->installEventFilter(&stamp);
    QWidget other;
    other.setObjectName("MILut");
    showAndPaint(other);
    EXPECT_EQ(contents(out), "");

    const long long before = steadyNs();
    QWidget editor;
    editor.setObjectName("lut");
    showAndPaint(editor);
    editor.update();
    showAndPaint(editor);
    const long long after = steadyNs();
    qApp->removeEventFilter(&stamp);

    const std::string text = contents(out);
    std::fclose(out);
    long long painted = 0;
    ASSERT_EQ(std::sscanf(text.c_str(), "painted lut %lld", &painted), 1) << text;
    EXPECT_EQ(text, "painted lut " + std::to_string(painted) + "\n");
    EXPECT_GE(painted, before);
    EXPECT_LE(painted, after);
}

} // namespace
} // namespace huebase
