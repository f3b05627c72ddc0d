#include "core/sort.h"
#include "util/variant.h"
#include "util/vb_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace huebase {
namespace {

std::int32_t last(const auto& a) {
    return static_cast<std::int32_t>(a.size()) - 1;
}

// Counts comparisons so that tests can tell insertion from partitioning.
struct Counted {
    int value = 0;
    int* comparisons = nullptr;

    friend bool operator<(const Counted& a, const Counted& b) {
        ++*a.comparisons;
        return a.value < b.value;
    }
    friend bool operator>(const Counted& a, const Counted& b) {
        ++*a.comparisons;
        return a.value > b.value;
    }
};

std::vector<Counted> counted(const std::vector<int>& values, int* comparisons) {
    std::vector<Counted> a;
    for (const int v : values)
        a.push_back({v, comparisons});
    return a;
}

std::vector<int> valuesOf(const std::vector<Counted>& a) {
    std::vector<int> values;
    for (const Counted& c : a)
        values.push_back(c.value);
    return values;
}

TEST(QuickSortRange, EmptyAndSingleRangesLeaveTheArrayAlone) {
    std::vector<Variant> a{3.0, 1.0, 2.0};
    const std::vector<Variant> before = a;
    Sort::QuickSortRange(a, 1, 1);
    Sort::QuickSortRange(a, 2, 0);
    Sort::QuickSortRange(a, 5, -7); // never touches the array, so no range error
    EXPECT_EQ(a, before);
    std::vector<float> none;
    Sort::QuickSortRange(none, 0, -1);
    EXPECT_TRUE(none.empty());
}

TEST(QuickSortRange, RangesOutsideTheArrayAreASubscriptError) {
    std::vector<float> a{2, 1, 0};
    try {
        Sort::QuickSortRange(a, 0, 3);
        FAIL() << "no error";
    } catch (const VbError& error) {
        EXPECT_EQ(error.number(), VbError::SubscriptOutOfRange);
    }
    EXPECT_THROW(Sort::QuickSortRange(a, -1, 2), VbError);
    EXPECT_EQ(a, (std::vector<float>{2, 1, 0}));
}

TEST(QuickSortRange, ThirteenElementsAreSortedByInsertionFourteenArePartitioned) {
    // Reverse order makes insertion compare every pair once: n(n-1)/2.
    std::vector<int> thirteen(13);
    std::iota(thirteen.rbegin(), thirteen.rend(), 0);
    int insertionCount = 0;
    auto a = counted(thirteen, &insertionCount);
    Sort::QuickSortRange(a, 0, last(a));
    EXPECT_TRUE(std::ranges::is_sorted(valuesOf(a)));
    EXPECT_EQ(insertionCount, 13 * 12 / 2);

    int direct = 0;
    auto b = counted(thirteen, &direct);
    Sort::InsertionSortRange(b, 0, last(b));
    EXPECT_EQ(direct, insertionCount);

    // Fourteen reversed elements by insertion alone would cost 91 comparisons;
    // the partition first splits them.
    std::vector<int> fourteen(14);
    std::iota(fourteen.rbegin(), fourteen.rend(), 0);
    int quickCount = 0;
    auto c = counted(fourteen, &quickCount);
    Sort::QuickSortRange(c, 0, last(c));
    EXPECT_TRUE(std::ranges::is_sorted(valuesOf(c)));
    EXPECT_LT(quickCount, 14 * 13 / 2);
}

TEST(QuickSortRange, SortedReversedAndAllEqualInput) {
    for (const int n : {2, 13, 14, 15, 100, 1001}) {
        std::vector<float> sorted(n);
        std::iota(sorted.begin(), sorted.end(), -50.0f);
        std::vector<float> a = sorted;
        Sort::QuickSortRange(a, 0, last(a));
        EXPECT_EQ(a, sorted) << n;
        std::vector<float> reversed(sorted.rbegin(), sorted.rend());
        Sort::QuickSortRange(reversed, 0, last(reversed));
        EXPECT_EQ(reversed, sorted) << n;
        std::vector<float> equal(n, 4.5f);
        Sort::QuickSortRange(equal, 0, last(equal));
        EXPECT_EQ(equal, std::vector<float>(n, 4.5f)) << n;
    }
}

TEST(QuickSortRange, NumbersSortBeforeTextsAndTextsByCharacterCode) {
    std::vector<Variant> a{"b", 10.0, "B", 2.0, "a", -1.5, "10", 2.0, "", 0.0, "ab", 7.0, "A", 3.0};
    Sort::QuickSortRange(a, 0, last(a));
    const std::vector<Variant> expected{-1.5, 0.0,  2.0, 2.0, 3.0, 7.0,  10.0,
                                        "",   "10", "A", "B", "a", "ab", "b"};
    EXPECT_EQ(a, expected);
}

TEST(QuickSortRange, RandomArraysEndInTheStandardOrder) {
    std::mt19937 random(20240607);
    for (int round = 0; round < 300; ++round) {
        const int n = std::uniform_int_distribution<int>(0, round < 200 ? 40 : 3000)(random);
        const int distinct = std::uniform_int_distribution<int>(1, 2 * n + 1)(random);
        std::vector<Variant> a;
        for (int k = 0; k < n; ++k) {
            const int pick = std::uniform_int_distribution<int>(0, distinct)(random);
            if (pick % 4 == 0)
                a.emplace_back("t" + std::to_string(pick));
            else
                a.emplace_back(pick * 0.5 - distinct / 4.0);
        }
        std::vector<Variant> expected = a;
        std::sort(expected.begin(), expected.end());
        Sort::QuickSortRange(a, 0, last(a));
        ASSERT_EQ(a, expected) << "round " << round << ", " << n << " elements";
    }
}

TEST(QuickSortRange, RandomSubrangesOfFloatsLeaveTheRestInPlace) {
    std::mt19937 random(77);
    std::uniform_real_distribution<float> value(-1e6f, 1e6f);
    for (int round = 0; round < 100; ++round) {
        std::vector<float> a(500);
        for (float& v : a)
            v = value(random);
        const std::int32_t lo = std::uniform_int_distribution<std::int32_t>(0, 499)(random);
        const std::int32_t hi = std::uniform_int_distribution<std::int32_t>(lo, 499)(random);
        std::vector<float> expected = a;
        std::sort(expected.begin() + lo, expected.begin() + hi + 1);
        Sort::QuickSortRange(a, lo, hi);
        ASSERT_EQ(a, expected) << lo << ".." << hi;
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

TEST(PartitionRange, SplitsRandomRangesAroundThePivot) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        const int n = std::uniform_int_distribution<int>(2, 60)(random);
        std::vector<float> a(n);
        for (float& v : a)
            v = static_cast<float>(std::uniform_int_distribution<int>(0, n / 2)(random));
        const float pivot = a[(n - 1) / 2];
        std::vector<float> before = a;
        const std::int32_t p = Sort::PartitionRange(a, 0, n - 1);
        ASSERT_GE(p, 0);
        ASSERT_LT(p, n);
        EXPECT_EQ(a[p], pivot);
        for (int k = 0; k < p; ++k)
            ASSERT_LE(a[k], pivot);
        for (int k = p + 1; k < n; ++k)
            ASSERT_GE(a[k], pivot);
        std::ranges::sort(before);
        std::ranges::sort(a);
        EXPECT_EQ(a, before) << "elements lost or duplicated";
    }
}

TEST(InsertionSortRange, SortsOnlyTheGivenRangeOfVariants) {
    std::vector<Variant> a{"z", 3.0, 1.0, "c", 2.0, 1.0, "z"};
    Sort::InsertionSortRange(a, 1, 5);
    EXPECT_EQ(a, (std::vector<Variant>{"z", 1.0, 1.0, 2.0, 3.0, "c", "z"}));
}

// Records how far the stack reaches below the first comparison.
struct StackProbe {
    const char* top = nullptr;
    std::ptrdiff_t deepest = 0;

