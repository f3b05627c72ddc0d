#include "util/variant.h"

#include "util/vb_error.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace huebase {

namespace {
bool isBlank(char c) { return c == ' ' || c == '\t'; }

std::strong_ordering compareNumbers(double a, double b) {
    if (a < b)
        return std::strong_ordering::less;
    if (a > b)
        return std::strong_ordering::greater;
    return std::strong_ordering::equal;
}
} // namespace

double Variant::toNumber() const {
    switch (kind()) {
    case Kind::Empty: return 0.0;
    case Kind::Number: return std::get<double>(value_);
    case Kind::Text: break;
    }
    const std::string& text = std::get<std::string>(value_);
    const char* first = text.data();
    const char* last = text.data() + text.size();
    while (first != last && isBlank(*first))
        ++first;
    while (last != first && isBlank(last[-1]))
        --last;
    if (first != last && *first == '+')
        ++first;
    double result = 0.0;
    const auto [end, ec] = std::from_chars(first, last, result);
    if (first == last || ec != std::errc() || end != last)
        throw VbError(VbError::TypeMismatch);
    return result;
}

std::string Variant::toText() const {
    switch (kind()) {
    case Kind::Empty: return {};
    case Kind::Text: return std::get<std::string>(value_);
    case Kind::Number: break;
    }
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::get<double>(value_));
    return std::string(buffer, result.ptr);
}

bool operator==(const Variant& a, const Variant& b) noexcept {
    return (a <=> b) == std::strong_ordering::equal;
}

std::strong_ordering operator<=>(const Variant& a, const Variant& b) noexcept {
    using Kind = Variant::Kind;
    const Kind ka = a.kind();
    const Kind kb = b.kind();
    if (ka == Kind::Text || kb == Kind::Text) {
        if (ka == Kind::Number)
            return std::strong_ordering::less;
        if (kb == Kind::Number)
            return std::strong_ordering::greater;
        const std::string empty;
        const std::string& ta = ka == Kind::Text ? std::get<std::string>(a.value_) : empty;
        const std::string& tb = kb == Kind::Text ? std::get<std::string>(b.value_) : empty;
        const int c = ta.compare(tb);
        return c < 0 ? std::strong_ordering::less
                     : (c > 0 ? std::strong_ordering::greater : std::strong_ordering::equal);
    }
    const double na = ka == Kind::Number ? std::get<double>(a.value_) : 0.0;
    const double nb = kb == Kind::Number ? std::get<double>(b.value_) : 0.0;
    return compareNumbers(na, nb);
}

} // namespace huebase
