#include "editor/value_layouts.h"

#include "util/vb_error.h"
#include "util/vb_numeric.h"

namespace huebase::ValueLayouts {

namespace {
float single(const Variant& field) {
    return toSingle(field.toNumber());
}
} // namespace

std::vector<DistributionRow> orderedRows(const VariantRows& rows) {
    std::vector<DistributionRow> result;
    result.reserve(rows.size());
    for (const std::vector<Variant>& row : rows) {
        if (row.size() < 2)
            throw VbError(VbError::SubscriptOutOfRange);
        result.push_back(DistributionRow::fromFields(row[0], row[1]));
    }
    return result;
}

std::vector<DistributionRow> orderedRows(std::span<const std::array<Variant, 2>> rows) {
    std::vector<DistributionRow> result;
    result.reserve(rows.size());
    for (const std::array<Variant, 2>& row : rows)
        result.push_back(DistributionRow::fromFields(row[0], row[1]));
    return result;
}

std::vector<float> straightValues(const VariantRows& rows) {
    std::vector<float> result;
    for (const std::vector<Variant>& row : rows)
        for (const Variant& field : row)
            result.push_back(single(field));
    return result;
}

std::vector<std::vector<float>> valueGrid(const VariantRows& rows) {
    std::vector<std::vector<float>> result;
    result.reserve(rows.size());
    for (const std::vector<Variant>& row : rows) {
        std::vector<float>& values = result.emplace_back();
        values.reserve(row.size());
        for (const Variant& field : row)
            values.push_back(single(field));
    }
    return result;
}

} // namespace huebase::ValueLayouts
