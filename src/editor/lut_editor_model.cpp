#include "editor/lut_editor_model.h"

#include "core/lut_editor_owner.h"
#include "editor/distribution_counting.h"
#include "editor/lut_editor_listener.h"
#include "editor/row_value_validation.h"
#include "util/program_exit.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace huebase {

namespace {

// Raises the loading flag for a scope, so that a failure part way through
// never leaves the editor deaf to row events.
class LoadingScope {
public:
    explicit LoadingScope(bool& flag) : flag_(flag) { flag_ = true; }
    ~LoadingScope() { flag_ = false; }
    LoadingScope(const LoadingScope&) = delete;
    LoadingScope& operator=(const LoadingScope&) = delete;

private:
    bool& flag_;
};

} // namespace

LutEditorModel::LutEditorModel() = default;

void LutEditorModel::addListener(LutEditorListener* listener) {
    if (listener != nullptr &&
        std::find(listeners_.begin(), listeners_.end(), listener) == listeners_.end())
        listeners_.push_back(listener);
}

void LutEditorModel::removeListener(LutEditorListener* listener) {
    std::erase(listeners_, listener);
}

template <typename Call> void LutEditorModel::notify(Call call) {
    // A copy: a listener may remove itself while it is being told.
    const std::vector<LutEditorListener*> listeners = listeners_;
    for (LutEditorListener* listener : listeners)
        call(*listener);
}

void LutEditorModel::notifyRowsReset() {
    notify([](LutEditorListener& l) { l.rowsReset(); });
}

void LutEditorModel::notifyRow(int k) {
    if (k >= 0 && k < rows_.count())
        notify([k](LutEditorListener& l) { l.rowChanged(k); });
}

// --- Distribution and graph ----------------------------------------------

void LutEditorModel::DefaultLUT() {
    InitFromOrderedArray(DistributionCounting::defaultRows(), -1);
}

void LutEditorModel::InitFromOrderedArray(std::vector<DistributionRow> rows, std::int32_t) {
    takeDistribution(std::move(rows));
}

void LutEditorModel::InitFromStraightArray(std::vector<float> values, std::int32_t noData) {
    takeDistribution(DistributionCounting::countStraightArray(std::move(values), noData));
}

void LutEditorModel::InitFromStdArray(const std::vector<std::vector<float>>& grid, std::int32_t) {
    takeDistribution(DistributionCounting::countStdArray(grid));
}

void LutEditorModel::takeDistribution(std::vector<DistributionRow> rows) {
    distribution_.assignOrdered(std::move(rows));
    prepareGraphAndEnds();
    drawCurve();
    placeTabs();
    PaintColorBar();
    sendLutTable();
}

void LutEditorModel::setPropertiesx(std::vector<DistributionRow> rows) {
    distributionSet_ = true;
    distribution_.assignShown(std::move(rows));
    prepareGraphAndEnds();
    drawCurve();
}

void LutEditorModel::prepareGraphAndEnds() {
    {
        LoadingScope loading(loading_);
        rows_.prepareEnds(DataMin(), DataMax());
        coordinates_ = GraphCoordinates::forDistribution(DataMin(), DataMax(), MaxCount());
    }
    notifyRow(0);
    notifyRow(rows_.lastIndex());
}

void LutEditorModel::drawCurve() {
    curve_ = DistributionCurve(distribution_.shownRows());
    notify([](LutEditorListener& l) { l.graphPrepared(); });
}

// --- Rows and table ----------------------------------------------------------

LutTable LutEditorModel::sendLutTable() {
    table_ = rows_.toTable();
    if (owner_ != nullptr)
        owner_->receiveLutTable(table_);
    return table_;
}

void LutEditorModel::SetLutTable(const LutTable& table) {
    {
        LoadingScope loading(loading_);
        rows_.fill(table);
        notifyRowsReset();
    }
    placeTabs();
    PaintColorBar();
}

void LutEditorModel::setNoDataColor(ColorValue color) {
    if (color == noDataColor_)
        return;
    noDataColor_ = color;
    notify([](LutEditorListener& listener) { listener.noDataColorChanged(); });
}

void LutEditorModel::setColor(int k, ColorValue color) {
    recorded("Set colour", [&] {
        rows_.setColor(k, color);
        notifyRow(k);
        if (!loading_) {
            placeTabs();
            PaintColorBar();
        }
    });
}

void LutEditorModel::SetMode(int k, std::uint8_t method) {
    if (method >= kMethodCount)
        throw VbError(VbError::InvalidCall);
    recorded("Set method", [&] {
        rows_.setMethod(k, method);
        notifyRow(k);
        PaintColorBar();
    });
}

std::optional<std::string> LutEditorModel::commitValueText(int k, std::string_view text,
                                                           char localeSeparator) {
    const NodeRow& row = rows_[k];
    if (row.locked)
        return std::nullopt;
    std::optional<ValidatedValue> validated =
        validateRowValue(text, row.lower, row.upper, localeSeparator);
    if (!validated)
        return std::nullopt;
    offsetChanged(k, validated->value);
    return std::move(validated->text);
}

void LutEditorModel::offsetChanged(int k, float value) {
    recorded("Set value", [&] {
        rows_.passOffset(k, value);
        notifyRow(k - 1);
        notifyRow(k);
        notifyRow(k + 1);
        placeTabs();
        PaintColorBar();
    });
}

// --- Colour bar ----------------------------------------------------------------

