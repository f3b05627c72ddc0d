#include "util/guarded.h"
#include "util/guarded_application.h"
#include "util/vb_error.h"

#include "support/service_recorder.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <set>
#include <stdexcept>

namespace huebase {
namespace {

// A widget that fails whenever it paints, as long as failing is set.
class FailingPaint : public QWidget {
public:
    bool failing = true;

protected:
    void paintEvent(QPaintEvent*) override {
        if (failing)
            throw VbError(VbError::Overflow);
    }
};

class GuardTest : public ::testing::Test {
protected:
    GuardTest() {
        window.setWindowTitle("Colour window");
        window.resize(240, 120);
        auto* layout = new QVBoxLayout(&window);
        button = new QPushButton("Go", &window);
        layout->addWidget(button);
        layout->addWidget(paint = new FailingPaint);
        paint->setMinimumHeight(60);
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const MessageRequest& message : services.messages()) {
            EXPECT_EQ(message.title, "Colour window");
            EXPECT_EQ(message.icon, MessageIcon::Critical);
            result.push_back(message.text);
        }
        return result;
    }

    testing::ServiceRecorder services;
    QWidget window;
    QPushButton* button = nullptr;
    FailingPaint* paint = nullptr;
};

TEST_F(GuardTest, AFailingSlotIsReportedEachTimeAndTheSessionGoesOn) {
    std::function<void()> action;
    QObject::connect(button, &QPushButton::clicked, &window, guarded(&window, [&] { action(); }));
    paint->failing = false;
    window.show();
    const struct {
        std::function<void()> raise;
        std::string text;
    } failures[] = {
        {[] { throw VbError(VbError::DivisionByZero); }, "Error: 11. Division by zero"},
        {[] { throw std::bad_alloc(); }, "Error: 7. Out of memory"},
        {[] { throw std::out_of_range("vector"); }, "Error: 51. Internal error"},
    };
    std::vector<std::string> expected;
    for (const auto& failure : failures) {
        action = failure.raise;
        QTest::mouseClick(button, Qt::LeftButton);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        expected.insert(expected.end(), 2, failure.text);
    }
    EXPECT_EQ(texts(), expected);
    EXPECT_FALSE(services.ended());
    bool clicked = false;
    action = [&] { clicked = true; };
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(clicked) << "the button still works after its failures";
}

TEST_F(GuardTest, AFailingPaintShowsANoteAndIsReportedOnceAfterThePaint) {
    window.show();
    const QImage first = paint->grab().toImage();
    EXPECT_TRUE(services.messages().empty()) << "no box while painting";
    QCoreApplication::processEvents();
    paint->repaint();
    const QImage again = paint->grab().toImage();
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(), std::vector<std::string>{"Error: 6. Overflow"});

    // The note: text on the window's background where the widget would be.
    std::set<QRgb> colours;
    for (int y = 0; y < again.height(); ++y)
        for (int x = 0; x < again.width(); ++x)
            colours.insert(again.pixel(x, y));
    EXPECT_GT(colours.size(), 2u);
    EXPECT_TRUE(colours.count(window.palette().color(QPalette::Window).rgb()));
    EXPECT_EQ(first, again);

    // Another widget failing in the same way is another cause.
    FailingPaint other;
    other.resize(50, 20);
    other.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(services.messages().size(), 2u);
}

TEST_F(GuardTest, ATimerThatKeepsFailingIsReportedOnce) {
    QTimer timer(&window);
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ++ticks;
        throw VbError(VbError::SubscriptOutOfRange);
    });
    timer.start(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 5; }, 2000));
    timer.stop();
    EXPECT_EQ(texts(), std::vector<std::string>{"Error: 9. Subscript out of range"});
}

} // namespace
} // namespace huebase
