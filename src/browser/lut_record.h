#pragma once

#include "core/lut_node.h"
#include "util/variant.h"

#include <array>
#include <vector>

namespace huebase {

// One line of a .lut file as the library reads it: value, method, colour and
// upper limit, each kept as the dynamically typed field it was read as.
// Record 1 of a table is element 0, field 1 of a record is element 0.
using LutRecord = std::array<Variant, 4>;
using LutRecords = std::vector<LutRecord>;

// The field positions of a record.
enum LutField : int { FieldValue = 0, FieldMethod = 1, FieldColor = 2, FieldUpper = 3 };

// The node's four fields as numbers.
LutRecord toRecord(const LutNode& node);
LutRecords toRecords(const LutTable& table);

// The record's fields converted the way the runtime converts them: value and
// upper limit to 32-bit floats, method and colour rounded half to even. An
// empty field is 0; a text that is no number is error 13, and a number outside
// the float range, the method's 8-bit range or the colours 0..16777215 is
// error 6.
LutNode toNode(const LutRecord& record);

// Error 6 (Overflow) when a numeric field of the record is out of the range
// toNode accepts; texts and empty fields are left for toNode to judge.
void checkRanges(const LutRecord& record);
LutTable toTable(const LutRecords& records);

// Field 1 of the record as a number (error 13 for a text that is no number).
double recordValue(const LutRecord& record);

// A field as the row's text boxes show it: a number that a 32-bit float holds
// exactly in that float's shortest form ("12.5"), any other number in the
// shortest form that reads back the same, both with the locale's decimal
// separator; a text as it stands, empty as "".
std::string fieldText(const Variant& field);

} // namespace huebase
