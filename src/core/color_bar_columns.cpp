#include "core/color_bar_columns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace huebase {

void paintColumns(std::span<std::uint32_t> line, const std::vector<ColorSlice>& slices,
                  const ColumnScale& scale) {
    const auto width = static_cast<double>(line.size());
    for (const ColorSlice& slice : slices) {
        // Columns c whose centre c + 0.5 lies in [x0, x1), clamped to the line
        // before they become integers.
        double from = scale.columnOf(slice.x0) - 0.5;
        double to = scale.columnOf(slice.x1) - 0.5;
        if (scale.reversed)
            std::swap(from, to);
        const double first = std::max(0.0, std::ceil(from));
        const double end = std::min(width, std::ceil(to));
        if (!(first < end))
            continue;
        std::fill(line.begin() + static_cast<std::ptrdiff_t>(first),
                  line.begin() + static_cast<std::ptrdiff_t>(end), pixelOf(slice.color));
    }
}

} // namespace huebase
