#include "host/exchange_reader.h"

#include "util/comma_reader.h"
#include "util/misc_files.h"
#include "util/text_file.h"
#include "util/vb_numeric.h"

#include <string_view>

namespace huebase {

void readExchangeTable(const std::string& path, ValuesTable& table) {
    CommaReader reader = CommaReader::fromFile(path);
    for (int row = 1; !reader.atEnd(); ++row) {
        Variant value = reader.readField();
        table.at(row, 1) = std::move(value);
        table.at(row, 2) = reader.readField();
    }
}

std::int16_t exchangeRowCount(const std::string& path) {
    const std::string text = readTextFile(path);
    const std::size_t last = text.find_last_not_of(" \t\r\n");
    const std::size_t length = last == std::string::npos ? 0 : last + 1;
    return checkedInt16(MiscFiles::lineCount(std::string_view(text).substr(0, length)));
}

} // namespace huebase
