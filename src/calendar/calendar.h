#pragma once
// The date operations of a calculation: the leap-year test, era years to Western years, the
// day corrector, the date builder and the day counter. They work on their arguments alone.

#include "calendar/date.h"

#include <cstdint>

namespace calendar {

// Era index: RekiKind's menu value.
enum Era : int { kWestern = 0, kShowa = 1, kHeisei = 2, kReiwa = 3 };
constexpr int kEraCount = 4;

bool isUruu(std::int64_t year);

// The Western year of a year in an era; 0 for an era index outside 0 to 3.
std::int64_t getSeireki(int era, std::int64_t year);

// Brings the day into 1 to 31 and then to the length of the month in the Western year of
// (era, year). A month outside 1 to 12 adds no limit beyond 31.
void optMonthDay(int era, std::int64_t year, std::int64_t month, std::int64_t& day);

// A date from an era year, a month and a day, the day limited to the month.
Date setDateFrom(int era, std::int64_t year, std::int64_t month, std::int64_t day);

// Days from the first date to the second: the first is not counted, the second is.
std::int64_t getDays(const Date& from, const Date& to);

} // namespace calendar
