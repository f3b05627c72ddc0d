#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace huebase {

// Appends lines to a text file as MiscFiles::AppendToTextFile does (the file
// is created by the first line, each line ends with MiscFiles::kLineEnd),
// but keeps the file open from one line to the next: opening and closing it
// per line costs several milliseconds per thousand lines, too much for an
// export table of 32,767 rows.
//
// Writes are buffered, so a failure may only show at a later line or at
// close(); once anything failed, every later call answers false.
class LineAppender {
public:
    explicit LineAppender(std::string path) : path_(std::move(path)) {}

    // False when the file cannot be opened or the write failed.
    bool append(std::string_view text);
    // Writes out the buffer and closes the file; false when that or any
    // earlier line failed. A file never appended to is not created.
    bool close();

private:
    std::string path_;
    std::ofstream out_;
    bool failed_ = false;
};

} // namespace huebase
