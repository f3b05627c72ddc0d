#pragma once

#include "color/box_text.h"
#include "color/color_choice.h"
#include "color/screen_sampler.h"
#include "core/color_value.h"

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>

namespace huebase {

// The six value boxes of the colour dialog, each with an inverted slider.
enum class ColorBox { Red, Green, Blue, Hue, Saturation, Luminance };
inline constexpr int kColorBoxCount = 6;

// Red, green and blue hold a component, the others a hue or a level.
BoxScale boxScale(ColorBox box) noexcept;

// The background and text colour of a red, green or blue box.
struct BoxShade {
    ColorValue background = 0;
    ColorValue text = 0;

    friend bool operator==(const BoxShade&, const BoxShade&) = default;
};

// One step of the brightness strip and the text colour that stays readable on it.
struct StripStep {
    ColorValue color = 0;
    ColorValue text = 0;

    friend bool operator==(const StripStep&, const StripStep&) = default;
};
inline constexpr int kStripSteps = 8;
using BrightnessStrip = std::array<StripStep, kStripSteps>;

// What an input did to the displays besides the values the model holds.
struct ColorDialogChange {
    // Boxes whose text was written, also when it stayed the same: writing
    // puts a box's cursor at the end, so the box being typed in is written
    // only when its text has to change.
    std::bitset<kColorBoxCount> written;
    // The strip took the steps of the new colour.
    bool strip = false;
    // The edited box's whole text is to be selected, so that the next key
    // replaces a clamped value (or a 0).
    bool selectAll = false;
};

// The colour dialog without its window: the current colour, the text and
// slider of each box, the brightness strip, the picking modes and the last
// system choice, and what every input changes. The texts are the dialog's
// state as much as the colour is: a typed box is read together with the
// other boxes of its group as they stand, and setting the colour alone
// leaves them until the next refresh.
class ColorDialogModel {
public:
    // The palette field the dialog shows; its middle row is luminance 120.
    static constexpr int kPaletteWidth = 254;
    static constexpr int kPaletteHeight = 215;

    ColorValue color() const noexcept { return color_; }
    // Only the colour bytes are kept: the displays split the colour into
    // components. Nothing else changes until refresh().
    void setColor(ColorValue color) noexcept;
    // Every box, slider and shade from the colour, and the strip unless the
    // enlargement of the 5x5 sampling is shown.
    ColorDialogChange refresh();

    const std::string& text(ColorBox box) const;
    int slider(ColorBox box) const;
    // Red, green and blue boxes are backed by their pure component; the green
    // one alone turns its text black when bright. Nothing for the other boxes.
    std::optional<BoxShade> shade(ColorBox box) const;
    const BrightnessStrip& strip() const noexcept { return strip_; }

    // The box's text became `typed` (by a key, a paste or code). It is
    // clamped and written back plainly; the colour follows its group's three
    // boxes. A red, green or blue edit rewrites every box. A hue, saturation
    // or luminance edit rewrites all but the edited box, which keeps the
    // user's text, as a reloaded hue may differ from the typed one.
    ColorDialogChange type(ColorBox box, std::string_view typed);
    // The slider of the box moved to `value` (top = the box's maximum): the
    // box takes the value and, if its text changed, edits as if typed.
    ColorDialogChange slide(ColorBox box, int value);

    // A click on step `index` of the strip takes its colour.
    ColorDialogChange chooseStep(int index);
    // A click on the palette field takes the colour at that point; outside
    // the field nothing changes.
    ColorDialogChange choosePalette(int x, int y);
    // The result of the system chooser is kept (its colour is where the
    // chooser starts next); a colour taken becomes the current one.
    ColorDialogChange takeSystemChoice(const ColorChoice& choice);
    const ColorChoice& lastChoice() const noexcept { return lastChoice_; }

    // Screen picking: one pixel, the 5x5 average, or both at once.
    ColorDialogChange startPixelPick();
    void startBlockPick() noexcept;
    ColorDialogChange endPicking();
    bool picking() const noexcept { return pixelPicking_ || blockPicking_; }
    // The enlargement is shown while the 5x5 sampling runs; the strip keeps
    // its colours meanwhile.
    bool enlargementShown() const noexcept { return blockPicking_; }
    ColorDialogChange takePixel(ColorValue sample);
    ColorDialogChange takeBlock(const SampleBlock& block);

private:
    ColorDialogChange takeColor(ColorValue color);
    void refreshInto(ColorDialogChange& change, std::optional<ColorBox> kept);
    void writeBox(ColorDialogChange& change, ColorBox box, int value);
    void edit(ColorDialogChange& change, ColorBox box);
    int value(ColorBox box) const;

    ColorValue color_ = 0;
    std::array<std::string, kColorBoxCount> texts_{};
    std::array<int, kColorBoxCount> sliders_{};
    BrightnessStrip strip_{};
    ColorChoice lastChoice_;
    bool pixelPicking_ = false;
    bool blockPicking_ = false;
};

} // namespace huebase
