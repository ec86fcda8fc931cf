// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The repayment schedule: the walk of the loan payment by payment, with interest on the actual
// days of each period, as numbers and dates.

#include "engine/loan.h"

#include <optional>
#include <vector>

namespace engine {

struct Payment {
    std::int64_t number; // from 1
    calendar::Date date;
    double amount; // principal + interest
    double principal;
    double interest;
    double balance; // after this payment
};

// The payments of the listed range (up to the last payment). Empty optional where an amount of
// any payment walked is beyond kMaxExactAmount.
std::optional<std::vector<Payment>> walkSchedule(const LoanRecord& record, const ListedRange& listed);

} // namespace engine
