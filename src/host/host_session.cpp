#include "host/host_session.h"

#include "host/exchange_reader.h"
#include "host/export_format.h"
#include "util/messages.h"
#include "util/misc_files.h"
#include "util/program_exit.h"
#include "util/text_file.h"
#include "util/vb_numeric.h"

#include <cmath>
#include <utility>

namespace huebase {

HostSession::HostSession(std::string folder, HostNotifier& notifier)
    : folder_(std::move(folder)), notifier_(notifier) {}

std::string HostSession::colPath() const {
    return folder_ + "\\col.tmp";
}

std::string HostSession::lutPath() const {
    return folder_ + "\\lut.tmp";
}

const ValuesTable* HostSession::start() {
    const std::string path = colPath();
    if (!MiscFiles::FileExists(path)) {
        endProgram(0);
        return nullptr;
    }
    readError_.reset();
    std::optional<std::string> text = readText(path);
    bool filled = false;
    if (text) {
        try {
            sizeInputArray(exchangeRowCount(*text));
            filled = fillFromText(std::move(*text), input_);
        } catch (const VbError& error) {
            readError_ = error;
        }
    }
    if (!filled) {
        showMessage(readError_->message());
        endProgram(kStartFailedExitCode);
        return nullptr;
    }
    return &input_;
}

void HostSession::answerDefined(const ClutTable& colors) {
    try {
        answerSteps(colors);
    } catch (const VbError& error) {
        showMessage(error.message());
        NotifyHost(-1);
    }
    endProgram(0);
}

void HostSession::answerSteps(const ClutTable& colors) {
    colorInputRows(colors);
    const std::string path = lutPath();
    if (!MiscFiles::FileExists(path))
        return;
    if (!readExportTable(path)) {
        showMessage("Can't find export values table");
        NotifyHost(-1);
        return;
    }
    // The whole answer is built before the file is touched, so an error while
    // colouring the keys leaves the host's table as it was. Writing truncates:
    // should the delete fail (a read-only folder), the file is still rewritten
    // from its start, never appended to.
    const std::string answer = exportText();
    MiscFiles::KillFile(path);
    NotifyHost(writeTextFile(path, answer) ? 0 : -1);
}

void HostSession::colorInputRows(const ClutTable& colors) {
    hostColors_.clear();
    hostColors_.reserve(input_.data().size());
    for (ValuesTable::Row& row : input_.data()) {
        const std::int32_t color = hostColor(colors.ClutInterpolate(toSingle(row[0].toNumber())));
        row[1] = Variant(static_cast<double>(color));
        hostColors_.push_back(color);
    }
}

bool HostSession::readExportTable(const std::string& path) {
    std::optional<std::string> text = readText(path);
    if (!text)
        return false;
    output_ = ValuesTable(exchangeRowCount(*text));
    return fillFromText(std::move(*text), output_);
}

std::string HostSession::exportText() {
    if (!index_)
        index_.emplace(input_);
    // All look-ups first, in a loop of their own: each one is a likely cache
    // miss, and without the formatting in between the processor overlaps them.
    const std::vector<ValuesTable::Row>& rows = output_.data();
    std::vector<std::int32_t> colors(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int inputRow = index_->lastEqualRow(rows[i][0]);
        colors[i] = inputRow == 0 ? 0 : hostColors_[static_cast<std::size_t>(inputRow - 1)];
    }
    const char separator = localeDecimalSeparator();
    std::string text;
    text.reserve(rows.size() * 24);
    for (std::size_t i = 0; i < rows.size(); ++i)
        (text += exportLine(rows[i][1], colors[i], separator)) += MiscFiles::kLineEnd;
    return text;
}

bool HostSession::GetOrderedFile(const std::string& path) {
    index_.reset();
    return fill(path, input_);
}

bool HostSession::GetOutPutFile(const std::string& path) {
    return fill(path, output_);
}

bool HostSession::fill(const std::string& path, ValuesTable& table) {
    std::optional<std::string> text = readText(path);
    return text && fillFromText(std::move(*text), table);
}

std::optional<std::string> HostSession::readText(const std::string& path) {
    try {
        return readTextFile(path);
    } catch (const VbError& error) {
        readError_ = error;
        return std::nullopt;
    }
}

bool HostSession::fillFromText(std::string text, ValuesTable& table) {
    readError_.reset();
    try {
        readExchangeTable(std::move(text), table);
        return true;
    } catch (const VbError& error) {
        readError_ = error;
        return false;
    }
}

std::int32_t HostSession::FindColorInInputArrayFromValue(const Variant& value) {
    if (!index_)
        index_.emplace(input_);
    const int row = index_->lastEqualRow(value);
    return row == 0 ? 0 : toInt32(input_.at(row, 2).toNumber());
}

std::int16_t HostSession::ScalePercent(double value, double total) {
    const double scaled = value * 100.0;
    if (total == 0.0)
        throw VbError(scaled == 0.0 ? VbError::Overflow : VbError::DivisionByZero);
    const double quotient = scaled / total;
    if (std::isinf(quotient))
        throw VbError(VbError::Overflow);
    return toInt16(std::floor(quotient));
}

void HostSession::sizeInputArray(int rows) {
    input_ = ValuesTable(rows);
    index_.reset();
}

void HostSession::NotifyHost(std::int32_t code) {
    if (!notifier_.tell(hostStatusText(code)))
        showMessage(notifier_.unreachableMessage(), "Problem", MessageIcon::Critical);
}

} // namespace huebase
