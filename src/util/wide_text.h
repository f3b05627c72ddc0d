#pragma once

#ifdef _WIN32

#include <string>
#include <string_view>

namespace huebase {

// UTF-8 text as the wide text that Windows calls take.
std::wstring wideFromUtf8(std::string_view text);

} // namespace huebase

#endif
