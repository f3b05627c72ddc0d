#include "host/values_table.h"

#include "util/vb_error.h"

namespace huebase {

ValuesTable::ValuesTable(int rows) {
    if (rows < 0)
        throw VbError(VbError::SubscriptOutOfRange);
    rows_.resize(static_cast<std::size_t>(rows));
}

Variant& ValuesTable::at(int row, int column) {
    if (row < 1 || row > rows() || column < 1 || column > 2)
        throw VbError(VbError::SubscriptOutOfRange);
    return rows_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
}

const Variant& ValuesTable::at(int row, int column) const {
    return const_cast<ValuesTable&>(*this).at(row, column);
}

} // namespace huebase
