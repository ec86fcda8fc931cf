// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The loan: the form as the user fills it, the same form read as numbers, and the record that
// a calculation settles from them.

#include "calendar/loandates.h"
#include "engine/lender.h"

#include <cstdint>
#include <string>

namespace engine {

// The mean length of a year in days: the daily rate's divisor, whatever years the loan spans.
constexpr double kDaysInYear = 365.2422;

// A count of payments above this acts as this many, in the pay-off date as in the schedule.
constexpr std::int64_t kMaxPayments = 100'000;

// Amounts up to 2^53 are whole numbers a double holds to the unit; a calculation that needs a
// larger one (or one that is not finite) is refused rather than shown rounded.
constexpr double kMaxExactAmount = 9'007'199'254'740'992.0;
inline bool isExactAmount(double amount) { return amount >= -kMaxExactAmount && amount <= kMaxExactAmount; }

// The form: its texts as typed and its choices.
struct LoanForm {
    std::string principal = "100000000"; // commas allowed
    std::string rate = "2.0";            // percent a year
    std::string times = "144";           // number of monthly payments
    std::string firstRow = "1";          // the first payment the table lists
    int era = calendar::kReiwa;          // the era of the borrowing year
    calendar::DateLineTexts date{"02", "3", "15", "8"};
    int delay = calendar::kNext;
    bool flatPayment = false; // else equal principal

    friend bool operator==(const LoanForm&, const LoanForm&) = default;
};

// The payments a table lists, by number.
struct ListedRange {
    std::int64_t first = 1;
    std::int64_t last = -1; // negative: to the last payment
};

// The form read as numbers: the one place where its texts become numbers.
struct LoanTerms {
    bool zeroInput = false;        // principal, rate or count reads as zero (commas not removed)
    double principal = 0.0;        // commas removed
    double ratePercent = 0.0;      // 2 for 2 %, as typed
    double annualRate = 0.0;       // a fraction, 0.02 for 2 %
    std::int64_t paymentCount = 0; // within kMaxPayments
    calendar::DateLine dateLine;
    bool flatPayment = false;
};
LoanTerms readLoanForm(const LoanForm& form);

// What a calculation settles.
struct LoanRecord {
    bool flatPayment = false;
    double fixedPayment = 0.0;   // flat payment: principal and interest of each payment
    double fixedPrincipal = 0.0; // equal principal: the principal of each payment
    double principal = 0.0;      // both parts
    double bonusAmount = 0.0;    // of the principal, the bonus part: repaid by payments of its own
    double bonusPayment = 0.0;   // flat payment: principal and interest of each bonus payment
    double bonusPrincipal = 0.0; // equal principal: the principal of each bonus payment
    double ratePercent = 0.0;    // as typed: the decimal a lender computes with
    double annualRate = 0.0;     // a fraction
    double dailyRate = 0.0;      // interest per day, as a fraction of the balance
    std::int64_t paymentCount = 0;
    std::int64_t payDay = 0; // of each month, as read: beyond a month's length, its last day
    calendar::LoanDates dates;
    LenderTerms lender;
};

} // namespace engine
