#include "color/box_text.h"
#include "color/hex_text.h"

#include <gtest/gtest.h>

namespace huebase {
namespace {

using namespace modColorDialog;

TEST(HexText, PadsCutsAndChecks) {
    EXPECT_EQ(HexPad(255, 4) + "," + HexPad(0x12345, 4) + "," + HexPad(-2, 10),
              "00FF,2345,00FFFFFFFE");
    EXPECT_EQ(StringToHex(std::string("A\xFE")), "004100FE");
    EXPECT_TRUE(IsHexText("0A9F"));
    for (const char* text : {"", "0a", "FG"})
        EXPECT_FALSE(IsHexText(text)) << '"' << text << '"';
}

// A box reads the leading number of its text (blanks anywhere skipped, an
// exponent with E or D), clamps it at the box's maximum and writes it back plainly.
TEST(BoxText, ReadsClampsAndWritesBackTheLeadingNumber) {
    const struct {
        BoxScale scale;
        const char* typed;
        const char* shown;
    } rows[] = {{BoxScale::Component, "007", "7"},     {BoxScale::Component, "abc", "0"},
                {BoxScale::Component, "12abc", "12"},  {BoxScale::Component, " 1 2\t", "12"},
                {BoxScale::Component, "+5x", "5"},     {BoxScale::Component, "-4", "0"},
                {BoxScale::Component, "2.50", "2.5"},  {BoxScale::Component, ".25", "0.25"},
                {BoxScale::Component, "1D2", "100"},   {BoxScale::Component, "3e", "3"},
                {BoxScale::Component, ".", "0"},       {BoxScale::Component, "-", "0"},
                {BoxScale::Component, "300", "255"},   {BoxScale::Component, "255", "255"},
                {BoxScale::Component, "1e999", "255"}, {BoxScale::Hue, "240", "239"},
                {BoxScale::Hue, "239.5", "239.5"},     {BoxScale::Level, "241", "240"},
                {BoxScale::Level, "240", "240"},       {BoxScale::Level, "240.5", "240"}};
    for (const auto& row : rows)
        EXPECT_EQ(boxText(row.scale, row.typed), row.shown) << '"' << row.typed << '"';
    EXPECT_EQ(leadingNumber("-5"), -5);
}

} // namespace
} // namespace huebase
