#include "browser/lut_file.h"

#include "util/comma_reader.h"
#include "util/messages.h"
#include "util/misc_files.h"
#include "util/text_file.h"
#include "util/vb_error.h"
#include "util/vb_numeric.h"

#include <cstdint>
#include <optional>

namespace huebase::LutFile {

namespace {
constexpr std::int16_t kMaxRecords = 32767;

void reportLoadError(const VbError& error) {
    showMessage(error.message(), "LoadLut", MessageIcon::None, MessageButtons::Ok);
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

void LoadLut(const std::string& path, LutRecords& lut, ColorValue& noDataColor) {
    if (path.empty())
        return;
    std::optional<CommaReader> reader;
    try {
        reader.emplace(CommaReader::fromFile(path));
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
}

} // namespace huebase::LutFile
