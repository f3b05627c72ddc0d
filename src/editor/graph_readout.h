#pragma once

#include "editor/distribution.h"

#include <string>
#include <vector>

// The read-outs shown while the pointer moves over the graph.
namespace huebase::GraphReadout {

// The value under the pointer rounded to an integer, ties to even ("-3", "12").
std::string xText(double x);

// "Val: " x " nbVal: " y, both rounded the same way.
std::string toolTip(double x, double y);

// "Value " v ", count " c for the row whose value is nearest to x (the lower
// one on a tie), both in their shortest exact form; empty without rows. The
// rows ascend by value.
std::string nearestCountToolTip(const std::vector<DistributionRow>& rows, double x);

} // namespace huebase::GraphReadout
