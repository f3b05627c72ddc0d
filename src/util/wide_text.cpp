#include "util/wide_text.h"

#ifdef _WIN32

#include <windows.h>

namespace huebase {

std::wstring wideFromUtf8(std::string_view text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
    return wide;
}

} // namespace huebase

#endif
