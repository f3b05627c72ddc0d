// Runs GoogleTest inside a QApplication. Widget tests use the offscreen
// platform unless the test binary needs a real X server.
#include <QApplication>

#include <gtest/gtest.h>

#include <cstring>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
#ifndef HUEBASE_TEST_NEEDS_X
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
