#include "core/color_value.h"

#include "util/vb_numeric.h"

#include <algorithm>

namespace huebase {

std::int16_t RedOf(ColorValue color) noexcept {
    return static_cast<std::int16_t>(color & 0xFF);
}

std::int16_t GreenOf(ColorValue color) {
    return toInt16(static_cast<double>(color & 0x0100FF00) / 256.0);
}

std::int16_t BlueOf(ColorValue color) noexcept {
    return static_cast<std::int16_t>((color & 0x00FF0000) >> 16);
}

ColorValue composeColor(int red, int green, int blue) noexcept {
    return std::min(red, 255) + 256 * std::min(green, 255) + 65536 * std::min(blue, 255);
}

ColorValue BlendColor(ColorValue a, ColorValue b, float t) {
    if (t >= 1.0f)
        return b;
    if (!(t > 0.0f))
        return a;
    const double s = t;
    const auto channel = [s](std::int16_t ca, std::int16_t cb) {
        return toInt16((1.0 - s) * static_cast<float>(ca) + static_cast<float>(cb) * s);
    };
    const std::int16_t ra = RedOf(a), rb = RedOf(b);
    const std::int16_t ga = GreenOf(a), gb = GreenOf(b);
    const std::int16_t ba = BlueOf(a), bb = BlueOf(b);
    const int red = channel(ra, rb);
    const int green = channel(ga, gb);
    const int blue = channel(ba, bb);
    return red + 256 * green + 65536 * blue;
}

} // namespace huebase
