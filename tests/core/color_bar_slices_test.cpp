#include "core/color_bar_slices.h"

#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace huebase {
namespace {

constexpr ColorValue kBlack = 0x000000;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kRed = 0x0000FF;
constexpr ColorValue kGreen = 0x00FF00;
constexpr ColorValue kBlue = 0xFF0000;

ColorValue grey(int level) {
    return composeColor(level, level, level);
}

struct Node {
    float value;
    std::uint8_t method;
    ColorValue color;
};

LutTable tableOf(const std::vector<Node>& nodes) {
    LutTable table;
    for (const Node& n : nodes)
        table.push_back({n.value, n.method, n.color, n.value});
    return table;
}

// Inside the range both spans list the same slices: every one of them.
TEST(ColorBarSlices, EachIntervalIsSlicedAlongItsRampInA256thOfTheRange) {
    struct Case {
        const char* what;
        std::vector<Node> nodes;
        float bound1, bound2;
        std::size_t count;
        std::vector<std::pair<std::size_t, ColorSlice>> picked;
    };
    std::vector<Case> cases = {
        // Range 512: slices 2 wide. 0..128 takes 64 slices and the one at k = N
        // reaching past its end, which the next interval paints over.
        {"lin",
         {{0, MethodLin, kBlack}, {128, MethodLin, kWhite}, {512, MethodLin, kBlack}},
         0,
         512,
         65 + 193,
         {{0, {0, 2, kBlack}},
          {32, {64, 66, grey(128)}},
          {64, {128, 130, kWhite}},
          {65, {128, 130, kWhite}},
          {257, {512, 514, kBlack}}}},
        {"bounds either way",
         {{0, MethodLin, kBlack}, {256, MethodLin, kWhite}},
         256,
         0,
         257,
         {{128, {128, 129, grey(128)}}, {256, {256, 257, kWhite}}}},
        // 2.5 slices round to 2, 3.5 to 4 (ties to even).
        {"2.5 slices", {{0, MethodLin, kBlack}, {2.5f, MethodLin, kWhite}}, 0, 256, 3, {}},
        {"3.5 slices", {{0, MethodLin, kBlack}, {3.5f, MethodLin, kWhite}}, 0, 256, 5, {}},
        {"log then exp",
         {{0, MethodLog, kBlack}, {128, MethodExp, kWhite}, {256, MethodLin, kBlack}},
         0,
         256,
         2 * 129,
         {{64, {64, 65, BlendColor(kBlack, kWhite, 0.25f)}},
          {129 + 64, {192, 193, BlendColor(kWhite, kBlack, std::sqrt(0.5f))}}}},
        {"none",
         {{0, MethodNone, kRed}, {100, MethodLin, kWhite}},
         0,
         100,
         1,
         {{0, {0, 100, kRed}}}},
        {"none chain",
         {{0, MethodNone, kRed}, {100, MethodNone, kBlue}, {300, MethodNone, kWhite}},
         0,
         300,
         2,
         {{0, {0, 100, kRed}}, {1, {100, 300, kBlue}}}},
        {"empty range keeps only flat intervals",
         {{5, MethodLin, kBlack}, {5, MethodNone, kGreen}, {5, MethodLin, kBlack}},
         5,
         5,
         1,
         {{0, {5, 5, kGreen}}}},
        {"zero-length interval: one slice at t = 0",
         {{0, MethodLin, kRed}, {0, MethodLin, kWhite}, {256, MethodLin, kWhite}},
         0,
         256,
         1 + 257,
         {{0, {0, 1, kRed}}}},
    };
    // Mid-interval over 256 slices, each method bends the blend its own way.
    const int levels[] = {128, 64, 180, 16, 207}; // "Lin", "Log", "Exp", "Log+", "Exp+"
    for (std::uint8_t method = MethodLin; method <= MethodExpPlus; ++method)
        cases.push_back({methodName(method),
                         {{0, method, kBlack}, {256, MethodLin, kWhite}},
                         0,
                         256,
                         257,
                         {{128, {128, 129, grey(levels[method])}}}});

    for (const Case& c : cases)
        for (const SliceSpan span : {SliceSpan::Whole, SliceSpan::Shown}) {
            const ColorBarSlices bar(tableOf(c.nodes), c.bound1, c.bound2, span);
            SCOPED_TRACE(::testing::Message()
                         << c.what << (span == SliceSpan::Whole ? " whole" : " shown"));
            EXPECT_EQ(bar.step(), std::fabs(c.bound2 - c.bound1) / 256.0f);
            ASSERT_EQ(bar.slices().size(), c.count);
            for (const auto& [index, slice] : c.picked)
                EXPECT_EQ(bar.slices()[index], slice) << "slice " << index;
        }
}

TEST(ColorBarSlices, TheWholeSpanCountsInSixteenBitsTheShownSpanOnlyWhatMeetsTheRange) {
    // 32,767 slices fit the counter, one more is error 6.
    const LutTable fits = tableOf({{0, MethodLin, kBlack}, {32767, MethodLin, kWhite}});
    const LutTable over = tableOf({{0, MethodLin, kBlack}, {32768, MethodLin, kWhite}});
    EXPECT_EQ(ColorBarSlices(fits, 0, 256, SliceSpan::Whole).slices().size(), 32768u);
    EXPECT_THROW(ColorBarSlices(over, 0, 256, SliceSpan::Whole), VbError);

    const ColorBarSlices shown(over, 0, 256, SliceSpan::Shown);
    ASSERT_EQ(shown.slices().size(), 257u);
    EXPECT_EQ(shown.slices().back().x0, 256.0f);
}

} // namespace
} // namespace huebase
