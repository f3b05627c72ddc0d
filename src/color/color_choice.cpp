#include "color/color_choice.h"

#include "util/vb_numeric.h"

namespace huebase {

ScreenPoint centredOrigin(const ScreenRect& area, int width, int height) {
    const double areaWidth = area.right - area.left;
    const double areaHeight = area.bottom - area.top;
    return {toInt32(area.left + areaWidth / 2.0 - width / 2.0),
            toInt32(area.top + areaHeight / 2.0 - height / 2.0)};
}

} // namespace huebase
