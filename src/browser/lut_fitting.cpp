#include "browser/lut_fitting.h"

#include "util/messages.h"
#include "util/vb_error.h"
#include "util/vb_format.h"

#include <cstddef>

namespace huebase {

namespace {

double value(const LutFit& fit, std::size_t k) {
    return recordValue(fit.lut[k]);
}

void setValue(LutFit& fit, std::size_t k, float v) {
    fit.lut[k][FieldValue] = Variant(static_cast<double>(v));
}

void showTableBounds(LutFit& fit) {
    fit.min = fieldText(fit.lut.front()[FieldValue]);
    fit.max = fieldText(fit.lut.back()[FieldValue]);
}

void refuse(LutFit& fit, const std::string& pathText, const char* reason) {
    showMessage("Can't do that for " + pathText + reason, {}, MessageIcon::Critical,
                MessageButtons::Ok);
    showTableBounds(fit);
    fit.ApplyOptions = ClipDataToColors;
}

// The first k in 0..n-2 whose value is above the limit; the last record is
// never examined. n - 1 when there is none.
std::size_t firstAbove(const LutFit& fit, double limit) {
    const std::size_t n = fit.lut.size();
    std::size_t k = 0;
    while (k + 1 < n && !(value(fit, k) > limit))
        ++k;
    return k;
}

// Returns false after a refusal.
bool fitLowerEnd(LutFit& fit, const std::string& pathText) {
    const double dataMin = fit.DataMin;
    if (dataMin <= value(fit, 0)) {
        setValue(fit, 0, fit.DataMin);
        fit.min = floatText(fit.DataMin);
        return true;
    }
    const std::size_t n = fit.lut.size();
    const std::size_t k = firstAbove(fit, dataMin);
    if (k + 1 >= n)
        return true;
    // Counted from 1, the search stopped at k + 1 and the kept table starts
    // at the node before it: d = (k + 1) - 2 records are dropped.
    const std::size_t d = k - 1;
    fit.lut.erase(fit.lut.begin(), fit.lut.begin() + static_cast<std::ptrdiff_t>(d));
    fit.min = fieldText(fit.lut.front()[FieldValue]);
    // The search position compared with the shortened table's upper index.
    if (k + 1 > fit.lut.size()) {
        refuse(fit, pathText, " minimum data is above LUT max bound ...");
        return false;
    }
    return true;
}

void fitUpperEnd(LutFit& fit, const std::string& pathText) {
    const double dataMax = fit.DataMax;
    const std::size_t n = fit.lut.size();
    if (dataMax < value(fit, 0)) {
        refuse(fit, pathText, " maximum data is under LUT min bound ...");
        return;
    }
    if (dataMax >= value(fit, n - 1)) {
        setValue(fit, n - 1, fit.DataMax);
        fit.max = floatText(fit.DataMax);
        return;
    }
    const std::size_t k = firstAbove(fit, dataMax);
    if (k + 1 >= n)
        return;
    // The node after the first one above the data takes that node's method
    // and colour, at its upper limit, and ends the table.
    LutRecord& last = fit.lut[k + 1];
    const LutRecord& above = fit.lut[k];
    last[FieldValue] = above[FieldUpper];
    last[FieldMethod] = above[FieldMethod];
    last[FieldColor] = above[FieldColor];
    last[FieldUpper] = above[FieldUpper];
    fit.lut.resize(k + 2);
    fit.max = fieldText(fit.lut.back()[FieldValue]);
}

double divide(double numerator, float divisor) {
    if (divisor == 0.0f)
        throw VbError(numerator == 0.0 ? VbError::Overflow : VbError::DivisionByZero);
    return numerator / static_cast<double>(divisor);
}

void warp(LutFit& fit) {
    const std::size_t n = fit.lut.size();
    const float w = static_cast<float>(value(fit, n - 1) - value(fit, 0));
    for (std::size_t k = 1; k < n; ++k)
        fit.lut[k][FieldValue] = Variant(divide(value(fit, k) - value(fit, k - 1), w));
    const float r = fit.DataMax - fit.DataMin;
    setValue(fit, 0, fit.DataMin);
    for (std::size_t k = 1; k < n; ++k) {
        fit.lut[k][FieldValue] =
            Variant(value(fit, k) * static_cast<double>(r) + static_cast<double>(fit.DataMin));
        fit.lut[k - 1][FieldUpper] = fit.lut[k][FieldValue];
    }
    setValue(fit, n - 1, fit.DataMax);
    fit.min = floatText(fit.DataMin);
    fit.max = floatText(fit.DataMax);
}

} // namespace

void ApplyLutOptions(LutFit& fit, const std::string& pathText) {
    if (fit.lut.empty())
        return;
    switch (fit.ApplyOptions) {
    case ClipDataToColors:
        showTableBounds(fit);
        break;
    case ClipColorToData:
        if (fitLowerEnd(fit, pathText))
            fitUpperEnd(fit, pathText);
        break;
    case WarpToFitData:
        warp(fit);
        break;
    default:
        break;
    }
}

} // namespace huebase
