#pragma once

#include "color/screen_pixels.h"

namespace huebase {

// The real screen: the pointer from QCursor, the primary screen's geometry,
// and single pixels grabbed from the screen under the point.
class QtScreenPixels : public ScreenPixels {
public:
    ScreenPoint pointerPosition() const override;
    ScreenRect screenGeometry() const override;
    ColorValue pixelAt(ScreenPoint point) const override;
};

} // namespace huebase
