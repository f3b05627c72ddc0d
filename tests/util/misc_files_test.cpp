#include "util/error_test_support.h"
#include "util/misc_files.h"

#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace huebase {
namespace {

namespace fs = std::filesystem;
using testing::errorNumberOf;

// Paths name folders with a backslash as well, on every system.
class MiscFilesTest : public ::testing::Test {
protected:
    MiscFilesTest() { fs::create_directory(folder.path() / "myLuts"); }

    testing::ScratchFolder folder;
    const std::string luts = folder.path().string() + "\\myLuts";
};

TEST_F(MiscFilesTest, DirExistsOnlyForFoldersFileExistsOnlyForFiles) {
    const std::string file = luts + "\\d\xC3\xA9j\xC3\xA0.lut";
    std::ofstream(folder.path() / "myLuts" / "d\xC3\xA9j\xC3\xA0.lut") << "1";
    EXPECT_TRUE(MiscFiles::DirExists(luts));
    EXPECT_FALSE(MiscFiles::DirExists(file));
    EXPECT_FALSE(MiscFiles::DirExists(luts + "\\missing"));
    EXPECT_TRUE(MiscFiles::FileExists(file));
    EXPECT_FALSE(MiscFiles::FileExists(luts + "\\missing.tmp"));
    EXPECT_FALSE(MiscFiles::FileExists(luts));
    EXPECT_FALSE(MiscFiles::FileExists(""));
}

TEST_F(MiscFilesTest, AppendWritesLinesKillDeletesFilesBothFailQuietly) {
    const std::string path = luts + "\\lut.tmp";
    const std::string end(MiscFiles::kLineEnd);
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, "12.00,16711680.00"));
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, ""));
    ASSERT_TRUE(MiscFiles::AppendToTextFile(path, "13.00,255.00"));
    std::ostringstream written;
    written << std::ifstream(folder.path() / "myLuts" / "lut.tmp", std::ios::binary).rdbuf();
    EXPECT_EQ(written.str(), "12.00,16711680.00" + end + end + "13.00,255.00" + end);
    EXPECT_FALSE(MiscFiles::AppendToTextFile(luts + "\\no folder\\lut.tmp", "x"));
    EXPECT_FALSE(MiscFiles::AppendToTextFile(luts, "x"));

    EXPECT_TRUE(MiscFiles::KillFile(path));
    EXPECT_FALSE(fs::exists(folder.path() / "myLuts" / "lut.tmp"));
    EXPECT_TRUE(MiscFiles::KillFile(path));
    EXPECT_TRUE(MiscFiles::KillFile(""));
    EXPECT_TRUE(MiscFiles::KillFile(luts));
    EXPECT_TRUE(fs::is_directory(folder.path() / "myLuts"));
}

TEST_F(MiscFilesTest, LineCountTakesEveryLineEndAnUnendedLastLineAndStopsAt32767) {
    const std::pair<const char*, int> rows[] = {
        {"", 0},         {"1,2", 1},           {"1,2\r\n3,4\r\n", 2},
        {"1,2\n3,4", 2}, {"1\r2\r\n3\n\n", 4}, {"\r", 1}};
    for (const auto& [text, lines] : rows) {
        folder.write("f", text);
        EXPECT_EQ(MiscFiles::getFileLineNumber(folder.path().string() + "\\f"), lines) << text;
    }
    std::string text;
    for (int i = 0; i < 32767; ++i)
        text += "1.5,2\r\n";
    EXPECT_EQ(MiscFiles::getFileLineNumber(folder.write("full", text)), 32767);
    const std::string over = folder.write("over", text + "9");
    EXPECT_EQ(errorNumberOf([&] { MiscFiles::getFileLineNumber(over); }), VbError::Overflow);
}

TEST(MiscFiles, DriveIsUpToTheColonOfTheFirstColonBackslashElseOfTheFirstColon) {
    const std::pair<const char*, const char*> rows[] = {{"C:\\Program Files\\Huebase", "C:"},
                                                        {"myLuts\\a.lut", ""},
                                                        {"", ""},
                                                        {"d:relative", "d:"},
                                                        {"ab:c:\\x", "ab:c:"},
                                                        {"\\\\server\\share\\x", ""},
                                                        {":", ":"}};
    for (const auto& [path, drive] : rows)
        EXPECT_EQ(MiscFiles::DriveFromPath(path), drive) << path;
}

} // namespace
} // namespace huebase
