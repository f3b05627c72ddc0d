#include "browser/color_bar_row_model.h"

#include "browser/lut_file.h"
#include "util/messages.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <algorithm>
#include <utility>

namespace huebase {

namespace {
std::optional<float> numberIn(std::string text) {
    std::replace(text.begin(), text.end(), localeDecimalSeparator(), '.');
    try {
        return static_cast<float>(Variant(std::move(text)).toNumber());
    } catch (const VbError&) {
        return std::nullopt;
    }
}

std::optional<LutNode> nodeOf(const LutRecord& record) {
    try {
        return toNode(record);
    } catch (const VbError&) {
        return std::nullopt;
    }
}

std::optional<float> recordNumber(const LutRecords& lut, bool first) {
    if (lut.empty())
        return std::nullopt;
    try {
        return static_cast<float>(recordValue(first ? lut.front() : lut.back()));
    } catch (const VbError&) {
        return std::nullopt;
    }
}
} // namespace

ColorBarRowModel::ColorBarRowModel(std::string containerFont)
    : containerFont_(std::move(containerFont)), look_(initialRowProperties(containerFont_)) {}

void ColorBarRowModel::guarded(const std::function<void()>& change) {
    const LutFit fit = fit_;
    const ColorValue noData = noDataColor_;
    const std::string path = pathText_;
    const std::string toolTip = pathToolTip_;
    try {
        change();
    } catch (const VbError& error) {
        fit_ = fit;
        noDataColor_ = noData;
        pathText_ = path;
        pathToolTip_ = toolTip;
        showMessage(error.message(), {}, MessageIcon::Critical, MessageButtons::Ok);
    }
}

void ColorBarRowModel::setApplyOptions(std::int16_t mode) {
    guarded([&] {
        fit_.ApplyOptions = mode;
        if (!pathText_.empty()) {
            LutFile::LoadLut(pathText_, fit_.lut, noDataColor_);
            ApplyLutOptions(fit_, pathText_);
        }
    });
}

void ColorBarRowModel::setFilePath(const std::string& path) {
    markChanged("FilePath");
    guarded([&] {
        LutFile::LoadLut(path, fit_.lut, noDataColor_);
        // Pathtxt takes the path only after the fit; a refusal still names
        // the file being fitted, not the one shown before.
        ApplyLutOptions(fit_, path);
        pathText_ = path;
        pathToolTip_ = path;
    });
}

void ColorBarRowModel::setLut(LutRecords records) {
    guarded([&] {
        fit_.lut = std::move(records);
        markChanged("Lut");
        ApplyLutOptions(fit_, pathText_);
    });
}

void ColorBarRowModel::setMin(std::string text) {
    fit_.min = std::move(text);
    markChanged("Min");
}

void ColorBarRowModel::setMax(std::string text) {
    fit_.max = std::move(text);
    markChanged("Max");
}

void ColorBarRowModel::setBackColor(ColorValue color) {
    look_.BackColor = color;
    markChanged("BackColor");
}

void ColorBarRowModel::setForeColor(ColorValue color) {
    look_.ForeColor = color;
    markChanged("ForeColor");
}

void ColorBarRowModel::setEnabled(bool enabled) {
    look_.Enabled = enabled;
    markChanged("Enabled");
}

void ColorBarRowModel::setFont(std::string font) {
    look_.Font = std::move(font);
    markChanged("Font");
}

void ColorBarRowModel::setBackStyle(int style) {
    look_.BackStyle = style;
    markChanged("BackStyle");
}

void ColorBarRowModel::setBorderStyle(int style) {
    look_.BorderStyle = style;
    markChanged("BorderStyle");
}

void ColorBarRowModel::setActiveControl(std::string name) {
    look_.ActiveControl = std::move(name);
    markChanged("ActiveControl");
}

void ColorBarRowModel::setLutName(std::string name) {
    look_.LutName = std::move(name);
    markChanged("LutName");
}

void ColorBarRowModel::setToolTipText(std::string text) {
    look_.ToolTipText = std::move(text);
    markChanged("ToolTipText");
}

void ColorBarRowModel::ReadProperties(const PropertyBag& bag) {
    const RowProperties read = readRowProperties(bag, containerFont_);
    look_ = read;
    pathText_ = read.FilePath;
    fit_.min = read.Min;
    fit_.max = read.Max;
}

PropertyBag ColorBarRowModel::WriteProperties() const {
    RowProperties all = look_;
    all.FilePath = pathText_;
    all.Min = fit_.min;
    all.Max = fit_.max;
    return writeRowProperties(all);
}

std::optional<std::pair<float, float>> ColorBarRowModel::barScale() const {
    std::optional<float> left = numberIn(fit_.min);
    if (!left)
        left = recordNumber(fit_.lut, true);
    std::optional<float> right = numberIn(fit_.max);
    if (!right)
        right = recordNumber(fit_.lut, false);
    if (!left || !right)
        return std::nullopt;
    return std::pair{*left, *right};
}

std::vector<ColorSlice> ColorBarRowModel::barSlices() const {
    const auto scale = barScale();
    if (!scale)
        return {};
    ColorBarSlices bar(scale->first, scale->second, SliceSpan::Shown);
    const LutRecords& lut = fit_.lut;
    std::optional<LutNode> high = lut.empty() ? std::nullopt : nodeOf(lut.front());
    for (std::size_t i = 0; i + 1 < lut.size(); ++i) {
        const std::optional<LutNode> low = std::exchange(high, nodeOf(lut[i + 1]));
        if (low && high)
            bar.addInterval(*low, *high);
    }
    return bar.slices();
}

std::string ColorBarRowModel::readoutText(double fraction) const {
    const auto scale = barScale();
    if (!scale)
        return {};
    const float width = scale->second - scale->first;
    const float x = scale->first + static_cast<float>(fraction) * width;
    try {
        return formatFixed(x);
    } catch (const VbError&) {
        return {};
    }
}

LutSelection ColorBarRowModel::Selected() const {
    return {selectedTable(fit_.lut, fit_.ApplyOptions, fit_.DataMin, fit_.DataMax), noDataColor_};
}

} // namespace huebase
