#pragma once

#include "core/color_bar_slices.h"
#include "core/color_value.h"

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace huebase {

// Where data values fall across a bar: columnOf(x) is the position of x in
// columns from the bar's left edge (column c spans c to c + 1). When the
// values grow towards the left, `reversed` says so and a slice's edges swap.
struct ColumnScale {
    std::function<double(double)> columnOf;
    bool reversed = false;
};

// A colour as a pixel of a 32-bit RGB image line: 0xFFRRGGBB.
constexpr std::uint32_t pixelOf(ColorValue color) noexcept {
    return 0xFF000000u | (static_cast<std::uint32_t>(color & 0xFF) << 16) |
           (static_cast<std::uint32_t>(color) & 0xFF00u) |
           ((static_cast<std::uint32_t>(color) >> 16) & 0xFFu);
}

// Paints the slices onto one line of pixels, one pixel per column: each column
// takes the last slice, in painting order, that holds the data value at its
// centre; columns that no slice holds keep what the line held. One pass over
// the slices, so a bar of many thousand nodes costs no more than its slices.
void paintColumns(std::span<std::uint32_t> line, const std::vector<ColorSlice>& slices,
                  const ColumnScale& scale);

} // namespace huebase
