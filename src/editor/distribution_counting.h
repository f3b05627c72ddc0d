#pragma once

#include "editor/distribution.h"

#include <cstdint>
#include <vector>

// Turns raw data values into an ascending (value, count) table, the layout
// the editor's graph and AltiArrays are built from.
namespace huebase::DistributionCounting {

// The built-in distribution shown before any data arrives:
// (0, 1), (100, 100), (200, 50).
std::vector<DistributionRow> defaultRows();

// Sorts the values and counts each distinct one. The no-data value is kept
// off the ends of the range: when the lowest distinct value equals it, the
// first row is overwritten by the second (so the second value appears
// twice); when the highest equals it, the last row is overwritten by the one
// before it. Fewer rows than such an overwrite needs (no values at all, or
// only the no-data value) is error 9.
std::vector<DistributionRow> countStraightArray(std::vector<float> values, std::int32_t noData);

// Counts the distinct values of a grid, row by row, taking two values as the
// same when their shortest texts are equal (the first one met is kept), and
// returns them ascending. An empty grid gives an empty table.
std::vector<DistributionRow> countStdArray(const std::vector<std::vector<float>>& grid);

} // namespace huebase::DistributionCounting
