#pragma once

#include "core/color_value.h"
#include "core/lut_node.h"
#include "util/vb_format.h"

#include <cstddef>
#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace huebase {

// Keeps ramps that would otherwise be lost when the editor ends or is reset:
// each is written as a .lut file named by the local date and time
// ("2026-11-23 14-05-09.lut", then " (2)", " (3)" ... when the name is taken)
// into one folder, and only the newest kKept .lut files of that folder stay.
// Keeping never fails loudly: a folder that cannot be made or written is
// skipped, so that the way out of the editor is never held up.
class RecoveredRamps {
public:
    static constexpr std::size_t kKept = 20;
    // The local date and time now.
    using Clock = std::function<std::tm()>;

    explicit RecoveredRamps(std::string folder, Clock clock = localTimeNow);

    static std::tm localTimeNow();

    // Writes the ramp in the library's format (as Save writes it), creating
    // the folder when missing, then prunes the folder. Returns the path
    // written, or nothing when nothing could be written.
    std::optional<std::string>
    keep(const LutTable& table, ColorValue noDataColor,
         char decimalSeparator = localeDecimalSeparator()) const noexcept;

    // The names of the folder's .lut files, oldest first: by name, a numbered
    // name " (n)" after the plain one and after lower numbers of its stem.
    std::vector<std::string> names() const;

private:
    std::string freeName(const std::string& stem) const;
    void prune() const;

    std::string folder_;
    Clock clock_;
};

} // namespace huebase
