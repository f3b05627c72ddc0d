#include "util/utf8_path.h"

#include <algorithm>
#include <string>

namespace huebase {

std::filesystem::path pathFromUtf8(std::string_view utf8) {
    std::u8string text(utf8.begin(), utf8.end());
#ifndef _WIN32
    std::replace(text.begin(), text.end(), u8'\\', u8'/');
#endif
    return std::filesystem::path(std::move(text));
}

} // namespace huebase
