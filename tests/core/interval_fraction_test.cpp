#include "core/interval_fraction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace huebase {
namespace {

// Differences right beside the halfway points between floats are where
// multiplying by the reciprocal could round the other way than dividing.
TEST(IntervalFraction, RoundsLikeDividingEvenBesideHalfwayPoints) {
    EXPECT_EQ(intervalFraction(0.0, 1.0 / 3.0f, 3.0f), 0.0f);
    std::mt19937 random(31337);
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
        for (int k = 0; k < 16; ++k, difference = std::nextafter(difference, 1e300))
            ASSERT_EQ(intervalFraction(difference, 1.0 / span, span),
                      static_cast<float>(difference / span))
                << "difference " << difference << ", span " << span;
    }
}

} // namespace
} // namespace huebase
