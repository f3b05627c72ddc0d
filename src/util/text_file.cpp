#include "util/text_file.h"

#include "util/utf8_path.h"
#include "util/vb_error.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

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

#ifdef _WIN32
std::string readRegularFile(const fs::path& file) {
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
#else
// Opened without waiting and checked once open: a FIFO (or one put in the
// file's place at any moment) is refused, never waited on for a writer.
std::string readRegularFile(const fs::path& file) {
    const int fd = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (errno == EACCES || errno == EPERM)
            throw VbError(VbError::PermissionDenied);
        throwOpenError(file);
    }
    struct Closer {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat status {};
    if (::fstat(fd, &status) != 0)
        throw VbError(VbError::DeviceIoError);
    if (!S_ISREG(status.st_mode))
        throwOpenError(file);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t got = ::read(fd, text.data() + done, text.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            throw VbError(VbError::DeviceIoError);
        done += static_cast<std::size_t>(got);
    }
    return text;
}
#endif
} // namespace

std::string readTextFile(const std::string& path) {
    if (path.empty())
        throw VbError(VbError::PathFileAccessError);
    return readRegularFile(pathFromUtf8(path));
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
