#pragma once

#include <string>

// The read-outs shown while the pointer moves over the graph.
namespace huebase::GraphReadout {

// The value under the pointer rounded to an integer, ties to even ("-3", "12").
std::string xText(double x);

// "Val: " x " nbVal: " y, both rounded the same way.
std::string toolTip(double x, double y);

} // namespace huebase::GraphReadout
