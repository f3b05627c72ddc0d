#include "editor/graph_settings.h"

#include "util/text_file.h"
#include "util/vb_error.h"

#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

namespace huebase {

namespace {
constexpr std::string_view kScaleKey = "count_scale";
constexpr std::string_view kFillKey = "ramp_fill";

std::string_view trimmed(std::string_view s) {
    const auto first = s.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// The key and value of a "key=value" line; no key for anything else.
std::pair<std::string_view, std::string_view> keyValue(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos)
        return {};
    return {trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1))};
}

std::vector<std::string> linesOf(const std::string& path) {
    std::string text;
    try {
        text = readTextFile(path);
    } catch (const VbError&) {
        return {}; // a missing or unreadable file holds no setting
    }
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}
} // namespace

std::string GraphSettings::fileIn(const std::string& programFolder) {
    return programFolder + "/huebase.ini";
}

GraphSettings GraphSettings::read(const std::string& path) {
    GraphSettings settings;
    for (const std::string& line : linesOf(path)) {
        const auto [key, value] = keyValue(line);
        if (key == kScaleKey) {
            if (const auto scale = CountScale::fromKey(value))
                settings.countScale = *scale;
        } else if (key == kFillKey && (value == "0" || value == "1")) {
            settings.rampFill = value == "1";
        }
    }
    return settings;
}

bool GraphSettings::write(const std::string& path) const {
    const std::string scaleLine = std::string(kScaleKey) + "=" + std::string(countScale.key());
    const std::string fillLine = std::string(kFillKey) + "=" + (rampFill ? "1" : "0");
    std::string text;
    bool scaleDone = false;
    bool fillDone = false;
    for (const std::string& line : linesOf(path)) {
        const std::string_view key = keyValue(line).first;
        if (key == kScaleKey) {
            if (!std::exchange(scaleDone, true))
                text += scaleLine + "\n";
        } else if (key == kFillKey) {
            if (!std::exchange(fillDone, true))
                text += fillLine + "\n";
        } else {
            text += line + "\n";
        }
    }
    if (!scaleDone)
        text += scaleLine + "\n";
    if (!fillDone)
        text += fillLine + "\n";
    return replaceTextFile(path, text);
}

} // namespace huebase
