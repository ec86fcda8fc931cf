// SPDX-License-Identifier: GPL-3.0-or-later
// Lender terms: interest by months with the first period's days left over, exact to the yen,
// and amounts cut to the yen. A loan walked by the terms, and the lines that set them, are in
// tests/tool/rules.t.
#include "engine/calculation.h"

#include <gtest/gtest.h>

using namespace engine;

namespace {

TEST(Lender, TheFirstPeriodCountsWholeMonthsFromTheBorrowingDayThenDays) {
    const std::tuple<calendar::Date, calendar::Date, std::int64_t, std::int64_t> cases[] = {
        {{2020, 4, 8}, {2020, 5, 8}, 1, 0},   {{2020, 3, 15}, {2020, 5, 8}, 1, 23}, // to 15 April, then 23 days
        {{2020, 3, 15}, {2020, 4, 8}, 0, 24}, {{2020, 1, 31}, {2020, 4, 30}, 3, 0}, // 29 February, 31 March, 30 April
        {{2020, 1, 31}, {2020, 3, 8}, 1, 8},                                        // 29 February, then 8 days
    };
    for (const auto& [borrowed, first, months, days] : cases) {
        const MonthsAndDays span = monthsAndDays(borrowed, first);
        EXPECT_EQ(std::pair(span.months, span.days), std::pair(months, days)) << first.Month() << "-" << first.Day();
    }
}

TEST(Lender, MonthlyInterestIsExactAndRoundedOnce) {
    const std::tuple<double, double, MonthsAndDays, double, double> cases[] = {
        // 45,000,000 x 0.7 % / 12 = 26,250 exactly, though doubles make it 26,249.999...
        {45'000'000, 0.7, {1, 0}, 26'250, 26'250},
        {44'905'416, 0.7, {1, 0}, 26'195, 26'194}, // 26,194.826
        // 30,000,000 x 1.5 %: 37,500 for the month and 450,000 x 20 / 365 = 24,657.534 for the days.
        {30'000'000, 1.5, {1, 20}, 62'158, 62'157},
        {-1'000, 6, {1, 0}, -5, -5}, // a negative balance rounds away from zero, or toward it
        {-1'100, 6, {1, 0}, -6, -5},
        {1'000.5, 12, {1, 0}, 10, 10}, // a fraction of a yen: binary arithmetic, 10.005
    };
    for (const auto& [balance, rate, span, nearest, down] : cases) {
        EXPECT_EQ(monthlyInterest(balance, rate, span, Rounding::Nearest), nearest) << balance << " at " << rate;
        EXPECT_EQ(monthlyInterest(balance, rate, span, Rounding::Down), down) << balance << " at " << rate;
    }
}

} // namespace
