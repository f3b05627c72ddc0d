#pragma once

#include "core/color_value.h"

#include <QLabel>

namespace huebase {

// A label filled with one colour that reports presses: the dialog's current
// colour, its brightness steps, the enlargement cells and the palette
// picture. The fill is the colour the dialog reads back, so the patch is
// where that colour lives.
class ColorPatch : public QLabel {
    Q_OBJECT
public:
    explicit ColorPatch(QWidget* parent = nullptr);

    ColorValue color() const noexcept { return color_; }
    void setColor(ColorValue color);
    void setTextColor(ColorValue color);

signals:
    // A mouse press at pos, or Space / Enter when the patch has the focus
    // (pos is then the centre).
    void pressed(QPoint pos);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    ColorValue color_ = 0;
};

} // namespace huebase
