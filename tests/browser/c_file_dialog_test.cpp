#include "browser/c_file_dialog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace huebase {
namespace {

using namespace std::string_literals;

const std::string kLutFilter = "Lut files (*.lut)|*.lut|All Files (*.*)|*.*";

TEST(CFileDialogProperties, StartEmptyWithRoomFor260Characters) {
    const CFileDialog dialog;
    EXPECT_EQ(dialog.DefaultExt, "");
    EXPECT_EQ(dialog.DialogTitle, "");
    EXPECT_EQ(dialog.FileName, "");
    EXPECT_EQ(dialog.FileTitle, "");
    EXPECT_EQ(dialog.Filter, "");
    EXPECT_EQ(dialog.FilterIndex, 0);
    EXPECT_EQ(dialog.Flags, 0);
    EXPECT_EQ(dialog.hWndParent, 0);
    EXPECT_EQ(dialog.InitialDir, "");
    EXPECT_EQ(dialog.MaxFileSize, 260);
}

TEST(CFileDialogFilter, BarsBecomeNulsAndTwoNulsEndIt) {
    EXPECT_EQ(nulSeparatedFilter("Lut files (*.lut)|*.lut"), "Lut files (*.lut)\0*.lut\0\0"s);
    EXPECT_EQ(nulSeparatedFilter(""), "\0\0"s);
    EXPECT_EQ(filterPairs(kLutFilter), (std::vector<FileFilter>{{"Lut files (*.lut)", "*.lut"},
                                                                {"All Files (*.*)", "*.*"}}));
    EXPECT_EQ(filterPairs("Text|*.txt|"), (std::vector<FileFilter>{{"Text", "*.txt"}}));
    EXPECT_EQ(filterPairs("Lonely"), (std::vector<FileFilter>{{"Lonely", ""}}));
    EXPECT_TRUE(filterPairs("").empty());
}

TEST(CFileDialogFilter, TrimNullsCutsAtTheFirstNul) {
    EXPECT_EQ(TrimNulls("C:\\a.lut\0\0\0"s), "C:\\a.lut");
    EXPECT_EQ(TrimNulls("dir\0one.lut\0two.lut\0"s), "dir");
    EXPECT_EQ(TrimNulls("plain"), "plain");
    EXPECT_EQ(TrimNulls(""), "");
}

TEST(CFileDialogFlags, MapOntoTheDialogsOptions) {
    EXPECT_EQ(FileDialogOptions::fromFlags(0), FileDialogOptions{});
    // The save button's 12292: hide read-only, the file must exist, prompt to create.
    EXPECT_EQ(FileDialogOptions::fromFlags(12292), (FileDialogOptions{false, true, true, true}));
    EXPECT_EQ(FileDialogOptions::fromFlags(0x2), (FileDialogOptions{true, false, false, false}));
    EXPECT_EQ(FileDialogOptions::fromFlags(~0x2), (FileDialogOptions{false, true, true, true}));
}

// Records the request and answers with a queued path (nothing = cancelled).
struct FakeDialog {
    std::optional<std::string> answer;
    std::vector<FileDialogRequest> requests;

    FileDialogRunner runner() {
        return [this](const FileDialogRequest& request) {
            requests.push_back(request);
            return answer;
        };
    }
};

TEST(CFileDialogShow, HandsThePropertiesToTheDialog) {
    FakeDialog fake;
    CFileDialog dialog(fake.runner());
    dialog.InitialDir = "/data/myLuts";
    dialog.DefaultExt = "lut";
    dialog.DialogTitle = "Save your LUT";
    dialog.Filter = kLutFilter;
    dialog.FilterIndex = 2;
    dialog.Flags = 12292;
    dialog.hWndParent = 77;
    dialog.FileName = "terrain.lut\0\0"s;
    dialog.Show(false);
    ASSERT_EQ(fake.requests.size(), 1u);
    const FileDialogRequest& r = fake.requests[0];
    EXPECT_FALSE(r.open);
    EXPECT_EQ(r.initialDir, "/data/myLuts");
    EXPECT_EQ(r.defaultExt, "lut");
    EXPECT_EQ(r.title, "Save your LUT");
    EXPECT_EQ(r.fileName, "terrain.lut");
    EXPECT_EQ(r.filters.size(), 2u);
    EXPECT_EQ(r.selectedFilter, 1u);
    EXPECT_EQ(r.owner, 77);
    EXPECT_TRUE(r.options.fileMustExist);
}

TEST(CFileDialogShow, FilterIndexZeroOneAndOutOfRangeShowTheFirstFilter) {
    CFileDialog dialog;
    dialog.Filter = kLutFilter;
    for (int index : {0, 1, 3, -4}) {
        dialog.FilterIndex = index;
        EXPECT_EQ(dialog.request(true).selectedFilter, 0u) << index;
    }
}

TEST(CFileDialogShow, AConfirmedFileFillsFileNameAndFileTitle) {
    FakeDialog fake;
    fake.answer = "/home/u/myLuts/terrain.lut";
    CFileDialog dialog(fake.runner());
    EXPECT_TRUE(dialog.Show(true));
    EXPECT_TRUE(fake.requests[0].open);
    EXPECT_EQ(dialog.FileName, "/home/u/myLuts/terrain.lut");
    EXPECT_EQ(dialog.FileTitle, "terrain.lut");

    fake.answer = "C:\\Huebase\\myLuts\\greys.lut";
    EXPECT_TRUE(dialog.Show(false));
    EXPECT_EQ(dialog.FileTitle, "greys.lut");
}

TEST(CFileDialogShow, CancelFailureAndTooLongPathsLeaveThePropertiesAlone) {
    FakeDialog fake;
    CFileDialog dialog(fake.runner());
    dialog.FileName = "keep.lut";
    dialog.FileTitle = "keep";
    EXPECT_FALSE(dialog.Show(true)); // cancelled
    dialog.MaxFileSize = 10;
    fake.answer = "/abc/d.lut"; // ten characters: no room for the NUL
    EXPECT_FALSE(dialog.Show(true));
    EXPECT_EQ(dialog.FileName, "keep.lut");
    EXPECT_EQ(dialog.FileTitle, "keep");
    fake.answer = "/ab/d.lut";
    EXPECT_TRUE(dialog.Show(true));
    EXPECT_EQ(dialog.FileName, "/ab/d.lut");

    CFileDialog withoutDialog;
    withoutDialog.FileName = "keep.lut";
    EXPECT_FALSE(withoutDialog.Show(false));
    EXPECT_EQ(withoutDialog.FileName, "keep.lut");
    EXPECT_EQ(fake.requests.size(), 3u);
}

} // namespace
} // namespace huebase
