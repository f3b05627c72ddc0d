#pragma once

#include "browser/lut_record.h"

#include <cstdint>
#include <string>

namespace huebase {

// The fitting modes of the browser's "Display / Apply Options".
enum FitMode : std::int16_t {
    ClipDataToColors = 0, // the table as it stands; data outside it is no-data
    ClipColorToData = 1,  // the end colours are extended or cut to the data range
    WarpToFitData = 2,    // the nodes are moved onto the data range
};

// The row's fields that fitting reads and writes.
struct LutFit {
    LutRecords lut;
    std::int16_t ApplyOptions = ClipDataToColors;
    float DataMin = 0.0f;
    float DataMax = 0.0f;
    // The texts of the row's MinVal and MaxVal boxes.
    std::string min = "MinVal";
    std::string max = "MaxVal";
};

// Fits fit.lut in place to [DataMin, DataMax] according to ApplyOptions and
// updates the bound texts; pathText is the row's file path, named in refusals.
//
// Mode 0 only shows the table's first and last values. Mode 1 extends or cuts
// the lower end, then the upper end; its two refusals ("Can't do that for
// <path> minimum data is above LUT max bound ..." / "... maximum data is under
// LUT min bound ...", critical icon) show the bounds of the table as it then
// stands and fall back to mode 0. The lower cut refuses whenever 2k > n+2,
// k being the first node above DataMin, even with DataMin inside the table;
// that long-standing rule is kept. Mode 2 rescales in two passes (the first
// divides each node's distance to the already rescaled node below it), then
// puts the ends exactly on the data range; a table whose ends are equal is
// error 11 (or 6 for 0/0), left for the caller to report.
//
// An empty table is left alone. Fields that must be compared or computed and
// hold a text that is no number are error 13; other modes do nothing.
void ApplyLutOptions(LutFit& fit, const std::string& pathText);

} // namespace huebase
