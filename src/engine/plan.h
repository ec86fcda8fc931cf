// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A plan: the loan of a form with events attached to its payments (prepayments, rate changes,
// fees), the lines that name them, and what the plan comes to: totals, the savings against the
// same loan without events, and the figures of each calendar year.

#include "engine/schedule.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// One event from its line: "prepay 12 1,000,000 reduce every 12", "rate 61 1.5", "fee 61 330000",
// words apart by blanks or tabs. The event, or why the line is none: a payment outside 1 to the
// count, a negative amount, or text that is not an event.
enum class EventError { None, NotAnEvent, PaymentOutside, NotANumber, NegativeAmount, BadEvery };
struct EventReading {
    std::optional<PlanEvent> event;
    EventError code = EventError::None;
    std::string error; // the reason in English, with the line
};
EventReading readEvent(std::string_view line, std::int64_t paymentCount);
// The line of an event, as readEvent reads it back.
std::string eventLine(const PlanEvent& event);

// The whole of a plan, counted over all its payments.
struct PlanTotals {
    std::int64_t payments = 0;
    double paid = 0.0; // amounts, prepayments and fees
    double principal = 0.0;
    double interest = 0.0;
    double prepaid = 0.0;
    double fees = 0.0;
    calendar::Date payoff; // the date of the last payment
};
PlanTotals planTotals(const std::vector<Payment>& payments);

// Against the same loan without events.
struct PlanSavings {
    double interestSaved = 0.0;
    std::int64_t paymentsSaved = 0;
    double netSaving = 0.0; // interest saved less fees
    // The first payment, from the first fee's on, by which the interest saved so far reaches the
    // fees paid so far; none without fees, or where it never does.
    std::optional<std::int64_t> breakEven;
    calendar::Date breakEvenDate; // the date of that payment, in whichever loan still runs
};
PlanSavings planSavings(const std::vector<Payment>& withoutEvents, const std::vector<Payment>& plan);

// The payments of one calendar year.
struct YearFigures {
    std::int64_t year = 0; // Western
    std::int64_t payments = 0;
    double amount = 0.0;
    double principal = 0.0;
    double interest = 0.0;
    double prepaid = 0.0;
    double fees = 0.0;
    double balance = 0.0; // after the year's last payment
    calendar::Date lastPayment;
};
std::vector<YearFigures> yearlyFigures(const std::vector<Payment>& payments);

} // namespace engine
