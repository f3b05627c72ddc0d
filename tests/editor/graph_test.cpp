#include "editor/graph_coordinates.h"
#include "editor/graph_readout.h"
#include "editor/lut_editor_model.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(GraphCoordinates, ValueAxisHasMarginsOfTwoAndAHalfPercentAndCountsGrowUpwards) {
    LutEditorModel editor;
    editor.InitFromOrderedArray({{-100, 10}, {0, 50}, {300, 20}});
    const GraphCoordinates& c = editor.graphCoordinates();
    EXPECT_FLOAT_EQ(c.left, -110.0f);
    EXPECT_FLOAT_EQ(c.width, 420.0f);
    EXPECT_FLOAT_EQ(c.top, 55.0f);
    EXPECT_FLOAT_EQ(c.height, -65.0f);

    // The data range sits inside the margins; the bottom edge is -0.2 MaxCount.
    EXPECT_NEAR(c.xToPixel(-100, 420), 10.0, 1e-4);
    EXPECT_NEAR(c.xToPixel(300, 420), 410.0, 1e-4);
    EXPECT_NEAR(c.pixelToY(130, 130), -10.0, 1e-4);
    EXPECT_NEAR(c.yToPixel(0, 130), 110.0, 1e-4);
    EXPECT_LT(c.yToPixel(50, 130), c.yToPixel(10, 130)) << "higher counts are drawn higher";
}

TEST(GraphCoordinates, ZeroExtentMapsToTheEdgeInsteadOfDividingByZero) {
    const GraphCoordinates c = GraphCoordinates::forDistribution(5.0f, 5.0f, 0.0f);
    EXPECT_EQ(c.width, 0.0f);
    EXPECT_EQ(c.xToPixel(5.0, 300), 0.0);
    EXPECT_EQ(c.yToPixel(1.0, 300), 0.0);
    EXPECT_EQ(c.pixelToX(10, 0), c.left);
}

TEST(GraphReadout, RoundsHalfToEvenAndNamesBothAxes) {
    EXPECT_EQ(GraphReadout::xText(2.5), "2");
    EXPECT_EQ(GraphReadout::xText(3.5), "4");
    EXPECT_EQ(GraphReadout::xText(-0.4), "0");
    EXPECT_EQ(GraphReadout::xText(-1437.6), "-1438");
    EXPECT_EQ(GraphReadout::xText(123456789.0), "123456789");
    EXPECT_EQ(GraphReadout::toolTip(10.5, 99.5), "Val: 10 nbVal: 100");
}

} // namespace
} // namespace huebase
