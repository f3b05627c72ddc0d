#include "browser/row_properties.h"

#include "util/vb_error.h"
#include "util/vb_numeric.h"

namespace huebase {

namespace {
const Variant* find(const PropertyBag& bag, const char* key) {
    const auto it = bag.find(key);
    return it == bag.end() ? nullptr : &it->second;
}

std::string readText(const PropertyBag& bag, const char* key, const std::string& fallback) {
    const Variant* value = find(bag, key);
    if (value == nullptr)
        return fallback;
    if (!value->isText() && !value->isEmpty())
        throw VbError(VbError::TypeMismatch);
    return value->toText();
}

std::int32_t readNumber(const PropertyBag& bag, const char* key) {
    const Variant* value = find(bag, key);
    return value == nullptr ? 0 : toInt32(value->toNumber());
}
} // namespace

RowProperties initialRowProperties(const std::string& containerFont) {
    RowProperties properties;
    properties.Font = containerFont;
    return properties;
}

RowProperties readRowProperties(const PropertyBag& bag, const std::string& containerFont) {
    const RowProperties defaults = initialRowProperties(containerFont);
    RowProperties p;
    p.BackColor = readNumber(bag, "BackColor");
    p.ForeColor = readNumber(bag, "ForeColor");
    p.Enabled = readNumber(bag, "Enabled") != 0;
    p.Font = readText(bag, "Font", defaults.Font);
    p.BackStyle = readNumber(bag, "BackStyle");
    p.BorderStyle = readNumber(bag, "BorderStyle");
    p.ActiveControl = readText(bag, "ActiveControl", defaults.ActiveControl);
    p.FilePath = readText(bag, "FilePath", defaults.FilePath);
    p.LutName = readText(bag, "LutName", defaults.LutName);
    p.Min = readText(bag, "Min", defaults.Min);
    p.Max = readText(bag, "Max", defaults.Max);
    p.ToolTipText = readText(bag, "ToolTipText", defaults.ToolTipText);
    return p;
}

PropertyBag writeRowProperties(const RowProperties& p) {
    return {
        {"BackColor", Variant(p.BackColor)},
        {"ForeColor", Variant(p.ForeColor)},
        {"Enabled", Variant(p.Enabled ? -1 : 0)},
        {"Font", Variant(p.Font)},
        {"BackStyle", Variant(p.BackStyle)},
        {"BorderStyle", Variant(p.BorderStyle)},
        {"ActiveControl", Variant(p.ActiveControl)},
        {"FilePath", Variant(p.FilePath)},
        {"LutName", Variant(p.LutName)},
        {"Min", Variant(p.Min)},
        {"Max", Variant(p.Max)},
        {"ToolTipText", Variant(p.ToolTipText)},
    };
}

} // namespace huebase
