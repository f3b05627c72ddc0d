#pragma once

#include "host/values_table.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace huebase {

// The rows of a table by the field in column 1, for answering "the last row
// whose column 1 equals this value" without scanning every row per query.
//
// Equality is that of dynamically typed fields: numbers numerically (so 0
// and -0 are one key), texts by character, a number and a text never; Empty
// equals 0 and "" alike. Because Empty sits on both sides, the index keeps
// numbers, texts and Empty apart and merges the candidates per query.
//
// Numbers sit in one flat open-addressed table, so a query usually reads one
// cache line; a node-based map would chase a pointer per query, which
// dominated the answer to a 32,767-row export table. Texts are rare in the
// exchange files and stay in a map.
class ValueIndex {
public:
    ValueIndex() = default;
    // Indexes column 1 of every row; later rows replace earlier ones.
    explicit ValueIndex(const ValuesTable& table);

    // The highest row whose column 1 equals value, or 0 when none does.
    int lastEqualRow(const Variant& value) const;

private:
    int numberRow(double number) const;
    int textRow(const std::string& text) const;

    struct NumberSlot {
        double key = 0.0;
        int row = 0; // 0: a free slot
    };
    std::size_t slotOf(double key) const noexcept;
    void addNumber(double key, int row);

    std::vector<NumberSlot> numbers_; // a power of two, at most half full
    int shift_ = 64;
    std::unordered_map<std::string, int> texts_;
    int emptyRow_ = 0;
    // A NaN compares equal to every number, so it is kept aside.
    int nanRow_ = 0;
    int anyNumberRow_ = 0;
};

} // namespace huebase
