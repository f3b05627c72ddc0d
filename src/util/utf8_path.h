#pragma once

#include <filesystem>
#include <string_view>

namespace huebase {

// The program keeps paths as UTF-8 strings; this turns one into a file-system
// path without going through the system's narrow code page (which on Windows
// would garble non-ASCII names).
std::filesystem::path pathFromUtf8(std::string_view utf8);

} // namespace huebase
