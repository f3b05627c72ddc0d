// The browser's hand-over to a real editor window, wired as the editor's
// browse button is: the chosen table goes to SetLutTable, then the no-data
// colour to setNoDataColor.

#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_library.h"
#include "editor/lut_editor_window.h"

#include "browser/widget_test_support.h"
#include "support/service_recorder.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace huebase {
namespace {

using testing::saveLut;
using testing::ScratchFolder;
using testing::ServiceRecorder;
using testing::tableAt;
using testing::whenModalOpens;

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kRed = 0x0000FF;

std::vector<float> valuesOf(const LutTable& table) {
    std::vector<float> values;
    for (const LutNode& node : table)
        values.push_back(node.value);
    return values;
}

TEST(EditorHandOver, TheChosenTableAndNoDataColourReachTheEditor) {
    ScratchFolder program;
    ServiceRecorder services;
    std::filesystem::create_directory(program.path() / "myLuts");
    ScratchFolder unused;
    const std::string library = LutLibrary::folderOf(program.path().string());
    std::filesystem::copy_file(
        saveLut(unused, "bw.lut", tableAt({0, 100, 200}, {kBlack, kWhite, kBlack}), kRed),
        library + "/bw.lut");

    LutEditorWindow editor;
    editor.InitFromOrderedArray({{50.0f, 3}, {80.0f, 1}, {150.0f, 2}});
    ASSERT_EQ(editor.DataMin(), 50.0f);
    ASSERT_EQ(editor.DataMax(), 150.0f);

    whenModalOpens<LUTBrowser>([&editor](LUTBrowser& browser) {
        EXPECT_EQ(browser.parentWidget(), &editor) << "the browser belongs to the editor";
        ASSERT_EQ(browser.rows().size(), 1u);
        QTest::mouseClick(browser.rows()[0]->findChild<QPushButton*>("SelectBtn"), Qt::LeftButton);
    });
    LutLibrary::browse(&editor, program.path().string(), editor.DataMin(), editor.DataMax(),
                       [&editor](const LutTable& table, ColorValue noDataColor) {
                           editor.SetLutTable(table);
                           editor.setNoDataColor(noDataColor);
                       });

    const LutTable shown = editor.model().lutTable();
    EXPECT_EQ(valuesOf(shown), (std::vector<float>{50, 100, 150}));
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[0].color, BlendColor(kBlack, kWhite, 0.5f));
    EXPECT_EQ(shown[1].color, kWhite);
    EXPECT_EQ(editor.noDataColor(), kRed);
}

} // namespace
} // namespace huebase
