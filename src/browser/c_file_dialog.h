#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace huebase {

// The option bits of the system's open and save dialogs that the program uses.
enum FileDialogFlag : std::int32_t {
    FlagOverwritePrompt = 0x2,
    FlagHideReadOnly = 0x4,
    FlagFileMustExist = 0x1000,
    FlagCreatePrompt = 0x2000,
};

// The Flags bits as options any dialog can apply.
struct FileDialogOptions {
    bool overwritePrompt = false;
    bool hideReadOnly = false;
    bool fileMustExist = false;
    bool createPrompt = false;

    static FileDialogOptions fromFlags(std::int32_t flags) noexcept;
    friend bool operator==(const FileDialogOptions&, const FileDialogOptions&) = default;
};

// One description/pattern pair of a filter ("Lut files (*.lut)", "*.lut").
struct FileFilter {
    std::string description;
    std::string pattern;

    friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

// Everything a dialog needs to be shown, from CFileDialog's properties.
struct FileDialogRequest {
    bool open = true;
    std::int32_t owner = 0;
    std::string title;
    std::string initialDir;
    std::string defaultExt;
    std::string fileName;
    std::vector<FileFilter> filters;
    // The filter shown first, 0-based (FilterIndex 0 and 1 both give the first).
    std::size_t selectedFilter = 0;
    FileDialogOptions options;
};

// Shows a dialog and returns the chosen path, or nothing when cancelled.
using FileDialogRunner = std::function<std::optional<std::string>(const FileDialogRequest&)>;

// The open/save file dialog behind a set of properties and one Show. The
// dialog itself is a runner handed in by the window layer; without one Show
// answers false, as a failed dialog does.
class CFileDialog {
public:
    explicit CFileDialog(FileDialogRunner runner = {});

    std::string DefaultExt;
    std::string DialogTitle;
    std::string FileName;         // in: the proposed name; out: the full path chosen
    std::string FileTitle;        // out: the chosen file's name without its folder
    std::string Filter;           // description|pattern|description|pattern...
    std::int32_t FilterIndex = 0; // 1-based, as the system counts
    std::int32_t Flags = 0;
    std::int32_t hWndParent = 0;
    std::string InitialDir;
    std::int32_t MaxFileSize = 260; // characters of the name buffers, NUL included

    // True when a file was confirmed: FileName and FileTitle then hold it.
    // A path that does not fit MaxFileSize - 1 characters fails as the
    // system dialog does. On cancel or failure both stay as they were.
    bool Show(bool open);

    // The request Show hands to the runner.
    FileDialogRequest request(bool open) const;

private:
    FileDialogRunner runner_;
};

// The system's filter form: every "|" replaced by NUL, then two NULs added.
std::string nulSeparatedFilter(std::string_view filter);
// The "|" form split into pairs; a description without a pattern gets "".
std::vector<FileFilter> filterPairs(std::string_view filter);
// The text before its first NUL (all of it when there is none).
std::string TrimNulls(std::string_view text);
// The last part of a path after "\" or "/".
std::string fileTitleOf(std::string_view path);

} // namespace huebase
