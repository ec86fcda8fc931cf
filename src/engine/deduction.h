// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The housing-loan tax deduction (住宅ローン控除): each year, a share of the balance at the year's
// end, for the first years of the loan, so long as the loan runs ten years or more.

#include "engine/lender.h"
#include "engine/schedule.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

struct TaxDeduction {
    double ratePercent = 0.7;
    std::int64_t years = 13;
    double cap = 30'000'000;              // on the balance that counts
    std::optional<std::int64_t> fromYear; // Western; the borrowing year where none
    std::optional<double> limit;          // the taxes the household pays, which it can't exceed
    friend bool operator==(const TaxDeduction&, const TaxDeduction&) = default;
};

// "deduction [RATE] [YEARS] [CAP] [from YEAR] [limit AMOUNT]": none where the line is about
// something else, an error where it names a deduction wrongly.
TermReading readDeduction(std::string_view line, std::optional<TaxDeduction>& deduction);
std::string deductionLine(const TaxDeduction& deduction);

// The months from the first payment's to the last payment's, both counted.
std::int64_t repaymentMonths(const std::vector<Payment>& payments);
constexpr std::int64_t kMinDeductionMonths = 120;

// The deduction of each year from the first: min(the balance after the year's last payment, or
// the one before, or the principal before any payment, cap) x rate, cut to 100 yen and to the
// limit; none after the pay-off or from `endsFrom` on.
struct YearDeduction {
    std::int64_t year = 0;
    double amount = 0.0;
    friend bool operator==(const YearDeduction&, const YearDeduction&) = default;
};
std::vector<YearDeduction> yearlyDeductions(const TaxDeduction& deduction, const std::vector<Payment>& payments,
                                            double principal, std::int64_t borrowedYear,
                                            std::optional<std::int64_t> endsFrom);

} // namespace engine
