#pragma once

#include <compare>
#include <string>
#include <variant>

namespace huebase {

// A dynamically typed field: empty, a number or a text, as read from the
// comma-delimited exchange and table files.
class Variant {
public:
    enum class Kind { Empty, Number, Text };

    Variant() = default;
    Variant(double number) : value_(number) {}
    Variant(int number) : value_(static_cast<double>(number)) {}
    Variant(std::string text) : value_(std::move(text)) {}
    Variant(const char* text) : value_(std::string(text)) {}

    Kind kind() const noexcept { return static_cast<Kind>(value_.index()); }
    bool isEmpty() const noexcept { return kind() == Kind::Empty; }
    bool isNumber() const noexcept { return kind() == Kind::Number; }
    bool isText() const noexcept { return kind() == Kind::Text; }

    // The value as a number: empty is 0, a numeric text is parsed (leading
    // and trailing blanks allowed), any other text is error 13.
    double toNumber() const;
    // The value as text: empty is "", a number in its shortest form.
    std::string toText() const;

    // Numbers compare numerically and texts by character code; a number and a
    // text are never equal, and a number orders before a text. Empty counts as
    // 0 beside a number and as "" beside a text.
    friend bool operator==(const Variant& a, const Variant& b) noexcept;
    friend std::strong_ordering operator<=>(const Variant& a, const Variant& b) noexcept;

private:
    std::variant<std::monostate, double, std::string> value_;
};

} // namespace huebase
