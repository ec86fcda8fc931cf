// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the fields of the date line correct what was typed: year and era, month, day, pay day.

#include "calendar/era.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace calendar {

struct DateFieldTexts {
    std::string year, month, day;
};

// The year field against its era. `era` is set where the year moved to another era; `year` is
// the year's text written plainly ("02" becomes "2").
struct YearField {
    std::optional<int> era;
    std::string year;
};
YearField correctYearField(int era, const DateFieldTexts& texts);

// The month brought into 1 to 12, and the day into that month. Each is set where it changed.
struct MonthField {
    std::optional<std::string> month;
    std::optional<std::string> day;
};
MonthField correctMonthField(int era, const DateFieldTexts& texts);

// The day brought into its month; set where it changed.
std::optional<std::string> correctDayField(int era, const DateFieldTexts& texts);

// The pay day brought into 1 to 31, written plainly.
std::string payDayText(std::string_view text);

} // namespace calendar
