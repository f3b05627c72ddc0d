#pragma once

#include "core/color_value.h"

#include <QWidget>

#include <cstdint>

class QComboBox;
class QLineEdit;

namespace huebase {

class ColorPicker;

// One value row of the LUT editor: the node's value in txtValue, its
// interpolation method in cmbMethod and its colour in the swatch
// ColorPicker1. The row keeps its own value, bounds, lock, method and colour
// and reports the user's changes through its three events.
class ColorTableRow : public QWidget {
    Q_OBJECT
public:
    explicit ColorTableRow(QWidget* parent = nullptr);

    // Bounds a typed value is checked against; stored only.
    void setMin(float lower) noexcept { min_ = lower; }
    float getMin() const noexcept { return min_; }
    void setMax(float upper) noexcept { max_ = upper; }
    float getMax() const noexcept { return max_; }

    // Shows the colour in the swatch, which reports it back: ends in colorChanged.
    void setColor(ColorValue color);
    ColorValue GetColor() const noexcept { return color_; }

    // Selects the method in the list, which counts as a choice: ends in
    // methodChanged. A method outside the list is error 5.
    void SetMode(std::uint8_t method);
    std::uint8_t GetMode() const noexcept { return method_; }

    // A locked row's value box is disabled.
    void SetLock(bool locked);
    bool GetLock() const noexcept { return locked_; }

    // Shows the value in its shortest text; raises nothing.
    void SetValue(float value);
    float GetValue() const noexcept { return value_; }

    // Names the three controls after the row's place in the table, counted
    // from 1, so an assistive client says which node each belongs to.
    void setNumber(int number);

    // Opens the swatch's colour choice, as a click on it does.
    void pickColor();

    // What leaving the value box does: a numeric text is brought inside the
    // bounds (upper test first, margin 1), stored and reported through
    // offsetChanged; any other text is left as typed and nothing happens.
    void commitValue();

    // The fixed one-line height every row has, so rows stack without a layout.
    static int rowHeight();

signals:
    void offsetChanged(float value);
    void colorChanged(huebase::ColorValue color);
    void methodChanged(std::uint8_t method);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void swatchChanged(ColorValue color);
    void methodChosen(int index);

    QLineEdit* txtValue_ = nullptr;
    QComboBox* cmbMethod_ = nullptr;
    ColorPicker* ColorPicker1_ = nullptr;
    float min_ = 0.0f;
    float max_ = 0.0f;
    float value_ = 0.0f;
    ColorValue color_ = 0;
    std::uint8_t method_ = 0;
    bool locked_ = false;
    int number_ = 0; // 0: not yet named after a node
};

} // namespace huebase
