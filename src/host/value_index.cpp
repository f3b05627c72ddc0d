#include "host/value_index.h"

#include <algorithm>
#include <cmath>

namespace huebase {

ValueIndex::ValueIndex(const ValuesTable& table) {
    numbers_.reserve(static_cast<std::size_t>(table.rows()));
    for (int row = 1; row <= table.rows(); ++row) {
        const Variant& key = table.at(row, 1);
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
                numbers_[number == 0.0 ? 0.0 : number] = row;
            break;
        }
        }
    }
}

int ValueIndex::numberRow(double number) const {
    if (std::isnan(number))
        return anyNumberRow_;
    const auto found = numbers_.find(number == 0.0 ? 0.0 : number);
    return std::max(found == numbers_.end() ? 0 : found->second, nanRow_);
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