void LutEditorModel::PaintColorBar() {
    if (loading_)
        return;
    LutTable table = rows_.toTable();
    colorBar_ = ColorBarSlices(table, DataMin(), DataMax(), SliceSpan::Whole);
    table_ = std::move(table);
    notify([](LutEditorListener& l) { l.colorBarPainted(); });
}

// --- Node buttons and graph editing ---------------------------------------------

void LutEditorModel::placeTabs() {
    if (loading_)
        return;
    tabsPlaced_ = true;
    notify([](LutEditorListener& l) { l.tabsPlaced(); });
}

std::string LutEditorModel::tabToolTip(int k) const {
    const NodeRow& row = rows_[k];
    return tabsPlaced_ ? floatText(row.value) : std::string(kDesignTabToolTip);
}

TabPointer LutEditorModel::pressOnTab(int k, MouseButton button, int shiftState) {
    rows_.checkIndex(k);
    const bool endNode = k == 0 || k == rows_.lastIndex();
    if (button != MouseButton::Right)
        return TabPointer::Arrow;
    if (shiftState == ShiftKey) {
        finishDrag();
        if (endNode) {
            dragIndex_ = -1;
            return TabPointer::Unchanged;
        }
        dragStart_ = rampState();
        dragIndex_ = static_cast<std::int16_t>(k);
        return TabPointer::SizeWestEast;
    }
    if (shiftState == CtrlKey)
        removeNode(k);
    return TabPointer::Unchanged;
}

bool LutEditorModel::moveNodeTo(int k, float x) {
    if (!rows_.moveNode(k, x))
        return false;
    notifyRow(k - 1);
    notifyRow(k);
    notifyRow(k + 1);
    notify([](LutEditorListener& l) { l.tabsPlaced(); });
    PaintColorBar();
    return true;
}

bool LutEditorModel::moveOnGraph(float x) {
    if (dragIndex_ < 0 || dragIndex_ >= rows_.count())
        return false;
    return moveNodeTo(dragIndex_, x);
}

bool LutEditorModel::releaseOnGraph(float x, MouseButton button) {
    finishDrag();
    dragIndex_ = -1;
    if (button == MouseButton::Right)
        return false;
    return recorded("Add node", [&] { return insertNodeAt(x); });
}

bool LutEditorModel::insertNodeAt(float x) {
    int inserted = -1;
    {
        LoadingScope loading(loading_);
        inserted = rows_.insertAt(x);
    }
    if (inserted < 0)
        return false;
    dragIndex_ = -1;
    notifyRowsReset();
    placeTabs();
    PaintColorBar();
    return true;
}

int LutEditorModel::Indiv() {
    return recorded("Individual values", [&] { return addEachValue(); });
}

int LutEditorModel::addEachValue() {
    const int before = rows_.count();
    try {
        LoadingScope loading(loading_);
        rows_.insertEach(AltiArrays());
    } catch (const VbError&) {
        // The values that fitted are in: show them before reporting.
        notifyRowsReset();
        placeTabs();
        PaintColorBar();
        throw;
    }
    const int added = rows_.count() - before;
    if (added > 0) {
        notifyRowsReset();
        placeTabs();
        PaintColorBar();
    }
    return added;
}

bool LutEditorModel::removeNode(int k) {
    rows_.checkIndex(k);
    LutTable table = rows_.toTable();
    table_ = table;
    if (k == 0 || k == rows_.lastIndex())
        return false;
    table.erase(table.begin() + k);
    // The rows are renumbered: a drag in progress would follow another node.
    finishDrag();
    dragIndex_ = -1;
    recorded("Delete node", [&] { SetLutTable(table); });
    return true;
}

bool LutEditorModel::nudgeNode(int k, bool up, bool large) {
    if (k <= 0 || k >= rows_.lastIndex())
        return false;
    const float step = large ? std::fabs(DataMax() - DataMin()) / 100.0f : 1.0f;
    const float value = rows_[k].value;
    return recorded("Move node", [&] { return moveNodeTo(k, up ? value + step : value - step); });
}

// --- Window buttons -------------------------------------------------------------

void LutEditorModel::OK() {
    sendLutTable();
    if (owner_ != nullptr)
        owner_->OK_Clicked();
}

void LutEditorModel::Reset() {
    if (owner_ != nullptr)
        recorded("Reset", [&] { owner_->resetLutTable(); });
}

void LutEditorModel::Cancel() {
    Reset();
    endProgram(0);
}

// --- Edit history ------------------------------------------------------------------

void LutEditorModel::restoreRamp(const RampState& state) {
    dragIndex_ = -1;
    dragStart_.reset();
    {
        LoadingScope loading(loading_);
        rows_ = state.rows;
        notifyRowsReset();
    }
    placeTabs();
    PaintColorBar();
    setNoDataColor(state.noDataColor);
}

void LutEditorModel::finishDrag() {
    if (!dragStart_)
        return;
    const RampState before = std::move(*dragStart_);
    dragStart_.reset();
    if (!recording_)
        reportEdit("Move node", before);
}

void LutEditorModel::finishRecording(const char* name, const RampState& before) {
    // Once only, even when telling a listener fails.
    if (!recording_)
        return;
    recording_ = false;
    reportEdit(name, before);
}

void LutEditorModel::reportEdit(const char* name, const RampState& before) {
    const RampState after = rampState();
    if (after == before)
        return;
    notify([&](LutEditorListener& l) { l.rampEdited(name, before, after); });
}

} // namespace huebase
