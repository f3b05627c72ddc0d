#include "host/value_index.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace huebase {

ValueIndex::ValueIndex(const ValuesTable& table) {
    const int slotBits = std::bit_width(static_cast<unsigned>(table.rows()) * 2u);
    numbers_.resize(std::size_t{1} << slotBits);
    shift_ = 64 - slotBits;
    int row = 0;
    for (const ValuesTable::Row& fields : table.data()) {
        ++row;
        const Variant& key = fields[0];
        switch (key.kind()) {
        case Variant::Kind::Empty:
            emptyRow_ = row;
            break;
        case Variant::Kind::Text:
            texts_[key.toText()] = row;
            break;
        case Variant::Kind::Number: {
            const double number = key.toNumber();
            anyNumberRow_ = row;
            if (std::isnan(number))
                nanRow_ = row;
            else
                addNumber(number == 0.0 ? 0.0 : number, row);
            break;
        }
        }
    }
}

// Fibonacci hashing of the key's bits: neighbouring values land far apart.
std::size_t ValueIndex::slotOf(double key) const noexcept {
    const auto bits = std::bit_cast<std::uint64_t>(key);
    return shift_ >= 64 ? 0 : static_cast<std::size_t>((bits * 0x9E3779B97F4A7C15ull) >> shift_);
}

void ValueIndex::addNumber(double key, int row) {
    const std::size_t mask = numbers_.size() - 1;
    std::size_t slot = slotOf(key);
    while (numbers_[slot].row != 0 && numbers_[slot].key != key)
        slot = (slot + 1) & mask;
    numbers_[slot] = {key, row};
}

int ValueIndex::numberRow(double number) const {
    if (std::isnan(number))
        return anyNumberRow_;
    const double key = number == 0.0 ? 0.0 : number;
    const std::size_t mask = numbers_.size() - 1;
    int row = 0;
    for (std::size_t slot = slotOf(key); numbers_[slot].row != 0; slot = (slot + 1) & mask)
        if (numbers_[slot].key == key) {
            row = numbers_[slot].row;
            break;
        }
    return std::max(row, nanRow_);
}

int ValueIndex::textRow(const std::string& text) const {
    const auto found = texts_.find(text);
    return found == texts_.end() ? 0 : found->second;
}

int ValueIndex::lastEqualRow(const Variant& value) const {
    switch (value.kind()) {
    case Variant::Kind::Number: {
        const double number = value.toNumber();
        const int row = numberRow(number);
        return number == 0.0 || std::isnan(number) ? std::max(row, emptyRow_) : row;
    }
    case Variant::Kind::Text: {
        const std::string text = value.toText();
        const int row = textRow(text);
        return text.empty() ? std::max(row, emptyRow_) : row;
    }
    case Variant::Kind::Empty:
        break;
    }
    return std::max({numberRow(0.0), textRow(std::string()), emptyRow_});
}

} // namespace huebase
