#pragma once

#include "host/values_table.h"

#include <cstdint>
#include <string>

namespace huebase {

// Fills the table from an exchange file ("col.tmp", "lut.tmp"): row 1
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
// Rows the file does not reach stay Empty. File errors are those of
// readTextFile (53 for a missing file, ...). Rows filled before an error keep
// their fields.
void readExchangeTable(const std::string& path, ValuesTable& table);

// The number of rows of an exchange file: its lines, as
// MiscFiles::getFileLineNumber counts them, less the blank lines (empty or
// only spaces and tabs) at its end, which hold no field. Sizing a table to it
// leaves no Empty row behind the last record. File errors as readTextFile;
// more than 32,767 rows is error 6 (Overflow).
std::int16_t exchangeRowCount(const std::string& path);

} // namespace huebase
