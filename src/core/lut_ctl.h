#pragma once

#include "core/clut_table.h"
#include "core/lut_editor.h"
#include "core/lut_editor_owner.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QToolButton;

namespace huebase {

// The LUT control: a small ramp picture (IconImg) that opens the LUT editor,
// the one editor it owns for its life, and the colour table the editor last
// sent, which answers the colour of any value. Its container learns of a new
// table through LUTChanged and of the user's OK through LUTDefined.
//
// The editor is made by the factory the control is given, on first use
// (SetValues, showCLut, ColorArray, NoDataColor or editor()), and set up in
// this order: the control becomes its owner, it takes the built-in
// distribution (DefaultLUT), and its no-data swatch takes the control's
// no-data colour.
class LUTCtl : public QWidget, private LutEditorOwner {
    Q_OBJECT
public:
    using VariantRows = LutEditor::VariantRows;
    using EditorFactory = std::function<std::unique_ptr<LutEditor>()>;

    explicit LUTCtl(EditorFactory makeEditor, QWidget* parent = nullptr);
    ~LUTCtl() override;

    // (value, colour) for every distinct value of the editor's distribution.
    std::vector<ValueColor> ColorArray();

    // Shows the editor modally; returns when it is hidden (OK).
    void showCLut();

    // Hands data values to the editor: mode 0 as a grid (InitFromStdArray),
    // mode 1 as a list of values, every field row by row, with `extra` as the
    // no-data value kept off the ends (InitFromStraightArray), mode 2 as a
    // (value, count) table, two fields per row (InitFromOrderedArray, `extra`
    // unused). Other modes do nothing, and `loaded` becomes true in both
    // cases. Errors of the editor (9, 13, ...) reach the caller.
    void SetValues(const VariantRows& values, std::int32_t extra, std::uint8_t mode);
    // The same for a two-column table such as the host session's, which mode
    // 2 hands over without a copy.
    void SetValues(LutEditor::VariantPairs values, std::int32_t extra, std::uint8_t mode);

    bool loaded() const noexcept { return loaded_; }

    // The colour the editor's no-data swatch shows now.
    ColorValue NoDataColor();

    // The table as last received from the editor.
    const LutTable& getLUT() const noexcept { return clut_.table(); }
    // That table with its row spans and the stored no-data colour: what
    // ClutInterpolate answers from.
    const ClutTable& colorTable() const noexcept { return clut_; }

    // The editor's OK: raises LUTDefined with the stored no-data colour and the table.
    void OK_Clicked() override;

    // The colour the table gives a value (black below the first node, the
    // no-data colour above the last; never throws).
    ColorValue ClutInterpolate(float value) const noexcept { return clut_.ClutInterpolate(value); }

    // The editor, created and set up on first use.
    LutEditor& editor();

signals:
    void LUTChanged(huebase::ColorValue noDataColor, const huebase::LutTable& table);
    void LUTDefined(huebase::ColorValue noDataColor, const huebase::LutTable& table);

private:
    // What only the editor calls.
    void receiveLutTable(const LutTable& table) override;
    void receiveNoDataColor(ColorValue color) override;
    void resetLutTable() override;

    EditorFactory makeEditor_;
    std::unique_ptr<LutEditor> editor_;
    ClutTable clut_;
    bool loaded_ = false;
    QToolButton* IconImg_ = nullptr;
};

} // namespace huebase
