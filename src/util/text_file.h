#pragma once

#include <string>
#include <string_view>

namespace huebase {

// Reads a whole file as bytes (no line-end translation). Failures are the
// classic run-time errors, for the caller's error trap to report:
// 53 "File not found" for a missing file, 76 "Path not found" when its folder
// is missing, 70 "Permission denied" when access is refused, 75 "Path/File
// access error" for an empty path, a folder, a FIFO or anything else that is
// no regular file, or any other failure to open, and 57 "Device I/O error"
// when reading breaks off. A FIFO is refused without waiting for a writer.
std::string readTextFile(const std::string& path);

// Makes text the whole content of the file: creates it, or truncates an
// existing one and writes it again from its start, so a file that can be
// written but not deleted is still replaced, never extended. False on any
// error; whatever was written before it stays.
bool writeTextFile(const std::string& path, std::string_view text);

// Replaces the file with text as a whole: writes a temporary file beside it
// (the name followed by ".saving") and renames that over the file, so a
// failure leaves the old file as it was and no temporary behind. A link is
// followed and its target replaced. An existing file that cannot be written
// (read-only) or that is no regular file is refused and left alone. The new
// file takes the permissions of the one it replaces. False on any failure.
bool replaceTextFile(const std::string& path, std::string_view text);

} // namespace huebase
