#include "editor/distribution_counting.h"

#include "core/sort.h"
#include "util/vb_error.h"
#include "util/vb_format.h"
#include "util/vb_numeric.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace huebase::DistributionCounting {

std::vector<DistributionRow> defaultRows() {
    return {{0.0f, 1.0}, {100.0f, 100.0}, {200.0f, 50.0}};
}

std::vector<DistributionRow> countStraightArray(std::vector<float> values, std::int32_t noData) {
    if (!values.empty())
        Sort::QuickSortRange(values, 0, checkedInt32(static_cast<std::int64_t>(values.size()) - 1));

    std::vector<DistributionRow> rows;
    for (float value : values) {
        if (rows.empty() || rows.back().value != value)
            rows.push_back({value, 0.0});
        rows.back().count += 1.0;
    }
    if (rows.empty())
        throw VbError(VbError::SubscriptOutOfRange);

    const auto isNoData = [noData](float value) {
        return static_cast<double>(value) == static_cast<double>(noData);
    };
    if (isNoData(rows.front().value)) {
        if (rows.size() < 2)
            throw VbError(VbError::SubscriptOutOfRange);
        rows.front() = rows[1];
    }
    if (isNoData(rows.back().value))
        rows.back() = rows[rows.size() - 2];
    return rows;
}

std::vector<DistributionRow> countStdArray(const std::vector<std::vector<float>>& grid) {
    // The key is the value's text with a fixed separator, so the merging of
    // near-equal values does not depend on the user's locale.
    std::unordered_map<std::string, std::size_t> indexOfText;
    std::vector<DistributionRow> rows;
    for (const std::vector<float>& line : grid) {
        for (float value : line) {
            const auto [it, added] = indexOfText.try_emplace(floatText(value, '.'), rows.size());
            if (added)
                rows.push_back({value, 0.0});
            rows[it->second].count += 1.0;
        }
    }
    std::sort(rows.begin(), rows.end(),
              [](const DistributionRow& a, const DistributionRow& b) { return a.value < b.value; });
    return rows;
}

} // namespace huebase::DistributionCounting
