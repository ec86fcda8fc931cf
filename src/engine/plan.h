// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A plan: the loan of a form with events attached to its payments (prepayments, rate changes,
// fees), the lines that name them, and what the plan comes to: totals, the savings against the
// same loan without events, and the figures of each calendar year.

#include "engine/calculation.h"
#include "engine/deduction.h"

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// One event from its line: "prepay 12 1,000,000 reduce every 12", "rate 61 1.5", "fee 61 330000",
// words apart by blanks or tabs. The event, or why the line is none: a payment outside 1 to the
// count, a negative amount or one beyond kMaxExactAmount, a period outside 1 to the count, or
// text that is not an event.
enum class EventError { None, NotAnEvent, PaymentOutside, NotANumber, NegativeAmount, BadEvery, AmountTooLarge };
struct EventReading {
    std::optional<PlanEvent> event;
    EventError code = EventError::None;
    std::string error; // the reason in English, with the head of the line
};
EventReading readEvent(std::string_view line, std::int64_t paymentCount);
// The line of an event, as readEvent reads it back.
std::string eventLine(const PlanEvent& event);

// A plan's text (an events file, a paste) holds at most this many lines of at most this many
// characters: more is refused, so that no input can make a plan unbounded.
constexpr std::size_t kMaxPlanLines = 100'000;
constexpr std::size_t kMaxLineLength = 1'000;

// The event lines of a text, blank lines and lines from '#' left out, or why the text is refused
// (a line too long, too many lines). A stream that fails to read stops the reading: the caller
// tells why from the stream.
struct PlanLines {
    enum Problem { None, LineTooLong, TooManyLines };
    std::vector<std::string> lines;
    Problem problem = None;
    std::size_t line = 0; // the line too long
    std::string error;    // the problem in English; empty where the text is read whole
};
PlanLines readPlanLines(std::istream& in);

// The whole of a plan, counted over all its payments.
struct PlanTotals {
    std::int64_t payments = 0;
    double paid = 0.0; // amounts, prepayments and fees
    double principal = 0.0;
    double interest = 0.0;
    double prepaid = 0.0;
    double fees = 0.0;
    double unpaidPaid = 0.0; // of the interest, what was carried unpaid under reviews
    double deduction = 0.0;  // the housing-loan tax deduction of every year
    double netCost = 0.0;    // interest and fees less the deduction
    calendar::Date payoff;   // the date of the last payment
    friend bool operator==(const PlanTotals&, const PlanTotals&) = default;
};
PlanTotals planTotals(const std::vector<Payment>& payments);

// Against the same loan without events.
struct PlanSavings {
    double interestSaved = 0.0;
    std::int64_t paymentsSaved = 0;
    double deductionLost = 0.0; // the deduction the plan gives less than the loan without events
    double netSaving = 0.0;     // interest saved less fees and deduction lost: the net costs compared
    // The first payment, from the first fee's on, by which the interest saved so far reaches the
    // fees paid so far; none without fees, or where it never does.
    std::optional<std::int64_t> breakEven;
    calendar::Date breakEvenDate; // the date of that payment, in whichever loan still runs
    friend bool operator==(const PlanSavings&, const PlanSavings&) = default;
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
    double deduction = 0.0;
    double balance = 0.0; // after the year's last payment, or the principal before the first
    calendar::Date lastPayment;
    friend bool operator==(const YearFigures&, const YearFigures&) = default;
};
std::vector<YearFigures> yearlyFigures(const std::vector<Payment>& payments);

// A plan worked out: the loan of the form with its events and without them, both on the lender
// terms and with the tax deduction where one is given, and what the plan comes to. Refused as the
// calculation is, and also where a total goes beyond kMaxExactAmount.
struct PlanOutcome {
    Refusal refusal = Refusal::None;
    // Where the loan without events is fine and the plan is not: the first event that, added to
    // those before it, makes the plan refused.
    std::optional<std::size_t> refusedBy;
    Calculation plan;
    Calculation base; // the same loan without events
    PlanTotals totals;
    PlanSavings savings;
    std::vector<YearFigures> years;
    // The ten-year rule: no deduction at all (the loan is shorter from the start), or none from
    // this year (the year of the prepayment that made it shorter).
    bool deductionTooShort = false;
    std::optional<std::int64_t> deductionEndsFrom;
};
PlanOutcome evaluatePlan(const LoanForm& form, const std::vector<PlanEvent>& events, const LenderTerms& lender = {},
                         const std::optional<TaxDeduction>& deduction = {});

} // namespace engine
