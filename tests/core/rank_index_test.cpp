#include "core/interval_fraction.h"
#include "core/rank_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace huebase {
namespace {

constexpr float kInf = std::numeric_limits<float>::infinity();

std::size_t expectedRank(const std::vector<float>& values, float x) {
    if (std::isnan(x))
        return 0;
    return static_cast<std::size_t>(std::upper_bound(values.begin(), values.end(), x) -
                                    values.begin());
}

TEST(RankIndex, EmptyIndexCountsNothing) {
    RankIndex index;
    EXPECT_EQ(index.countAtOrBelow(0.0f), 0u);
    index.assign({});
    EXPECT_EQ(index.size(), 0u);
    EXPECT_EQ(index.countAtOrBelow(kInf), 0u);
}

TEST(RankIndex, CountsMatchUpperBoundAcrossLevelSizes) {
    std::mt19937 random(99);
    // Sizes around the block and level boundaries (16, 256, 4096).
    for (const int n : {1, 2, 15, 16, 17, 31, 32, 33, 255, 256, 257, 272, 4095, 4096, 4097, 9000}) {
        for (const bool duplicates : {false, true}) {
            std::vector<float> values(n);
            for (float& v : values)
                v = duplicates
                        ? static_cast<float>(std::uniform_int_distribution<int>(-20, 20)(random))
                        : std::uniform_real_distribution<float>(-1e4f, 1e4f)(random);
            std::sort(values.begin(), values.end());
            RankIndex index;
            index.assign(values);
            ASSERT_EQ(index.size(), values.size());
            std::vector<float> queries{-kInf, kInf, std::numeric_limits<float>::quiet_NaN()};
            for (const float v : values) {
                queries.push_back(v);
                queries.push_back(std::nextafter(v, -kInf));
                queries.push_back(std::nextafter(v, kInf));
            }
            for (int k = 0; k < 500; ++k)
                queries.push_back(std::uniform_real_distribution<float>(-1.1e4f, 1.1e4f)(random));
            for (const float x : queries)
                ASSERT_EQ(index.countAtOrBelow(x), expectedRank(values, x))
                    << "x = " << x << ", " << n << " values";
        }
    }
}

TEST(RankIndex, InfiniteValuesAreCountedLikeOthers) {
    RankIndex index;
    index.assign({-kInf, -kInf, 0.0f, kInf});
    EXPECT_EQ(index.countAtOrBelow(-kInf), 2u);
    EXPECT_EQ(index.countAtOrBelow(-1.0f), 2u);
    EXPECT_EQ(index.countAtOrBelow(0.0f), 3u);
    EXPECT_EQ(index.countAtOrBelow(kInf), 4u);
}

// Differences chosen right beside the halfway points between floats are where
// multiplying by the reciprocal could round the other way than dividing.
TEST(IntervalFraction, RoundsLikeDividingEvenBesideHalfwayPoints) {
    std::mt19937 random(31337);
    int compared = 0;
    for (int round = 0; round < 20000; ++round) {
        const float span = std::uniform_real_distribution<float>(1e-3f, 1e3f)(random);
        // Every fourth one below the normal range, where floats keep fewer bits.
        const float below =
            round % 4 == 0 ? std::ldexp(static_cast<float>(
                                            std::uniform_int_distribution<int>(1, 1 << 22)(random)),
                                        -149)
                           : std::uniform_real_distribution<float>(1e-6f, 1.0f)(random);
        const double halfway = (static_cast<double>(below) + std::nextafter(below, 2.0f)) / 2;
        double difference = halfway * span;
        for (int k = 0; k < 8; ++k)
            difference = std::nextafter(difference, 0.0);
        for (int k = 0; k < 16; ++k) {
            const float expected = static_cast<float>(difference / span);
            ASSERT_EQ(intervalFraction(difference, 1.0 / span, span), expected)
                << "difference " << difference << ", span " << span;
            difference = std::nextafter(difference, 1e300);
            ++compared;
        }
    }
    EXPECT_EQ(compared, 20000 * 16);
}

TEST(IntervalFraction, ZeroTinyAndOrdinaryFractions) {
    EXPECT_EQ(intervalFraction(0.0, 1.0 / 3.0f, 3.0f), 0.0f);
    EXPECT_EQ(intervalFraction(1.0, 1.0 / 4.0f, 4.0f), 0.25f);
    EXPECT_EQ(intervalFraction(1.0, 1.0 / 3.0f, 3.0f), static_cast<float>(1.0 / 3.0f));
    // Below the normal float range the float keeps fewer bits.
    const double tiny = 3e-39;
    EXPECT_EQ(intervalFraction(tiny, 1.0 / 7.0f, 7.0f), static_cast<float>(tiny / 7.0f));
}

} // namespace
} // namespace huebase
