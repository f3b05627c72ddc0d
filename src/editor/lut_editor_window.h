#pragma once

#include "core/lut_editor.h"
#include "core/lut_node.h"
#include "editor/distribution.h"
#include "editor/graph_settings.h"
#include "editor/lut_editor_listener.h"
#include "editor/lut_editor_model.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QHBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace huebase {

class ColorBarView;
class ColorPicker;
class DistributionGraph;
class EditorUndo;
class NodeTabStrip;
class ValueRowsPanel;

// The LUT editor window "lut", captioned "Color LUT": the distribution graph
// with its node buttons and the colour bar under it, the value rows, the
// no-data colour and the window buttons. Its state is the LutEditorModel it
// holds; the controls show that state and hand input to it. The window
// stays on top; closing it by its frame (or Escape) is Cancel, which ends
// the program. It is the editor a LUT control owns.
class LutEditorWindow : public QDialog, public LutEditor, private LutEditorListener {
    Q_OBJECT
public:
    explicit LutEditorWindow(QWidget* parent = nullptr);
    ~LutEditorWindow() override;

    LutEditorModel& model() noexcept { return *model_; }
    const LutEditorModel& model() const noexcept { return *model_; }

    // The editor's public members. The Init members read the host's fields
    // into the model's layouts.
    std::vector<float> AltiArrays() const override { return model_->AltiArrays(); }
    void setOwner(LutEditorOwner* owner) override { model_->setOwner(owner); }
    void DefaultLUT() override { model_->DefaultLUT(); }
    void InitFromOrderedArray(const VariantRows& rows, std::int32_t extra) override;
    void InitFromOrderedArray(VariantPairs rows, std::int32_t extra) override;
    void InitFromStraightArray(const VariantRows& values, std::int32_t noData) override;
    void InitFromStdArray(const VariantRows& grid, std::int32_t extra) override;
    void setPropertiesx(std::vector<DistributionRow> rows) {
        model_->setPropertiesx(std::move(rows));
    }
    LutTable sendLutTable() { return model_->sendLutTable(); }
    // The colour of the NoDataColor swatch, held by the model.
    void setNoDataColor(ColorValue color) override { model_->setNoDataColor(color); }
    ColorValue noDataColor() const override { return model_->noDataColor(); }
    void SetLutTable(const LutTable& table) override { model_->SetLutTable(table); }
    float DataMin() const noexcept { return model_->DataMin(); }
    float DataMax() const noexcept { return model_->DataMax(); }
    void showModal() override;

    // The graph's count scale and ramp fill, as the controls beside it show.
    GraphSettings graphSettings() const;
    void setGraphSettings(const GraphSettings& settings);

signals:
    // OpenBrowser and cmdSave, for the library to answer.
    void openBrowserRequested();
    void saveRequested();
    // The user chose another count scale or turned the ramp fill on or off.
    void graphSettingsChanged();
    // The editor ends (OK, Cancel, Escape, closing) or is Reset with a ramp
    // other than the one it was last shown with: the ramp it had, for the
    // host to keep. Raised before the window hides or the program ends, at
    // most once for the same ramp.
    void rampToKeep(const huebase::LutTable& table, huebase::ColorValue noDataColor);

public slots:
    // OK: sends the table, tells the owner it is final and hides the window.
    void accept() override;
    // Cancel, Escape and closing by the frame: the owner gives its table
    // back, then the program ends.
    void reject() override;

protected:
    // Each showing (not a restore from the task bar) takes the ramp it
    // starts with as the one a way out compares against.
    void showEvent(QShowEvent* event) override;

private:
    // The nodes and the no-data colour together, as kept.
    struct Ramp {
        LutTable table;
        ColorValue noDataColor = 0;
        friend bool operator==(const Ramp&, const Ramp&) = default;
    };

    void noDataColorChanged() override;
    void buildControls();
    void indivClicked();
    void addUndoButtons(QHBoxLayout& row, QWidget* previous);
    QLayout* buildGraphOptions();
    Ramp currentRamp() const;
    void keepRampIfChanged();
    // "Insert node at value...": the value asked for, then inserted.
    void insertTypedNode(const QString& suggested);
    void offerInsertMenu(QWidget* source, QPoint pos, const QString& suggested);

    std::unique_ptr<LutEditorModel> model_;
    // Listens to the model, so it goes before it.
    std::unique_ptr<EditorUndo> undo_;
    DistributionGraph* Graph_ = nullptr;
    NodeTabStrip* GraphColorTab_ = nullptr;
    ColorBarView* ColorBar_ = nullptr;
    ValueRowsPanel* rows_ = nullptr;
    QLineEdit* Xtxt_ = nullptr;
    ColorPicker* NoDataColor_ = nullptr;
    QComboBox* countScale_ = nullptr;
    QCheckBox* rampFill_ = nullptr;
    std::optional<Ramp> shownRamp_;
    std::optional<Ramp> keptRamp_;
};

} // namespace huebase
