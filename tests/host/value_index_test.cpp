#include "host/value_index.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace huebase {
namespace {

ValuesTable tableOf(const std::vector<Variant>& keys) {
    ValuesTable table(static_cast<int>(keys.size()));
    for (int row = 1; row <= table.rows(); ++row)
        table.at(row, 1) = keys[static_cast<std::size_t>(row - 1)];
    return table;
}

// The meaning the index must keep: the last row whose key equals the value.
int lastEqualRowByScan(const ValuesTable& table, const Variant& value) {
    int found = 0;
    for (int row = 1; row <= table.rows(); ++row)
        if (table.at(row, 1) == value)
            found = row;
    return found;
}

TEST(ValueIndexLookup, LastEqualRowWins) {
    const ValuesTable table = tableOf({5, 7, 5, "5", 7.0});
    const ValueIndex index(table);
    EXPECT_EQ(index.lastEqualRow(5), 3);
    EXPECT_EQ(index.lastEqualRow(7), 5);
    EXPECT_EQ(index.lastEqualRow(6), 0);
}

TEST(ValueIndexLookup, NumbersAndTextsNeverMatchEachOther) {
    const ValueIndex index(tableOf({"12", 3}));
    EXPECT_EQ(index.lastEqualRow(12), 0);
    EXPECT_EQ(index.lastEqualRow("12"), 1);
    EXPECT_EQ(index.lastEqualRow("3"), 0);
    EXPECT_EQ(index.lastEqualRow(" 3"), 0);
}

TEST(ValueIndexLookup, ZeroAndMinusZeroAreOneNumber) {
    const ValueIndex index(tableOf({-0.0, 1}));
    EXPECT_EQ(index.lastEqualRow(0.0), 1);
}

TEST(ValueIndexLookup, EmptyEqualsZeroAndEmptyText) {
    const ValuesTable table = tableOf({0, Variant(), "", 4});
    const ValueIndex index(table);
    EXPECT_EQ(index.lastEqualRow(0), 2);
    EXPECT_EQ(index.lastEqualRow(""), 3);
    EXPECT_EQ(index.lastEqualRow(Variant()), 3);
    EXPECT_EQ(ValueIndex(tableOf({Variant(), 0})).lastEqualRow(""), 1);
}

TEST(ValueIndexLookup, AgreesWithTheRowByRowScanOnMixedTables) {
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> pick(0, 9);
    const auto randomField = [&]() -> Variant {
        const int n = pick(random);
        if (n == 0)
            return Variant();
        if (n == 1)
            return Variant(std::string(static_cast<std::size_t>(pick(random) % 2), 'a'));
        if (n == 2)
            return Variant(std::to_string(pick(random)));
        if (n == 3)
            return Variant(-0.0);
        return Variant(pick(random) * 0.5);
    };
    for (int round = 0; round < 200; ++round) {
        std::vector<Variant> keys(static_cast<std::size_t>(pick(random) * 3));
        for (Variant& key : keys)
            key = randomField();
        const ValuesTable table = tableOf(keys);
        const ValueIndex index(table);
        for (int query = 0; query < 20; ++query) {
            const Variant value = randomField();
            ASSERT_EQ(index.lastEqualRow(value), lastEqualRowByScan(table, value))
                << "round " << round << " value " << value.toText();
        }
    }
}

} // namespace
} // namespace huebase
