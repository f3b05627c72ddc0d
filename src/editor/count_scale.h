#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace huebase {

// How occurrence counts are measured up the graph. Linear draws counts as
// they are; Square root and Logarithmic lift the small counts that one huge
// spike (sea level, a lake) would otherwise flatten. Logarithmic measures
// log10(1 + count), so a count of 0 stays at the baseline and 1 stands above
// it. Both mappings are odd functions, so the space under the baseline reads
// back as negative counts, as it does on the linear scale.
class CountScale {
public:
    enum class Kind : std::uint8_t { Linear, SquareRoot, Logarithmic };
    static constexpr std::array kKinds{Kind::Linear, Kind::SquareRoot, Kind::Logarithmic};

    constexpr CountScale() = default;
    constexpr explicit CountScale(Kind kind) : kind_(kind) {}

    Kind kind() const noexcept { return kind_; }
    bool linear() const noexcept { return kind_ == Kind::Linear; }

    // A count's height on this scale, and back.
    double toAxis(double count) const;
    double toCount(double height) const;

    // Round counts from 0 to maxCount to label the axis with, about `wanted`
    // of them spread evenly up the scale: round steps when linear, squares of
    // round steps under Square root, 1-2-5 steps or whole powers of ten under
    // Logarithmic. Ascending, whole numbers.
    std::vector<double> ticks(double maxCount, int wanted) const;

    // The word kept in the settings file ("linear", "sqrt", "log") and the
    // name shown to the user ("Linear", "Square root", "Logarithmic").
    std::string_view key() const noexcept;
    std::string_view label() const noexcept;
    static std::optional<CountScale> fromKey(std::string_view key);

    friend bool operator==(const CountScale&, const CountScale&) = default;

private:
    Kind kind_ = Kind::Linear;
};

// A count as an axis label: whole numbers below 10000, then three significant
// digits with a k, M or G suffix ("9500", "16k", "1.44M").
std::string countLabel(double count);

} // namespace huebase
