#pragma once

#include "core/lut_node.h"
#include "editor/node_row.h"

#include <cstddef>
#include <vector>

namespace huebase {

// The editor's nodes as an ordered list of rows; row k is node k+1 of the
// colour table. Holds the rules that work on rows alone: filling from a
// table, rebuilding the table, the end rows, passing a typed value's bounds
// to the neighbours, inserting, moving and the hit test of the node buttons.
// Every index is checked (error 9); the row count is limited to what 16-bit
// counters reach (error 6 beyond).
class NodeRows {
public:
    static constexpr int kMaxRows = 32767;

    // Two rows, the first and the last node, both "Lin" and locked,
    // everything else zero.
    NodeRows();

    int count() const noexcept { return static_cast<int>(rows_.size()); }
    int lastIndex() const noexcept { return count() - 1; }
    const NodeRow& operator[](int k) const;
    const std::vector<NodeRow>& all() const noexcept { return rows_; }
    // Error 9 unless 0 <= k < count().
    void checkIndex(int k) const;

    void setValue(int k, float value);
    void setMin(int k, float lower);
    void setMax(int k, float upper);
    void setLock(int k, bool locked);
    void setMethod(int k, std::uint8_t method);
    void setColor(int k, ColorValue color);

    // First row: bounds and value dataMin, locked, black. Last row: bounds
    // and value dataMax, white; its lock is left as it is. Middle rows are
    // untouched.
    void prepareEnds(float dataMin, float dataMax);

    // Replaces the rows by the table's nodes. Rows 0 and 1 always exist, so
    // a one-node table keeps row 1 as it was. Row 0 takes the first node's
    // value, method and colour and is locked, its bounds unchanged. Every
    // further row k takes node k+1's value, method and colour, lower bound =
    // the previous node's value and upper bound = the next node's value (the
    // last row: the node's own upper field); middle rows are unlocked and the
    // last row locked. An empty table is error 9, more than kMaxRows nodes
    // error 6; both leave the rows as they were.
    void fill(const LutTable& table);

    // Row k becomes node k+1 = (value, method, colour, upper bound).
    LutTable toTable() const;

    // The consequence of a typed value on row `index`: stores it, gives it to
    // the row above as its upper bound and to the row below as its lower
    // bound, except that the end rows never receive it.
    void passOffset(int index, float value);

    // The first row i, searching from the top, with value(i) < x < value(i+1).
    // -1 when x lies on a node or outside the nodes.
    int intervalHolding(float x) const;

    // Inserts a node at x inside the first interval that holds it strictly and
    // returns its row index, or -1 when no interval holds x. Later rows move
    // down; the new row gets value x, the interval's values as bounds, no
    // lock, the method of the row above and the ramp's colour at x, so the
    // ramp keeps its look; its neighbours take x as their facing bound.
    // Error 6 when the rows are full.
    int insertAt(float x);

    // The same as insertAt for each value in turn, in one pass, except that
    // every new node takes its colour from the ramp as it stood before the
    // first insertion: blending each from the node inserted just before it
    // would round away the small steps between close values and flatten the
    // ramp. Returns the number of nodes added. When the rows fill up, the values that fit are
    // inserted and error 6 is raised.
    int insertEach(const std::vector<float>& values);

    // Moves middle node d to x when lower(d) < x < upper(d), updating the
    // neighbours' facing bounds; false (and nothing changed) otherwise or for
    // an end node.
    bool moveNode(int d, float x);

    // The topmost node button under data value x when every button spans
    // halfWidth on each side of its node (later rows lie on top); -1 if none.
    int buttonAt(float x, float halfWidth) const;

    // The colour the ramp of row i towards row i+1 gives at x.
    ColorValue rampColorAt(int i, float x) const;

private:
    bool ascending() const;
    int insertEachMerged(const std::vector<float>& values, std::size_t room);

    std::vector<NodeRow> rows_;
};

} // namespace huebase
