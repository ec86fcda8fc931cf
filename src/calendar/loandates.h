// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The dates of a loan from the date line of the form: the borrowing date, the first payment
// and the pay-off date, and the text of the pay-off statement.

#include "calendar/calendar.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace calendar {

// Which pay day after the borrowing date comes first: the delay button's menu value, in months added.
enum Delay : int { kNext = 0, kTwoAfter = 1, kThreeAfter = 2 };

// The date line as integers, each read from its field's text.
struct DateLine {
    int era = kReiwa;
    std::int64_t year = 0;
    std::int64_t month = 0;
    std::int64_t day = 0;
    std::int64_t payDay = 0;
    int delay = kNext;
};

struct DateLineTexts {
    std::string year, month, day, payDay;
    friend bool operator==(const DateLineTexts&, const DateLineTexts&) = default;
};
DateLine readDateLine(int era, const DateLineTexts& texts, int delay);

struct LoanDates {
    Date borrowed;
    Date firstPayment;
    Date payoff; // the last payment
};

// `count` is the number of payments, already within the engine's cap.
LoanDates loanDates(const DateLine& line, std::int64_t count);

// The words of the pay-off statement: era names by era index (0 has none) and what stands
// after the year, the month and the day.
struct PayoffWords {
    std::array<std::string, kEraCount> eraNames{"", "Showa", "Heisei", "Reiwa"};
    std::string year = "/";
    std::string month = "/";
    std::string day;
};

// "2032 / 3 / 8 " in the Western calendar, "Reiwa  14 / 3 / 8 " in an era.
std::string payoffText(const Date& payoff, int era, const PayoffWords& words);

} // namespace calendar
