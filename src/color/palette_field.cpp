#include "color/palette_field.h"

#include "color/hsl.h"
#include "util/vb_numeric.h"

namespace huebase {

ColorValue paletteColorAt(int x, int y, int width, int height) {
    if (x < 0 || y < 0 || x >= width || y >= height || height < 2)
        return 0;
    const int hueWidth = width - kPaletteGreyStripe;
    const auto lum = toInt16(240.0 * (height - 1 - y) / (height - 1));
    if (x >= hueWidth || hueWidth <= 0)
        return modHSL::HSLToRGB({160, 0, lum});
    const auto hue = toInt16(239.0 * x / (hueWidth > 1 ? hueWidth - 1 : 1));
    return modHSL::HSLToRGB({hue, 240, lum});
}

} // namespace huebase
