#include "calendar/calendar.h"

#include <algorithm>

namespace calendar {
namespace {

constexpr std::int64_t kEraBase[kEraCount] = {0, 1925, 1988, 2018};
// Keeps year arithmetic free of overflow; far beyond the years a Date holds.
constexpr std::int64_t kYearArithmeticLimit = 1'000'000'000'000;

} // namespace

bool isUruu(std::int64_t year) {
    if (year % 4 != 0) return false;
    if (year % 100 != 0) return true;
    return year % 400 == 0;
}

std::int64_t getSeireki(int era, std::int64_t year) {
    if (era < 0 || era >= kEraCount) return 0;
    return std::clamp(year, -kYearArithmeticLimit, kYearArithmeticLimit) + kEraBase[era];
}

void optMonthDay(int era, std::int64_t year, std::int64_t month, std::int64_t& day) {
    const std::int64_t western = getSeireki(era, year);
    day = std::clamp<std::int64_t>(day, 1, 31);
    if (month == 2) {
        day = std::min<std::int64_t>(day, isUruu(western) ? 29 : 28);
    } else if (month == 4 || month == 6 || month == 9 || month == 11) {
        day = std::min<std::int64_t>(day, 30);
    }
}

Date setDateFrom(int era, std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int64_t western = era >= 1 && era < kEraCount ? getSeireki(era, year) : year;
    optMonthDay(kWestern, western, month, day);
    return Date(western, month, day);
}

std::int64_t getDays(const Date& from, const Date& to) { return (to.days() - from.days()).count(); }

} // namespace calendar
