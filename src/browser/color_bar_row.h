#pragma once

#include "browser/color_bar_row_model.h"
#include "core/color_value.h"
#include "core/lut_node.h"

#include <QWidget>

#include <cstdint>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;
class QFrame;

namespace huebase {

class RowColorBar;

// One library table as a row of the browser: its name (Text1), path
// (Pathtxt), the colour bar fitted to the data range (ColorBar) between its
// bounds (MinVal, MaxVal), the select button (SelectBtn) and a rule under it
// (Line1). The table, its fit and its texts live in a ColorBarRowModel; the
// properties here forward to it and show the result.
//
// A row notes the messages of its own reading and fitting (read errors,
// refused clips) beside its name, with the full texts as the note's tooltip.
// A quiet row shows them only there; the browser keeps every row quiet
// except the one the user chose, so a gallery of many files never raises a
// cascade of message boxes.
class ColorBarRow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int ApplyOptions READ ApplyOptions WRITE setApplyOptionsProperty)
public:
    explicit ColorBarRow(QWidget* parent = nullptr);
    ~ColorBarRow() override;

    const ColorBarRowModel& model() const noexcept { return model_; }

    // --- Fitting (see ColorBarRowModel) -------------------------------------
    std::int16_t ApplyOptions() const noexcept { return model_.ApplyOptions(); }
    void setApplyOptions(std::int16_t mode);
    QString FilePath() const;
    void setFilePath(const QString& path);
    const LutRecords& lut() const noexcept { return model_.lut(); }
    void setLut(LutRecords records);
    float DataMin() const noexcept { return model_.DataMin(); }
    float DataMax() const noexcept { return model_.DataMax(); }
    void setDataMin(float value) noexcept { model_.setDataMin(value); }
    void setDataMax(float value) noexcept { model_.setDataMax(value); }
    ColorValue noDataColor() const noexcept { return model_.noDataColor(); }

    // --- Texts and look -----------------------------------------------------
    QString min() const;
    QString max() const;
    void setMin(const QString& text);
    void setMax(const QString& text);
    QString LutName() const;
    // The name shown in Text1; empty shows the file's name without ".lut".
    void setLutName(const QString& name);
    QString ToolTipText() const;
    void setToolTipText(const QString& text);
    // Stored and persisted; the row's look follows the application palette.
    ColorValue BackColor() const noexcept { return model_.BackColor(); }
    ColorValue ForeColor() const noexcept { return model_.ForeColor(); }
    void setBackColor(ColorValue color) { model_.setBackColor(color); }
    void setForeColor(ColorValue color) { model_.setForeColor(color); }
    void setBackStyle(int style) { model_.setBackStyle(style); }
    void setBorderStyle(int style) { model_.setBorderStyle(style); }

    // Persisted properties (keys and defaults of RowProperties).
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const { return model_.WriteProperties(); }

    // Shows the model's state again: bounds, path, name, note and bar.
    void Refresh();

    bool isQuiet() const noexcept { return quiet_; }
    void setQuiet(bool quiet) noexcept { quiet_ = quiet; }
    // The messages of the row's last load or fit.
    const QStringList& notes() const noexcept { return notes_; }

    // What a click on SelectBtn does: raises Selected with the table cut to
    // the data range (or the warped table) and the no-data colour.
    void SelectBtn_Click();

signals:
    void Selected(const huebase::LutTable& table, huebase::ColorValue noDataColor);

private:
    void nameControls(const QString& fileName);
    void setApplyOptionsProperty(int mode) { setApplyOptions(static_cast<std::int16_t>(mode)); }
    // Runs a load or fit, keeping its messages as notes.
    template <typename Change> void run(Change&& change);

    ColorBarRowModel model_;
    bool quiet_ = false;
    QStringList notes_;

    QPushButton* SelectBtn_ = nullptr;
    RowColorBar* ColorBar_ = nullptr;
    QLineEdit* MinVal_ = nullptr;
    QLineEdit* MaxVal_ = nullptr;
    QLineEdit* Pathtxt_ = nullptr;
    QLineEdit* Text1_ = nullptr;
    QLabel* note_ = nullptr;
    QFrame* Line1_ = nullptr;
};

} // namespace huebase
