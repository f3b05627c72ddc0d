#include "editor/graph_readout.h"

#include "util/vb_format.h"
#include "util/vb_numeric.h"

#include <algorithm>

#include <charconv>

namespace huebase::GraphReadout {

std::string xText(double x) {
    double rounded = roundHalfEven(x);
    if (rounded == 0.0)
        rounded = 0.0; // no "-0"
    char buffer[400];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, rounded, std::chars_format::fixed, 0);
    return std::string(buffer, result.ptr);
}

std::string toolTip(double x, double y) {
    return "Val: " + xText(x) + " nbVal: " + xText(y);
}

std::string nearestCountToolTip(const std::vector<DistributionRow>& rows, double x) {
    if (rows.empty())
        return {};
    auto above = std::ranges::partition_point(
        rows, [x](const DistributionRow& row) { return row.value < x; });
    if (above == rows.end() ||
        (above != rows.begin() && x - std::prev(above)->value <= above->value - x))
        above = std::prev(above);
    char buffer[64];
    const auto count = std::to_chars(buffer, buffer + sizeof buffer, above->count);
    return "Value " + floatText(above->value) + ", count " + std::string(buffer, count.ptr);
}

} // namespace huebase::GraphReadout
