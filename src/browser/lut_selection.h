#pragma once

#include "browser/lut_record.h"
#include "core/color_value.h"
#include "core/lut_node.h"

#include <cstdint>

namespace huebase {

// What a colour bar row hands over when it is selected.
struct LutSelection {
    LutTable table;
    ColorValue noDataColor = 0;
};

// The table a row hands over for its fitted records. In the warp mode it is
// the fitted table as it stands. Otherwise it is the part of the table over
// [dataMin, dataMax]: a first node at dataMin and a last node at dataMax,
// each coloured on the ramp of the interval that holds it (the lower node's
// method and BlendColor, as the bar paints it), with the nodes strictly
// between them copied in order. An end of the data range that lies outside
// the table leaves the table's own end node in place, and a data range that
// misses the table altogether hands the whole table over. Each inserted end
// node keeps the ramp of its interval, its upper limit being the next node's
// value (its own for the last); a cut that ends on a node ends with that node. Error 13 or 6 for
// records that do not convert to nodes (see toNode).
LutTable selectedTable(const LutRecords& fitted, std::int16_t applyOptions, float dataMin,
                       float dataMax);

} // namespace huebase
