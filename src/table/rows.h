// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rows of the table as the texts it shows: the payment number, the date under its era and
// the amounts with thousands separators. These texts are also what the table's operations read
// back: a typed-over cell counts as it reads.

#include "calendar/calendar.h"
#include "engine/plan.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace table {

// No., Repayment, Amount, Principal, Interest, Balance.
constexpr std::size_t kColumnCount = 6;
using Row = std::array<std::string, kColumnCount>;
// A row of any width: a plan's rows have a Prepaid column after Interest.
using Cells = std::vector<std::string>;

enum Column : std::size_t { kNumber, kDate, kAmount, kPrincipal, kInterest, kBalance };

// The amount mask of the table and of the sums.
inline constexpr std::string_view kAmountMask = "###,###,###,###";

// One row a payment. A date's year shows under `era`, or under the era that followed it where the
// date (tested with `payDay`) is past that era's end.
std::vector<Row> rowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay);
Row rowText(const engine::Payment& payment, int era, std::int64_t payDay);
// The columns a plan's rows add after Interest: the bonus part's payment where the loan has one,
// the prepaid amount, and under reviews the interest carried unpaid.
struct PlanColumns {
    bool bonus = false;
    bool prepaid = true;
    bool unpaid = false;
};
// The headings of those columns.
struct PlanHeadings {
    std::string bonus, prepaid, unpaid;
};
// The same rows with those columns, and their headings from the table's own and theirs.
std::vector<Cells> planRowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay,
                                PlanColumns columns);
Cells planRowText(const engine::Payment& payment, int era, std::int64_t payDay, PlanColumns columns);
Cells planHeadings(const Cells& headings, const PlanHeadings& added, PlanColumns columns);

// One row a calendar year: the Western year, the year as the date column shows its era (with the
// era's name from `eraNames`), the count of payments and the amounts, the balance at its end.
// With a tax deduction, each year's deduction before the balance.
std::vector<Cells> yearRowTexts(const std::vector<engine::YearFigures>& years, int era, std::int64_t payDay,
                                const std::array<std::string, calendar::kEraCount>& eraNames, bool withDeduction);
// The years' sums in their columns under the word `total`: the payments and the amounts, no
// balance.
Cells yearTotalsRow(const std::vector<engine::YearFigures>& years, const std::string& total, bool withDeduction);

} // namespace table
