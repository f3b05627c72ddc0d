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

namespace {
constexpr ColorValue kLastColor = 0xFFFFFF;

std::uint8_t methodOf(double field) {
    const std::int32_t method = toInt32(field);
    if (method < 0 || method > 255)
        throw VbError(VbError::Overflow);
    return static_cast<std::uint8_t>(method);
}

// Colours beyond 24 bits cannot be split into channels; they would fail
// later, wherever the table is painted or blended.
ColorValue colorOf(double field) {
    const ColorValue color = toInt32(field);
    if (color < 0 || color > kLastColor)
        throw VbError(VbError::Overflow);
    return color;
}
} // namespace

LutNode toNode(const LutRecord& record) {
    return {toSingle(record[FieldValue].toNumber()), methodOf(record[FieldMethod].toNumber()),
            colorOf(record[FieldColor].toNumber()), toSingle(record[FieldUpper].toNumber())};
}

void checkRanges(const LutRecord& record) {
    if (record[FieldValue].isNumber())
        toSingle(record[FieldValue].toNumber());
    if (record[FieldMethod].isNumber())
        methodOf(record[FieldMethod].toNumber());
    if (record[FieldColor].isNumber())
        colorOf(record[FieldColor].toNumber());
    if (record[FieldUpper].isNumber())
        toSingle(record[FieldUpper].toNumber());
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
