#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace huebase::testing {

// A fresh, empty folder under the system's temporary folder, removed with
// everything in it when the object goes.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // The UTF-8 path of an entry inside the folder.
    std::string file(std::string_view name) const;
    // Writes bytes to an entry inside the folder and returns its path.
    std::string write(std::string_view name, std::string_view bytes) const;

private:
    std::filesystem::path path_;
};

} // namespace huebase::testing
