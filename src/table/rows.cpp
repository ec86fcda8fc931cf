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

Row rowText(const engine::Payment& payment, int era, std::int64_t payDay) {
    // The era of the form, or the one that followed it by the payment's date.
    const auto shown = calendar::displayedEraYear(era, payment.date.Year(), payment.date.Month(), payDay);
    return {Format(static_cast<double>(payment.number), "000"),
            dateCell(shown.year, payment.date.Month(), payment.date.Day()),
            Format(payment.amount, kAmountMask),
            Format(payment.principal, kAmountMask),
            Format(payment.interest, kAmountMask),
            Format(payment.balance, kAmountMask)};
}

std::vector<Row> rowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay) {
    std::vector<Row> rows;
    rows.reserve(payments.size());
    for (const engine::Payment& payment : payments) rows.push_back(rowText(payment, era, payDay));
    return rows;
}

Cells planHeadings(const Cells& headings, const PlanHeadings& added, PlanColumns columns) {
    Cells cells = headings;
    if (columns.unpaid) cells.insert(cells.begin() + kBalance, added.unpaid);
    if (columns.prepaid) cells.insert(cells.begin() + kBalance, added.prepaid);
    if (columns.bonus) cells.insert(cells.begin() + kBalance, added.bonus);
    return cells;
}

Cells planRowText(const engine::Payment& payment, int era, std::int64_t payDay, PlanColumns columns) {
    const Row row = rowText(payment, era, payDay);
    return planHeadings(
        Cells(row.begin(), row.end()),
        {Format(payment.bonus, kAmountMask), Format(payment.prepaid, kAmountMask), Format(payment.unpaid, kAmountMask)},
        columns);
}

std::vector<Cells> planRowTexts(const std::vector<engine::Payment>& payments, int era, std::int64_t payDay,
                                PlanColumns columns) {
    std::vector<Cells> rows;
    rows.reserve(payments.size());
    for (const engine::Payment& payment : payments) rows.push_back(planRowText(payment, era, payDay, columns));
    return rows;
}

std::vector<Cells> yearRowTexts(const std::vector<engine::YearFigures>& years, int era, std::int64_t payDay,
                                const std::array<std::string, calendar::kEraCount>& eraNames, bool withDeduction) {
    const auto amount = [](double value) { return Format(value, kAmountMask); };
    std::vector<Cells> rows;
    for (const engine::YearFigures& y : years) {
        const auto shown = calendar::displayedEraYear(era, y.year, y.lastPayment.Month(), payDay);
        const std::string eraYear = shown.era == calendar::kWestern ? runtime::Str(shown.year)
                                                                    : eraNames[static_cast<std::size_t>(shown.era)] +
                                                                          " " + runtime::Str(shown.year);
        rows.push_back({runtime::Str(y.year), eraYear, runtime::Str(y.payments), amount(y.amount), amount(y.principal),
                        amount(y.interest), amount(y.prepaid), amount(y.fees), amount(y.balance)});
        if (withDeduction) rows.back().insert(rows.back().end() - 1, amount(y.deduction));
    }
    return rows;
}

Cells yearTotalsRow(const std::vector<engine::YearFigures>& years, const std::string& total, bool withDeduction) {
    engine::YearFigures sum;
    for (const engine::YearFigures& y : years) {
        sum.payments += y.payments;
        sum.amount += y.amount;
        sum.principal += y.principal;
        sum.interest += y.interest;
        sum.prepaid += y.prepaid;
        sum.fees += y.fees;
        sum.deduction += y.deduction;
    }
    const auto amount = [](double value) { return Format(value, kAmountMask); };
    Cells row{total,
              "",
              runtime::Str(sum.payments),
              amount(sum.amount),
              amount(sum.principal),
              amount(sum.interest),
              amount(sum.prepaid),
              amount(sum.fees),
              ""};
    if (withDeduction) row.insert(row.end() - 1, amount(sum.deduction));
    return row;
}

} // namespace table
