#include "editor/distribution.h"

#include "util/variant.h"
#include "util/vb_error.h"
#include "util/vb_numeric.h"

#include <algorithm>

namespace huebase {

DistributionRow DistributionRow::fromFields(const Variant& value, const Variant& count) {
    return {toSingle(value.toNumber()), count.toNumber()};
}

void Distribution::assignOrdered(std::vector<DistributionRow> rows) {
    if (rows.empty())
        throw VbError(VbError::SubscriptOutOfRange);
    std::vector<float> values(rows.size());
    std::transform(rows.begin(), rows.end(), values.begin(),
                   [](const DistributionRow& row) { return row.value; });
    takeRangeAndCounts(rows);
    altiArrays_ = std::move(values);
    shown_ = std::move(rows);
}

void Distribution::assignShown(std::vector<DistributionRow> rows) {
    if (rows.empty())
        throw VbError(VbError::SubscriptOutOfRange);
    takeRangeAndCounts(rows);
    shown_ = std::move(rows);
}

void Distribution::takeRangeAndCounts(const std::vector<DistributionRow>& rows) {
    dataMin_ = rows.front().value;
    dataMax_ = rows.back().value;
    // MaxCount is a 32-bit float like the range: each count is narrowed
    // before it is compared.
    float highest = kNoCount;
    for (const DistributionRow& row : rows)
        highest = std::max(highest, static_cast<float>(row.count));
    maxCount_ = highest;
}

} // namespace huebase
