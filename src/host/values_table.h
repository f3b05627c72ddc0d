#pragma once

#include "util/variant.h"

#include <array>
#include <vector>

namespace huebase {

// A table of dynamically typed fields with rows numbered from 1 and two
// columns numbered 1 and 2, as the host session holds the values read from
// the exchange files. Every field starts Empty.
class ValuesTable {
public:
    using Row = std::array<Variant, 2>;

    ValuesTable() = default;
    // A negative row count is error 9, as dimensioning an array to it is.
    explicit ValuesTable(int rows);

    int rows() const noexcept { return static_cast<int>(rows_.size()); }
    bool empty() const noexcept { return rows_.empty(); }

    // The field at (row, column); a row outside 1..rows() or a column other
    // than 1 or 2 is error 9 (Subscript out of range).
    Variant& at(int row, int column);
    const Variant& at(int row, int column) const;

    // Row k of the table is element k - 1.
    const std::vector<Row>& data() const noexcept { return rows_; }
    std::vector<Row>& data() noexcept { return rows_; }

private:
    std::vector<Row> rows_;
};

} // namespace huebase
