#include "util/misc_files.h"
#include "util/vb_error.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace huebase {
namespace {

namespace fs = std::filesystem;

std::string contentsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

int lineCountError(const std::string& path) {
    try {
        MiscFiles::getFileLineNumber(path);
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

TEST(MiscFilesLookups, DirExistsOnlyForFolders) {
    testing::ScratchFolder folder;
    fs::create_directory(folder.path() / "myLuts");
    EXPECT_TRUE(MiscFiles::DirExists(folder.file("myLuts")));
    EXPECT_TRUE(MiscFiles::DirExists(folder.file("myLuts") + "/"));
    EXPECT_FALSE(MiscFiles::DirExists(folder.write("a.lut", "0,0")));
    EXPECT_FALSE(MiscFiles::DirExists(folder.file("missing")));
}

TEST(MiscFilesLookups, FileExistsOnlyForRegularFiles) {
    testing::ScratchFolder folder;
    EXPECT_TRUE(MiscFiles::FileExists(folder.write("col.tmp", "")));
    EXPECT_TRUE(MiscFiles::FileExists(folder.write("d\xC3\xA9j\xC3\xA0.lut", "1")));
    EXPECT_FALSE(MiscFiles::FileExists(folder.file("missing.tmp")));
    EXPECT_FALSE(MiscFiles::FileExists(folder.file("")));
    EXPECT_FALSE(MiscFiles::FileExists(""));
}

TEST(MiscFilesEdits, AppendCreatesThenAppendsLinesWithThePlatformLineEnd) {
    testing::ScratchFolder folder;
    const std::string path = folder.file("lut.tmp");
    const std::string end(MiscFiles::kLineEnd);
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, "12.00,16711680.00"));
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, ""));
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, "13.00,255.00"));
    EXPECT_EQ(contentsOf(path), "12.00,16711680.00" + end + end + "13.00,255.00" + end);
#ifdef _WIN32
    EXPECT_EQ(end, "\r\n");
#else
    EXPECT_EQ(end, "\n");
#endif
}

TEST(MiscFilesEdits, AppendFailsQuietlyWhereNoFileCanBeWritten) {
    testing::ScratchFolder folder;
    EXPECT_FALSE(MiscFiles::AppendToTextFile(folder.file("no folder/lut.tmp"), "x"));
    EXPECT_FALSE(MiscFiles::AppendToTextFile(folder.file(""), "x"));
    EXPECT_FALSE(MiscFiles::AppendToTextFile("", "x"));
}

TEST(MiscFilesEdits, KillFileDeletesFilesLeavesFoldersAndAlwaysSucceeds) {
    testing::ScratchFolder folder;
    const std::string path = folder.write("lut.tmp", "1,2\n");
    EXPECT_TRUE(MiscFiles::KillFile(path));
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(MiscFiles::KillFile(path));
    EXPECT_TRUE(MiscFiles::KillFile(""));
    fs::create_directory(folder.path() / "sub");
    EXPECT_TRUE(MiscFiles::KillFile(folder.file("sub")));
    EXPECT_TRUE(fs::is_directory(folder.path() / "sub"));
}

TEST(MiscFilesLineCount, CountsEveryKindOfLineEndAndAnUnendedLastLine) {
    testing::ScratchFolder folder;
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("a", "")), 0);
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("b", "1,2")), 1);
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("c", "1,2\r\n3,4\r\n")), 2);
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("d", "1,2\n3,4")), 2);
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("e", "1\r2\r\n3\n\n")), 4);
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("f", "\r")), 1);
}

TEST(MiscFilesLineCount, MoreThan32767LinesIsOverflowAndAMissingFileIsError53) {
    testing::ScratchFolder folder;
    std::string text;
    for (int i = 0; i < 32767; ++i)
        text += "1.5,2\r\n";
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("full", text)), 32767);
    EXPECT_EQ(lineCountError(folder.write("over", text + "9")), VbError::Overflow);
    EXPECT_EQ(lineCountError(folder.file("missing")), VbError::FileNotFound);
}

TEST(MiscFilesPaths, ABackslashSeparatesFoldersOnEverySystem) {
    testing::ScratchFolder folder;
    fs::create_directory(folder.path() / "myLuts");
    const std::string luts = folder.path().string() + "\\myLuts";
    EXPECT_TRUE(MiscFiles::DirExists(luts));
    ASSERT_TRUE(MiscFiles::AppendToTextFile(luts + "\\a.lut", "0,0"));
    EXPECT_TRUE(fs::is_regular_file(folder.path() / "myLuts" / "a.lut"));
    EXPECT_TRUE(MiscFiles::FileExists(luts + "\\a.lut"));
    EXPECT_EQ(MiscFiles::getFileLineNumber(luts + "\\a.lut"), 1);
    EXPECT_TRUE(MiscFiles::KillFile(luts + "\\a.lut"));
    EXPECT_FALSE(fs::exists(folder.path() / "myLuts" / "a.lut"));
}

TEST(MiscFilesDrive, TakesTheDriveOfColonBackslashElseUpToTheFirstColon) {
    EXPECT_EQ(MiscFiles::DriveFromPath("C:\\Program Files\\Huebase"), "C:");
    EXPECT_EQ(MiscFiles::DriveFromPath("myLuts\\a.lut"), "");
    EXPECT_EQ(MiscFiles::DriveFromPath(""), "");
    EXPECT_EQ(MiscFiles::DriveFromPath("d:relative"), "d:");
    EXPECT_EQ(MiscFiles::DriveFromPath("ab:c:\\x"), "ab:c:");
    EXPECT_EQ(MiscFiles::DriveFromPath("\\\\server\\share\\x"), "");
    EXPECT_EQ(MiscFiles::DriveFromPath(":"), ":");
}

} // namespace
} // namespace huebase
