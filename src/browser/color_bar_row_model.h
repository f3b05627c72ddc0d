#pragma once

#include "browser/lut_fitting.h"
#include "browser/lut_record.h"
#include "browser/lut_selection.h"
#include "browser/row_properties.h"
#include "core/color_bar_slices.h"
#include "core/color_value.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace huebase {

// Everything a colour bar row of the library browser knows, without the
// widget: the table read from its .lut file and fitted to the data range,
// the bound and path texts, the look it persists, the boxes of its bar, the
// pointer read-out and the table it hands over when selected.
class ColorBarRowModel {
public:
    explicit ColorBarRowModel(std::string containerFont = {});

    // --- Fitting ------------------------------------------------------------
    // Stores the mode; with a path in Pathtxt the file is read again and
    // fitted, so fits never build on each other.
    void setApplyOptions(std::int16_t mode);
    std::int16_t ApplyOptions() const noexcept { return fit_.ApplyOptions; }
    // The data range used by the next fit.
    void setDataMin(float value) noexcept { fit_.DataMin = value; }
    void setDataMax(float value) noexcept { fit_.DataMax = value; }
    float DataMin() const noexcept { return fit_.DataMin; }
    float DataMax() const noexcept { return fit_.DataMax; }
    // Reads the file and fits it, then shows the path in Pathtxt (its text
    // and tooltip).
    void setFilePath(const std::string& path);
    // Takes the records as they are and fits them without reading a file.
    void setLut(LutRecords records);
    const LutRecords& lut() const noexcept { return fit_.lut; }
    ColorValue noDataColor() const noexcept { return noDataColor_; }

    // A run-time error while fitting (a warp over a table whose ends are
    // equal, a text where a number is needed) is shown as "Error: N.
    // description" and leaves the row as it was before the change.

    // --- Texts --------------------------------------------------------------
    const std::string& Pathtxt() const noexcept { return pathText_; }
    const std::string& pathToolTip() const noexcept { return pathToolTip_; }
    // The texts of MinVal and MaxVal ("MinVal"/"MaxVal" until a fit).
    const std::string& min() const noexcept { return fit_.min; }
    const std::string& max() const noexcept { return fit_.max; }
    void setMin(std::string text);
    void setMax(std::string text);

    // --- Look and persisted properties -------------------------------------
    ColorValue BackColor() const noexcept { return look_.BackColor; }
    ColorValue ForeColor() const noexcept { return look_.ForeColor; }
    bool Enabled() const noexcept { return look_.Enabled; }
    const std::string& Font() const noexcept { return look_.Font; }
    int BackStyle() const noexcept { return look_.BackStyle; }
    int BorderStyle() const noexcept { return look_.BorderStyle; }
    const std::string& ActiveControl() const noexcept { return look_.ActiveControl; }
    const std::string& LutName() const noexcept { return look_.LutName; }
    const std::string& ToolTipText() const noexcept { return look_.ToolTipText; }
    void setBackColor(ColorValue color);
    void setForeColor(ColorValue color);
    void setEnabled(bool enabled);
    void setFont(std::string font);
    void setBackStyle(int style);
    void setBorderStyle(int style);
    void setActiveControl(std::string name);
    void setLutName(std::string name);
    void setToolTipText(std::string text);

    // The names of the properties changed since the last clearChanged(), for
    // the container to persist ("Lut" for a table set directly).
    const std::set<std::string>& changedProperties() const noexcept { return changed_; }
    void clearChanged() { changed_.clear(); }

    // Reading takes the path into Pathtxt without reading the file.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;

    // --- Bar ----------------------------------------------------------------
    // The bar's scale: left edge and right edge in data units, from the
    // bound texts (either decimal separator), or from the table's first and
    // last values where a text is no number. Nothing when neither is known.
    std::optional<std::pair<float, float>> barScale() const;
    // The boxes painting the fitted table over the bar's scale: only those
    // meeting the scale, and never an error. An interval whose records do
    // not convert to nodes is skipped.
    std::vector<ColorSlice> barSlices() const;
    // The bar's tooltip for the pointer at `fraction` (0 left, 1 right) of
    // the bar's width: the data value there in "Fixed" ("3.50"); empty when
    // the scale is unknown.
    std::string readoutText(double fraction) const;

    // --- Selection ----------------------------------------------------------
    // The table and no-data colour the row hands over (see selectedTable).
    LutSelection Selected() const;

private:
    struct Snapshot;
    // Runs a change; a run-time error puts the fields back and is shown.
    void guarded(const std::function<void()>& change);
    void markChanged(const char* name) { changed_.insert(name); }

    LutFit fit_;
    ColorValue noDataColor_ = 0;
    std::string pathText_;
    std::string pathToolTip_;
    std::string containerFont_; // the default font of a bag that has none
    RowProperties look_;        // FilePath, Min and Max live above
    std::set<std::string> changed_;
};

} // namespace huebase
