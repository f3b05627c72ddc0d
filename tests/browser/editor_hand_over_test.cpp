// The browser's hand-over to a real editor window, wired as the editor's
// browse button is: the chosen table goes to SetLutTable, then the no-data
// colour to setNoDataColor.

#include "browser/color_bar_row.h"
#include "browser/lut_browser.h"
#include "browser/lut_library.h"
#include "editor/lut_editor_window.h"

#include "browser/lut_test_support.h"
#include "support/modal_window.h"
#include "support/service_recorder.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace huebase {
namespace {

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kRed = 0x0000FF;

TEST(EditorHandOver, CancelHandsOverNothingAndSelectHandsTheCutTableAndNoDataColour) {
    testing::ScratchFolder program;
    testing::ServiceRecorder services;
    std::filesystem::create_directory(program.path() / "myLuts");
    testing::saveLut(program, "myLuts/a.lut", testing::tableAt({0, 1}));
    testing::saveLut(program, "myLuts/bw.lut",
                     testing::tableAt({0, 100, 200}, {kBlack, kWhite, kBlack}), kRed);

    LutEditorWindow editor;
    editor.model().InitFromOrderedArray({{50.0f, 3}, {80.0f, 1}, {150.0f, 2}});
    ASSERT_EQ(editor.DataMin(), 50.0f);
    ASSERT_EQ(editor.DataMax(), 150.0f);

    int handed = 0;
    auto browse = [&] {
        LutLibrary::browse(&editor, program.path().string(), editor.DataMin(), editor.DataMax(),
                           [&](const LutTable& table, ColorValue noDataColor) {
                               ++handed;
                               editor.SetLutTable(table);
                               editor.setNoDataColor(noDataColor);
                           });
    };
    testing::whenModalOpens<LUTBrowser>([](LUTBrowser& browser) {
        QTest::mouseClick(browser.findChild<QPushButton*>("Cancel"), Qt::LeftButton);
    });
    browse();
    EXPECT_EQ(handed, 0) << "Cancel hands over nothing";

    bool closed = false;
    testing::whenModalOpens<LUTBrowser>([&](LUTBrowser& browser) {
        EXPECT_EQ(browser.parentWidget(), &editor) << "the browser belongs to the editor";
        ASSERT_EQ(browser.rows().size(), 2u);
        QTest::mouseClick(browser.rows()[1]->findChild<QPushButton*>("SelectBtn"), Qt::LeftButton);
        closed = !browser.isVisible();
    });
    browse();
    EXPECT_TRUE(closed);
    EXPECT_EQ(handed, 1);
    const LutTable shown = editor.model().lutTable();
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[0].value, 50.0f);
    EXPECT_EQ(shown[0].color, BlendColor(kBlack, kWhite, 0.5f));
    EXPECT_EQ(shown[1].value, 100.0f);
    EXPECT_EQ(shown[1].color, kWhite);
    EXPECT_EQ(shown[2].value, 150.0f);
    EXPECT_EQ(editor.noDataColor(), kRed);
}

} // namespace
} // namespace huebase
