#include "host/command_notifier.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace huebase {
namespace {

#ifndef _WIN32

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A script that writes each of its arguments on a line of its own to the
// file named by its first argument, after a pause that a notifier not
// waiting for it would miss.
std::string writeArgumentsScript(const testing::ScratchFolder& folder) {
    return folder.write("record.sh",
                        "out=\"$1\"; shift; sleep 0.2\n"
                        "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"$out\"\n");
}

std::string quoted(const std::string& path) {
    return "'" + path + "'";
}

TEST(CommandNotifierRun, StatusArrivesAsTheLastArgumentOnceTheCommandEnded) {
    testing::ScratchFolder folder;
    const std::string script = writeArgumentsScript(folder);
    const std::string out = folder.file("status.txt");
    CommandNotifier notifier("sh " + quoted(script) + " " + quoted(out) + " 'two words' x");
    EXPECT_TRUE(notifier.tell("-1G"));
    EXPECT_EQ(contentOf(out), "two words\nx\n-1G\n");
    EXPECT_TRUE(notifier.tell("0G"));
    EXPECT_EQ(contentOf(out), "two words\nx\n0G\n");
}

TEST(CommandNotifierRun, CommandIsAShellCommandLine) {
    testing::ScratchFolder folder;
    const std::string out = folder.file("status.txt");
    CommandNotifier notifier("printf 'status=%s;' >>" + quoted(out));
    EXPECT_TRUE(notifier.tell("0G"));
    EXPECT_TRUE(notifier.tell("-1G"));
    EXPECT_EQ(contentOf(out), "status=0G;status=-1G;");
}

TEST(CommandNotifierRun, FailingOrMissingCommandIsNotReached) {
    EXPECT_FALSE(CommandNotifier("false").tell("0G"));
    EXPECT_FALSE(CommandNotifier("exit 3 #").tell("0G"));
    EXPECT_FALSE(CommandNotifier("/nonexistent/huebase-host-command").tell("0G"));
    const CommandNotifier notifier("notify-gis");
    EXPECT_NE(notifier.unreachableMessage().find("notify-gis"), std::string::npos);
}

#endif

} // namespace
} // namespace huebase
