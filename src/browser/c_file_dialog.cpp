#include "browser/c_file_dialog.h"

#include <algorithm>
#include <utility>

namespace huebase {

FileDialogOptions FileDialogOptions::fromFlags(std::int32_t flags) noexcept {
    return {(flags & FlagOverwritePrompt) != 0, (flags & FlagHideReadOnly) != 0,
            (flags & FlagFileMustExist) != 0, (flags & FlagCreatePrompt) != 0};
}

CFileDialog::CFileDialog(FileDialogRunner runner) : runner_(std::move(runner)) {}

FileDialogRequest CFileDialog::request(bool open) const {
    FileDialogRequest r;
    r.open = open;
    r.owner = hWndParent;
    r.title = DialogTitle;
    r.initialDir = InitialDir;
    r.defaultExt = DefaultExt;
    r.fileName = TrimNulls(FileName);
    r.filters = filterPairs(Filter);
    r.selectedFilter = FilterIndex > 1 ? static_cast<std::size_t>(FilterIndex - 1) : 0;
    if (r.selectedFilter >= r.filters.size())
        r.selectedFilter = 0;
    r.options = FileDialogOptions::fromFlags(Flags);
    return r;
}

bool CFileDialog::Show(bool open) {
    if (!runner_)
        return false;
    const std::optional<std::string> chosen = runner_(request(open));
    if (!chosen)
        return false;
    const std::string path = TrimNulls(*chosen);
    if (path.empty() || static_cast<std::int64_t>(path.size()) >= MaxFileSize)
        return false;
    FileName = path;
    FileTitle = fileTitleOf(path);
    return true;
}

std::string nulSeparatedFilter(std::string_view filter) {
    std::string result(filter);
    std::replace(result.begin(), result.end(), '|', '\0');
    result.append(2, '\0');
    return result;
}

std::vector<FileFilter> filterPairs(std::string_view filter) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= filter.size() && !filter.empty()) {
        const std::size_t bar = std::min(filter.find('|', start), filter.size());
        parts.emplace_back(filter.substr(start, bar - start));
        start = bar + 1;
    }
    if (!parts.empty() && parts.back().empty())
        parts.pop_back(); // a closing "|"
    std::vector<FileFilter> pairs;
    for (std::size_t i = 0; i < parts.size(); i += 2)
        pairs.push_back({parts[i], i + 1 < parts.size() ? parts[i + 1] : std::string()});
    return pairs;
}

std::string TrimNulls(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string fileTitleOf(std::string_view path) {
    const std::size_t slash = path.find_last_of("\\/");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

} // namespace huebase
