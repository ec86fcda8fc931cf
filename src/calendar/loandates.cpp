// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/loandates.h"

#include "calendar/era.h"
#include "runtime/numbers.h"

#include <algorithm>

namespace calendar {
namespace {

// Months beyond this carry to years no date can hold; bounding them keeps the sums exact.
constexpr std::int64_t kMonthLimit = 1'000'000;

} // namespace

DateLine readDateLine(int era, const DateLineTexts& texts, int delay) {
    return {era,
            readYear(texts.year),
            std::clamp(runtime::intVal(texts.month), -kMonthLimit, kMonthLimit),
            runtime::intVal(texts.day),
            runtime::intVal(texts.payDay),
            delay};
}

LoanDates loanDates(const DateLine& line, std::int64_t count) {
    // The first payment: the pay day of the borrowing month moved on by the delay, and one
    // month more where it does not fall later in its month than the borrowing day.
    std::int64_t payMonth = line.month + line.delay;
    if (dayWithinMonth(line.era, line.year, payMonth, line.payDay) <= line.day) ++payMonth;
    std::int64_t payYear = line.year;
    if (payMonth > 12) {
        payYear += 1;
        payMonth -= 12;
    }

    LoanDates dates;
    dates.borrowed = dateFromEraYear(line.era, line.year, line.month, line.day);
    dates.firstPayment = dateFromEraYear(line.era, payYear, payMonth, line.payDay);

    // The pay-off date: count - 1 months after the first payment.
    std::int64_t year = dates.firstPayment.Year() + count / 12;
    std::int64_t month = dates.firstPayment.Month() + count % 12 - 1;
    if (month == 0) {
        year -= 1;
        month = 12;
    }
    if (month > 12) {
        year += 1;
        month -= 12;
    }
    dates.payoff = Date(year, month, dayWithinMonth(kWestern, year, month, line.payDay));
    return dates;
}

std::string payoffText(const Date& payoff, int era, const PayoffWords& words) {
    using runtime::Format;
    const EraYear shown = displayedEraYear(era, payoff.Year(), payoff.Month(), payoff.Day());
    const auto number = [](std::int64_t n, std::string_view mask) { return Format(static_cast<double>(n), mask); };
    std::string text = shown.era == kWestern
                           ? number(shown.year, "####")
                           : words.eraNames[static_cast<std::size_t>(shown.era)] + "  " + number(shown.year, "##");
    text += " " + words.year + " " + number(payoff.Month(), "##") + " " + words.month + " " +
            number(payoff.Day(), "##") + " " + words.day;
    return text;
}

} // namespace calendar
