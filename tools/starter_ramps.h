#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"

#include <string>
#include <vector>

namespace huebase::starter {

// A ramp of the starter library shipped in data/myLuts.
struct StarterRamp {
    std::string fileName; // "terrain.lut"
    LutTable table;
    ColorValue noDataColor = 0;
};

// The starter library, in the order the files are listed in its README.
std::vector<StarterRamp> starterRamps();

} // namespace huebase::starter
