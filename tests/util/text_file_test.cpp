#include "util/text_file.h"

#include "support/scratch_folder.h"

#include "util/error_test_support.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace huebase {
namespace {

namespace fs = std::filesystem;

std::string contentsOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

TEST(TextFileWriting, WriteTruncatesReplaceFollowsLinksAndLeavesNoTemporary) {
    testing::ScratchFolder folder;
    const std::string path = folder.write("a.lut", "a longer old text");
    ASSERT_TRUE(writeTextFile(path, "new"));
    EXPECT_EQ(contentsOf(path), "new");
    ASSERT_TRUE(writeTextFile(folder.file("empty"), ""));
    EXPECT_TRUE(fs::is_regular_file(folder.path() / "empty"));

    fs::create_directory(folder.path() / "library");
    fs::create_symlink(folder.path() / "a.lut", folder.path() / "library" / "link.lut");
    fs::permissions(path, fs::perms(0640));
    ASSERT_TRUE(replaceTextFile(folder.file("library/link.lut"), "replaced"));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "library" / "link.lut"));
    EXPECT_EQ(contentsOf(path), "replaced");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    ASSERT_TRUE(replaceTextFile(folder.file("library/new.lut"), "created"));
    EXPECT_EQ(contentsOf(folder.path() / "library" / "new.lut"), "created");

    EXPECT_FALSE(replaceTextFile(folder.file("library"), "a folder is no file"));
    EXPECT_FALSE(replaceTextFile(folder.file("missing/x.lut"), "no folder"));
    EXPECT_FALSE(writeTextFile(folder.file("library"), "x"));
    std::vector<std::string> entries;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.path()))
        entries.push_back(entry.path().lexically_relative(folder.path()).string());
    std::sort(entries.begin(), entries.end());
    EXPECT_EQ(entries, (std::vector<std::string>{"a.lut", "empty", "library", "library/link.lut",
                                                 "library/new.lut"}));
}

#ifndef _WIN32
TEST(TextFileReading, AFifoIsRefusedWithoutWaitingForAWriter) {
    testing::ScratchFolder folder;
    ASSERT_EQ(mkfifo(folder.file("lut.tmp").c_str(), 0644), 0);
    EXPECT_EQ(testing::errorNumberOf([&] { readTextFile(folder.file("lut.tmp")); }),
              VbError::PathFileAccessError);
    EXPECT_EQ(readTextFile(folder.write("col.tmp", "10,3\r\n")), "10,3\r\n");
}
#endif

} // namespace
} // namespace huebase
