#include "browser/c_file_dialog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace huebase {
namespace {

using namespace std::string_literals;

const std::string kLutFilter = "Lut files (*.lut)|*.lut|All Files (*.*)|*.*";

TEST(CFileDialogText, FiltersFlagsAndTrimNulls) {
    EXPECT_EQ(nulSeparatedFilter("Lut files (*.lut)|*.lut"), "Lut files (*.lut)\0*.lut\0\0"s);
    EXPECT_EQ(nulSeparatedFilter(""), "\0\0"s);
    EXPECT_EQ(filterPairs(kLutFilter), (std::vector<FileFilter>{{"Lut files (*.lut)", "*.lut"},
                                                                {"All Files (*.*)", "*.*"}}));
    EXPECT_EQ(filterPairs("Text|*.txt|"), (std::vector<FileFilter>{{"Text", "*.txt"}}));
    EXPECT_EQ(filterPairs("Lonely"), (std::vector<FileFilter>{{"Lonely", ""}}));
    EXPECT_TRUE(filterPairs("").empty());
    EXPECT_EQ(TrimNulls("C:\\a.lut\0\0\0"s), "C:\\a.lut");
    EXPECT_EQ(TrimNulls("dir\0one.lut\0two.lut\0"s), "dir");
    EXPECT_EQ(TrimNulls("plain"), "plain");
    // The save button's 12292: hide read-only, the file must exist, prompt to create.
    EXPECT_EQ(FileDialogOptions::fromFlags(0), FileDialogOptions{});
    EXPECT_EQ(FileDialogOptions::fromFlags(12292), (FileDialogOptions{false, true, true, true}));
    EXPECT_EQ(FileDialogOptions::fromFlags(0x2), (FileDialogOptions{true, false, false, false}));
    EXPECT_EQ(FileDialogOptions::fromFlags(~0x2), (FileDialogOptions{false, true, true, true}));
}

// A dialog that records its requests and answers the queued path (none: cancelled).
class CFileDialogShow : public ::testing::Test {
protected:
    std::optional<std::string> answer;
    std::vector<FileDialogRequest> requests;
    CFileDialog dialog{[this](const FileDialogRequest& request) {
        requests.push_back(request);
        return answer;
    }};
};

TEST_F(CFileDialogShow, HandsThePropertiesToTheDialog) {
    dialog.InitialDir = "/data/myLuts";
    dialog.Filter = kLutFilter;
    dialog.FilterIndex = 2;
    dialog.hWndParent = 77;
    dialog.FileName = "terrain.lut\0\0"s;
    dialog.Show(false);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_FALSE(requests[0].open);
    EXPECT_EQ(requests[0].initialDir, "/data/myLuts");
    EXPECT_EQ(requests[0].fileName, "terrain.lut");
    EXPECT_EQ(requests[0].filters, filterPairs(kLutFilter));
    EXPECT_EQ(requests[0].selectedFilter, 1u);
    EXPECT_EQ(requests[0].owner, 77);
    for (int index : {0, 1, 3, -4}) {
        dialog.FilterIndex = index;
        EXPECT_EQ(dialog.request(true).selectedFilter, 0u) << index;
    }
}

TEST_F(CFileDialogShow, OnlyAConfirmedPathThatFitsFillsFileNameAndFileTitle) {
    dialog.FileName = "keep.lut";
    dialog.FileTitle = "keep";
    EXPECT_FALSE(dialog.Show(true)); // cancelled
    dialog.MaxFileSize = 10;
    answer = "/abc/d.lut"; // ten characters: no room for the NUL
    EXPECT_FALSE(dialog.Show(true));
    EXPECT_EQ(dialog.FileName, "keep.lut");
    EXPECT_EQ(dialog.FileTitle, "keep");
    answer = "/ab/d.lut";
    EXPECT_TRUE(dialog.Show(true));
    EXPECT_EQ(dialog.FileName, "/ab/d.lut");
    EXPECT_EQ(dialog.FileTitle, "d.lut");
    answer = "C:\\Huebase\\myLuts\\greys.lut";
    dialog.MaxFileSize = 260;
    EXPECT_TRUE(dialog.Show(false));
    EXPECT_EQ(dialog.FileTitle, "greys.lut");

    CFileDialog withoutDialog;
    withoutDialog.FileName = "keep.lut";
    EXPECT_FALSE(withoutDialog.Show(false));
    EXPECT_EQ(withoutDialog.FileName, "keep.lut");
}

} // namespace
} // namespace huebase
