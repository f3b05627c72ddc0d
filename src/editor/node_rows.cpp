#include "editor/node_rows.h"

#include "util/vb_error.h"

#include <algorithm>

namespace huebase {

namespace {

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;

ColorValue rampColor(const NodeRow& from, const NodeRow& to, float x) {
    const float t = (x - from.value) / (to.value - from.value);
    // "None" and unknown methods weigh 0, which keeps the lower colour.
    return BlendColor(from.color, to.color, rampWeight(from.method, t));
}

// The row a node inserted at x between `from` and `to` starts as.
NodeRow insertedRow(const NodeRow& from, const NodeRow& to, float x) {
    NodeRow row;
    row.value = x;
    row.lower = from.value;
    row.upper = to.value;
    row.locked = false;
    row.method = from.method;
    row.color = rampColor(from, to, x);
    return row;
}

// Ascending with no NaN anywhere (a NaN fails every comparison).
template <typename Range, typename Key> bool nonDecreasing(const Range& range, Key key) {
    return std::adjacent_find(range.begin(), range.end(), [&](const auto& a, const auto& b) {
               return !(key(a) <= key(b));
           }) == range.end();
}

} // namespace

// The ends of a table are locked: their values move only from the graph or by
// loading another table.
NodeRows::NodeRows() : rows_(2) {
    rows_[0].locked = true;
    rows_[1].locked = true;
}

void NodeRows::checkIndex(int k) const {
    if (k < 0 || k >= count())
        throw VbError(VbError::SubscriptOutOfRange);
}

const NodeRow& NodeRows::operator[](int k) const {
    checkIndex(k);
    return rows_[k];
}

void NodeRows::setValue(int k, float value) {
    checkIndex(k);
    rows_[k].value = value;
}

void NodeRows::setMin(int k, float lower) {
    checkIndex(k);
    rows_[k].lower = lower;
}

void NodeRows::setMax(int k, float upper) {
    checkIndex(k);
    rows_[k].upper = upper;
}

void NodeRows::setLock(int k, bool locked) {
    checkIndex(k);
    rows_[k].locked = locked;
}

void NodeRows::setMethod(int k, std::uint8_t method) {
    checkIndex(k);
    rows_[k].method = method;
}

void NodeRows::setColor(int k, ColorValue color) {
    checkIndex(k);
    rows_[k].color = color;
}

void NodeRows::prepareEnds(float dataMin, float dataMax) {
    NodeRow& first = rows_.front();
    first.lower = first.upper = first.value = dataMin;
    first.locked = true;
    first.color = kBlack;
    NodeRow& last = rows_.back();
    last.lower = last.upper = last.value = dataMax;
    last.color = kWhite;
}

void NodeRows::fill(const LutTable& table) {
    if (table.empty())
        throw VbError(VbError::SubscriptOutOfRange);
    if (table.size() > static_cast<std::size_t>(kMaxRows))
        throw VbError(VbError::Overflow);
    const std::size_t n = table.size();
    // Rows 0 and 1 are kept; every other row is made anew.
    rows_.resize(2);
    rows_.resize(std::max<std::size_t>(n, 2));

    NodeRow& first = rows_.front();
    first.value = table[0].value;
    first.method = table[0].method;
    first.color = table[0].color;
    first.locked = true;
    for (std::size_t k = 1; k < n; ++k) {
        NodeRow& row = rows_[k];
        row.value = table[k].value;
        row.method = table[k].method;
        row.color = table[k].color;
        row.lower = table[k - 1].value;
        row.upper = k + 1 < n ? table[k + 1].value : table[k].upper;
        row.locked = false;
    }
    rows_.back().locked = true;
}

LutTable NodeRows::toTable() const {
    LutTable table;
    table.reserve(rows_.size());
    for (const NodeRow& row : rows_)
        table.push_back({row.value, row.method, row.color, row.upper});
    return table;
}

void NodeRows::passOffset(int index, float value) {
    checkIndex(index);
    rows_[index].value = value;
    if (index > 1)
        rows_[index - 1].upper = value;
    if (index < lastIndex() - 1)
        rows_[index + 1].lower = value;
}

int NodeRows::intervalHolding(float x) const {
    for (int i = 0; i + 1 < count(); ++i)
        if (rows_[i].value < x && x < rows_[i + 1].value)
            return i;
    return -1;
}

ColorValue NodeRows::rampColorAt(int i, float x) const {
    checkIndex(i);
    checkIndex(i + 1);
    return rampColor(rows_[i], rows_[i + 1], x);
}

int NodeRows::insertAt(float x) {
    const int i = intervalHolding(x);
    if (i < 0)
        return -1;
    if (count() >= kMaxRows)
        throw VbError(VbError::Overflow);
    const NodeRow row = insertedRow(rows_[i], rows_[i + 1], x);
    rows_.insert(rows_.begin() + i + 1, row);
    rows_[i].upper = x;
    rows_[i + 2].lower = x;
    return i + 1;
}

int NodeRows::insertEach(const std::vector<float>& values) {
    const std::size_t room = static_cast<std::size_t>(kMaxRows - count());
    const auto self = [](float v) { return v; };
    const auto rowValue = [](const NodeRow& row) { return row.value; };
    if (nonDecreasing(values, self) && nonDecreasing(rows_, rowValue))
        return insertEachMerged(values, room);

    // Rows out of order (a typed value may leave its bounds): the intervals
    // may overlap, so only inserting one value at a time places them right.
    const NodeRows before = *this;
    int added = 0;
    for (float x : values) {
        const int k = insertAt(x);
        if (k < 0)
            continue;
        const int i = before.intervalHolding(x);
        if (i >= 0)
            rows_[k].color = before.rampColorAt(i, x);
        ++added;
    }
    return added;
}

// With rows and values both ascending the open intervals between rows are
// disjoint, so every value belongs to at most one original interval, and the
// values of one interval are inserted one after the other at its top: the
// rows can be rebuilt in a single pass.
int NodeRows::insertEachMerged(const std::vector<float>& values, std::size_t room) {
    std::vector<NodeRow> merged;
    merged.reserve(rows_.size() + std::min(values.size(), room));
    std::size_t j = 0;
    std::size_t added = 0;
    bool full = false;
    // The lower bound the next original row takes from the last node
    // inserted below it.
    bool nextTakesLower = false;
    float lowerOfNext = 0.0f;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        merged.push_back(rows_[i]);
        if (nextTakesLower) {
            merged.back().lower = lowerOfNext;
            nextTakesLower = false;
        }
        if (full || i + 1 == rows_.size())
            continue;
        const NodeRow& next = rows_[i + 1];
        while (j < values.size() && !(values[j] > rows_[i].value))
            ++j;
        for (; j < values.size() && values[j] < next.value; ++j) {
            const float x = values[j];
            if (!(x > merged.back().value))
                continue; // already a node
            if (added == room) {
                full = true;
                break;
            }
            NodeRow row = insertedRow(merged.back(), next, x);
            row.color = rampColor(rows_[i], next, x);
            merged.back().upper = x;
            merged.push_back(row);
            nextTakesLower = true;
            lowerOfNext = x;
            ++added;
        }
    }
    rows_ = std::move(merged);
    if (full)
        throw VbError(VbError::Overflow);
    return static_cast<int>(added);
}

bool NodeRows::moveNode(int d, float x) {
    checkIndex(d);
    if (d == 0 || d == lastIndex())
        return false;
    NodeRow& row = rows_[d];
    if (!(row.lower < x && x < row.upper))
        return false;
    row.value = x;
    rows_[d - 1].upper = x;
    rows_[d + 1].lower = x;
    return true;
}

int NodeRows::buttonAt(float x, float halfWidth) const {
    // A button spans [value - halfWidth, value + halfWidth).
    const double from = static_cast<double>(x) - halfWidth;
    const double to = static_cast<double>(x) + halfWidth;
    const auto covers = [&](const NodeRow& row) { return row.value > from && row.value <= to; };
    const auto rowValue = [](const NodeRow& row) { return row.value; };
    if (nonDecreasing(rows_, rowValue)) {
        const auto after =
            std::upper_bound(rows_.begin(), rows_.end(), to,
                             [](double v, const NodeRow& row) { return v < row.value; });
        if (after == rows_.begin() || !covers(*(after - 1)))
            return -1;
        return static_cast<int>(after - rows_.begin()) - 1;
    }
    for (int k = lastIndex(); k >= 0; --k)
        if (covers(rows_[k]))
            return k;
    return -1;
}

} // namespace huebase
