// SPDX-License-Identifier: GPL-3.0-or-later
// The housing-loan tax deduction: each year's share of the year-end balance, its cap, the cut to
// 100 yen, the limit and the years it runs. The line that sets it is read in tests/tool/rules.t.
#include "engine/deduction.h"

#include <gtest/gtest.h>

using namespace engine;

namespace {

// Borrowed 40,000,000 in 2025; year-end balances 35,000,000 (2025) and 12,345,678 (2026), repaid
// in June 2027. At 0.7 %: min(35,000,000, 30,000,000) x 0.7 % = 210,000; 12,345,678 x 0.7 % =
// 86,419.75, cut to 86,400; 0 in the year of the pay-off, none after it.
TEST(Deduction, EachYearsShareOfItsBalanceCutTo100YenCappedAndLimited) {
    const std::vector<Payment> payments{
        {1, {2025, 12, 8}, 0, 0, 0, 35'000'000}, {2, {2026, 6, 8}, 0, 0, 0, 12'345'678}, {3, {2027, 6, 8}, 0, 0, 0, 0}};
    struct Case {
        TaxDeduction deduction;
        std::optional<std::int64_t> endsFrom;
        std::vector<YearDeduction> years;
        const char* why;
    };
    const Case cases[] = {
        {{}, {}, {{2025, 210'000}, {2026, 86'400}, {2027, 0}}, "the defaults"},
        {{0.7, 13, 30'000'000, 2024, 100'000},
         {},
         {{2024, 100'000}, {2025, 100'000}, {2026, 86'400}, {2027, 0}},
         "the principal before the first payment; the limit"},
        {{0.7, 2, 30'000'000, 2024, {}}, {}, {{2024, 210'000}, {2025, 210'000}}, "two years"},
        {{1, 13, 10'000'000, {}, {}}, {}, {{2025, 100'000}, {2026, 100'000}, {2027, 0}}, "a cap below the balance"},
        {{}, 2026, {{2025, 210'000}}, "none from the year the ten-year rule ends it"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(yearlyDeductions(c.deduction, payments, 40'000'000, 2025, c.endsFrom), c.years) << c.why;
}

} // namespace
