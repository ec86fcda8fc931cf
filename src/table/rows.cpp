// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/rows.h"

#include "calendar/era.h"
#include "engine/plan.h"
#include "runtime/numbers.h"

namespace table {
namespace {

using runtime::Format;

// "24.04.08": the year under its era, the month and the day, two digits each.
std::string dateCell(std::int64_t year, std::int64_t month, std::int64_t day) {
    const auto twoDigits = [](std::int64_t n) { return Format(static_cast<double>(n), "00"); };
    std::string cell = twoDigits(year % 100);
    cell += '.';
    cell += twoDigits(month);
    cell += '.';
    cell += twoDigits(day);
    return cell;
}

} // namespace

std::vector<Row> rowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay) {
    std::vector<Row> rows;
    rows.reserve(payments.size());
    for (const engine::Payment& payment : payments) {
        // The era of the form, or the one that followed it by the payment's date.
        const auto shown = calendar::displayedEraYear(era, payment.date.Year(), payment.date.Month(), payDay);
        Row& row = rows.emplace_back();
        row[kNumber] = Format(static_cast<double>(payment.number), "000");
        row[kDate] = dateCell(shown.year, payment.date.Month(), payment.date.Day());
        row[kAmount] = Format(payment.amount, kAmountMask);
        row[kPrincipal] = Format(payment.principal, kAmountMask);
        row[kInterest] = Format(payment.interest, kAmountMask);
        row[kBalance] = Format(payment.balance, kAmountMask);
    }
    return rows;
}

std::vector<Cells> planRowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay) {
    const std::vector<Row> rows = rowTexts(payments, era, payDay);
    std::vector<Cells> cells;
    cells.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Cells& row = cells.emplace_back(rows[i].begin(), rows[i].end());
        row.insert(row.begin() + kBalance, Format(payments[i].prepaid, kAmountMask));
    }
    return cells;
}

std::vector<Cells> yearRowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay,
                                const std::array<std::string, calendar::kEraCount>& eraNames) {
    const auto amount = [](double value) { return Format(value, kAmountMask); };
    std::vector<Cells> rows;
    for (const engine::YearFigures& y : engine::yearlyFigures(payments)) {
        const auto shown = calendar::displayedEraYear(era, y.year, y.lastPayment.Month(), payDay);
        const std::string eraYear = shown.era == calendar::kWestern ? runtime::Str(shown.year)
                                                                    : eraNames[static_cast<std::size_t>(shown.era)] +
                                                                          " " + runtime::Str(shown.year);
        rows.push_back({runtime::Str(y.year), eraYear, runtime::Str(y.payments), amount(y.amount), amount(y.principal),
                        amount(y.interest), amount(y.prepaid), amount(y.fees), amount(y.balance)});
    }
    return rows;
}

} // namespace table
