#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace runtime;

namespace {

struct ValCase {
    const char* text;
    double value;
};

TEST(Val, ReadsTheNumberAtTheHeadOfTheText) {
    constexpr double kMax = std::numeric_limits<double>::max();
    const ValCase cases[] = {
        {"", 0.0},
        {"abc", 0.0},
        {"   ", 0.0},
        {"2.0", 2.0},
        {"  12", 12.0},
        {"\t7", 7.0},
        {"+5", 5.0},
        {"-3", -3.0},
        {".5", 0.5},
        {"5.", 5.0},
        {".", 0.0},
        {"-.", 0.0},
        {"1,000", 1.0},
        {"1e3", 1000.0},
        {"1E+2x", 100.0},
        {"2e-1", 0.2},
        {"1e", 1.0},
        {"1e+", 1.0},
        {"3 4", 3.0},
        {"0144", 144.0},
        {"12.7abc", 12.7},
        {"1e999", kMax},
        {"-1e999", -kMax},
        {"1e-999", 0.0},
        {"nan", 0.0},
        {"inf", 0.0},
        {"0x10", 0.0},
        {"\xEF\xBC\x91", 0.0},
        {"1e99999999999999999999", kMax},
        {"0.000e99999", 0.0},
    };
    for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << "Val(\"" << c.text << "\")";
}

TEST(Val, ReadsALongNumberWithoutOverflow) {
    EXPECT_EQ(Val(std::string(10000, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("0." + std::string(10000, '0') + "1"), 0.0);
    EXPECT_EQ(Val(std::string(10000, '0') + "42"), 42.0);
    EXPECT_EQ(Val("-0"), 0.0);
}

struct StrCase {
    double value;
    const char* text;
};

TEST(Str, GivesTheShortestPlainText) {
    const StrCase cases[] = {
        {2.0, "2"},
        {2.5, "2.5"},
        {144.0, "144"},
        {0.0, "0"},
        {-0.0, "0"},
        {-3.0, "-3"},
        {0.1, "0.1"},
        {1.0 / 3.0, "0.3333333333333333"},
        {1e14, "100000000000000"},
        {1e15, "1e+15"},
        {1e-20, "1e-20"},
        {12345.6, "12345.6"},
        {0.0001, "0.0001"},
    };
    for (const auto& c : cases) EXPECT_EQ(Str(c.value), c.text) << "Str(" << c.value << ")";
    EXPECT_EQ(Str(std::int64_t{-42}), "-42");
}

struct FormatCase {
    double value;
    const char* mask;
    const char* text;
};

TEST(Format, FollowsTheMask) {
    const FormatCase cases[] = {
        {100000000, "###,###,###,###", "100,000,000"},
        {781684, "###,###,###,###", "781,684"},
        {0, "###,###,###,###", "0"},
        {-0.0, "###,###,###,###", "0"},
        {-1234, "###,###,###,###", "-1,234"},
        {999, "###,###,###,###", "999"},
        {1e15, "###,###,###,###", "1,000,000,000,000,000"},
        {12345.6, "###,###,###,###", "12,346"},
        {0.5, "###,###,###,###", "1"},
        {1, "000", "001"},
        {1000, "000", "1000"},
        {5, "00", "05"},
        {-5, "00", "-05"},
        {2032, "####", "2032"},
        {14, "##", "14"},
        {3, "##", "3"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, c.mask), c.text) << "Format(" << c.value << ", " << c.mask << ")";
}

TEST(Round, TakesHalvesAwayFromZero) {
    EXPECT_EQ(Round(50.5), 51.0);
    EXPECT_EQ(Round(-50.5), -51.0);
    EXPECT_EQ(Round(2.4999), 2.0);
}

TEST(ToInt64, TruncatesAndSaturates) {
    constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
    constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(toInt64(144.9), 144);
    EXPECT_EQ(toInt64(-1.5), -1);
    EXPECT_EQ(toInt64(1e300), kMax);
    EXPECT_EQ(toInt64(-1e300), kMin);
    EXPECT_EQ(toInt64(9223372036854775808.0), kMax);
    EXPECT_EQ(toInt64(std::nan("")), 0);
    EXPECT_EQ(toInt64(std::numeric_limits<double>::infinity()), kMax);
}

} // namespace
