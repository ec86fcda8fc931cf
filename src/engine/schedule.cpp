#include "engine/schedule.h"

#include "calendar/era.h"
#include "runtime/numbers.h"

#include <algorithm>

namespace engine {
namespace {

using runtime::Format;
using runtime::Round;

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

std::int64_t paymentsToWalk(const LoanRecord& record) {
    const std::int64_t all = std::min(record.nTimes, kMaxPayments);
    return record.totalRows < 0 ? all : std::min(record.totalRows, all);
}

} // namespace

std::optional<std::vector<Row>> scheduleRows(const LoanRecord& record, int era, std::int64_t payDay) {
    const std::int64_t limit = paymentsToWalk(record);
    std::vector<Row> rows;
    if (limit > 0 && record.numTop <= limit)
        rows.reserve(static_cast<std::size_t>(limit - std::max<std::int64_t>(record.numTop, 1) + 1));

    double balance = record.gankin;
    double amount = record.hPart;
    double principal = record.gPart;
    calendar::Date previous = record.dates.kariire;
    calendar::Date current = record.dates.start;

    for (std::int64_t i = 0; i < limit; ++i) {
        const auto days = static_cast<double>(calendar::getDays(previous, current));
        const double interest = Round((balance * record.rate) * days);
        if (i == record.nTimes - 1) {
            principal = balance;
            amount = balance + interest;
        } else if (record.isGanri) {
            principal = amount - interest;
        } else {
            amount = principal + interest;
        }
        balance -= principal;
        if (!isExactAmount(amount) || !isExactAmount(principal) || !isExactAmount(interest) || !isExactAmount(balance))
            return std::nullopt;

        if (record.numTop <= i + 1) {
            // A row's year shows under the era in force; once it moves on, later rows follow.
            const auto shown = calendar::displayedEraYear(era, current.Year(), current.Month(), payDay);
            era = shown.era;
            Row& row = rows.emplace_back();
            row[kNumber] = Format(static_cast<double>(i + 1), "000");
            row[kDate] = dateCell(shown.year, current.Month(), current.Day());
            row[kAmount] = Format(amount, kAmountMask);
            row[kPrincipal] = Format(principal, kAmountMask);
            row[kInterest] = Format(interest, kAmountMask);
            row[kBalance] = Format(balance, kAmountMask);
        }

        previous = current;
        current = calendar::setDateFrom(calendar::kWestern, current.Year(), current.Month() + 1, payDay);
    }
    return rows;
}

} // namespace engine
