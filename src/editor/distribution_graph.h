#pragma once

#include "editor/graph_input.h"
#include "editor/lut_editor_listener.h"

#include <QImage>
#include <QWidget>

class QPainter;

namespace huebase {

class LutEditorModel;

// The editor's Graph: the value distribution in the model's coordinates (x
// the data value, y the count growing upwards), a thin white line through
// the points and black points over it. Moving the pointer shows where it is
// and drags a node; releasing a button ends a drag and may insert a node.
// The drawing is kept as an image and redrawn only when the distribution or
// the size changes.
class DistributionGraph : public QWidget, private LutEditorListener {
    Q_OBJECT
public:
    explicit DistributionGraph(LutEditorModel& model, QWidget* parent = nullptr);
    ~DistributionGraph() override;

    // The pixel at data value x and count y.
    QPointF pointAt(double x, double y) const;
    // The data value and count at a pixel.
    double valueAt(double pixelX) const;
    double countAt(double pixelY) const;

    QSize sizeHint() const override;

    static MouseButton buttonOf(Qt::MouseButton button);

signals:
    // The pointer moved over the graph: x rounded for the Xtxt box.
    void pointerValue(const QString& xText);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void graphPrepared() override;
    void render();
    void drawValueScale(QPainter& painter, double zero) const;

    LutEditorModel& model_;
    QImage image_;
    bool stale_ = true;
};

} // namespace huebase
