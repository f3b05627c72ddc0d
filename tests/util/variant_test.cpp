#include "util/error_test_support.h"
#include "util/variant.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace huebase {
namespace {

TEST(Variant, NumbersCompareNumericallyTextsByCodeAndEmptyTakesTheOtherSidesKind) {
    EXPECT_NE(Variant(1), Variant("1"));
    EXPECT_EQ(Variant(1.0), Variant(1));
    EXPECT_NE(Variant("abc"), Variant("ABC"));
    EXPECT_NE(Variant(0.1 + 0.2), Variant(0.3)); // numerically, not by text
    EXPECT_EQ(Variant(), Variant(0));
    EXPECT_EQ(Variant(), Variant(""));
    EXPECT_NE(Variant(), Variant(0.5));
    EXPECT_NE(Variant(), Variant(" "));
    EXPECT_LT(Variant(), Variant(1));
    EXPECT_GT(Variant(), Variant(-1));
    EXPECT_LT(Variant(), Variant("a"));
    std::vector<Variant> values{"b", 10, "B", 2.5, "10", -3, "a"};
    std::sort(values.begin(), values.end());
    EXPECT_EQ(values, (std::vector<Variant>{-3, 2.5, 10, "10", "B", "a", "b"}));
    EXPECT_LT(Variant(1e300), Variant(""));
}

TEST(Variant, NumericTextsConvertOthersAreTypeMismatch) {
    EXPECT_EQ(Variant(" 12.5\t").toNumber(), 12.5);
    EXPECT_EQ(Variant("+3").toNumber(), 3.0);
    EXPECT_EQ(Variant().toNumber(), 0.0);
    for (const char* text : {"abc", "", "12x", "1 2"})
        EXPECT_EQ(testing::errorNumberOf([&] { Variant(text).toNumber(); }), VbError::TypeMismatch)
            << text;
    EXPECT_EQ(Variant().toText(), "");
    EXPECT_EQ(Variant(0.1).toText(), "0.1");
    EXPECT_EQ(Variant(-17).toText(), "-17");
}

} // namespace
} // namespace huebase
