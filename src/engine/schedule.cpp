// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/schedule.h"

#include "runtime/numbers.h"

#include <algorithm>

namespace engine {

std::optional<std::vector<Payment>> walkSchedule(const LoanRecord& record, const ListedRange& listed) {
    const std::int64_t all = std::min(record.paymentCount, kMaxPayments);
    const std::int64_t limit = listed.last < 0 ? all : std::min(listed.last, all);
    std::vector<Payment> payments;
    if (limit > 0 && listed.first <= limit)
        payments.reserve(static_cast<std::size_t>(limit - std::max<std::int64_t>(listed.first, 1) + 1));

    double balance = record.principal;
    double amount = record.fixedPayment;
    double principal = record.fixedPrincipal;
    calendar::Date previous = record.dates.borrowed;
    calendar::Date current = record.dates.firstPayment;

    for (std::int64_t i = 0; i < limit; ++i) {
        const auto days = static_cast<double>(calendar::daysBetween(previous, current));
        const double interest = runtime::Round((balance * record.dailyRate) * days);
        if (i == record.paymentCount - 1) {
            // The last payment takes up the difference.
            principal = balance;
            amount = balance + interest;
        } else if (record.flatPayment) {
            principal = amount - interest;
        } else {
            amount = principal + interest;
        }
        balance -= principal;
        if (!isExactAmount(amount) || !isExactAmount(principal) || !isExactAmount(interest) || !isExactAmount(balance))
            return std::nullopt;
        if (listed.first <= i + 1) payments.push_back({i + 1, current, amount, principal, interest, balance});
        previous = current;
        current = calendar::dateFromEraYear(calendar::kWestern, current.Year(), current.Month() + 1, record.payDay);
    }
    return payments;
}

} // namespace engine
