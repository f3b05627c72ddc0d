// The text rules of the colour dialog without its window. The input's first
// six lines are what is typed into the boxes R, G, B, H, S and L (missing
// lines are empty boxes); the whole input also serves as a text to hex-code,
// and its first bytes as a raw colour, a brightness step and a hex width.
//
// As the dialog does, each box's text is made plain (boxText) and read back
// (leadingNumber, rounded half to even); the RGB boxes compose a colour, the
// HSL boxes convert to one, and each colour is shown again: its components,
// its HSL values, the strip of four darker and four lighter steps and their
// contrasting text colours.
//
// Invariants:
// - a plain box text is plain again, and its number is within the box's
//   range (0 up to 255, a hue below 240, a level up to 240);
// - composed and converted colours are within 24 bits; components
//   recompose to the colour; HSL values are within 0..240; a grey (no
//   saturation) has equal components and converts back to hue 160;
// - the strip's colours are within 24 bits, their text colours black or white;
// - HexPad keeps exactly `width` digits, all hexadecimal, and the low 32 bits
//   of the value read back from 8 digits on; StringToHex codes each byte
//   as four digits that decode back to the text.
#include "fuzz_support.h"

#include "color/box_text.h"
#include "color/hex_text.h"
#include "color/hsl.h"
#include "util/vb_error.h"
#include "util/vb_numeric.h"

#include <array>
#include <cmath>
#include <cstring>
#include <string>

namespace {

using namespace huebase;

bool inColorRange(ColorValue color) {
    return color >= 0 && color <= 0xFFFFFF;
}

bool inHslRange(const HSLColor& hsl) {
    const auto in = [](int v) { return v >= 0 && v <= 240; };
    return in(hsl.Hue) && in(hsl.Saturation) && in(hsl.Luminance);
}

// What a box holds once edited: its plain text read back as an integer.
int boxValue(BoxScale scale, std::string_view typed) {
    const std::string plain = boxText(scale, typed);
    FUZZ_CHECK(boxText(scale, plain) == plain);
    const double value = leadingNumber(plain);
    FUZZ_CHECK(value >= 0.0);
    FUZZ_CHECK(scale == BoxScale::Hue ? value < 240.0 : value <= boxMaximum(scale));
    return toInt32(value);
}

// What the dialog shows for a colour it holds.
void show(ColorValue color) {
    FUZZ_CHECK(inColorRange(color));
    const int r = RedOf(color), g = GreenOf(color), b = BlueOf(color);
    FUZZ_CHECK(composeColor(r, g, b) == color);
    const HSLColor hsl = modHSL::RGBToHSL(color);
    FUZZ_CHECK(inHslRange(hsl));
    if (r == g && g == b)
        FUZZ_CHECK(hsl.Saturation == 0 && hsl.Hue == 160);
    for (int i = 0; i < 8; ++i) {
        const ColorValue step = i < 4 ? modHSL::DarkenColor(color, (4 - i) * 0.05f)
                                      : modHSL::LightenColor(color, (i - 3) * 0.05f);
        FUZZ_CHECK(inColorRange(step));
        const ColorValue text = modHSL::ContrastTextColor(step);
        FUZZ_CHECK(text == 0 || text == 0xFFFFFF);
    }
}

void checkHex(std::int32_t value, std::int16_t width, std::string_view text) {
    const std::string padded = modColorDialog::HexPad(value, width);
    FUZZ_CHECK(padded.size() == static_cast<std::size_t>(std::max<std::int16_t>(width, 0)));
    FUZZ_CHECK(modColorDialog::IsHexText(padded) == (width > 0));
    if (width >= 8)
        FUZZ_CHECK(std::stoul(padded.substr(padded.size() - 8), nullptr, 16) ==
                   static_cast<std::uint32_t>(value));

    const std::string hex = modColorDialog::StringToHex(text);
    FUZZ_CHECK(hex.size() == 4 * text.size());
    FUZZ_CHECK(modColorDialog::IsHexText(hex) == !text.empty());
    for (std::size_t i = 0; i < text.size(); ++i)
        FUZZ_CHECK(std::stoul(hex.substr(4 * i, 4), nullptr, 16) ==
                   static_cast<unsigned char>(text[i]));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = fuzz::bytes(data, size);
    std::array<std::string_view, 6> boxes{};
    std::string_view rest = input;
    for (std::string_view& box : boxes) {
        const fuzz::Split line = fuzz::splitAt(rest, '\n');
        box = line.first;
        rest = line.second;
        if (!line.separated)
            break;
    }

    const ColorValue composed = composeColor(boxValue(BoxScale::Component, boxes[0]),
                                             boxValue(BoxScale::Component, boxes[1]),
                                             boxValue(BoxScale::Component, boxes[2]));
    show(composed);
    const HSLColor typedHsl{static_cast<std::int16_t>(boxValue(BoxScale::Hue, boxes[3])),
                            static_cast<std::int16_t>(boxValue(BoxScale::Level, boxes[4])),
                            static_cast<std::int16_t>(boxValue(BoxScale::Level, boxes[5]))};
    const ColorValue converted = modHSL::HSLToRGB(typedHsl);
    show(converted);
    if (typedHsl.Saturation == 0)
        FUZZ_CHECK(RedOf(converted) == GreenOf(converted) &&
                   GreenOf(converted) == BlueOf(converted));

    std::array<std::uint8_t, 10> raw{};
    std::memcpy(raw.data(), data, std::min(size, raw.size()));
    std::int32_t color;
    float amount;
    std::int16_t width;
    std::memcpy(&color, raw.data(), sizeof color);
    std::memcpy(&amount, raw.data() + 4, sizeof amount);
    std::memcpy(&width, raw.data() + 8, sizeof width);
    try {
        FUZZ_CHECK(inHslRange(modHSL::RGBToHSL(color)));
        modHSL::LightenColor(color, amount);
        modHSL::DarkenColor(color, amount);
    } catch (const VbError&) {
    }
    checkHex(color, width, input);
    return 0;
}
