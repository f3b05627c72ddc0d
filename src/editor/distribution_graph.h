#pragma once

#include "editor/count_scale.h"
#include "editor/distribution_curve.h"
#include "editor/graph_coordinates.h"
#include "editor/graph_input.h"
#include "editor/lut_editor_listener.h"

#include <QImage>
#include <QWidget>

#include <vector>

class QPainter;

namespace huebase {

class LutEditorModel;

// The editor's Graph: the value distribution in the model's coordinates (x
// the data value, y the count growing upwards), a thin white line through
// the points and black points over it. Moving the pointer shows where it is
// and drags a node; releasing a button ends a drag and may insert a node.
// Counts are measured on a chosen count scale, and the area under the curve
// may be filled with the ramp's colours. The drawing is kept as an image and
// redrawn only when the distribution, the scale, the fill or the size
// changes.
class DistributionGraph : public QWidget, private LutEditorListener {
    Q_OBJECT
public:
    explicit DistributionGraph(LutEditorModel& model, QWidget* parent = nullptr);
    ~DistributionGraph() override;

    // The pixel at data value x and count y (on the count scale).
    QPointF pointAt(double x, double y) const;
    // The data value and count at a pixel.
    double valueAt(double pixelX) const;
    double countAt(double pixelY) const;

    QSize sizeHint() const override;

    CountScale countScale() const noexcept { return scale_; }
    void setCountScale(CountScale scale);
    bool rampFill() const noexcept { return rampFill_; }
    void setRampFill(bool on);
    // The counts to label the count axis with at the graph's height.
    std::vector<double> countTicks() const;

    static MouseButton buttonOf(Qt::MouseButton button);

signals:
    // The pointer moved over the graph: x rounded for the Xtxt box.
    void pointerValue(const QString& xText);
    // The count axis moved: another scale or another distribution.
    void countAxisChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void graphPrepared() override;
    void colorBarPainted() override;
    GraphCoordinates coordinates() const;
    QPointF toPixel(double x, double height) const;
    void render();
    void fillWithRamp(QPainter& painter, const DistributionCurve& curve, double zero) const;
    void drawValueScale(QPainter& painter, double zero) const;

    LutEditorModel& model_;
    QImage image_;
    bool stale_ = true;
    CountScale scale_;
    bool rampFill_ = false;
};

} // namespace huebase
