#pragma once

#include "core/lut_node.h"
#include "editor/distribution.h"
#include "editor/lut_editor_model.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace huebase {

class ColorBarView;
class ColorPicker;
class DistributionGraph;
class LutEditorOwner;
class NodeTabStrip;
class ValueRowsPanel;

// The LUT editor window "lut", captioned "Color LUT": the distribution graph
// with its node buttons and the colour bar under it, the value rows, the
// no-data colour and the window buttons. Its state is the LutEditorModel it
// holds; the controls show that state and hand input to it. The window
// stays on top; closing it by its frame (or Escape) is Cancel, which ends
// the program.
class LutEditorWindow : public QDialog {
    Q_OBJECT
public:
    explicit LutEditorWindow(QWidget* parent = nullptr);
    ~LutEditorWindow() override;

    LutEditorModel& model() noexcept { return *model_; }
    const LutEditorModel& model() const noexcept { return *model_; }

    // The editor's public members.
    std::vector<float> AltiArrays() const { return model_->AltiArrays(); }
    void setOwner(LutEditorOwner* owner) { model_->setOwner(owner); }
    void DefaultLUT() { model_->DefaultLUT(); }
    void InitFromOrderedArray(std::vector<DistributionRow> rows, std::int32_t unused = -1) {
        model_->InitFromOrderedArray(std::move(rows), unused);
    }
    void InitFromStraightArray(std::vector<float> values, std::int32_t noData) {
        model_->InitFromStraightArray(std::move(values), noData);
    }
    void InitFromStdArray(const std::vector<std::vector<float>>& grid, std::int32_t unused = -1) {
        model_->InitFromStdArray(grid, unused);
    }
    void setPropertiesx(std::vector<DistributionRow> rows) {
        model_->setPropertiesx(std::move(rows));
    }
    LutTable sendLutTable() { return model_->sendLutTable(); }
    // Sets the colour of the NoDataColor swatch.
    void setNoDataColor(ColorValue color);
    // The colour the NoDataColor swatch shows now.
    ColorValue noDataColor() const;
    void SetLutTable(const LutTable& table) { model_->SetLutTable(table); }
    float DataMin() const noexcept { return model_->DataMin(); }
    float DataMax() const noexcept { return model_->DataMax(); }

signals:
    // OpenBrowser and cmdSave, for the library to answer.
    void openBrowserRequested();
    void saveRequested();

public slots:
    // OK: sends the table, tells the owner it is final and hides the window.
    void accept() override;
    // Cancel, Escape and closing by the frame: the owner gives its table
    // back, then the program ends.
    void reject() override;

private:
    void buildControls();
    void indivClicked();

    std::unique_ptr<LutEditorModel> model_;
    DistributionGraph* Graph_ = nullptr;
    NodeTabStrip* GraphColorTab_ = nullptr;
    ColorBarView* ColorBar_ = nullptr;
    ValueRowsPanel* rows_ = nullptr;
    QLineEdit* Xtxt_ = nullptr;
    ColorPicker* NoDataColor_ = nullptr;
};

} // namespace huebase
