#include "browser/lut_file.h"

#include "util/comma_reader.h"
#include "util/messages.h"
#include "util/misc_files.h"
#include "util/text_file.h"
#include "util/vb_error.h"
#include "util/vb_numeric.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <optional>
#include <set>

namespace huebase::LutFile {

namespace {
constexpr std::int16_t kMaxRecords = 32767;

// Shows each message once per file: a file of thousands of bad records must
// not open thousands of boxes.
class LoadErrors {
public:
    void report(const VbError& error) {
        if (shown_.insert(error.message()).second)
            showMessage(error.message(), "LoadLut", MessageIcon::None, MessageButtons::Ok);
    }

private:
    std::set<std::string> shown_;
};

bool isTwoDigits(std::string_view piece) {
    return piece.size() == 2 && std::isdigit(static_cast<unsigned char>(piece[0])) &&
           std::isdigit(static_cast<unsigned char>(piece[1]));
}

// The line's eight pieces joined in pairs, or nothing when it is no
// decimal-comma record.
std::optional<std::string> joinedRecord(std::string_view line) {
    constexpr std::size_t kPieces = 8;
    std::array<std::string_view, kPieces> pieces;
    std::size_t count = 0;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = line.find(',', start);
        if (count == kPieces)
            return std::nullopt;
        pieces[count++] =
            line.substr(start, comma == std::string_view::npos ? comma : comma - start);
        if (comma == std::string_view::npos)
            break;
        start = comma + 1;
    }
    if (count != kPieces)
        return std::nullopt;
    std::string joined;
    for (std::size_t i = 0; i < kPieces; i += 2) {
        if (!isTwoDigits(pieces[i + 1]))
            return std::nullopt;
        if (i > 0)
            joined += ',';
        joined.append(pieces[i]).append(".").append(pieces[i + 1]);
    }
    return joined;
}

// The table is resized only when the count is a usable record count; the
// previous table stays otherwise, as a failed resize leaves it.
void resizeTable(LutRecords& lut, const Variant& count) {
    const std::int32_t n = toInt32(count.toNumber());
    if (n < 1)
        throw VbError(VbError::SubscriptOutOfRange);
    if (n > kMaxRecords)
        throw VbError(VbError::Overflow);
    lut.assign(static_cast<std::size_t>(n), LutRecord{});
}
} // namespace

std::string headerLine(ColorValue noDataColor, std::size_t nodeCount) {
    return std::to_string(noDataColor) + "," + std::to_string(nodeCount);
}

std::string recordLine(const LutNode& node, char decimalSeparator) {
    return formatFixed(node.value, decimalSeparator) + "," +
           formatFixed(node.method, decimalSeparator) + "," +
           formatFixed(node.color, decimalSeparator) + "," +
           formatFixed(node.upper, decimalSeparator);
}

bool writeLines(const std::function<bool(std::string_view)>& appendLine, const LutTable& table,
                ColorValue noDataColor, char decimalSeparator) {
    if (!appendLine(headerLine(noDataColor, table.size())))
        return false;
    for (const LutNode& node : table)
        if (!appendLine(recordLine(node, decimalSeparator)))
            return false;
    return true;
}

std::string text(const LutTable& table, ColorValue noDataColor, char decimalSeparator) {
    std::string result;
    writeLines(
        [&result](std::string_view line) {
            result.append(line);
            result.append(kLineEnd);
            return true;
        },
        table, noDataColor, decimalSeparator);
    return result;
}

SaveResult LutSaveAs(const std::string& path, const LutTable& table, ColorValue noDataColor,
                     char decimalSeparator) {
    if (MiscFiles::FileExists(path) &&
        showMessage("Overwrite " + path + " ?", "File exists ...", MessageIcon::None,
                    MessageButtons::OkCancel) == MessageAnswer::Cancel)
        return SaveResult::Cancelled;
    // The new file is written beside the old one and renamed over it: a save
    // that fails (a full disk, a read-only file) leaves the old ramp intact.
    if (replaceTextFile(path, text(table, noDataColor, decimalSeparator)))
        return SaveResult::Saved;
    showMessage("Can't access: " + path, {}, MessageIcon::None, MessageButtons::Ok);
    return SaveResult::Failed;
}

std::string joinDecimalCommaRecords(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool header = true;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        std::size_t next = end;
        if (next < text.size())
            next += text.compare(next, 2, "\r\n") == 0 ? 2 : 1;
        const std::string_view line = text.substr(start, end - start);
        const std::optional<std::string> joined = header ? std::nullopt : joinedRecord(line);
        if (joined)
            result.append(*joined);
        else
            result.append(line);
        result.append(text.substr(end, next - end));
        header = false;
        start = next;
    }
    return result;
}

void LoadLut(const std::string& path, LutRecords& lut, ColorValue& noDataColor) {
    if (path.empty())
        return;
    LoadErrors errors;
    const auto reportLoadError = [&errors](const VbError& error) { errors.report(error); };
    std::optional<CommaReader> reader;
    try {
        reader.emplace(joinDecimalCommaRecords(readTextFile(path)));
    } catch (const VbError& error) {
        reportLoadError(error);
        return;
    }

    Variant colorField;
    Variant countField;
    try {
        colorField = reader->readField();
        countField = reader->readField();
    } catch (const VbError& error) {
        reportLoadError(error);
    }
    try {
        noDataColor = toInt32(colorField.toNumber());
    } catch (const VbError& error) {
        reportLoadError(error);
    }
    try {
        resizeTable(lut, countField);
    } catch (const VbError& error) {
        reportLoadError(error);
    }

    std::int16_t i = 1;
    while (!reader->atEnd()) {
        LutRecord record;
        try {
            for (Variant& field : record)
                field = reader->readField();
        } catch (const VbError& error) {
            reportLoadError(error);
        }
        try {
            if (static_cast<std::size_t>(i) > lut.size())
                throw VbError(VbError::SubscriptOutOfRange);
            lut[static_cast<std::size_t>(i) - 1] = std::move(record);
        } catch (const VbError& error) {
            reportLoadError(error);
        }
        try {
            i = checkedInt16(std::int32_t{i} + 1);
        } catch (const VbError& error) {
            reportLoadError(error);
        }
    }

    try {
        std::for_each(lut.begin(), lut.end(), checkRanges);
    } catch (const VbError& error) {
        reportLoadError(error);
        lut.clear();
    }
}

} // namespace huebase::LutFile
