// The comma-delimited reader over arbitrary text: every field until the end,
// run-time errors taken as the reader's answer for that field.
//
// Invariants:
// - reading ends: each field or error consumes input, so there are at most
//   two reads per byte (plus one announced empty field);
// - numbers are finite (a number beyond a double is error 6, never inf);
// - once atEnd() is true, reading is error 62;
// - without quotes, the kind of line end does not matter (every one written
//   as LF gives the same fields), nor does a line end added at the end.
#include "fuzz_support.h"

#include "util/comma_reader.h"
#include "util/vb_error.h"

#include <cmath>
#include <string>

namespace {

using huebase::CommaReader;
using huebase::Variant;
using huebase::VbError;

// Every field until the end, each followed by ';': numbers in their shortest
// form, texts in single quotes, Empty as '_', an error as '!' and its number.
std::string fieldsOf(const std::string& text) {
    CommaReader reader(text);
    std::string fields;
    std::size_t reads = 0;
    while (!reader.atEnd()) {
        ++reads;
        FUZZ_CHECK(reads <= 2 * text.size() + 2);
        try {
            const Variant field = reader.readField();
            if (field.isNumber())
                FUZZ_CHECK(std::isfinite(field.toNumber()));
            fields += field.isText()    ? "'" + field.toText() + "'"
                      : field.isEmpty() ? "_"
                                        : field.toText();
        } catch (const VbError& error) {
            FUZZ_CHECK(error.number() == VbError::Overflow);
            fields += "!" + std::to_string(error.number());
        }
        fields += ';';
    }
    try {
        reader.readField();
        FUZZ_CHECK(!"a field past the end");
    } catch (const VbError& error) {
        FUZZ_CHECK(error.number() == VbError::InputPastEndOfFile);
    }
    return fields;
}

// Every line end (CRLF, lone CR, LF) as LF.
std::string withLf(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            out += text[i];
            continue;
        }
        out += '\n';
        if (i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
    }
    return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(huebase::fuzz::bytes(data, size));
    const std::string fields = fieldsOf(text);
    if (text.find('"') == std::string::npos) {
        FUZZ_CHECK(fieldsOf(withLf(text)) == fields);
        FUZZ_CHECK(fieldsOf(text + "\n") == fields);
    }
    return 0;
}
