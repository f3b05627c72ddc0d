#include "util/utf8_path.h"

#include <string>

namespace huebase {

std::filesystem::path pathFromUtf8(std::string_view utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

} // namespace huebase
