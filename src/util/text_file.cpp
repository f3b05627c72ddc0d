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

bool writeWhole(const fs::path& file, std::string_view text) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    return !out.fail();
}

// Opening for update neither creates nor truncates: it only asks whether the
// file may be written.
bool isWritable(const fs::path& file) {
    return std::fstream(file, std::ios::binary | std::ios::in | std::ios::out).is_open();
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

bool writeTextFile(const std::string& path, std::string_view text) {
    try {
        return writeWhole(pathFromUtf8(path), text);
    } catch (...) {
        return false;
    }
}

bool replaceTextFile(const std::string& path, std::string_view text) {
    std::error_code ec;
    fs::path temporary;
    try {
        fs::path file = pathFromUtf8(path);
        const bool exists = fs::exists(file, ec);
        if (exists) {
            file = fs::canonical(file, ec);
            if (ec || !fs::is_regular_file(file, ec) || !isWritable(file))
                return false;
        }
        temporary = file;
        temporary += ".saving";
        bool done = writeWhole(temporary, text);
        const fs::file_status old = exists ? fs::status(file, ec) : fs::file_status();
        if (done && exists && !ec)
            fs::permissions(temporary, old.permissions(), ec);
        if (done) {
            fs::rename(temporary, file, ec);
            done = !ec;
        }
        if (!done)
            fs::remove(temporary, ec);
        return done;
    } catch (...) {
        if (!temporary.empty())
            fs::remove(temporary, ec);
        return false;
    }
}

} // namespace huebase
