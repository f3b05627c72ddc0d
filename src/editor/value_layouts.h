#pragma once

#include "editor/distribution.h"
#include "util/variant.h"

#include <array>
#include <span>
#include <vector>

// The three layouts in which a container hands data values to the editor,
// read from rows of dynamically typed fields (as the host's tables hold them).
namespace huebase::ValueLayouts {

using VariantRows = std::vector<std::vector<Variant>>;

// A (value, count) table: the first two fields of every row. A row with
// fewer than two fields is error 9; a text that is not a number error 13.
std::vector<DistributionRow> orderedRows(const VariantRows& rows);
std::vector<DistributionRow> orderedRows(std::span<const std::array<Variant, 2>> rows);

// A one-dimensional list of values: every field of every row, row by row,
// so a single row and a single column read the same.
std::vector<float> straightValues(const VariantRows& rows);

// A grid of values, one vector per row.
std::vector<std::vector<float>> valueGrid(const VariantRows& rows);

} // namespace huebase::ValueLayouts
