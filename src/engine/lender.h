// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lender terms: how a Japanese lender's repayment table counts what the daily rule of the main
// window counts otherwise. Interest by months instead of by days, amounts cut to the yen instead
// of rounded, and a bonus part of the loan. The defaults are the main window's rules.

#include "calendar/date.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

enum class InterestRule { Daily, Monthly };
enum class Rounding { Nearest, Down }; // nearest: halves away from zero; down: toward zero

// A bonus part (ボーナス併用払い): this much of the principal is a loan of its own, repaid by
// payments made with the regular payments of two months of the year.
struct BonusPart {
    double amount = 0.0;
    std::array<std::int64_t, 2> months{6, 12};
    // Is payment n (from 1) one of them, for a loan whose first payment falls in firstMonth.
    bool isBonusPayment(std::int64_t firstMonth, std::int64_t n) const;
    // How many of the payments from `from` to `to` are.
    std::int64_t bonusPayments(std::int64_t firstMonth, std::int64_t from, std::int64_t to) const;
};

struct LenderTerms {
    InterestRule interest = InterestRule::Daily;
    Rounding rounding = Rounding::Nearest;
    std::optional<BonusPart> bonus;
    // The five-year and 125 % rules of a variable rate: a flat payment is set anew only every 60
    // payments (a bonus part's every 10), at most 1.25 times the one before; interest it doesn't
    // cover is carried unpaid to the last payment.
    bool review = false;
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

// Whether the terms fit the loan: a bonus part takes at most half the principal and has payments
// in its months; reviews are for a flat payment. The reason in English where they don't.
enum class TermsFit { Fits, BonusAboveHalf, NoBonusPayment, ReviewNeedsFlat };
TermsFit termsFit(const LenderTerms& terms, double principal, std::int64_t firstMonth, std::int64_t payments,
                  bool flatPayment);
std::string termsProblem(TermsFit fit, const LenderTerms& terms);

// A line of a plan's text that sets a term: "interest daily|monthly", "rounding nearest|down",
// "bonus AMOUNT [M1 M2]" (months 6 and 12 where none are given), "review".
// None where the line names no term; an error where it names one with a wrong value.
struct TermReading {
    bool isTerm = false;
    std::string error; // the reason in English, with the head of the line
};
TermReading readTerm(std::string_view line, LenderTerms& terms);
// The lines of the terms that differ from the defaults, as readTerm reads them back.
std::vector<std::string> termLines(const LenderTerms& terms);

} // namespace engine
