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

std::int64_t lineCount(std::string_view text) {
    if (text.empty())
        return 0;
    // Every LF ends a line, and every CR that no LF follows; counted without
    // branches, the loop runs at memory speed.
    std::int64_t lines = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        lines += (text[i] == '\n') + ((text[i] == '\r') & (text[i + 1] != '\n'));
    // The last character ends a line whatever it is.
    return lines + 1;
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
