#include "editor/graph_readout.h"

#include "util/vb_numeric.h"

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

} // namespace huebase::GraphReadout
