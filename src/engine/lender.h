// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lender terms: how a Japanese lender's repayment table counts what the daily rule of the main
// window counts otherwise. Interest by months instead of by days, and amounts cut to the yen
// instead of rounded. The defaults are the main window's rules.

#include "calendar/date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

enum class InterestRule { Daily, Monthly };
enum class Rounding { Nearest, Down }; // nearest: halves away from zero; down: toward zero

struct LenderTerms {
    InterestRule interest = InterestRule::Daily;
    Rounding rounding = Rounding::Nearest;
    friend bool operator==(const LenderTerms&, const LenderTerms&) = default;
};

// An amount to the yen by the rule.
double roundBy(double amount, Rounding rule);

// The first period of a loan by months: the whole months from the borrowing date (the nth ends on
// the borrowing day of the nth month after, or that month's last day), then the days left to the
// first payment.
struct MonthsAndDays {
    std::int64_t months = 0;
    std::int64_t days = 0;
};
MonthsAndDays monthsAndDays(const calendar::Date& borrowed, const calendar::Date& firstPayment);

// balance x rate / 12 for each month and balance x rate / 365 for each day, rounded once by the
// rule. Exact where the balance is whole: the rate is taken as the decimal its shortest text
// writes (0.7, not the binary double nearest it) and the product is formed in 128-bit integers.
double monthlyInterest(double balance, double ratePercent, MonthsAndDays span, Rounding rule);

// A line of a plan's text that sets a term: "interest daily|monthly", "rounding nearest|down".
// None where the line names no term; an error where it names one with a wrong value.
struct TermReading {
    bool isTerm = false;
    std::string error; // the reason in English, with the head of the line
};
TermReading readTerm(std::string_view line, LenderTerms& terms);
// The lines of the terms that differ from the defaults, as readTerm reads them back.
std::vector<std::string> termLines(const LenderTerms& terms);

} // namespace engine
