#include "browser/recovered_ramps.h"

#include "browser/lut_file.h"
#include "util/text_file.h"
#include "util/utf8_path.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>
#include <tuple>

namespace huebase {

namespace {

constexpr std::string_view kExtension = ".lut";
// Far more than one second can need; it only bounds the search.
constexpr int kMaxNumber = 10000;

bool isLutName(const std::string& name) {
    if (name.size() <= kExtension.size())
        return false;
    const std::string_view tail = std::string_view(name).substr(name.size() - kExtension.size());
    return std::equal(tail.begin(), tail.end(), kExtension.begin(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == b;
    });
}

// "stem (n).lut" sorts as (stem, n) and "stem.lut" as (stem, 1), so that the
// second ramp of one second sorts after the first and " (10)" after " (9)".
std::tuple<std::string_view, long> orderKey(std::string_view name) {
    std::string_view stem = name.substr(0, name.size() - kExtension.size());
    const std::size_t open = stem.rfind(" (");
    if (open == std::string_view::npos || stem.back() != ')')
        return {stem, 1};
    const std::string_view digits = stem.substr(open + 2, stem.size() - open - 3);
    if (digits.empty() || digits.size() > 6 ||
        !std::all_of(digits.begin(), digits.end(),
                     [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }))
        return {stem, 1};
    return {stem.substr(0, open), std::stol(std::string(digits))};
}

std::string utf8Name(const std::filesystem::path& path) {
    const std::u8string name = path.filename().u8string();
    return {name.begin(), name.end()};
}

} // namespace

RecoveredRamps::RecoveredRamps(std::string folder, Clock clock)
    : folder_(std::move(folder)), clock_(std::move(clock)) {}

std::tm RecoveredRamps::localTimeNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return local;
}

std::optional<std::string> RecoveredRamps::keep(const LutTable& table, ColorValue noDataColor,
                                                char decimalSeparator) const noexcept {
    try {
        std::error_code error;
        std::filesystem::create_directories(pathFromUtf8(folder_), error);
        const std::tm now = clock_();
        char stem[32] = {};
        if (std::strftime(stem, sizeof stem, "%Y-%m-%d %H-%M-%S", &now) == 0)
            return std::nullopt;
        const std::string name = freeName(stem);
        if (name.empty())
            return std::nullopt;
        const std::string path = folder_ + "/" + name;
        if (!writeTextFile(path, LutFile::text(table, noDataColor, decimalSeparator)))
            return std::nullopt;
        prune();
        return path;
    } catch (...) {
        return std::nullopt;
    }
}

std::string RecoveredRamps::freeName(const std::string& stem) const {
    for (int n = 1; n <= kMaxNumber; ++n) {
        std::string name = stem;
        if (n > 1)
            name += " (" + std::to_string(n) + ")";
        name += kExtension;
        std::error_code error;
        const bool taken = std::filesystem::exists(pathFromUtf8(folder_ + "/" + name), error);
        if (error)
            return {};
        if (!taken)
            return name;
    }
    return {};
}

std::vector<std::string> RecoveredRamps::names() const {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator it(pathFromUtf8(folder_), error), end;
         !error && it != end; it.increment(error)) {
        std::error_code kind;
        if (!it->is_regular_file(kind))
            continue;
        std::string name = utf8Name(it->path());
        if (isLutName(name))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::tuple_cat(orderKey(a), std::tuple(std::string_view(a))) <
               std::tuple_cat(orderKey(b), std::tuple(std::string_view(b)));
    });
    return names;
}

void RecoveredRamps::prune() const {
    const std::vector<std::string> all = names();
    if (all.size() <= kKept)
        return;
    for (std::size_t i = 0; i + kKept < all.size(); ++i) {
        std::error_code ignored;
        std::filesystem::remove(pathFromUtf8(folder_ + "/" + all[i]), ignored);
    }
}

} // namespace huebase
