// SPDX-License-Identifier: GPL-3.0-or-later
// Lender terms: interest by months with the first period's days left over, exact to the yen,
// and amounts cut to the yen. The lines that set them are read in tests/tool/rules.t.
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

// 1,000,000 at 1.6 % in 3 payments from 2020-03-15, pay day 8, "2After": first payment 2020-05-08,
// one month and 23 days after. By hand, monthly: 1,000,000 x 1.6 % x (1/12 + 23/365) = 2,341.55;
// then 668,119 x 1.6 % / 12 = 890.83 (668,143 by days: 54 days at 1.6 % / 365.2422 = 2,365.55).
// The flat payment 334,222.62; equal principal 333,333.33, then 666,667 x 1.6 % / 12 = 888.89.
TEST(Lender, TheWalkCountsAndRoundsByTheTerms) {
    struct Case {
        bool flat;
        LenderTerms terms;
        std::vector<std::array<double, 4>> rows; // amount, principal, interest, balance
    };
    const Case cases[] = {
        {true,
         {InterestRule::Daily, Rounding::Down, {}},
         {{334'222, 331'857, 2'365, 668'143}, {334'222, 333'315, 907, 334'828}, {335'268, 334'828, 440, 0}}},
        {true,
         {InterestRule::Monthly, Rounding::Nearest, {}},
         {{334'223, 331'881, 2'342, 668'119}, {334'223, 333'332, 891, 334'787}, {335'233, 334'787, 446, 0}}},
        {true,
         {InterestRule::Monthly, Rounding::Down, {}},
         {{334'222, 331'881, 2'341, 668'119}, {334'222, 333'332, 890, 334'787}, {335'233, 334'787, 446, 0}}},
        {false,
         {InterestRule::Monthly, Rounding::Down, {}},
         {{335'674, 333'333, 2'341, 666'667}, {334'221, 333'333, 888, 333'334}, {333'778, 333'334, 444, 0}}},
    };
    for (const Case& c : cases) {
        LoanForm form{"1,000,000",         "1.6", "3", "1", calendar::kWestern, {"2020", "3", "15", "8"},
                      calendar::kTwoAfter, c.flat};
        std::vector<std::array<double, 4>> rows;
        for (const Payment& p : calculate(form, {}, {}, c.terms).payments)
            rows.push_back({p.amount, p.principal, p.interest, p.balance});
        EXPECT_EQ(rows, c.rows) << (c.flat ? "flat " : "equal ") << termLines(c.terms).front();
    }
}

} // namespace
