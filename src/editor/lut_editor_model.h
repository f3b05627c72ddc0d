#pragma once

#include "core/color_bar_slices.h"
#include "core/lut_node.h"
#include "editor/distribution.h"
#include "editor/distribution_curve.h"
#include "editor/graph_coordinates.h"
#include "editor/graph_input.h"
#include "editor/node_rows.h"
#include "editor/ramp_state.h"
#include "util/vb_format.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace huebase {

class LutEditorListener;
class LutEditorOwner;

// Everything the LUT editor window knows, without the window: the value
// distribution and its graph, the node rows, the colour bar, the table sent
// to the owner, and the editing rules of the rows and the graph. The widgets
// show this state, forward input to it and redraw when a listener call says
// so. Row k is node k+1 of the table and node button k.
class LutEditorModel {
public:
    // The tooltip of a node button until the buttons are first placed.
    static constexpr const char* kDesignTabToolTip =
        "S pour supprimer, clic droit poour couleur, clic gauche pour d\xC3\xA9placer";

    // The window's starting state: two rows, the first and the last node,
    // both "Lin"; no drag; the distribution-set flag up.
    LutEditorModel();

    void setOwner(LutEditorOwner* owner) noexcept { owner_ = owner; }
    // Listeners are not owned and must be removed before they die.
    void addListener(LutEditorListener* listener);
    void removeListener(LutEditorListener* listener);

    // --- Distribution and graph -------------------------------------------
    const std::vector<float>& AltiArrays() const noexcept { return distribution_.AltiArrays(); }
    const Distribution& distribution() const noexcept { return distribution_; }
    float DataMin() const noexcept { return distribution_.DataMin(); }
    float DataMax() const noexcept { return distribution_.DataMax(); }
    float MaxCount() const noexcept { return distribution_.MaxCount(); }
    bool distributionSet() const noexcept { return distributionSet_; }
    const GraphCoordinates& graphCoordinates() const noexcept { return coordinates_; }
    const DistributionCurve& curve() const noexcept { return curve_; }

    // The built-in distribution (0, 1), (100, 100), (200, 50).
    void DefaultLUT();
    // Takes an ascending (value, count) table: AltiArrays, range and counts,
    // the end rows and the graph, then places the buttons, paints the colour
    // bar and sends the table. The second argument is accepted and unused.
    // An empty table is error 9.
    void InitFromOrderedArray(std::vector<DistributionRow> rows, std::int32_t unused = -1);
    // Sorts and counts the values (noData kept off the ends), then continues
    // as InitFromOrderedArray.
    void InitFromStraightArray(std::vector<float> values, std::int32_t noData);
    // Counts the distinct values of a grid by their shortest text, then
    // continues as InitFromOrderedArray.
    void InitFromStdArray(const std::vector<std::vector<float>>& grid, std::int32_t unused = -1);
    // Replaces only the distribution the graph shows (range, counts, curve)
    // and prepares the end rows; AltiArrays, middle rows, the colour bar and
    // the owner's table are left alone.
    void setPropertiesx(std::vector<DistributionRow> rows);

    // --- Rows and table ----------------------------------------------------
    const NodeRows& rows() const noexcept { return rows_; }
    int rowCount() const noexcept { return rows_.count(); }
    const NodeRow& row(int k) const { return rows_[k]; }
    // True while a table is being loaded into the rows.
    bool loading() const noexcept { return loading_; }
    // The table as last read from the rows.
    const LutTable& lutTable() const noexcept { return table_; }

    // Reads the rows into the table, hands a copy to the owner and returns it.
    LutTable sendLutTable();
    // Replaces all rows by the table's nodes (error 9 when empty, 6 above
    // NodeRows::kMaxRows nodes), then places the buttons and paints the bar.
    void SetLutTable(const LutTable& table);

    // A row's colour or method set by the user (swatch or list): stored, then
    // the row's event is handled as the editor does.
    void setColor(int k, ColorValue color);
    void SetMode(int k, std::uint8_t method);
    // A row's value box lost the focus holding `text`. Returns the text the
    // box shows now, or nothing when the text is not numeric or the row is
    // locked (the box keeps what was typed and nothing changes).
    std::optional<std::string> commitValueText(int k, std::string_view text,
                                               char localeSeparator = localeDecimalSeparator());
    // The row event raised by a validated value: the row stores it, the
    // neighbours (not the end rows) take it as a bound, the buttons are
    // placed and the bar repainted.
    void offsetChanged(int k, float value);

    // The colour of values above the last node, shown by the NoDataColor
    // swatch. Setting it tells the listeners and nobody else: the owner reads
    // it when a table is sent.
    ColorValue noDataColor() const noexcept { return noDataColor_; }
    void setNoDataColor(ColorValue color);

    // --- Colour bar ----------------------------------------------------------
    // Recomputes the slices from the rows and reads the table from them;
    // nothing while a table is loading.
    void PaintColorBar();
    const ColorBarSlices& colorBar() const noexcept { return colorBar_; }

