#include "core/clut_table.h"

#include "core/interval_fraction.h"
#include "core/simd.h"
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

void splitChannels(ColorValue color, double (&channels)[4]) {
    channels[0] = RedOf(color);
    channels[1] = GreenOf(color);
    channels[2] = BlueOf(color);
    channels[3] = 0.0;
}

// BlendColor(low, high, w) for 0 < w < 1 on channels split beforehand: per
// channel (1 - w) * low + high * w in double, rounded half to even.
ColorValue blendChannels(const double (&low)[4], const double (&high)[4], float w) noexcept {
    const double s = w;
#if HUEBASE_SSE2
    // The same IEEE operations, two channels at a time. The conversions round
    // in the current mode, which the program leaves at nearest-even.
    const __m128d ws = _mm_set1_pd(s);
    const __m128d rest = _mm_set1_pd(1.0 - s);
    const __m128d redGreen =
        _mm_add_pd(_mm_mul_pd(rest, _mm_load_pd(low)), _mm_mul_pd(_mm_load_pd(high), ws));
    const __m128d blue =
        _mm_add_pd(_mm_mul_pd(rest, _mm_load_pd(low + 2)), _mm_mul_pd(_mm_load_pd(high + 2), ws));
    // Channels are 0..255: packing the four 32-bit lanes (red, green, blue, 0)
    // down to bytes composes red + 256 * green + 65536 * blue.
    const __m128i channels = _mm_unpacklo_epi64(_mm_cvtpd_epi32(redGreen), _mm_cvtpd_epi32(blue));
    const __m128i words = _mm_packs_epi32(channels, channels);
    return _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
#else
    const auto channel = [s](double a, double b) {
        return static_cast<int>(std::nearbyint((1.0 - s) * a + b * s));
    };
    return channel(low[0], high[0]) + 256 * channel(low[1], high[1]) +
           65536 * channel(low[2], high[2]);
#endif
}

} // namespace

void ClutTable::setTable(const LutTable& table, ColorValue noDataColor) {
    table_ = table;
    noDataColor_ = noDataColor;

    const std::size_t n = table_.size();
    spans_.assign(n > 0 ? n - 1 : 0, 0.0f);
    intervals_.resize(spans_.size());
    std::vector<float> values(n);
    ascending_ = true;
    for (std::size_t k = 0; k < n; ++k) {
        values[k] = table_[k].value;
        if (std::isnan(values[k]) || (k > 0 && !(values[k - 1] <= values[k])))
            ascending_ = false;
    }
    index_.assign(ascending_ ? values : std::vector<float>{});
    lastValue_ = n > 0 ? table_.back().value : 0.0f;
    lastColor_ = n > 0 ? table_.back().color : 0;
    for (std::size_t k = 0; k + 1 < n; ++k) {
        const LutNode& low = table_[k];
        const LutNode& high = table_[k + 1];
        const float span = high.value - low.value;
        spans_[k] = span == 0.0f ? 1.0f : span;

        Interval& interval = intervals_[k];
        interval.value = low.value;
        interval.span = spans_[k];
        interval.inverseSpan = 1.0 / static_cast<double>(spans_[k]);
        interval.low = low.color;
        interval.high = high.color;
        // An overflowed span is a fault for every value in the interval.
        interval.method = std::isfinite(spans_[k]) ? low.method : kFaultyInterval;
        interval.splitFails = splitFails(low.color) || splitFails(high.color);
        interval.upperBits = ((low.color | high.color) & ~0xFFFFFF) != 0;
        // With bit 24 clear GreenOf cannot fail.
        splitChannels(interval.splitFails ? 0 : low.color, interval.lowChannels);
        splitChannels(interval.splitFails ? 0 : high.color, interval.highChannels);
    }
}

ColorValue ClutTable::ClutInterpolate(float x) const noexcept {
    // NaN counts no row, like a value below the first one. Tables out of
    // order have an empty index and end up in the scan.
    const std::size_t j = index_.countAtOrBelow(x);
    if (j == 0)
        return ascending_ ? 0 : ClutInterpolateByScan(x);
    if (j == index_.size())
        return x == lastValue_ ? lastColor_ : noDataColor_;

    // Here value(i) <= x < value(i + 1) with a finite span, so t is finite.
    const Interval& interval = intervals_[j - 1];
    if (interval.method >= MethodNone)
        return interval.method == MethodNone ? interval.low : 0;
    const float t = intervalFraction(static_cast<double>(x) - interval.value, interval.inverseSpan,
                                     interval.span);
    const float w = interval.method == MethodLin ? t : rampWeight(interval.method, t);
    // 0 <= w <= 1 here. With bits 24-31 clear in both colours the blend at
    // w = 0 and w = 1 recomposes them exactly, so only other colours need
    // BlendColor's early returns.
    if (interval.upperBits) [[unlikely]] {
        if (w >= 1.0f)
            return interval.high;
        if (!(w > 0.0f))
            return interval.low;
        if (interval.splitFails)
            return 0;
    }
    return blendChannels(interval.lowChannels, interval.highChannels, w);
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
