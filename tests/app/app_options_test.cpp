#include "app/app_options.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(AppOptions, ReadsFolderNotifyCommandAndFlagsRefusesUnknownOptionsAndMissingValues) {
    std::string error;
    const auto options = AppOptions::parse(
        {"--folder", "/tmp/x", "--notify-command", "echo status", "--version"}, error);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->folder, "/tmp/x");
    EXPECT_EQ(options->notifyCommand, "echo status");
    EXPECT_TRUE(options->version);
    EXPECT_FALSE(AppOptions::parse({"--colour"}, error));
    EXPECT_NE(error.find("--colour"), std::string::npos);
    EXPECT_FALSE(AppOptions::parse({"--folder"}, error));
    EXPECT_NE(error.find("--folder"), std::string::npos);
}

} // namespace
} // namespace huebase
