// Runs GoogleTest inside the program's own application object, so events
// are delivered as the program delivers them. Widget tests use the offscreen
// platform unless the test binary needs a real X server.
#include "util/choice_list_accessible.h"
#include "util/guarded_application.h"

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
    huebase::GuardedApplication app(argc, argv);
    huebase::ChoiceListAccessible::install();
    return RUN_ALL_TESTS();
}
