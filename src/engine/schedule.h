// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The repayment schedule: the walk of the loan payment by payment, with interest on the actual
// days of each period, as numbers and dates.

#include "engine/event.h"
#include "engine/loan.h"

#include <optional>
#include <vector>

namespace engine {

// The flat payment that repays the balance in that many payments at the annual rate, to the yen
// by the rule: monthly payments, or as many a year as given (2 for a bonus part's).
double annuityPayment(double balance, double annualRate, std::int64_t payments, Rounding rule = Rounding::Nearest,
                      int periodsPerYear = 12);

struct Payment {
    std::int64_t number; // from 1
    calendar::Date date;
    double amount; // the regular payment: principal + interest
    double principal;
    double interest;
    double balance;          // after this payment and its prepayment
    double prepaid = 0.0;    // extra principal paid with this payment
    double fee = 0.0;        // costs paid with this payment
    double bonus = 0.0;      // the bonus part's payment, part of the amount
    double unpaid = 0.0;     // interest the payments have not covered, carried after this payment
    double unpaidPaid = 0.0; // of the interest, carried unpaid interest paid with this payment
    friend bool operator==(const Payment&, const Payment&) = default;
};

// The payments of the listed range (up to the last payment), with the events of a plan, but no
// prepayment after `prepaymentsUntil`. Empty optional where an amount of any payment walked is
// beyond kMaxExactAmount.
std::optional<std::vector<Payment>> walkSchedule(const LoanRecord& record, const ListedRange& listed,
                                                 const std::vector<PlanEvent>& events = {},
                                                 std::int64_t prepaymentsUntil = kMaxPayments);

} // namespace engine
