#include "color/hsl.h"

#include "util/vb_numeric.h"

#include <algorithm>

namespace huebase::modHSL {

namespace {
constexpr double kHslMax = 240.0;
constexpr double kComponentMax = 255.0;
constexpr double kSixth = kHslMax / 6.0;    // 40
constexpr double kThird = kHslMax / 3.0;    // 80
constexpr double kTwelfth = kHslMax / 12.0; // 20
constexpr std::int16_t kGreyHue = 160;

ColorValue withLuminance(ColorValue color, std::int32_t luminance) {
    HSLColor hsl = RGBToHSL(color);
    hsl.Luminance = static_cast<std::int16_t>(luminance);
    return HSLToRGB(hsl);
}
} // namespace

std::int16_t IntMax(std::int16_t a, std::int16_t b) noexcept {
    return a > b ? a : b;
}
std::int16_t IntMin(std::int16_t a, std::int16_t b) noexcept {
    return a < b ? a : b;
}

HSLColor RGBToHSL(ColorValue color) {
    const std::int16_t r = RedOf(color);
    const std::int16_t g = GreenOf(color);
    const std::int16_t b = BlueOf(color);
    const std::int16_t cMax = IntMax(IntMax(r, g), b);
    const std::int16_t cMin = IntMin(IntMin(r, g), b);
    const int sum = checkedInt16(cMax + cMin);
    const int diff = checkedInt16(cMax - cMin);

    const double l = (sum * kHslMax + kComponentMax) / (2.0 * kComponentMax);
    double h = kGreyHue;
    double s = 0.0;
    if (cMax != cMin) {
        // The unrounded luminance picks the branch: pure red (L 120.5) takes
        // the upper one even though it shows as 120.
        s = l <= kHslMax / 2.0 ? (diff * kHslMax + 0.5) / sum
                               : (diff * kHslMax + 0.5) / (2.0 * kComponentMax - sum);
        const double rDelta = ((cMax - r) * kSixth + 0.5) / diff;
        const double gDelta = ((cMax - g) * kSixth + 0.5) / diff;
        const double bDelta = ((cMax - b) * kSixth + 0.5) / diff;
        if (r == cMax)
            h = bDelta - gDelta;
        else if (g == cMax)
            h = kThird + rDelta - bDelta;
        else
            h = 2.0 * kThird + gDelta - rDelta;
        // No wrap above 240: (255, 0, 1) gives 239.84, shown as 240.
        if (h < 0.0)
            h += kHslMax;
    }
    return {toInt16(h), toInt16(s), toInt16(l)};
}

ColorValue HSLToRGB(const HSLColor& hsl) {
    const double h = hsl.Hue;
    const double s = hsl.Saturation;
    const double l = hsl.Luminance;
    double r, g, b;
    if (roundHalfEven(s) == 0.0) {
        r = g = b = l * kComponentMax / kHslMax;
    } else {
        const double m2 = l <= kHslMax / 2.0 ? (l * (kHslMax + s) + 0.5) / kHslMax
                                             : l + s - (l * s + 0.5) / kHslMax;
        const double m1 = 2.0 * l - m2;
        r = (HueToRGB(m1, m2, h + kThird) * kComponentMax + 0.5) / kHslMax;
        g = (HueToRGB(m1, m2, h) * kComponentMax + 0.5) / kHslMax;
        b = (HueToRGB(m1, m2, h - kThird) * kComponentMax + 0.5) / kHslMax;
    }
    return composeColor(toInt32(r), toInt32(g), toInt32(b));
}

double HueToRGB(double m1, double m2, double hue) noexcept {
    if (hue < 0.0)
        hue += kHslMax;
    else if (hue > kHslMax)
        hue -= kHslMax;
    // The added twelfth is the classic scheme's rounding term; it biases the
    // result by up to half a step and is kept so that the shown values match.
    if (hue < kSixth)
        return m1 + ((m2 - m1) * hue + kTwelfth) / kSixth;
    if (hue < kHslMax / 2.0)
        return m2;
    if (hue < 2.0 * kThird)
        return m1 + ((m2 - m1) * (2.0 * kThird - hue) + kTwelfth) / kSixth;
    return m1;
}

ColorValue ContrastTextColor(ColorValue color) {
    return RGBToHSL(color).Luminance <= 120 ? 0xFFFFFF : 0;
}

// The step is formed in single precision, as the brightness strip has always
// computed it; the sum then rounds half to even.
ColorValue LightenColor(ColorValue color, float amount) {
    if (!(amount > 0.0f))
        return color;
    const float lum = RGBToHSL(color).Luminance;
    return withLuminance(color, std::min(toInt32(lum + amount * 240.0f), 240));
}

ColorValue DarkenColor(ColorValue color, float amount) {
    if (!(amount > 0.0f))
        return color;
    const float lum = RGBToHSL(color).Luminance;
    return withLuminance(color, std::max(toInt32(lum - amount * 240.0f), 0));
}

} // namespace huebase::modHSL
