#include "starter_ramps.h"

#include <cstdint>
#include <initializer_list>
#include <utility>

namespace huebase::starter {

namespace {

struct Stop {
    float value;
    std::uint32_t rgb; // 0xRRGGBB as palettes publish it
};

ColorValue fromRgb(std::uint32_t rgb) {
    return composeColor(static_cast<int>(rgb >> 16), static_cast<int>((rgb >> 8) & 0xFF),
                        static_cast<int>(rgb & 0xFF));
}

// Nodes at the stops, each ramping to the next with `method`; every upper
// limit is the next node's value and the last node's its own.
LutTable ramp(std::initializer_list<Stop> stops, std::uint8_t method = MethodLin) {
    LutTable table;
    for (const Stop& stop : stops)
        table.push_back({stop.value, method, fromRgb(stop.rgb), stop.value});
    for (std::size_t i = 0; i + 1 < table.size(); ++i)
        table[i].upper = table[i + 1].value;
    return table;
}

LutTable joined(LutTable low, const LutTable& high) {
    low.back().upper = high.front().value;
    low.insert(low.end(), high.begin(), high.end());
    return low;
}

} // namespace

std::vector<StarterRamp> starterRamps() {
    constexpr ColorValue white = 0xFFFFFF;
    constexpr ColorValue black = 0;
    const ColorValue red = fromRgb(0xFF0000);

    // Hypsometric tints of the common topographic map conventions.
    LutTable terrain = ramp({{0, 0xACD0A5},
                             {50, 0x94BF8B},
                             {100, 0xA8C68F},
                             {200, 0xBDCC96},
                             {300, 0xD1D7AB},
                             {400, 0xE1E4B5},
                             {500, 0xEFEBC0},
                             {600, 0xE8E1B6},
                             {700, 0xDED6A3},
                             {800, 0xD3CA9D},
                             {900, 0xCAB982},
                             {1000, 0xC3A76B},
                             {1200, 0xB9985A},
                             {1400, 0xAA8753},
                             {1600, 0xAC9A7C},
                             {1800, 0xBAAE9A},
                             {2000, 0xCAC3B8},
                             {2200, 0xE0DED8},
                             {2500, 0xF5F4F2}});

    // ColorBrewer Blues (9 classes), darkest in the deep.
    LutTable bathymetry = ramp({{-1500, 0x08306B},
                                {-1200, 0x08519C},
                                {-900, 0x2171B5},
                                {-600, 0x4292C6},
                                {-400, 0x6BAED6},
                                {-200, 0x9ECAE1},
                                {-100, 0xC6DBEF},
                                {-50, 0xDEEBF7},
                                {0, 0xF7FBFF}});

    // Bathymetric tints up to the shore, a flat last step from -0.01 m so
    // that the land tints start sharply at 0.
    LutTable sea = ramp({{-1500, 0x71ABD8},
                         {-1000, 0x79B2DE},
                         {-600, 0x8DC1EA},
                         {-300, 0xA1D2F7},
                         {-100, 0xB9E3FF},
                         {-0.01f, 0xD8F2FE}});
    sea.back().method = MethodNone;
    LutTable topoBathymetric = joined(std::move(sea), ramp({{0, 0xACD0A5},
                                                            {100, 0xA8C68F},
                                                            {300, 0xD1D7AB},
                                                            {500, 0xEFEBC0},
                                                            {800, 0xD3CA9D},
                                                            {1000, 0xC3A76B},
                                                            {1400, 0xAA8753},
                                                            {1800, 0xBAAE9A},
                                                            {2200, 0xE0DED8},
                                                            {2500, 0xF5F4F2}}));

    LutTable greys = ramp({{-1500, 0x000000}, {2500, 0xFFFFFF}});

    // viridis, nine evenly spaced stops.
    LutTable viridis = ramp({{-1500, 0x440154},
                             {-1000, 0x472D7B},
                             {-500, 0x3B528B},
                             {0, 0x2C728E},
                             {500, 0x21908C},
                             {1000, 0x27AD81},
                             {1500, 0x5DC863},
                             {2000, 0xAADC32},
                             {2500, 0xFDE725}});

    // ColorBrewer RdBu (11 classes), blue below sea level, white at 0.
    LutTable diverging = ramp({{-1500, 0x053061},
                               {-1125, 0x2166AC},
                               {-750, 0x4393C3},
                               {-375, 0x92C5DE},
                               {-100, 0xD1E5F0},
                               {0, 0xF7F7F7},
                               {100, 0xFDDBC7},
                               {625, 0xF4A582},
                               {1250, 0xD6604D},
                               {1875, 0xB2182B},
                               {2500, 0x67001F}});

    // ColorBrewer YlGnBu (9 classes), marked colour-blind safe.
    LutTable colorBlindSafe = ramp({{-1500, 0x081D58},
                                    {-1000, 0x253494},
                                    {-500, 0x225EA8},
                                    {0, 0x1D91C0},
                                    {500, 0x41B6C4},
                                    {1000, 0x7FCDBB},
                                    {1500, 0xC7E9B4},
                                    {2000, 0xEDF8B1},
                                    {2500, 0xFFFFD9}});

    // ColorBrewer YlOrBr (7 classes) as 500 m bands, each flat.
    LutTable classed = ramp({{-1500, 0xFFFFD4},
                             {-1000, 0xFEE391},
                             {-500, 0xFEC44F},
                             {0, 0xFE9929},
                             {500, 0xEC7014},
                             {1000, 0xCC4C02},
                             {1500, 0x8C2D04},
                             {2500, 0x8C2D04}},
                            MethodNone);

    return {
        {"terrain.lut", std::move(terrain), white},
        {"bathymetry.lut", std::move(bathymetry), white},
        {"topo_bathymetric.lut", std::move(topoBathymetric), white},
        {"greys.lut", std::move(greys), red},
        {"viridis.lut", std::move(viridis), white},
        {"diverging_rdbu.lut", std::move(diverging), black},
        {"colorblind_ylgnbu.lut", std::move(colorBlindSafe), white},
        {"classed_ylorbr.lut", std::move(classed), black},
    };
}

} // namespace huebase::starter
