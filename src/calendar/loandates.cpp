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
    std::int64_t limitedDay = line.payDay;
    optMonthDay(line.era, line.year, payMonth, limitedDay);
    if (limitedDay <= line.day) ++payMonth;
    std::int64_t payYear = line.year;
    if (payMonth > 12) {
        payYear += 1;
        payMonth -= 12;
    }

    LoanDates dates;
    dates.kariire = setDateFrom(line.era, line.year, line.month, line.day);
    dates.start = setDateFrom(line.era, payYear, payMonth, line.payDay);

    // The pay-off date: count - 1 months after the first payment.
    std::int64_t year = dates.start.Year() + count / 12;
    std::int64_t month = dates.start.Month() + count % 12 - 1;
    if (month == 0) {
        year -= 1;
        month = 12;
    }
    if (month > 12) {
        year += 1;
        month -= 12;
    }
    std::int64_t payDay = line.payDay;
    optMonthDay(kWestern, year, month, payDay);
    dates.kansai = Date(year, month, payDay);
    return dates;
}

std::string payoffText(const Date& kansai, int era, const PayoffWords& words) {
    using runtime::Format;
    const EraYear shown = displayedEraYear(era, kansai.Year(), kansai.Month(), kansai.Day());
    const auto number = [](std::int64_t n, std::string_view mask) { return Format(static_cast<double>(n), mask); };
    std::string text = shown.era == kWestern
                           ? number(shown.year, "####")
                           : words.eraNames[static_cast<std::size_t>(shown.era)] + "  " + number(shown.year, "##");
    text += " " + words.year + " " + number(kansai.Month(), "##") + " " + words.month + " " +
            number(kansai.Day(), "##") + " " + words.day;
    return text;
}

} // namespace calendar
