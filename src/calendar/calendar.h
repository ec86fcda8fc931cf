// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The date operations of a calculation: the leap-year test, era years to Western years, the
// day limited to its month, the date of an era year and the days between two dates.

#include "calendar/date.h"

#include <cstdint>

namespace calendar {

// Era index: the menu value of the era button.
enum Era : int { kWestern = 0, kShowa = 1, kHeisei = 2, kReiwa = 3 };
constexpr int kEraCount = 4;

bool isLeapYear(std::int64_t westernYear);

// The Western year of a year in an era; 0 for an era index outside 0 to 3.
std::int64_t westernYear(int era, std::int64_t year);
// The year a Western year has in an era, counted from the era's year 1 (2026 is Reiwa 8,
// Showa 101), whether or not the era still ran then.
std::int64_t yearInEra(int era, std::int64_t westernYear);

// The day brought into 1 to 31 and then to the length of the month in the Western year of
// (era, year). A month outside 1 to 12 adds no limit beyond 31.
std::int64_t dayWithinMonth(int era, std::int64_t year, std::int64_t month, std::int64_t day);

// The date of an era year, a month and a day, the day limited to the month.
Date dateFromEraYear(int era, std::int64_t year, std::int64_t month, std::int64_t day);

// Days from the first date to the second: the first is not counted, the second is.
std::int64_t daysBetween(const Date& from, const Date& to);

} // namespace calendar
