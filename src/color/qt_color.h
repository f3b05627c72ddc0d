#pragma once

#include "core/color_value.h"

#include <QColor>

namespace huebase {

// ColorValue holds red in the low byte; QColor wants the components.
inline QColor toQColor(ColorValue color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

inline ColorValue fromQColor(const QColor& color) {
    return composeColor(color.red(), color.green(), color.blue());
}

} // namespace huebase
