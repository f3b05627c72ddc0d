#include "color/color_dialog_model.h"

#include "color/hsl.h"
#include "color/palette_field.h"
#include "util/vb_numeric.h"

#include <algorithm>
#include <cstddef>

namespace huebase {

namespace {
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kBlack = 0;
// The green box turns its text black above this value; the other boxes keep white.
constexpr int kGreenTextThreshold = 172;

std::size_t at(ColorBox box) noexcept {
    return static_cast<std::size_t>(box);
}

bool isComponent(ColorBox box) noexcept {
    return boxScale(box) == BoxScale::Component;
}

// The slider runs from the maximum at the top; a value beyond the range (a
// converted hue of 240) leaves it at its end.
int sliderFor(ColorBox box, int value) noexcept {
    const int maximum = boxMaximum(boxScale(box));
    return std::clamp(maximum - value, 0, maximum);
}
} // namespace

BoxScale boxScale(ColorBox box) noexcept {
    switch (box) {
    case ColorBox::Hue:
        return BoxScale::Hue;
    case ColorBox::Saturation:
    case ColorBox::Luminance:
        return BoxScale::Level;
    default:
        return BoxScale::Component;
    }
}

void ColorDialogModel::setColor(ColorValue color) noexcept {
    color_ = color & 0xFFFFFF;
}

ColorDialogChange ColorDialogModel::refresh() {
    ColorDialogChange change;
    refreshInto(change, std::nullopt);
    return change;
}

const std::string& ColorDialogModel::text(ColorBox box) const {
    return texts_.at(at(box));
}

int ColorDialogModel::slider(ColorBox box) const {
    return sliders_.at(at(box));
}

std::optional<BoxShade> ColorDialogModel::shade(ColorBox box) const {
    if (!isComponent(box))
        return std::nullopt;
    const int v = value(box);
    switch (box) {
    case ColorBox::Red:
        return BoxShade{composeColor(v, 0, 0), kWhite};
    case ColorBox::Green:
        return BoxShade{composeColor(0, v, 0), v > kGreenTextThreshold ? kBlack : kWhite};
    default:
        return BoxShade{composeColor(0, 0, v), kWhite};
    }
}

ColorDialogChange ColorDialogModel::type(ColorBox box, std::string_view typed) {
    ColorDialogChange change;
    std::string& text = texts_.at(at(box));
    text = typed;
    std::string plain = boxText(boxScale(box), typed);
    if (plain != text) {
        text = std::move(plain);
        change.written.set(at(box));
    }
    edit(change, box);
    return change;
}

ColorDialogChange ColorDialogModel::slide(ColorBox box, int value) {
    const int maximum = boxMaximum(boxScale(box));
    value = std::clamp(value, 0, maximum);
    sliders_.at(at(box)) = value;
    ColorDialogChange change;
    change.written.set(at(box));
    std::string text = std::to_string(maximum - value);
    if (text == texts_[at(box)])
        return change; // the box already says so: no edit
    texts_[at(box)] = std::move(text);
    edit(change, box);
    return change;
}

ColorDialogChange ColorDialogModel::chooseStep(int index) {
    return takeColor(strip_.at(static_cast<std::size_t>(index)).color);
}

ColorDialogChange ColorDialogModel::choosePalette(int x, int y) {
    if (x < 0 || y < 0 || x >= kPaletteWidth || y >= kPaletteHeight)
        return {};
    return takeColor(paletteColorAt(x, y, kPaletteWidth, kPaletteHeight));
}

ColorDialogChange ColorDialogModel::takeSystemChoice(const ColorChoice& choice) {
    lastChoice_ = choice;
    if (choice.Cancelled)
        return {};
    return takeColor(choice.Color);
}

ColorDialogChange ColorDialogModel::startPixelPick() {
    pixelPicking_ = true;
    return refresh();
}

void ColorDialogModel::startBlockPick() noexcept {
    blockPicking_ = true;
}

ColorDialogChange ColorDialogModel::endPicking() {
    pixelPicking_ = false;
    blockPicking_ = false;
    return refresh();
}

ColorDialogChange ColorDialogModel::takePixel(ColorValue sample) {
    return takeColor(sample);
}

ColorDialogChange ColorDialogModel::takeBlock(const SampleBlock& block) {
    return takeColor(averageColor(block));
}

ColorDialogChange ColorDialogModel::takeColor(ColorValue color) {
    setColor(color);
    return refresh();
}

void ColorDialogModel::refreshInto(ColorDialogChange& change, std::optional<ColorBox> kept) {
    writeBox(change, ColorBox::Red, RedOf(color_));
    writeBox(change, ColorBox::Green, GreenOf(color_));
    writeBox(change, ColorBox::Blue, BlueOf(color_));
    const HSLColor hsl = modHSL::RGBToHSL(color_);
    const std::pair<ColorBox, int> levels[] = {{ColorBox::Hue, hsl.Hue},
                                               {ColorBox::Saturation, hsl.Saturation},
                                               {ColorBox::Luminance, hsl.Luminance}};
    for (const auto& [box, level] : levels)
        if (box != kept)
            writeBox(change, box, level);

    if (blockPicking_)
        return;
    for (int i = 0; i < kStripSteps; ++i) {
        // 20 % darker at the left end to 20 % lighter at the right, in steps of 5 %.
        const ColorValue step = i < 4 ? modHSL::DarkenColor(color_, (4 - i) * 0.05f)
                                      : modHSL::LightenColor(color_, (i - 3) * 0.05f);
        strip_[static_cast<std::size_t>(i)] = {step, modHSL::ContrastTextColor(step)};
    }
    change.strip = true;
}

void ColorDialogModel::writeBox(ColorDialogChange& change, ColorBox box, int value) {
    texts_[at(box)] = std::to_string(value);
    sliders_[at(box)] = sliderFor(box, value);
    change.written.set(at(box));
}

// The colour is rebuilt from the edited box's group as the boxes stand.
void ColorDialogModel::edit(ColorDialogChange& change, ColorBox box) {
    if (isComponent(box)) {
        setColor(composeColor(value(ColorBox::Red), value(ColorBox::Green), value(ColorBox::Blue)));
        refreshInto(change, std::nullopt);
    } else {
        const HSLColor hsl{static_cast<std::int16_t>(value(ColorBox::Hue)),
                           static_cast<std::int16_t>(value(ColorBox::Saturation)),
                           static_cast<std::int16_t>(value(ColorBox::Luminance))};
        setColor(modHSL::HSLToRGB(hsl));
        refreshInto(change, box);
    }
    sliders_[at(box)] = sliderFor(box, value(box));
    const std::string& now = texts_[at(box)];
    change.selectAll = now == std::to_string(boxMaximum(boxScale(box))) || now == "0";
}

int ColorDialogModel::value(ColorBox box) const {
    return toInt32(leadingNumber(texts_[at(box)]));
}

} // namespace huebase
