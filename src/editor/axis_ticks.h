#pragma once

#include <vector>

namespace huebase {

// Round values to label a value axis with: multiples of 1, 2 or 5 times a
// power of ten, chosen so that about `wanted` of them fall in [from, to].
// Ascending, every one inside the range; empty for an empty or non-finite
// range or when wanted < 1.
std::vector<double> axisTicks(double from, double to, int wanted);

} // namespace huebase
