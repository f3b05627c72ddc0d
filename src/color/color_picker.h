#pragma once

#include "core/color_value.h"

#include <QWidget>

namespace huebase {

class frmColorRef;

// A colour swatch: shows one colour and, when clicked, opens its own colour
// dialog modally on that colour. OK in the dialog sets the swatch's colour.
// Hosts learn of every change through Changed.
class ColorPicker : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int color READ color WRITE setColor NOTIFY Changed)
public:
    explicit ColorPicker(QWidget* parent = nullptr, ColorValue color = 0);
    ~ColorPicker() override;

    ColorValue color() const noexcept { return color_; }
    // Stores and shows the colour, then raises Changed, even when the value is
    // the same as before.
    void setColor(ColorValue color);

    // What a click does, callable from code: creates the dialog on first use
    // (it then lives as long as the swatch), puts this colour in it and shows
    // it modally; returns when the dialog is closed.
    void UserControl_Click();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Changed(huebase::ColorValue color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    ColorValue color_;
    bool pressed_ = false;
    frmColorRef* dialog_ = nullptr; // a child: deleted with the swatch
};

} // namespace huebase
