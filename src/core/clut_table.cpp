#include "core/clut_table.h"

#include "util/vb_error.h"

#include <cmath>

namespace huebase {

namespace {

// t = (x - value) / span, rounded once to single precision. A span that
// overflowed or a fraction that is not finite (infinite rows) is a
// floating-point fault of the query: false.
bool fractionIn(float x, float value, float span, float& t) noexcept {
    if (!std::isfinite(span))
        return false;
    t = static_cast<float>((static_cast<double>(x) - value) / span);
    return std::isfinite(t);
}

bool splitFails(ColorValue color) noexcept {
    return (color & 0x01000000) != 0;
}

// Round half to even for 0 <= c < 2^51 without leaving the default rounding
// mode: adding 1.5 * 2^52 leaves no fraction bits. Same result as
// std::nearbyint, which is a library call here.
int roundChannel(double c) noexcept {
    constexpr double shift = 6755399441055744.0;
    return static_cast<int>((c + shift) - shift);
}

} // namespace

void ClutTable::setTable(const LutTable& table, ColorValue noDataColor) {
    table_ = table;
    noDataColor_ = noDataColor;

    const std::size_t n = table_.size();
    spans_.assign(n > 0 ? n - 1 : 0, 0.0f);
    values_.resize(n);
    intervals_.resize(spans_.size());
    ascending_ = true;
    for (std::size_t k = 0; k < n; ++k) {
        values_[k] = table_[k].value;
        if (std::isnan(values_[k]) || (k > 0 && !(values_[k - 1] <= values_[k])))
            ascending_ = false;
    }
    for (std::size_t k = 0; k + 1 < n; ++k) {
        const LutNode& low = table_[k];
        const LutNode& high = table_[k + 1];
        const float span = high.value - low.value;
        spans_[k] = span == 0.0f ? 1.0f : span;

        Interval& interval = intervals_[k];
        interval.value = low.value;
        interval.span = spans_[k];
        interval.low = low.color;
        interval.high = high.color;
        interval.method = low.method;
        interval.splitFails = splitFails(low.color) || splitFails(high.color);
        // Components as BlendColor takes them; with bit 24 clear GreenOf cannot fail.
        const ColorValue lowColor = interval.splitFails ? 0 : low.color;
        const ColorValue highColor = interval.splitFails ? 0 : high.color;
        interval.lowRed = RedOf(lowColor);
        interval.lowGreen = GreenOf(lowColor);
        interval.lowBlue = BlueOf(lowColor);
        interval.highRed = RedOf(highColor);
        interval.highGreen = GreenOf(highColor);
        interval.highBlue = BlueOf(highColor);
    }
}

std::size_t ClutTable::rowsAtOrBelow(float x) const noexcept {
    // Branch-free binary search: the comparisons of random queries do not
    // predict, and the table is small enough to stay in cache.
    const float* base = values_.data();
    std::size_t length = values_.size();
    while (length > 1) {
        const std::size_t half = length / 2;
        base = base[half - 1] <= x ? base + half : base;
        length -= half;
    }
    return static_cast<std::size_t>(base - values_.data()) + (*base <= x ? 1 : 0);
}

ColorValue ClutTable::interpolate(const Interval& interval, float x) noexcept {
    float t;
    if (!fractionIn(x, interval.value, interval.span, t))
        return 0;
    if (interval.method == MethodNone)
        return interval.low;
    if (interval.method >= kMethodCount)
        return 0;
    const float w = rampWeight(interval.method, t);
    if (w >= 1.0f)
        return interval.high;
    if (!(w > 0.0f))
        return interval.low;
    if (interval.splitFails)
        return 0;
    const double s = w;
    const int red = roundChannel((1.0 - s) * interval.lowRed + interval.highRed * s);
    const int green = roundChannel((1.0 - s) * interval.lowGreen + interval.highGreen * s);
    const int blue = roundChannel((1.0 - s) * interval.lowBlue + interval.highBlue * s);
    return red + 256 * green + 65536 * blue;
}

ColorValue ClutTable::ClutInterpolate(float x) const noexcept {
    if (!ascending_)
        return ClutInterpolateByScan(x);
    const std::size_t n = values_.size();
    // NaN is not at or above any row: it stops before the first one.
    if (n == 0 || std::isnan(x))
        return 0;
    const std::size_t j = rowsAtOrBelow(x);
    if (j == 0)
        return 0;
    if (j == n)
        return x == values_[n - 1] ? table_[n - 1].color : noDataColor_;
    return interpolate(intervals_[j - 1], x);
}

ColorValue ClutTable::ClutInterpolateByScan(float x) const noexcept {
    const std::size_t n = table_.size();
    std::size_t j = 0;
    while (j < n && x >= table_[j].value)
        ++j;
    // Stopped at the first row (x below it) or no rows at all: there is no row
    // i, and the failed row access ends the query in black.
    if (j == 0)
        return 0;
    if (j == n)
        return x == table_[n - 1].value ? table_[n - 1].color : noDataColor_;

    const std::size_t i = j - 1;
    const LutNode& row = table_[i];
    float t;
    if (!fractionIn(x, row.value, spans_[i], t))
        return 0;
    try {
        switch (row.method) {
        case MethodLin:
        case MethodLog:
        case MethodExp:
        case MethodLogPlus:
        case MethodExpPlus:
            return BlendColor(row.color, table_[j].color, rampWeight(row.method, t));
        case MethodNone:
            return row.color;
        default:
            return 0;
        }
    } catch (const VbError&) {
        return 0;
    }
}

std::vector<ValueColor> ClutTable::ColorArray(const std::vector<float>& values) const {
    std::vector<ValueColor> result;
    result.reserve(values.size());
    for (const float value : values)
        result.push_back({value, ClutInterpolate(value)});
    return result;
}

} // namespace huebase
