// SPDX-License-Identifier: GPL-3.0-or-later
// The number and text operations: reading a number off a text, writing it back, by a mask.
#include "runtime/numbers.h"
#include "runtime/text.h"

#include <gtest/gtest.h>

#include <limits>

using namespace runtime;

namespace {

constexpr double kMax = std::numeric_limits<double>::max();

struct ValCase {
    std::string text;
    double value;
};

TEST(Val, ReadsTheNumberAtTheHeadOfTheText) {
    const ValCase cases[] = {
        {"", 0.0},        {"  12", 12.0},    {"1,000", 1.0},
        {"1E+2x", 100.0}, {"12.7abc", 12.7}, {"1e999", kMax},
        {"1e-999", 0.0},  {"nan", 0.0},      {std::string(10000, '9'), kMax},
        {" +7.5", 7.5},
    };
    for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << "Val(\"" << c.text.substr(0, 20) << "\")";
}

TEST(Str, GivesTheShortestPlainText) {
    const std::pair<double, const char*> cases[] = {
        {2.0, "2"}, {2.5, "2.5"}, {-0.0, "0"}, {1e14, "100000000000000"}, {1e15, "1e+15"}, {1e-20, "1e-20"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(Str(value), text) << "Str(" << value << ")";
}

struct FormatCase {
    double value;
    const char* mask;
    const char* text;
};

TEST(Format, FollowsTheMask) {
    const char* amount = "###,###,###,###";
    const FormatCase cases[] = {
        {100000000, amount, "100,000,000"},
        {0, amount, "0"},
        {-1234, amount, "-1,234"},
        {1e15, amount, "1,000,000,000,000,000"},
        {12345.5, amount, "12,346"},
        {-0.5, amount, "-1"},
        {1, "000", "001"},
        {-5, "00", "-05"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, c.mask), c.text) << "Format(" << c.value << ", " << c.mask << ")";
}

TEST(ToInt64, TruncatesTowardZeroAndSaturates) {
    EXPECT_EQ(intVal("144.9"), 144);
    EXPECT_EQ(intVal("-1.5"), -1);
    EXPECT_EQ(intVal("1e300"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Join(Split("1,000,000", ","), ""), "1000000");
}

} // namespace
