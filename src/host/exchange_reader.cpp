#include "host/exchange_reader.h"

#include "util/comma_reader.h"

namespace huebase {

void readExchangeTable(const std::string& path, ValuesTable& table) {
    CommaReader reader = CommaReader::fromFile(path);
    for (int row = 1; !reader.atEnd(); ++row) {
        Variant value = reader.readField();
        table.at(row, 1) = std::move(value);
        table.at(row, 2) = reader.readField();
    }
}

} // namespace huebase
