// A .lut file of the library fitted to a data range, as a colour bar row
// shows it. The input's first line holds DataMin and DataMax (two numbers
// separated by a space or a comma, "inf" and "nan" allowed, anything else
// read as 0); the rest is the .lut file, written to a scratch folder of this
// process and loaded. The table is then fitted in each mode (0, 1, 2), its
// colour-bar slices listed over the row's scale, the pointer read-out taken
// and the table the row hands over built.
//
// Invariants:
// - loading keeps at most 32,767 records;
// - mode 0 leaves the table alone and shows its end values;
// - mode 1 never adds records;
// - mode 2 keeps the count, the methods and the colours and puts the ends on
//   DataMin and DataMax;
// - the slices of an interval are at most the 256 of the scale's width and
//   the partial slices at its ends;
// - the handed-over table has at most two nodes more than the fitted one.
// Run-time errors of loading and fitting (texts where numbers are needed, a
// warp over equal ends) are the program's answers and are taken as such.
// Listing the slices raises nothing: a run-time error there would be one
// while painting.
#include "fuzz_support.h"

#include "browser/color_bar_row_model.h"
#include "browser/lut_file.h"
#include "browser/lut_fitting.h"
#include "core/color_bar_slices.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <charconv>
#include <cmath>
#include <string>

namespace {

using namespace huebase;

const testing::ScratchFolder& folder() {
    static const testing::ScratchFolder scratch;
    return scratch;
}

float numberIn(std::string_view text) {
    float value = 0.0f;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    return ec == std::errc() ? value : 0.0f;
}

bool sameValue(const Variant& field, float expected) {
    return field.isNumber() && field.toNumber() == static_cast<double>(expected);
}

void checkFit(const LutRecords& loaded, const LutFit& fit, std::int16_t mode) {
    switch (mode) {
    case ClipDataToColors:
        FUZZ_CHECK(fit.lut == loaded);
        FUZZ_CHECK(fit.min == fieldText(loaded.front()[FieldValue]));
        FUZZ_CHECK(fit.max == fieldText(loaded.back()[FieldValue]));
        break;
    case ClipColorToData:
        FUZZ_CHECK(!fit.lut.empty() && fit.lut.size() <= loaded.size());
        break;
    case WarpToFitData:
        FUZZ_CHECK(fit.lut.size() == loaded.size());
        for (std::size_t k = 0; k < loaded.size(); ++k) {
            FUZZ_CHECK(fit.lut[k][FieldMethod] == loaded[k][FieldMethod]);
            FUZZ_CHECK(fit.lut[k][FieldColor] == loaded[k][FieldColor]);
        }
        FUZZ_CHECK(sameValue(fit.lut.back()[FieldValue], fit.DataMax));
        if (loaded.size() > 1)
            FUZZ_CHECK(sameValue(fit.lut.front()[FieldValue], fit.DataMin));
        FUZZ_CHECK(fit.min == floatText(fit.DataMin) && fit.max == floatText(fit.DataMax));
        break;
    }
}

void showRow(const LutRecords& loaded, std::int16_t mode, float dataMin, float dataMax) {
    ColorBarRowModel row;
    row.setDataMin(dataMin);
    row.setDataMax(dataMax);
    row.setApplyOptions(mode);
    row.setLut(loaded);
    const LutRecords& fitted = row.lut();
    // Listing the slices is painting: it must neither raise nor run away.
    if (row.barScale()) {
        const std::vector<ColorSlice> slices = row.barSlices();
        FUZZ_CHECK(slices.size() <= 258 * (fitted.size() == 0 ? 0 : fitted.size() - 1));
    }
    for (const double fraction : {0.0, 0.5, 1.0})
        row.readoutText(fraction);
    try {
        FUZZ_CHECK(row.Selected().table.size() <= fitted.size() + 2);
    } catch (const VbError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::Split input = fuzz::splitAt(fuzz::bytes(data, size), '\n');
    const fuzz::Split range =
        fuzz::splitAt(input.first, input.first.find(',') != std::string_view::npos ? ',' : ' ');
    const float dataMin = numberIn(range.first);
    const float dataMax = numberIn(range.second);
    const std::string path = folder().write("fit.lut", input.second);

    testing::ServiceRecorder services;
    LutRecords loaded;
    ColorValue noData = 0;
    LutFile::LoadLut(path, loaded, noData);
    FUZZ_CHECK(loaded.size() <= 32767);
    if (loaded.empty())
        return 0;

    for (const std::int16_t mode : {ClipDataToColors, ClipColorToData, WarpToFitData}) {
        LutFit fit{loaded, mode, dataMin, dataMax};
        try {
            ApplyLutOptions(fit, path);
            if (fit.ApplyOptions == mode)
                checkFit(loaded, fit, mode);
        } catch (const VbError&) {
        }
        showRow(loaded, mode, dataMin, dataMax);
    }
    return 0;
}
