#include "host/exchange_reader.h"

#include "util/comma_reader.h"
#include "util/misc_files.h"
#include "util/vb_numeric.h"

#include <string_view>

namespace huebase {

void readExchangeTable(std::string text, ValuesTable& table) {
    CommaReader reader(std::move(text));
    for (int row = 1; !reader.atEnd(); ++row) {
        Variant value = reader.readField();
        table.at(row, 1) = std::move(value);
        table.at(row, 2) = reader.readField();
    }
}

std::int16_t exchangeRowCount(std::string_view text) {
    const std::size_t last = text.find_last_not_of(" \t\r\n");
    const std::size_t length = last == std::string_view::npos ? 0 : last + 1;
    return checkedInt16(MiscFiles::lineCount(text.substr(0, length)));
}

} // namespace huebase
