#pragma once

#include <QWidget>

namespace huebase {

class DistributionGraph;

// The count axis beside the distribution graph: a tick and a label at each
// round count of the graph's count scale, level with where the graph draws
// that count. It sits in the graph's row, so both share one height.
class CountAxisView : public QWidget {
    Q_OBJECT
public:
    explicit CountAxisView(const DistributionGraph& graph, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const DistributionGraph& graph_;
};

} // namespace huebase
