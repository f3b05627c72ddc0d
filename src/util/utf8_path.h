#pragma once

#include <filesystem>
#include <string_view>

namespace huebase {

// The program keeps paths as UTF-8 strings; this turns one into a file-system
// path without going through the system's narrow code page (which on Windows
// would garble non-ASCII names). Paths are built with backslashes throughout
// the program ("\col.tmp", "\myLuts"), so elsewhere than on Windows a
// backslash is read as the folder separator too.
std::filesystem::path pathFromUtf8(std::string_view utf8);

} // namespace huebase
