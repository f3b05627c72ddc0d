#pragma once

#include <vector>

namespace huebase {

class Variant;

// One line of a value distribution: a data value and how often it occurs.
struct DistributionRow {
    float value = 0.0f;
    double count = 0.0;

    // A row from the two fields the host writes per line (value, count);
    // a text field that is not a number is error 13.
    static DistributionRow fromFields(const Variant& value, const Variant& count);

    friend bool operator==(const DistributionRow&, const DistributionRow&) = default;
};

// The data values the editor works over: the distinct values (AltiArrays),
// the rows the graph's curve is drawn from, and the range and highest count
// that set the graph's scales.
class Distribution {
public:
    // No value yet; MaxCount starts below any count.
    Distribution() = default;

    // Takes an ordered (value, count) table as the whole distribution: the
    // values become AltiArrays, the first and last rows the ends of the range.
    // The rows are not checked for order. An empty table is error 9 and
    // leaves the distribution as it was.
    void assignOrdered(std::vector<DistributionRow> rows);

    // Replaces only what the graph shows (curve rows, range, MaxCount);
    // AltiArrays is kept. An empty table is error 9.
    void assignShown(std::vector<DistributionRow> rows);

    const std::vector<float>& AltiArrays() const noexcept { return altiArrays_; }
    const std::vector<DistributionRow>& shownRows() const noexcept { return shown_; }
    float DataMin() const noexcept { return dataMin_; }
    float DataMax() const noexcept { return dataMax_; }
    float MaxCount() const noexcept { return maxCount_; }

    static constexpr float kNoCount = -9999999.0f;

private:
    void takeRangeAndCounts(const std::vector<DistributionRow>& rows);

    std::vector<float> altiArrays_;
    std::vector<DistributionRow> shown_;
    float dataMin_ = 0.0f;
    float dataMax_ = 0.0f;
    float maxCount_ = kNoCount;
};

} // namespace huebase