    // --- Node buttons and graph editing -------------------------------------
    bool tabsPlaced() const noexcept { return tabsPlaced_; }
    // Button k's tooltip: the design text until the buttons are first
    // placed, then the node's value in its shortest form.
    std::string tabToolTip(int k) const;
    // The topmost button under data value x, buttons spanning halfWidth
    // (data units) on each side of their node; -1 when none.
    int tabAt(float x, float halfWidth) const { return rows_.buttonAt(x, halfWidth); }

    // The row of the node being dragged, or -1.
    std::int16_t dragIndex() const noexcept { return dragIndex_; }
    // A mouse button pressed on node button k with the modifier keys
    // (ShiftState bits). Any non-right button: arrow pointer. Right with
    // Shift alone: a middle node starts a drag, an end node cancels any drag.
    // Right with Ctrl alone: a middle node is deleted. Returns the pointer
    // the button takes.
    TabPointer pressOnTab(int k, MouseButton button, int shiftState);
    // A left click on node button k: true when the row's colour choice is to
    // open (no drag active).
    bool clickOpensColorChoice() const noexcept { return dragIndex_ < 0; }
    // The pointer moved over the graph to (x, y): during a drag the node
    // follows when x lies strictly between its bounds. True when it moved.
    bool moveOnGraph(float x);
    // A mouse button released over the graph: ends any drag; a non-right
    // release strictly between two nodes inserts a node at x. True when a
    // node was added.
    bool releaseOnGraph(float x, MouseButton button);
    // A node at a typed value, under the rules of a node added on the graph:
    // only strictly between two nodes, with the method of the interval it
    // splits and the colour the ramp gives x. False (nothing changed) on a
    // node or outside the first and last node. Ends any drag, since the rows
    // are renumbered.
    bool insertNodeAt(float x);
    // "Individual values": every distinct value of AltiArrays becomes a node
    // (values on a node or outside the nodes are skipped). Returns the number
    // added; error 6 after inserting what fits when the rows fill up.
    int Indiv();
    // Deletes middle node k (the table is rebuilt, the node taken out and the
    // table loaded back); false for an end node.
    bool removeNode(int k);
    // Keyboard move of middle node k by one data unit, or by a hundredth of
    // the data range when `large`, within the same strict bounds as a drag.
    bool nudgeNode(int k, bool up, bool large);

    // --- Window buttons -------------------------------------------------------
    // OK: sends the table and tells the owner it is final (the window hides).
    void OK();
    // "Reset": the owner gives its table back; the editor stays open.
    void Reset();
    // Cancel, or closing the window by its frame: reset, then end the program.
    void Cancel();

    // --- Edit history ---------------------------------------------------------
    // The rows and the no-data colour as they stand.
    RampState rampState() const { return {rows_, noDataColor_}; }
    // Puts a ramp back as it was: the rows, the buttons placed, the bar
    // painted, the no-data colour. Like SetLutTable it sends nothing to the
    // owner. Any drag ends; nothing is recorded.
    void restoreRamp(const RampState& state);
    // Runs `edit` as one user edit called `name`: when it changed the ramp,
    // even part way before failing, the listeners are told the state before
    // and after. The edits of the rows and the graph record themselves; an
    // edit run inside another belongs to the outer one.
    template <typename Edit> decltype(auto) recorded(const char* name, Edit&& edit);

private:
    void takeDistribution(std::vector<DistributionRow> rows);
    void prepareGraphAndEnds();
    void drawCurve();
    void placeTabs();
    bool moveNodeTo(int k, float x);
    int addEachValue();
    void finishDrag();
    void finishRecording(const char* name, const RampState& before);
    void reportEdit(const char* name, const RampState& before);
    void notifyRowsReset();
    void notifyRow(int k);
    template <typename Call> void notify(Call call);

    Distribution distribution_;
    GraphCoordinates coordinates_;
    DistributionCurve curve_;
    NodeRows rows_;
    LutTable table_;
    ColorBarSlices colorBar_;
    ColorValue noDataColor_ = 0;
    LutEditorOwner* owner_ = nullptr;
    std::vector<LutEditorListener*> listeners_;
    bool loading_ = false;
    bool distributionSet_ = true;
    bool tabsPlaced_ = false;
    std::int16_t dragIndex_ = -1;
    // The ramp when the current drag started: the whole drag is one edit.
    std::optional<RampState> dragStart_;
    bool recording_ = false;
};

template <typename Edit> decltype(auto) LutEditorModel::recorded(const char* name, Edit&& edit) {
    if (recording_)
        return edit();
    const RampState before = rampState();
    recording_ = true;
    // The rows may have changed before a failure; that part is an edit too.
    try {
        if constexpr (std::is_void_v<decltype(edit())>) {
            edit();
            finishRecording(name, before);
        } else {
            decltype(auto) result = edit();
            finishRecording(name, before);
            return result;
        }
    } catch (...) {
        finishRecording(name, before);
        throw;
    }
}

} // namespace huebase
