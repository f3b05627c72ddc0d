#include "editor/count_scale.h"

#include "editor/axis_ticks.h"

#include <charconv>
#include <cmath>

namespace huebase {

namespace {
double odd(double x, double (*f)(double)) {
    return std::copysign(f(std::fabs(x)), x);
}

double log1p10(double c) {
    return std::log10(1.0 + c);
}

double exp10m1(double y) {
    return std::pow(10.0, y) - 1.0;
}

double square(double y) {
    return y * y;
}

bool whole(double x) {
    return std::floor(x) == x;
}

std::vector<double> logTicks(double maxCount, int wanted) {
    std::vector<double> ticks{0.0};
    if (!(maxCount >= 1.0))
        return ticks;
    const int decades = static_cast<int>(std::floor(std::log10(maxCount)));
    // With few decades, 2 and 5 times each power of ten fill the axis too.
    const bool fine = 3 * (decades + 1) + 1 <= wanted;
    const std::vector<double> exponents =
        axisTicks(0, std::max(decades, 1), std::max(1, wanted - 1));
    for (const double e : exponents) {
        if (!whole(e) || e > decades)
            continue;
        const double power = std::pow(10.0, e);
        for (const double f : {1.0, 2.0, 5.0})
            if ((f == 1.0 || fine) && f * power <= maxCount)
                ticks.push_back(f * power);
    }
    return ticks;
}
} // namespace

double CountScale::toAxis(double count) const {
    switch (kind_) {
    case Kind::SquareRoot:
        return odd(count, [](double c) { return std::sqrt(c); });
    case Kind::Logarithmic:
        return odd(count, log1p10);
    case Kind::Linear:
        break;
    }
    return count;
}

double CountScale::toCount(double height) const {
    switch (kind_) {
    case Kind::SquareRoot:
        return odd(height, square);
    case Kind::Logarithmic:
        return odd(height, exp10m1);
    case Kind::Linear:
        break;
    }
    return height;
}

std::vector<double> CountScale::ticks(double maxCount, int wanted) const {
    switch (kind_) {
    case Kind::SquareRoot: {
        // Round steps of the root keep the labels evenly spaced; only the
        // whole squares among them name real counts.
        std::vector<double> ticks;
        for (const double root : axisTicks(0, std::sqrt(std::max(maxCount, 0.0)), wanted))
            if (whole(root * root))
                ticks.push_back(root * root);
        return ticks;
    }
    case Kind::Logarithmic:
        return logTicks(maxCount, wanted);
    case Kind::Linear:
        break;
    }
    std::vector<double> ticks = axisTicks(0, maxCount, wanted);
    std::erase_if(ticks, [](double t) { return !whole(t); });
    return ticks;
}

std::string_view CountScale::key() const noexcept {
    switch (kind_) {
    case Kind::SquareRoot:
        return "sqrt";
    case Kind::Logarithmic:
        return "log";
    case Kind::Linear:
        break;
    }
    return "linear";
}

std::string_view CountScale::label() const noexcept {
    switch (kind_) {
    case Kind::SquareRoot:
        return "Square root";
    case Kind::Logarithmic:
        return "Logarithmic";
    case Kind::Linear:
        break;
    }
    return "Linear";
}

std::optional<CountScale> CountScale::fromKey(std::string_view key) {
    for (const Kind kind : kKinds)
        if (CountScale(kind).key() == key)
            return CountScale(kind);
    return std::nullopt;
}

std::string countLabel(double count) {
    char buffer[64];
    const double size = std::fabs(count);
    if (size < 1e4) {
        const auto r = std::to_chars(buffer, buffer + sizeof buffer, std::round(count) + 0.0,
                                     std::chars_format::fixed, 0);
        return std::string(buffer, r.ptr);
    }
    double unit = 1e3;
    const char* suffix = "k";
    if (size >= 1e9) {
        unit = 1e9;
        suffix = "G";
    } else if (size >= 1e6) {
        unit = 1e6;
        suffix = "M";
    }
    const auto r =
        std::to_chars(buffer, buffer + sizeof buffer, count / unit, std::chars_format::general, 3);
    return std::string(buffer, r.ptr) + suffix;
}

} // namespace huebase
