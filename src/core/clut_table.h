#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"
#include "core/rank_index.h"

#include <cstddef>
#include <vector>

namespace huebase {

// A value and the colour the table gives it.
struct ValueColor {
    float value = 0.0f;
    ColorValue color = 0;

    friend bool operator==(const ValueColor&, const ValueColor&) = default;
};

// The colour table held by the LUT control: a copy of the last table the
// editor sent, the spans between neighbouring rows and the no-data colour,
// and the colour query over them.
//
// ClutInterpolate(x) finds the last row i whose value is at or below x (the
// rows are scanned upward while x >= value) and blends from row i to row i+1
// with row i's method, t = (x - value(i)) / span(i). Below the first row, on
// an empty table, for NaN and on any fault inside the query the answer is 0
// (black); on the last row's value it is that row's colour and above it the
// no-data colour. The query never throws and never shows a message.
class ClutTable {
public:
    // Takes a copy of the table and rebuilds the spans and the search data.
    void setTable(const LutTable& table, ColorValue noDataColor);
    void setNoDataColor(ColorValue color) noexcept { noDataColor_ = color; }

    ColorValue noDataColor() const noexcept { return noDataColor_; }
    const LutTable& table() const noexcept { return table_; }
    // span k = value(k+1) - value(k) in single precision, exactly 0 stored as
    // 1.0 so that equal neighbours never divide by zero; one fewer than rows.
    const std::vector<float>& spans() const noexcept { return spans_; }
    // True when no value is NaN and every value is at or below the next one.
    bool isAscending() const noexcept { return ascending_; }

    // The colour of x. Ascending tables are answered through a blocked search
    // in O(log n) (see RankIndex); others by the row-by-row scan. Both give
    // the same colour for every x.
    ColorValue ClutInterpolate(float x) const noexcept;
    // The row-by-row scan, for any row order; the reference for the above.
    ColorValue ClutInterpolateByScan(float x) const noexcept;

    // (value, colour) for each of the given values, in the same order.
    std::vector<ValueColor> ColorArray(const std::vector<float>& values) const;

private:
    // What a query in [value(i), value(i+1)) needs, split up once per table;
    // two cache lines each.
    struct alignas(64) Interval {
        double lowChannels[4]; // red, green, blue, 0 as BlendColor takes them
        double highChannels[4];
        double value;
        double inverseSpan; // 1 / span, rounded
        float span;
        ColorValue low;
        ColorValue high;
        std::uint8_t method;
        // Either colour has bit 24 set: splitting it is an overflow, so any
        // real blend in this interval fails into black.
        bool splitFails;
        bool upperBits; // either colour has any of bits 24-31 set
    };

    // Any method code from MethodNone up gives no blend; this one marks an
    // interval whose span overflowed, where every query faults into black.
    static constexpr std::uint8_t kFaultyInterval = 0xFF;

    LutTable table_;
    std::vector<float> spans_;
    RankIndex index_;
    std::vector<Interval> intervals_;
    float lastValue_ = 0.0f;
    ColorValue lastColor_ = 0;
    ColorValue noDataColor_ = 0;
    bool ascending_ = true;
};

} // namespace huebase
