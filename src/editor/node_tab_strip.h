#pragma once

#include "editor/lut_editor_listener.h"

#include <QWidget>

namespace huebase {

class LutEditorModel;

// GraphColorTab: the node buttons over the graph, one per node, painted and
// hit-tested by this one widget so that 32,767 nodes stay cheap. Button k is
// centred on row k's value on the graph's horizontal scale, filled with the
// row's colour, and carries the row's tooltip; later buttons lie on top.
//
// Mouse: right with Shift on a middle node starts a drag (west-east pointer;
// the node follows the pointer until a release over the graph, or at once
// when the button is held while moving); right with Ctrl deletes a middle
// node; a left click opens the node's colour choice. Keyboard: one node is
// current; Tab and Shift+Tab, Home and End choose it, the arrow keys move it
// by one data unit (Shift: a hundredth of the range), Delete removes it,
// Space or Enter picks its colour.
class NodeTabStrip : public QWidget, private LutEditorListener {
    Q_OBJECT
public:
    static constexpr int kTabWidth = 9;

    explicit NodeTabStrip(LutEditorModel& model, QWidget* parent = nullptr);
    ~NodeTabStrip() override;

    // Button k's rectangle in this widget.
    QRect tabRect(int k) const;
    // The topmost button under a point, or -1.
    int tabAt(QPoint point) const;
    QString tabToolTip(int k) const;

    int currentTab() const noexcept { return current_; }
    void setCurrentTab(int k);

    QSize sizeHint() const override;

signals:
    // A left click (or Space) on button k with no drag active.
    void colorChoiceRequested(int k);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void tabsPlaced() override;
    void rowsReset() override;
    void rowChanged(int row) override;

    double pixelOf(float value) const;
    double valueAt(double pixelX) const;

    LutEditorModel& model_;
    int current_ = 0;
    int pressed_ = -1;
    bool movedWhilePressed_ = false;
};

} // namespace huebase
