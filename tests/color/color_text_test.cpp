#include "color/box_text.h"
#include "color/hex_text.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using modColorDialog::HexPad;
using modColorDialog::IsHexText;
using modColorDialog::StringToHex;

TEST(HexPad, PadsAndCutsToWidth) {
    EXPECT_EQ(HexPad(255, 4), "00FF");
    EXPECT_EQ(HexPad(0x12345, 4), "2345");
    EXPECT_EQ(HexPad(0xABCDEF, 6), "ABCDEF");
    EXPECT_EQ(HexPad(0, 2), "00");
    EXPECT_EQ(HexPad(-1, 8), "FFFFFFFF");
    EXPECT_EQ(HexPad(-2, 10), "00FFFFFFFE");
    EXPECT_EQ(HexPad(255, 0), "");
}

TEST(StringToHex, FourDigitsPerCharacter) {
    EXPECT_EQ(StringToHex("AB"), "00410042");
    EXPECT_EQ(StringToHex(std::string(2, '\xFE')), "00FE00FE");
    EXPECT_EQ(StringToHex(""), "");
}

TEST(IsHexText, UpperCaseDigitsOnly) {
    EXPECT_TRUE(IsHexText("0A9F"));
    EXPECT_FALSE(IsHexText(""));
    EXPECT_FALSE(IsHexText("0a"));
    EXPECT_FALSE(IsHexText("FG"));
    EXPECT_FALSE(IsHexText(" 1"));
}

TEST(LeadingNumber, ReadsTheLeadingDecimalNumber) {
    EXPECT_EQ(leadingNumber("007"), 7);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("12abc"), 12);
    EXPECT_EQ(leadingNumber(" 1 2\t"), 12);
    EXPECT_EQ(leadingNumber("-5"), -5);
    EXPECT_EQ(leadingNumber("+5x"), 5);
    EXPECT_EQ(leadingNumber("1.5"), 1.5);
    EXPECT_EQ(leadingNumber(".25"), 0.25);
    EXPECT_EQ(leadingNumber("1e2"), 100);
    EXPECT_EQ(leadingNumber("1D2"), 100);
    EXPECT_EQ(leadingNumber("3e"), 3);
    EXPECT_EQ(leadingNumber("."), 0);
    EXPECT_EQ(leadingNumber("-"), 0);
    EXPECT_GT(leadingNumber("1e999"), 1e300);
}

TEST(BoxText, ComponentBoxesClampAbove255) {
    EXPECT_EQ(boxText(BoxScale::Component, "300"), "255");
    EXPECT_EQ(boxText(BoxScale::Component, "255"), "255");
    EXPECT_EQ(boxText(BoxScale::Component, "007"), "7");
    EXPECT_EQ(boxText(BoxScale::Component, "abc"), "0");
    EXPECT_EQ(boxText(BoxScale::Component, "-4"), "0");
    EXPECT_EQ(boxText(BoxScale::Component, "2.50"), "2.5");
    EXPECT_EQ(boxText(BoxScale::Component, "1e999"), "255");
}

TEST(BoxText, HueClampsFrom240AndLevelsAbove240) {
    EXPECT_EQ(boxText(BoxScale::Hue, "240"), "239");
    EXPECT_EQ(boxText(BoxScale::Hue, "239"), "239");
    EXPECT_EQ(boxText(BoxScale::Hue, "239.5"), "239.5");
    EXPECT_EQ(boxText(BoxScale::Level, "241"), "240");
    EXPECT_EQ(boxText(BoxScale::Level, "240"), "240");
    EXPECT_EQ(boxText(BoxScale::Level, "240.5"), "240");
    EXPECT_EQ(boxMaximum(BoxScale::Component), 255);
    EXPECT_EQ(boxMaximum(BoxScale::Hue), 239);
    EXPECT_EQ(boxMaximum(BoxScale::Level), 240);
}

} // namespace
} // namespace huebase
