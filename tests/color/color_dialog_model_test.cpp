#include "color/color_dialog_model.h"
#include "color/palette_field.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace huebase {
namespace {

constexpr std::string_view kLetters = "RGBHSL";
constexpr ColorValue kWhite = 0xFFFFFF;

ColorValue rgb(int r, int g, int b) {
    return composeColor(r, g, b);
}

ColorBox boxOf(char letter) {
    return static_cast<ColorBox>(kLetters.find(letter));
}

// The six boxes' texts in the order R, G, B, H, S, L.
std::string texts(const ColorDialogModel& model) {
    std::string joined = model.text(ColorBox::Red);
    for (const char letter : kLetters.substr(1))
        joined += "," + model.text(boxOf(letter));
    return joined;
}

// The letters of the boxes whose text a change wrote.
std::string written(const ColorDialogChange& change) {
    std::string letters;
    for (const char letter : kLetters)
        if (change.written.test(static_cast<std::size_t>(boxOf(letter))))
            letters += letter;
    return letters;
}

ColorDialogModel shownWith(ColorValue color) {
    ColorDialogModel model;
    model.setColor(color);
    model.refresh();
    return model;
}

const ColorValue kDim = rgb(10, 20, 30);     // shows H 140, S 120, L 19
const ColorValue kBrown = rgb(90, 55, 37);   // shows H 14, S 100, L 60
const ColorValue kGrey = rgb(128, 128, 128); // shows H 160, S 0, L 121

// A typed box is clamped and written back plainly; the colour is rebuilt
// from the box's group. Red, green and blue rewrite every box; a hue,
// saturation or luminance box keeps the user's text unless it had to change.
TEST(ColorDialogModel, TypingClampsWritesBackAndRebuildsTheColour) {
    const struct {
        ColorValue start;
        char box;
        const char* typed;
        const char* texts;
        int slider; // of the typed box
        ColorValue color;
        const char* written;
        bool selectAll;
    } rows[] = {
        {kDim, 'R', "300", "255,20,30,238,240,130", 0, rgb(255, 20, 30), "RGBHSL", true},
        {kDim, 'G', "abc", "10,0,30,173,240,15", 255, rgb(10, 0, 30), "RGBHSL", true},
        {kDim, 'B', "007", "10,20,7,71,116,13", 248, rgb(10, 20, 7), "RGBHSL", false},
        {kDim, 'R', "2.5", "2,20,30,134,210,16", 253, rgb(2, 20, 30), "RGBHSL", false},
        {kDim, 'R', "", "0,20,30,133,240,15", 255, rgb(0, 20, 30), "RGBHSL", true},
        {kDim, 'H', "240", "30,10,11,239,120,19", 0, rgb(30, 10, 11), "RGBHSL", true},
        {kDim, 'H', "-5", "30,11,10,0,120,19", 239, rgb(30, 11, 10), "RGBHSL", true},
        {kDim, 'S', "241", "0,21,40,139,240,19", 0, rgb(0, 21, 40), "RGBHSL", true},
        {kDim, 'L', "240", "255,255,255,160,0,240", 0, kWhite, "RGBHS", true},
        // Read as hue 240: the text stays, the slider stops at its end.
        {kDim, 'H', "239.5", "30,10,10,239.5,120,19", 0, rgb(30, 10, 10), "RGBSL", false},
        // Hue 13 gives the same colour as 14, which a rewrite would show.
        {kBrown, 'H', "13", "90,55,37,13,100,60", 226, kBrown, "RGBSL", false},
        {kBrown, 'H', "0", "90,38,37,0,100,60", 239, rgb(90, 38, 37), "RGBSL", true},
        // Without saturation the hue changes nothing but the typed box.
        {kGrey, 'H', "40", "129,129,129,40,0,122", 199, rgb(129, 129, 129), "RGBSL", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(1, row.box) + " \"" + row.typed + '"');
        ColorDialogModel model = shownWith(row.start);
        const ColorDialogChange change = model.type(boxOf(row.box), row.typed);
        EXPECT_EQ(texts(model), row.texts);
        EXPECT_EQ(model.slider(boxOf(row.box)), row.slider);
        EXPECT_EQ(model.color(), row.color);
        EXPECT_EQ(written(change), row.written);
        EXPECT_EQ(change.selectAll, row.selectAll);
        EXPECT_TRUE(change.strip);
    }

    // A colour reached by hue shows the hue it converts back to when reloaded.
    ColorDialogModel model = shownWith(kBrown);
    model.type(ColorBox::Hue, "13");
    model.refresh();
    EXPECT_EQ(model.text(ColorBox::Hue), "14");
}

// A slider writes its box, which then edits as if typed but leaves the
// slider where the user put it.
TEST(ColorDialogModel, SlidersWriteTheirBoxAndTheColourFollows) {
    const struct {
        ColorValue start;
        char box;
        int value;
        const char* texts;
        ColorValue color;
        const char* written;
        bool selectAll;
    } rows[] = {
        {kDim, 'B', 55, "10,20,200,158,217,99", rgb(10, 20, 200), "RGBHSL", false},
        {kDim, 'L', 0, "255,255,255,160,0,240", kWhite, "RGBHSL", true},
        {kBrown, 'H', 226, "90,55,37,13,100,60", kBrown, "RGBHSL", false},
        // The box already says 10: it is written again, and nothing else changes.
        {kDim, 'R', 245, "10,20,30,140,120,19", kDim, "R", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(1, row.box) + " " + std::to_string(row.value));
        ColorDialogModel model = shownWith(row.start);
        const ColorDialogChange change = model.slide(boxOf(row.box), row.value);
        EXPECT_EQ(texts(model), row.texts);
        EXPECT_EQ(model.slider(boxOf(row.box)), row.value);
        EXPECT_EQ(model.color(), row.color);
        EXPECT_EQ(written(change), row.written);
        EXPECT_EQ(change.selectAll, row.selectAll);
    }
}

// The boxes are state of their own: setting the colour leaves them until a
// refresh, and an edit reads its group's other boxes as they stand.
TEST(ColorDialogModel, BoxesChangeOnlyByRefreshOrEdit) {
    ColorDialogModel fresh;
    fresh.setColor(0x7F123456); // only the colour bytes are kept
    EXPECT_EQ(fresh.color(), 0x123456);
    EXPECT_EQ(texts(fresh), ",,,,,");
    fresh.type(ColorBox::Blue, "7"); // the empty red and green boxes read 0
    EXPECT_EQ(fresh.color(), rgb(0, 0, 7));

    ColorDialogModel model = shownWith(kDim);
    model.setColor(kWhite);
    EXPECT_EQ(texts(model), "10,20,30,140,120,19");
    model.type(ColorBox::Green, "5");
    EXPECT_EQ(model.color(), rgb(10, 5, 30));

    model.setColor(rgb(255, 0, 1)); // converts to hue 240, past the slider's end
    EXPECT_EQ(written(model.refresh()), "RGBHSL");
    EXPECT_EQ(texts(model), "255,0,1,240,240,120");
    EXPECT_EQ(model.slider(ColorBox::Hue), 0);
}

// The strip runs from 20 % darker to 20 % lighter in steps of 5 %, with
// readable text, and keeps its steps while the 5x5 enlargement is shown.
TEST(ColorDialogModel, StripStepsAndTheirClicks) {
    const auto colors = [](const ColorDialogModel& model) {
        std::vector<ColorValue> shown;
        for (const StripStep& step : model.strip())
            shown.push_back(step.color);
        return shown;
    };
    EXPECT_EQ(shownWith(0).strip()[3], (StripStep{0, kWhite}));
    const ColorDialogModel white = shownWith(kWhite);
    for (int i = 4; i < kStripSteps; ++i)
        EXPECT_EQ(white.strip()[i], (StripStep{kWhite, 0})) << i;

    ColorDialogModel model = shownWith(kGrey); // clicking the steps walks the luminance
    for (const auto& [step, lum] : {std::pair{4, "133"}, {4, "145"}, {0, "97"}}) {
        model.chooseStep(step);
        EXPECT_EQ(model.text(ColorBox::Luminance), lum);
    }

    const auto before = colors(model);
    model.startBlockPick();
    EXPECT_TRUE(model.enlargementShown() && model.picking());
    SampleBlock block{};
    block[0] = rgb(250, 0, 0);
    EXPECT_FALSE(model.takeBlock(block).strip);
    EXPECT_EQ(model.color(), rgb(10, 0, 0)); // the average of the 25 cells
    EXPECT_EQ(colors(model), before);
    EXPECT_TRUE(model.endPicking().strip);
    EXPECT_FALSE(model.picking() || model.enlargementShown());
    EXPECT_NE(colors(model), before);
}

TEST(ColorDialogModel, PaletteScreenAndSystemChooserTakeTheirColour) {
    ColorDialogModel model = shownWith(kDim);
    constexpr int middle = ColorDialogModel::kPaletteHeight / 2;
    model.choosePalette(30, 0);
    EXPECT_EQ(model.color(), kWhite);
    model.choosePalette(0, middle);
    EXPECT_EQ(texts(model), "255,1,0,0,240,120");
    const int greyX = ColorDialogModel::kPaletteWidth - 1;
    model.choosePalette(greyX, middle);
    EXPECT_EQ(model.color(), paletteColorAt(greyX, middle, ColorDialogModel::kPaletteWidth,
                                            ColorDialogModel::kPaletteHeight));
    EXPECT_EQ(model.text(ColorBox::Saturation), "0");
    for (const auto& [x, y] : {std::pair{-1, 0}, {ColorDialogModel::kPaletteWidth, 0}}) {
        EXPECT_EQ(written(model.choosePalette(x, y)), "") << x;
        EXPECT_EQ(model.text(ColorBox::Saturation), "0");
    }

    EXPECT_EQ(model.startPixelPick().written.count(), 6u);
    EXPECT_TRUE(model.picking() && !model.enlargementShown());
    model.takePixel(rgb(40, 30, 100));
    EXPECT_EQ(model.text(ColorBox::Red), "40");

    model.takeSystemChoice({rgb(12, 34, 56), false});
    EXPECT_EQ(model.text(ColorBox::Blue), "56");
    // A cancel is kept as the next starting point, and keeps the colour.
    EXPECT_EQ(written(model.takeSystemChoice({0, true})), "");
    EXPECT_EQ(model.lastChoice(), (ColorChoice{0, true}));
    EXPECT_EQ(model.color(), rgb(12, 34, 56));
}

} // namespace
} // namespace huebase
