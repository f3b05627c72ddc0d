#pragma once

#include "util/variant.h"

#include <cstddef>
#include <string>

namespace huebase {

// Sequential comma-delimited input, field by field, as the exchange files and
// the .lut library are read.
//
// - A field ends at a comma, a line end (CRLF, LF or a lone CR) or the end of
//   the text. Lines only delimit: a record that asks for more fields than its
//   line holds continues on the next line.
// - Spaces and tabs around a field are skipped.
// - A field that starts with a double quote is text up to the closing quote,
//   commas and line ends inside included; whatever follows the closing quote
//   up to the delimiter is skipped. An unclosed quote runs to the end.
// - An unquoted field is a number when the whole of it is one, read with '.'
//   as the decimal point whatever the locale; otherwise it is kept as text.
//   A number beyond the range of a double is error 6 (Overflow).
// - An empty field is Empty: between two commas, after a comma at the end of
//   a line or of the text, and a blank line (one that holds only spaces and
//   tabs) between records, which reads as one Empty field just as the classic
//   sequential input assigns Empty for a delimiting comma or a blank line.
// - Blank lines at the very end are not fields: atEnd() is true once only
//   spaces, tabs and line ends remain (unless a comma has just announced one
//   more field), and reading a field then is error 62 "Input past end of file".
class CommaReader {
public:
    explicit CommaReader(std::string text);

    // Reads the whole file (errors as readTextFile: 53 for a missing file, ...).
    static CommaReader fromFile(const std::string& path);

    Variant readField();
    bool atEnd() const;

private:
    Variant readQuoted();
    Variant readUnquoted();
    void skipBlanks();
    std::size_t findDelimiter(std::size_t from) const;
    void consumeDelimiter();

    std::string text_;
    std::size_t pos_ = 0;
    // The last field ended at a comma, so one more field follows even if
    // nothing but blanks remains.
    bool fieldAnnounced_ = false;
};

} // namespace huebase
