#include "host/export_format.h"
#include "util/vb_error.h"

#include "support/numeric_locale.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

TEST(HostColorOrder, RedAndBlueTradePlaces) {
    EXPECT_EQ(hostColor(composeColor(255, 0, 0)), 16711680);
    EXPECT_EQ(hostColor(composeColor(0, 0, 255)), 255);
    EXPECT_EQ(hostColor(composeColor(0, 255, 0)), 65280);
    EXPECT_EQ(hostColor(composeColor(0x12, 0x34, 0x56)), 0x123456);
    EXPECT_EQ(hostColor(composeColor(255, 255, 255)), 0xFFFFFF);
    EXPECT_EQ(hostColor(0), 0);
}

TEST(HostColorOrder, ColourWithBit24SetIsOverflow) {
    try {
        hostColor(0x01000000);
        FAIL() << "no error";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), VbError::Overflow);
    }
}

TEST(ExportLines, KeyAndColourAreFixedWithoutSpacesOrQuotes) {
    EXPECT_EQ(exportLine(12, 16711680, '.'), "12.00,16711680.00");
    EXPECT_EQ(exportLine(-3.456, 255, '.'), "-3.46,255.00");
    EXPECT_EQ(exportLine(7, 0, '.'), "7.00,0.00");
}

TEST(ExportLines, TextKeysAreFormattedWhenTheyReadAsNumbers) {
    EXPECT_EQ(exportLine(" 42", 1, '.'), "42.00,1.00");
    EXPECT_EQ(exportLine("road", 1, '.'), "road,1.00");
    EXPECT_EQ(exportLine(Variant(), 1, '.'), ",1.00");
}

TEST(ExportLines, DecimalSeparatorFollowsTheLocale) {
    EXPECT_EQ(exportLine(1.5, 255, ','), "1,50,255,00");
    testing::NumericLocale locale;
    if (!locale.useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma installed";
    EXPECT_EQ(exportLine(12, 16711680), "12,00,16711680,00");
}

} // namespace
} // namespace huebase
