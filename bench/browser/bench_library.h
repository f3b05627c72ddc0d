#pragma once

// A library of 200 .lut files for the browser's benchmarks: tables of 2 to
// 41 nodes over ranges around the demo data, some wider and some narrower,
// with every method.

#include "browser/lut_file.h"
#include "util/messages.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace huebase::bench {

constexpr int kFiles = 200;
constexpr float kDataMin = -1437.0f;
constexpr float kDataMax = 2205.0f;

class Library {
public:
    explicit Library(const std::filesystem::path& folder) : folder_(folder) {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
        for (int f = 0; f < kFiles; ++f) {
            const int nodes = 2 + f % 40;
            const float from = -2000.0f + 10.0f * static_cast<float>(f % 50);
            const float to = 1500.0f + 20.0f * static_cast<float>(f % 70);
            LutTable table;
            for (int i = 0; i < nodes; ++i) {
                const float value =
                    from + (to - from) * static_cast<float>(i) / static_cast<float>(nodes - 1);
                table.push_back({value, static_cast<std::uint8_t>((f + i) % kMethodCount),
                                 composeColor((i * 37) % 256, (f * 11) % 256, (i * f) % 256),
                                 value});
            }
            for (int i = 0; i + 1 < nodes; ++i)
                table[i].upper = table[i + 1].value;
            const std::filesystem::path path = folder_ / ("ramp" + std::to_string(f) + ".lut");
            std::ofstream(path, std::ios::binary) << LutFile::text(table, 0xFFFFFF, '.');
            paths_.push_back(path.string());
        }
    }
    ~Library() { std::filesystem::remove_all(folder_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    const std::vector<std::string>& paths() const { return paths_; }

private:
    std::filesystem::path folder_;
    std::vector<std::string> paths_;
};

// Refusals of the clip mode would otherwise be printed.
class QuietMessages {
public:
    QuietMessages()
        : previous_(setMessageResponder([](const MessageRequest&) { return MessageAnswer::Ok; })) {}
    ~QuietMessages() { setMessageResponder(std::move(previous_)); }
    QuietMessages(const QuietMessages&) = delete;
    QuietMessages& operator=(const QuietMessages&) = delete;

private:
    MessageResponder previous_;
};

} // namespace huebase::bench
