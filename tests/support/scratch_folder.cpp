#include "support/scratch_folder.h"

#include <cstdio>
#include <fstream>
#include <random>

namespace huebase::testing {

ScratchFolder::ScratchFolder() {
    std::random_device random;
    do {
        // Names of one length: the fuzz targets' runs depend on nothing
        // random, not even the length of their paths.
        char digits[16];
        std::snprintf(digits, sizeof digits, "%010u", static_cast<unsigned>(random()));
        path_ = std::filesystem::temp_directory_path() / (std::string("huebase-util-") + digits);
    } while (!std::filesystem::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

std::string ScratchFolder::file(std::string_view name) const {
    const std::u8string utf8 = (path_ / name).u8string();
    return std::string(utf8.begin(), utf8.end());
}

std::string ScratchFolder::write(std::string_view name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file(name);
}

} // namespace huebase::testing
