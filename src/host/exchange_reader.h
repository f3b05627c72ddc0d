#pragma once

#include "host/values_table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace huebase {

// Fills the table from the text of an exchange file ("col.tmp", "lut.tmp"): row 1
// onward, two fields a row, until the end of the file, with the classic
// sequential comma-delimited input (see CommaReader).
//
// Records are not tied to lines: each row takes the next two fields in file
// order, so a line with one field borrows the first field of the next line
// and a line with three gives its third to the next row. A file whose field
// count does not fit the table therefore fails the way the classic reading
// does:
// - a last row left with only one field asks for a field past the end:
//   error 62 (Input past end of file);
// - fields left over once every row is filled ask for a row past the table's
//   size: error 9 (Subscript out of range).
// Rows the file does not reach stay Empty. Rows filled before an error keep
// their fields.
void readExchangeTable(std::string text, ValuesTable& table);

// The number of rows of an exchange file's text: its lines, as
// MiscFiles::getFileLineNumber counts them, less the blank lines (empty or
// only spaces and tabs) at its end, which hold no field. Sizing a table to it
// leaves no Empty row behind the last record. More than 32,767 rows is error
// 6 (Overflow).
std::int16_t exchangeRowCount(std::string_view text);

} // namespace huebase
