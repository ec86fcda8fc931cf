// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include <algorithm>

namespace calendar {
namespace {

// The Western year before each era's year 1.
constexpr std::int64_t kEraBase[kEraCount] = {0, 1925, 1988, 2018};
// Keeps year arithmetic free of overflow; far beyond the years a Date holds.
constexpr std::int64_t kYearArithmeticLimit = 1'000'000'000'000;

std::int64_t eraBase(int era) { return era >= 0 && era < kEraCount ? kEraBase[era] : 0; }

} // namespace

bool isLeapYear(std::int64_t westernYear) {
    if (westernYear % 4 != 0) return false;
    if (westernYear % 100 != 0) return true;
    return westernYear % 400 == 0;
}

std::int64_t westernYear(int era, std::int64_t year) {
    if (era < 0 || era >= kEraCount) return 0;
    return std::clamp(year, -kYearArithmeticLimit, kYearArithmeticLimit) + eraBase(era);
}

std::int64_t yearInEra(int era, std::int64_t westernYear) { return westernYear - eraBase(era); }

std::int64_t dayWithinMonth(int era, std::int64_t year, std::int64_t month, std::int64_t day) {
    day = std::clamp<std::int64_t>(day, 1, 31);
    if (month == 2) return std::min<std::int64_t>(day, isLeapYear(westernYear(era, year)) ? 29 : 28);
    if (month == 4 || month == 6 || month == 9 || month == 11) return std::min<std::int64_t>(day, 30);
    return day;
}

Date dateFromEraYear(int era, std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int64_t western = era >= 1 && era < kEraCount ? westernYear(era, year) : year;
    return Date(western, month, dayWithinMonth(kWestern, western, month, day));
}

std::int64_t daysBetween(const Date& from, const Date& to) { return (to.days() - from.days()).count(); }

} // namespace calendar
