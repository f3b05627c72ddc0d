#pragma once

#include "core/lut_node.h"
#include "util/variant.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace huebase {

class LutEditorOwner;

// What the LUT control asks of the editor it owns. The editor implements it;
// whoever builds the control says how an editor is made, so the control
// never depends on the editor's window.
class LutEditor {
public:
    // Rows of dynamically typed fields, as containers hold their tables.
    using VariantRows = std::vector<std::vector<Variant>>;
    // A two-column table of such fields, such as the host session's.
    using VariantPairs = std::span<const std::array<Variant, 2>>;

    virtual ~LutEditor() = default;

    virtual void setOwner(LutEditorOwner* owner) = 0;
    // The built-in distribution.
    virtual void DefaultLUT() = 0;

    // The three layouts of data values (grid, list, (value, count) table);
    // errors of the conversion or of the editor (9, 13, ...) reach the caller.
    virtual void InitFromStdArray(const VariantRows& grid, std::int32_t extra) = 0;
    virtual void InitFromStraightArray(const VariantRows& values, std::int32_t noData) = 0;
    virtual void InitFromOrderedArray(const VariantRows& rows, std::int32_t extra) = 0;
    virtual void InitFromOrderedArray(VariantPairs rows, std::int32_t extra) = 0;

    // Every distinct value of the distribution, ascending.
    virtual std::vector<float> AltiArrays() const = 0;
    virtual void SetLutTable(const LutTable& table) = 0;
    virtual void setNoDataColor(ColorValue color) = 0;
    virtual ColorValue noDataColor() const = 0;

    // Shows the editor modally; returns when it is hidden.
    virtual void showModal() = 0;
};

} // namespace huebase