    void touch() {
        const char marker = 0;
        const char* here = &marker;
        if (top == nullptr)
            top = here;
        deepest = std::max(deepest, top - here);
    }
};

struct Probed {
    int value = 0;
    StackProbe* probe = nullptr;

    friend bool operator<(const Probed& a, const Probed& b) {
        a.probe->touch();
        return a.value < b.value;
    }
    friend bool operator>(const Probed& a, const Probed& b) {
        a.probe->touch();
        return a.value > b.value;
    }
};

// Builds an input on which every middle pivot is the largest element of its
// range: the sort runs on undecided ("gas") elements, and a value is fixed only
// when a comparison needs it. The element that keeps being compared against
// the others (the pivot) is fixed to the largest value still free.
class PivotAdversary {
public:
    struct Gas {
        int id;
        PivotAdversary* adversary;

        friend bool operator<(const Gas& a, const Gas& b) { return a.adversary->compare(a, b) < 0; }
        friend bool operator>(const Gas& a, const Gas& b) { return a.adversary->compare(a, b) > 0; }
    };

    std::vector<int> input(int n) {
        fixed_.assign(n, -1);
        nextValue_ = n - 1;
        std::vector<Gas> a;
        for (int id = 0; id < n; ++id)
            a.push_back({id, this});
        Sort::QuickSortRange(a, 0, n - 1);
        for (int& v : fixed_)
            if (v < 0)
                v = nextValue_--;
        return fixed_;
    }

    int compare(const Gas& a, const Gas& b) {
        if (isGas(a.id) && isGas(b.id))
            fixed_[a.id == candidate_ ? a.id : b.id] = nextValue_--;
        if (isGas(a.id))
            candidate_ = a.id;
        else if (isGas(b.id))
            candidate_ = b.id;
        // Gas is below every fixed value.
        const int va = isGas(a.id) ? -1 : fixed_[a.id];
        const int vb = isGas(b.id) ? -1 : fixed_[b.id];
        return va - vb;
    }

private:
    bool isGas(int id) const { return fixed_[id] < 0; }

    std::vector<int> fixed_;
    int nextValue_ = 0;
    int candidate_ = 0;
};

TEST(QuickSortRange, RecursionStaysShallowWhenEveryPivotIsTheLargest) {
    const int n = 5000;
    StackProbe probe;
    std::vector<Probed> a;
    for (const int v : PivotAdversary().input(n))
        a.push_back({v, &probe});
    Sort::QuickSortRange(a, 0, n - 1);
    for (int k = 0; k < n; ++k)
        ASSERT_EQ(a[k].value, k);
    // Recursing into the larger part would nest thousands of frames here.
    EXPECT_LT(probe.deepest, 16 * 1024);
}

TEST(QuickSortRange, AMillionReversedElements) {
    const int n = 1000000;
    StackProbe probe;
    std::vector<Probed> a;
    for (int k = n - 1; k >= 0; --k)
        a.push_back({k, &probe});
    Sort::QuickSortRange(a, 0, n - 1);
    for (int k = 0; k < n; ++k)
        ASSERT_EQ(a[k].value, k);
    EXPECT_LT(probe.deepest, 16 * 1024);
}

} // namespace
} // namespace huebase
