#include "util/comma_reader.h"

#include "util/text_file.h"
#include "util/vb_error.h"

#include <charconv>
#include <system_error>
#include <utility>

namespace huebase {

namespace {
bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isDelimiter(char c) {
    return c == ',' || c == '\n' || c == '\r';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Parses [first, last) as a whole decimal number. An optional '+' or '-' must
// be followed by a digit or a point, which keeps "inf", "nan" and the like as
// text.
bool parseNumber(const char* first, const char* last, double& number) {
    if (*first == '+')
        ++first;
    const char* mantissa = first != last && *first == '-' ? first + 1 : first;
    if (mantissa == last || !(isDigit(*mantissa) || *mantissa == '.'))
        return false;
    // Whole numbers below 10^15 are exact as doubles and read several times
    // faster as integers; counts and keys of the exchange files mostly are.
    // Zero keeps the general path, which gives "-0" its sign.
    if (last - first <= 16) {
        long long whole = 0;
        const auto [end, ec] = std::from_chars(first, last, whole);
        if (ec == std::errc() && end == last && whole != 0 && whole < 1'000'000'000'000'000 &&
            whole > -1'000'000'000'000'000) {
            number = static_cast<double>(whole);
            return true;
        }
    }
    const auto [end, ec] = std::from_chars(first, last, number);
    if (ec == std::errc::result_out_of_range && end == last)
        throw VbError(VbError::Overflow);
    return ec == std::errc() && end == last;
}
} // namespace

CommaReader::CommaReader(std::string text) : text_(std::move(text)) {}

CommaReader CommaReader::fromFile(const std::string& path) {
    return CommaReader(readTextFile(path));
}

bool CommaReader::atEnd() const {
    if (fieldAnnounced_)
        return false;
    for (std::size_t i = pos_; i < text_.size(); ++i)
        if (!isBlank(text_[i]) && text_[i] != '\n' && text_[i] != '\r')
            return false;
    return true;
}

Variant CommaReader::readField() {
    if (atEnd())
        throw VbError(VbError::InputPastEndOfFile);
    skipBlanks();
    Variant field = pos_ < text_.size() && text_[pos_] == '"' ? readQuoted() : readUnquoted();
    consumeDelimiter();
    return field;
}

Variant CommaReader::readQuoted() {
    const std::size_t start = pos_ + 1;
    const std::size_t close = text_.find('"', start);
    if (close == std::string::npos) {
        pos_ = text_.size();
        return Variant(text_.substr(start));
    }
    pos_ = findDelimiter(close + 1);
    return Variant(text_.substr(start, close - start));
}

Variant CommaReader::readUnquoted() {
    const std::size_t start = pos_;
    pos_ = findDelimiter(start);
    std::size_t end = pos_;
    while (end > start && isBlank(text_[end - 1]))
        --end;
    if (end == start)
        return Variant();
    const char* first = text_.data() + start;
    const char* last = text_.data() + end;
    double number = 0.0;
    if (parseNumber(first, last, number))
        return Variant(number);
    return Variant(std::string(first, last));
}

void CommaReader::skipBlanks() {
    while (pos_ < text_.size() && isBlank(text_[pos_]))
        ++pos_;
}

std::size_t CommaReader::findDelimiter(std::size_t from) const {
    while (from < text_.size() && !isDelimiter(text_[from]))
        ++from;
    return from;
}

void CommaReader::consumeDelimiter() {
    fieldAnnounced_ = false;
    if (pos_ >= text_.size())
        return;
    const char c = text_[pos_++];
    if (c == ',')
        fieldAnnounced_ = true;
    else if (c == '\r' && pos_ < text_.size() && text_[pos_] == '\n')
        ++pos_;
}

} // namespace huebase
