#include "browser/lut_record.h"

#include "util/vb_error.h"
#include "util/vb_format.h"
#include "util/vb_numeric.h"

#include <algorithm>
#include <cmath>

namespace huebase {

LutRecord toRecord(const LutNode& node) {
    return {Variant(static_cast<double>(node.value)), Variant(static_cast<int>(node.method)),
            Variant(static_cast<int>(node.color)), Variant(static_cast<double>(node.upper))};
}

LutRecords toRecords(const LutTable& table) {
    LutRecords records;
    records.reserve(table.size());
    for (const LutNode& node : table)
        records.push_back(toRecord(node));
    return records;
}

LutNode toNode(const LutRecord& record) {
    const std::int32_t method = toInt32(record[FieldMethod].toNumber());
    if (method < 0 || method > 255)
        throw VbError(VbError::Overflow);
    return {static_cast<float>(record[FieldValue].toNumber()), static_cast<std::uint8_t>(method),
            toInt32(record[FieldColor].toNumber()),
            static_cast<float>(record[FieldUpper].toNumber())};
}

LutTable toTable(const LutRecords& records) {
    LutTable table;
    table.reserve(records.size());
    for (const LutRecord& record : records)
        table.push_back(toNode(record));
    return table;
}

double recordValue(const LutRecord& record) {
    return record[FieldValue].toNumber();
}

std::string fieldText(const Variant& field) {
    if (!field.isNumber())
        return field.toText();
    const double number = field.toNumber();
    const float single = static_cast<float>(number);
    if (std::isfinite(number) && static_cast<double>(single) == number)
        return floatText(single);
    std::string text = field.toText();
    std::replace(text.begin(), text.end(), '.', localeDecimalSeparator());
    return text;
}

} // namespace huebase
