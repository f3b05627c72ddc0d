#pragma once

#include <QImage>
#include <QWidget>

namespace huebase {

class ColorBarRowModel;

// The ColorBar of a colour bar row: the row model's slices over the bar's
// scale (left edge the lower bound, right edge the upper bound), full
// height. Each pixel column shows the last slice, in painting order, that
// holds the data value at the column's centre; columns that no slice holds
// show the background. Moving the pointer over the bar sets its tooltip to
// the data value under the pointer.
class RowColorBar : public QWidget {
    Q_OBJECT
public:
    explicit RowColorBar(const ColorBarRowModel& model, QWidget* parent = nullptr);

    // Recomputes the columns from the model at the next paint.
    void refresh();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void render();

    const ColorBarRowModel& model_;
    QImage columns_; // one pixel high, one pixel per column
    bool stale_ = true;
};

} // namespace huebase
