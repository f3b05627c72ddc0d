#pragma once

#include "browser/lut_record.h"
#include "core/color_value.h"
#include "core/lut_node.h"
#include "util/vb_format.h"

#include <functional>
#include <string>
#include <string_view>

namespace huebase::LutFile {

// The .lut colour table file: plain 8-bit text, every line ended by CRLF on
// every platform. Line 1 is "<no-data colour>,<node count>" as plain
// integers; then one line per node with value, method, colour and upper
// limit in the "Fixed" form (two decimals, the given decimal separator, so a
// comma separator makes eight comma-separated pieces that readers split
// wrongly). Nothing follows the last line.

inline constexpr std::string_view kLineEnd = "\r\n";

std::string headerLine(ColorValue noDataColor, std::size_t nodeCount);
std::string recordLine(const LutNode& node, char decimalSeparator);

// Hands the header and then one record line at a time (without its line end)
// to appendLine, stopping at the first line it refuses. True when every line
// was taken.
bool writeLines(const std::function<bool(std::string_view)>& appendLine, const LutTable& table,
                ColorValue noDataColor, char decimalSeparator = localeDecimalSeparator());

// The whole file as it is written.
std::string text(const LutTable& table, ColorValue noDataColor,
                 char decimalSeparator = localeDecimalSeparator());

enum class SaveResult { Saved, Cancelled, Failed };

// Saves the table as the editor's save button does. An existing file is only
// replaced after "Overwrite <path> ?" (title "File exists ...", OK/Cancel) is
// answered OK, and is never appended to. The file is written whole beside
// the target and renamed over it (replaceTextFile); when that fails (the
// folder or the file cannot be written, the disk is full) "Can't access:
// <path>" is shown and the old file stays as it was.
SaveResult LutSaveAs(const std::string& path, const LutTable& table, ColorValue noDataColor,
                     char decimalSeparator = localeDecimalSeparator());

// The file's text with every record line written under a decimal-comma
// locale put back into four fields: a line after the first that splits at
// its commas into eight pieces whose 2nd, 4th, 6th and 8th are exactly two
// digits has those pieces joined to the piece before them with a point
// ("100,00,0,00,255,00,200,00" reads as "100.00,0.00,255.00,200.00"). Every
// other line, and every line end, stays as it is.
std::string joinDecimalCommaRecords(std::string_view text);

// Reads a .lut file into the table and the no-data colour, as a colour bar
// row does. An empty path reads nothing and leaves both as they were.
// Otherwise the header gives the no-data colour and the count n, the table is
// resized to n empty records and every further group of four fields is stored
// as the next record; numbers use '.', quoted fields are texts, and a short
// last record keeps empty fields. Each run-time error is shown as
// "Error: N. description" titled "LoadLut" and reading goes on with the next
// step: a count below 1 or above 32,767 (error 9 or 6) keeps the previous
// table, records beyond n are dropped (error 9 each), a record counter past
// 32,767 is error 6. A file that cannot be opened shows its one error and
// leaves the table and colour as they were. Record lines written under a
// decimal-comma locale are joined first (joinDecimalCommaRecords). The same
// message is shown once per file, however many records raise it, and a
// number out of a record's range (checkRanges) empties the table after its
// message, so no colour the program cannot paint reaches a bar or the editor.
void LoadLut(const std::string& path, LutRecords& lut, ColorValue& noDataColor);

} // namespace huebase::LutFile
