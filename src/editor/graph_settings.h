#pragma once

#include "editor/count_scale.h"

#include <string>

namespace huebase {

// How the user likes the distribution graph drawn, kept between runs in a
// small "key=value" file: "count_scale=log" and "ramp_fill=1". Reading is
// forgiving: a missing or unreadable file, an unknown key or a malformed
// value leaves the default for what it concerns. Writing replaces only the
// lines of the keys it knows and keeps every other line as it was.
struct GraphSettings {
    CountScale countScale;
    bool rampFill = false;

    // The settings file of a program folder.
    static std::string fileIn(const std::string& programFolder);

    static GraphSettings read(const std::string& path);
    // False when the file cannot be written; the old one stays.
    bool write(const std::string& path) const;

    friend bool operator==(const GraphSettings&, const GraphSettings&) = default;
};

} // namespace huebase
