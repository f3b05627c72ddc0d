#include "core/sort.h"
#include "util/variant.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace huebase {
namespace {

std::int32_t last(const auto& a) {
    return static_cast<std::int32_t>(a.size()) - 1;
}

// Elements are indices into `value`; each comparison is counted and the depth
// of the stack below the first one recorded. A value of -1 is decided only when
// a comparison needs it, so that every middle pivot is the largest element of
// its range: undecided values are below every decided one, and the element
// that keeps being compared (the pivot) takes the largest value still free.
struct Keys {
    struct Key {
        int id;
        Keys* keys;

        friend bool operator<(Key a, Key b) { return a.keys->compare(a.id, b.id) < 0; }
        friend bool operator>(Key a, Key b) { return a.keys->compare(a.id, b.id) > 0; }
    };

    int compare(int x, int y) {
        ++comparisons;
        const char marker = 0;
        top = top == nullptr ? &marker : top;
        deepest = std::max(deepest, top - &marker);
        if (value[x] < 0 && value[y] < 0)
            value[x == candidate ? x : y] = free--;
        candidate = value[x] < 0 ? x : value[y] < 0 ? y : candidate;
        return value[x] - value[y];
    }

    // Sorts the keys and gives their values in the final order.
    std::vector<int> sort(bool byInsertion = false) {
        std::vector<Key> a;
        for (int id = 0; id < static_cast<int>(value.size()); ++id)
            a.push_back({id, this});
        byInsertion ? Sort::InsertionSortRange(a, 0, last(a)) : Sort::QuickSortRange(a, 0, last(a));
        std::vector<int> values;
        for (const Key& key : a)
            values.push_back(value[key.id]);
        return values;
    }

    std::vector<int> value;
    int free = static_cast<int>(value.size()) - 1;
    int candidate = 0;
    long comparisons = 0;
    const char* top = nullptr;
    std::ptrdiff_t deepest = 0;
};

TEST(QuickSortRange, EmptyRangesLeaveTheArrayAlone) {
    std::vector<Variant> a{3.0, 1.0, 2.0};
    Sort::QuickSortRange(a, 1, 1);
    Sort::QuickSortRange(a, 2, 0);
    Sort::QuickSortRange(a, 5, -7); // never touches the array, so no range error
    EXPECT_EQ(a, (std::vector<Variant>{3.0, 1.0, 2.0}));
}

TEST(QuickSortRange, ThirteenElementsAreSortedByInsertionFourteenArePartitioned) {
    // Insertion compares every pair of a reversed range once: n(n-1)/2.
    const std::vector<int> thirteen{12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
    Keys quick{thirteen}, insertion{thirteen},
        fourteen{{13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}};
    EXPECT_TRUE(std::ranges::is_sorted(quick.sort()));
    EXPECT_TRUE(std::ranges::is_sorted(insertion.sort(true)));
    EXPECT_TRUE(std::ranges::is_sorted(fourteen.sort()));
    EXPECT_EQ(quick.comparisons, 13 * 12 / 2);
    EXPECT_EQ(insertion.comparisons, 13 * 12 / 2);
    EXPECT_LT(fourteen.comparisons, 14 * 13 / 2);
}

TEST(QuickSortRange, SortedReversedAndEqualInputsTakeNLogNComparisonsAndAShallowStack) {
    for (const int n : {14, 100, 5000}) {
        Keys sorted{std::vector<int>(n)}, reversed{std::vector<int>(n)},
            equal{std::vector<int>(n, 4)};
        for (int k = 0; k < n; ++k) {
            sorted.value[k] = k;
            reversed.value[k] = n - 1 - k;
        }
        const std::vector<int> expected = sorted.value;
        EXPECT_EQ(sorted.sort(), expected);
        EXPECT_EQ(reversed.sort(), expected);
        EXPECT_EQ(equal.sort(), std::vector<int>(n, 4));
        for (const Keys* keys : {&sorted, &reversed, &equal}) {
            EXPECT_LT(keys->comparisons, 3 * n * std::log2(n)) << n;
            EXPECT_LT(keys->deepest, 16 * 1024) << n;
        }
    }
}

TEST(QuickSortRange, RecursionStaysShallowWhenEveryPivotIsTheLargest) {
    Keys adversary{std::vector<int>(5000, -1)};
    EXPECT_TRUE(std::ranges::is_sorted(adversary.sort()));
    EXPECT_GT(adversary.comparisons, 5000L * 5000 / 8) << "the pivots were not the largest";
    // Recursing into the larger part would nest thousands of frames here.
    EXPECT_LT(adversary.deepest, 16 * 1024);
}

TEST(QuickSortRange, RandomRangesOfNumbersAndTextsEndInTheStandardOrder) {
    std::mt19937 random(20240607);
    auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(random); };
    for (int round = 0; round < 400; ++round) {
        const int n = pick(1, round < 300 ? 40 : 3000);
        const int distinct = pick(1, 2 * n + 1);
        std::vector<Variant> a;
        for (int k = 0; k < n; ++k) {
            const int v = pick(0, distinct);
            a.push_back(v % 4 == 0 ? Variant("t" + std::to_string(v)) : Variant(v * 0.5 - n / 4.0));
        }
        const std::int32_t lo = round % 2 == 0 ? 0 : pick(0, n - 1);
        const std::int32_t hi = round % 2 == 0 ? n - 1 : pick(lo, n - 1);
        std::vector<Variant> expected = a;
        std::sort(expected.begin() + lo, expected.begin() + hi + 1);
        Sort::QuickSortRange(a, lo, hi);
        ASSERT_EQ(a, expected) << "round " << round << ": " << lo << ".." << hi << " of " << n;
    }
}

TEST(PartitionRange, PlacesTheMiddleElementAndReturnsItsIndex) {
    std::vector<float> a{5, 8, 2, 7, 1, 9, 3};
    EXPECT_EQ(Sort::PartitionRange(a, 0, 6), 4);
    EXPECT_EQ(a, (std::vector<float>{1, 3, 2, 5, 7, 9, 8}));
    std::vector<float> b{3, 1, 4, 1, 5, 9, 2, 6};
    EXPECT_EQ(Sort::PartitionRange(b, 0, 7), 1);
    EXPECT_EQ(b, (std::vector<float>{1, 1, 4, 3, 5, 9, 2, 6}));
}

} // namespace
} // namespace huebase
