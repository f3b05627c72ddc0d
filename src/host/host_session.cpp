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

namespace {
// The export table's row count. A file that cannot be read has no rows: the
// reading that follows fails on it and is reported like every other export
// table that cannot be read. Too many lines stay error 6.
int exportRowCount(const std::string& path) {
    try {
        return exchangeRowCount(path);
    } catch (const VbError& error) {
        if (error.number() == VbError::Overflow)
            throw;
        return 0;
    }
}
} // namespace

HostSession::HostSession(std::string folder, HostNotifier& notifier)
    : folder_(std::move(folder)), notifier_(notifier) {}

std::string HostSession::colPath() const {
    return folder_ + "\\col.tmp";
}

std::string HostSession::lutPath() const {
    return folder_ + "\\lut.tmp";
}

std::optional<ValuesTable> HostSession::start() {
    const std::string path = colPath();
    if (!MiscFiles::FileExists(path)) {
        endProgram(0);
        return std::nullopt;
    }
    readError_.reset();
    try {
        sizeInputArray(exchangeRowCount(path));
    } catch (const VbError& error) {
        readError_ = error;
    }
    if (readError_ || !GetOrderedFile(path)) {
        showMessage(readError_->message());
        endProgram(kStartFailedExitCode);
        return std::nullopt;
    }
    return input_;
}

void HostSession::answerDefined(const ColorLookup& lookup) {
    try {
        answerSteps(lookup);
    } catch (const VbError& error) {
        showMessage(error.message());
        NotifyHost(-1);
    }
    endProgram(0);
}

void HostSession::answerSteps(const ColorLookup& lookup) {
    colorInputRows(lookup);
    const std::string path = lutPath();
    if (!MiscFiles::FileExists(path))
        return;
    output_ = ValuesTable(exportRowCount(path));
    if (!GetOutPutFile(path)) {
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

void HostSession::colorInputRows(const ColorLookup& lookup) {
    for (int row = 1; row <= input_.rows(); ++row) {
        Variant& color = input_.at(row, 2);
        color = Variant(static_cast<double>(lookup(toSingle(input_.at(row, 1).toNumber()))));
        color = Variant(static_cast<double>(hostColor(toInt32(color.toNumber()))));
    }
}

std::string HostSession::exportText() {
    std::string text;
    for (int row = 1; row <= output_.rows(); ++row) {
        const std::int32_t color = FindColorInInputArrayFromValue(output_.at(row, 1));
        (text += exportLine(output_.at(row, 2), color)) += MiscFiles::kLineEnd;
    }
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
    readError_.reset();
    try {
        readExchangeTable(path, table);
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
