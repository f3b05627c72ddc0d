#pragma once

#include "editor/lut_editor_listener.h"

#include <QImage>
#include <QWidget>

namespace huebase {

class LutEditorModel;

// The editor's ColorBar: the model's colour bar slices on the graph's
// horizontal scale, over the bar's full height. Each pixel column shows the
// last slice (in painting order) that holds the data value at the column's
// centre; columns that no slice holds show the background. The columns are
// worked out once per new set of slices or width, in one pass over the
// slices, so a bar of 32,767 nodes costs no more to show than its pixels.
class ColorBarView : public QWidget, private LutEditorListener {
    Q_OBJECT
public:
    explicit ColorBarView(LutEditorModel& model, QWidget* parent = nullptr);
    ~ColorBarView() override;

    static QColor background();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void colorBarPainted() override;
    void graphPrepared() override;
    void render();

    LutEditorModel& model_;
    QImage columns_; // one pixel high, one pixel per column
    bool stale_ = true;
};

} // namespace huebase
