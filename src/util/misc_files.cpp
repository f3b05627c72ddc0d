#include "util/misc_files.h"

#include "util/text_file.h"
#include "util/utf8_path.h"
#include "util/vb_numeric.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace huebase::MiscFiles {

namespace fs = std::filesystem;

// Files without CR take the vectorised count alone.
std::int64_t lineCount(std::string_view text) {
    if (text.empty())
        return 0;
    std::int64_t lines = std::count(text.begin(), text.end(), '\n');
    const char* const end = text.data() + text.size();
    const char* cr = text.data();
    while ((cr = static_cast<const char*>(std::memchr(cr, '\r', end - cr))) != nullptr) {
        ++cr;
        if (cr == end || *cr != '\n')
            ++lines;
    }
    const char last = text.back();
    if (last != '\n' && last != '\r')
        ++lines;
    return lines;
}

bool DirExists(const std::string& path) {
    try {
        std::error_code ec;
        return fs::is_directory(pathFromUtf8(path) / ".", ec);
    } catch (...) {
        return false;
    }
}

bool AppendToTextFile(const std::string& path, std::string_view text) {
    try {
        std::ofstream out(pathFromUtf8(path), std::ios::binary | std::ios::app);
        if (!out)
            return false;
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
        out.write(kLineEnd.data(), static_cast<std::streamsize>(kLineEnd.size()));
        out.close();
        return !out.fail();
    } catch (...) {
        return false;
    }
}

std::int16_t getFileLineNumber(const std::string& path) {
    return checkedInt16(lineCount(readTextFile(path)));
}

bool KillFile(const std::string& path) {
    try {
        std::error_code ec;
        const fs::path file = pathFromUtf8(path);
        if (!fs::is_directory(file, ec))
            fs::remove(file, ec);
    } catch (...) {
    }
    return true;
}

bool FileExists(const std::string& path) {
    if (path.empty())
        return false;
    try {
        std::error_code ec;
        return fs::is_regular_file(pathFromUtf8(path), ec);
    } catch (...) {
        return false;
    }
}

std::string DriveFromPath(const std::string& path) {
    std::size_t colon = path.find(":\\");
    if (colon == std::string::npos)
        colon = path.find(':');
    return colon == std::string::npos ? std::string() : path.substr(0, colon + 1);
}

} // namespace huebase::MiscFiles
