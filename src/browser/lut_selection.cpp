#include "browser/lut_selection.h"

#include "browser/lut_fitting.h"

#include <algorithm>
#include <cstddef>

namespace huebase {

namespace {

// The node at x on the ramp of interval i (from node i to node i + 1).
LutNode nodeOnInterval(const LutTable& table, std::size_t i, float x) {
    const LutNode& low = table[i];
    const LutNode& high = table[i + 1];
    const float t = (x - low.value) / (high.value - low.value);
    return {x, low.method, BlendColor(low.color, high.color, rampWeight(low.method, t)), x};
}

// The interval [value(i), value(i+1)) that holds x at or above its start.
std::size_t intervalFrom(const LutTable& table, float x) {
    std::size_t i = 0;
    while (i + 2 < table.size() && !(x < table[i + 1].value))
        ++i;
    return i;
}

// The interval (value(i), value(i+1)] that holds x at or below its end.
std::size_t intervalTo(const LutTable& table, float x) {
    std::size_t i = 0;
    while (i + 2 < table.size() && !(x <= table[i + 1].value))
        ++i;
    return i;
}

} // namespace

LutTable selectedTable(const LutRecords& fitted, std::int16_t applyOptions, float dataMin,
                       float dataMax) {
    LutTable table = toTable(fitted);
    if (applyOptions == WarpToFitData || table.size() < 2)
        return table;
    const float first = table.front().value;
    const float last = table.back().value;
    const float low = std::max(dataMin, first);
    const float high = std::min(dataMax, last);
    if (!(low <= high))
        return table;

    LutTable cut;
    cut.push_back(low > first ? nodeOnInterval(table, intervalFrom(table, low), low)
                              : table.front());
    for (std::size_t i = 1; i + 1 < table.size(); ++i)
        if (table[i].value > low && table[i].value < high)
            cut.push_back(table[i]);
    if (high < last) {
        // On a node the node itself ends the table: a "None" interval below it
        // would otherwise lend it the lower colour.
        const std::size_t i = intervalTo(table, high);
        cut.push_back(table[i + 1].value == high ? table[i + 1] : nodeOnInterval(table, i, high));
        cut.back().upper = high;
    } else {
        cut.push_back(table.back());
    }
    if (low > first)
        cut.front().upper = cut[1].value;
    return cut;
}

} // namespace huebase
