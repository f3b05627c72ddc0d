#include "util/text_file.h"

#include "util/utf8_path.h"
#include "util/vb_error.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

namespace huebase {

namespace fs = std::filesystem;

namespace {
[[noreturn]] void throwOpenError(const fs::path& file) {
    std::error_code ec;
    const fs::file_status status = fs::status(file, ec);
    if (status.type() == fs::file_type::not_found) {
        const fs::path folder = file.parent_path();
        if (!folder.empty() && !fs::is_directory(folder, ec))
            throw VbError(VbError::PathNotFound);
        throw VbError(VbError::FileNotFound);
    }
    throw VbError(VbError::PathFileAccessError);
}
} // namespace

std::string readTextFile(const std::string& path) {
    if (path.empty())
        throw VbError(VbError::PathFileAccessError);
    const fs::path file = pathFromUtf8(path);
    std::error_code ec;
    if (!fs::is_regular_file(file, ec))
        throwOpenError(file);

    errno = 0;
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        if (errno == EACCES || errno == EPERM)
            throw VbError(VbError::PermissionDenied);
        throwOpenError(file);
    }
    const std::uintmax_t size = fs::file_size(file, ec);
    if (ec)
        throw VbError(VbError::DeviceIoError);
    std::string text(static_cast<std::size_t>(size), '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (in.bad() || static_cast<std::size_t>(in.gcount()) != text.size())
        throw VbError(VbError::DeviceIoError);
    return text;
}

} // namespace huebase
