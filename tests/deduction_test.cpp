// SPDX-License-Identifier: GPL-3.0-or-later
// The housing-loan tax deduction: each year's share of the year-end balance, its cap, the cut to
// 100 yen, the limit, the years it runs, and the line that sets it.
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

TEST(Deduction, LinesReadAndWrittenBack) {
    const std::pair<const char*, const char*> cases[] = {
        {"deduction", "deduction 0.7 13 30000000"},
        {"deduction 1 100", "deduction 1 100 30000000"},
        {"deduction 1 1 9007199254740992", "deduction 1 1 9007199254740992"},
        {"deduction 1 1 9007199254740994", ""},
        {"deduction 0.7 13 30,000,000 from 2025 limit 250,000", "deduction 0.7 13 30000000 from 2025 limit 250000"},
        {"deduction limit 1", "deduction 0.7 13 30000000 limit 1"},
        {"deduction 0.7 13.5", ""},
        {"deduction 1 101", ""},
        {"deduction -1", ""},
        {"deduction from", ""},
        {"deduction 1 2 3 4", ""},
    };
    for (const auto& [line, written] : cases) {
        std::optional<TaxDeduction> read;
        const TermReading reading = readDeduction(line, read);
        EXPECT_TRUE(reading.isTerm) << line;
        EXPECT_EQ(read ? deductionLine(*read) : "", written) << line;
        EXPECT_EQ(reading.error.empty(), *written != '\0') << line;
    }
}

} // namespace
