#pragma once

#include <string>

namespace huebase {

// Reads a whole file as bytes (no line-end translation). Failures are the
// classic run-time errors, for the caller's error trap to report:
// 53 "File not found" for a missing file, 76 "Path not found" when its folder
// is missing, 70 "Permission denied" when access is refused, 75 "Path/File
// access error" for an empty path, a folder or any other failure to open, and
// 57 "Device I/O error" when reading breaks off.
std::string readTextFile(const std::string& path);

} // namespace huebase
