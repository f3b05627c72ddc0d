#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace huebase::MiscFiles {

// Small file-system chores. Paths are UTF-8 strings. Except for
// getFileLineNumber, every function swallows its own errors and answers with
// its result.

// The line end that AppendToTextFile writes: the platform's own.
#ifdef _WIN32
inline constexpr std::string_view kLineEnd = "\r\n";
#else
inline constexpr std::string_view kLineEnd = "\n";
#endif

// True when path names an existing folder (looked up as path followed by the
// "." entry, so a file is not a folder); false on any error.
bool DirExists(const std::string& path);

// Appends text and kLineEnd to the file, creating it if missing. False on any
// error.
bool AppendToTextFile(const std::string& path, std::string_view text);

// The number of lines of the file, each ended by CRLF, LF or a lone CR; a last
// line without a line end counts, an empty file has 0. Errors are not
// swallowed here: a missing file is VbError 53 (see readTextFile for the
// others) and more than 32,767 lines is VbError 6 (Overflow).
std::int16_t getFileLineNumber(const std::string& path);

// The number of lines of a text, counted as getFileLineNumber counts them.
std::int64_t lineCount(std::string_view text);

// Deletes the file, ignoring every error (a missing file is no failure).
// Folders are left alone. Always true.
bool KillFile(const std::string& path);

// False for an empty path, without touching the disk; otherwise true only
// when path names an existing regular file (or a link to one).
bool FileExists(const std::string& path);

// The drive part of a path: up to and including the ':' of the first ":\",
// else up to and including the first ':', else "". Case-sensitive.
std::string DriveFromPath(const std::string& path);

} // namespace huebase::MiscFiles
