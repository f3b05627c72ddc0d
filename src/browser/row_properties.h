#pragma once

#include "core/color_value.h"
#include "util/variant.h"

#include <map>
#include <string>

namespace huebase {

// The persisted properties of a colour bar row, by name.
using PropertyBag = std::map<std::string, Variant>;

// What a colour bar row keeps between sessions. The fields hold the values a
// bag without any key gives, except Font, which the container supplies.
struct RowProperties {
    ColorValue BackColor = 0;
    ColorValue ForeColor = 0;
    bool Enabled = false;
    std::string Font;
    int BackStyle = 0;
    int BorderStyle = 0;
    std::string ActiveControl;
    std::string FilePath; // the text of Pathtxt
    std::string LutName;
    std::string Min = "MinVal"; // the text of MinVal: the literal word until a fit
    std::string Max = "MaxVal"; // the text of MaxVal
    std::string ToolTipText;

    friend bool operator==(const RowProperties&, const RowProperties&) = default;
};

// The keys, in the order they are written.
inline constexpr const char* kRowPropertyKeys[] = {
    "BackColor",     "ForeColor", "Enabled", "Font", "BackStyle", "BorderStyle",
    "ActiveControl", "FilePath",  "LutName", "Min",  "Max",       "ToolTipText"};

// A fresh row: every default, the container's font.
RowProperties initialRowProperties(const std::string& containerFont);

// Reads every key, taking its default when absent ("Min" and "Max" default
// to the words "MinVal" and "MaxVal", "Font" to the container's font).
// Enabled is true for any non-zero number. A value of the wrong kind is
// error 13.
RowProperties readRowProperties(const PropertyBag& bag, const std::string& containerFont);

// Every key with its value; Enabled as -1 (true) or 0.
PropertyBag writeRowProperties(const RowProperties& properties);

} // namespace huebase
