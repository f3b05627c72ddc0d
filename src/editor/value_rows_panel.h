#pragma once

#include "editor/lut_editor_listener.h"

#include <QWidget>

#include <vector>

class QScrollBar;

namespace huebase {

class ColorTableRow;
class LutEditorModel;

// The editor's column of value rows, ColorTableRow1, inside the panel
// RowColContainer, which moves inside the fixed viewport RowColContainerSup
// under the scroll bar VScroll1 (shown only when the rows overflow).
// RowColContainer is as tall as all rows, but only the rows in view exist as
// widgets: each is bound to one row of the model (its "Index" property) and
// rebound as the rows scroll, so 32,767 nodes cost a screenful of widgets.
// A row widget's events go to the model with its index.
class ValueRowsPanel : public QWidget, private LutEditorListener {
    Q_OBJECT
public:
    explicit ValueRowsPanel(LutEditorModel& model, QWidget* parent = nullptr);
    ~ValueRowsPanel() override;

    // The widget showing model row k, or null when row k is out of view.
    ColorTableRow* rowWidget(int k) const;
    // Scrolls row k into view and returns its widget.
    ColorTableRow& showRow(int k);
    // Opens the colour choice of row k (scrolled into view).
    void pickColor(int k);
    // The model row shown under pos (panel coordinates), or -1.
    int rowAt(QPoint pos) const;

    QScrollBar& scrollBar() const { return *VScroll1_; }
    // The first model row the viewport shows.
    int firstRowInView() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rowsReset() override;
    void rowChanged(int row) override;

    void ensurePool();
    void layoutRows();
    void scrolled(int value);
    void bindAll();
    void bind(ColorTableRow& widget, int k);
    void commitEditedRows();
    int indexOf(const ColorTableRow& widget) const;
    void focusNeighbour(const ColorTableRow& from, int step);

    LutEditorModel& model_;
    QWidget* RowColContainerSup_ = nullptr;
    QWidget* RowColContainer_ = nullptr;
    QScrollBar* VScroll1_ = nullptr;
    std::vector<ColorTableRow*> pool_;
    bool binding_ = false;
};

} // namespace huebase
