#include "host/line_appender.h"

#include "util/misc_files.h"
#include "util/utf8_path.h"

namespace huebase {

bool LineAppender::append(std::string_view text) {
    if (failed_)
        return false;
    try {
        if (!out_.is_open())
            out_.open(pathFromUtf8(path_), std::ios::binary | std::ios::app);
        out_.write(text.data(), static_cast<std::streamsize>(text.size()));
        out_.write(MiscFiles::kLineEnd.data(),
                   static_cast<std::streamsize>(MiscFiles::kLineEnd.size()));
        failed_ = !out_;
    } catch (...) {
        failed_ = true;
    }
    return !failed_;
}

bool LineAppender::close() {
    if (out_.is_open()) {
        out_.close();
        failed_ = failed_ || out_.fail();
    }
    return !failed_;
}

} // namespace huebase
