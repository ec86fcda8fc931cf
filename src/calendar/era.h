// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rules of the Japanese eras: which era a Western date is shown in, how a year that does
// not fit its era moves on, and the conversion between the Western and the Japanese calendar.

#include "calendar/calendar.h"

#include <cstdint>
#include <string_view>

namespace calendar {

// A year on the form is read within these bounds; beyond them it is held at the bound.
constexpr std::int64_t kYearLimit = 9999;

// The year of a date field's text, within kYearLimit.
std::int64_t readYear(std::string_view text);

struct EraYear {
    int era;
    std::int64_t year;
    friend bool operator==(const EraYear&, const EraYear&) = default;
};

// The year of a Western date under an era index, as the date column and the pay-off label show
// it. A date past the end of the era moves on to the next (Showa to Heisei after 7 January 1989,
// Heisei to Reiwa after April 2019, both in one step); `day` is the pay day the boundary tests.
// The Western calendar shows the year itself.
EraYear displayedEraYear(int era, std::int64_t western, std::int64_t month, std::int64_t day);

// A year that does not fit its era climbs through as many eras as it must, or steps back one
// (a Showa year below 1 becomes Western). `changed` tells whether era or year moved.
struct EraCorrection {
    EraYear result;
    bool changed;
};
EraCorrection correctEra(int era, std::int64_t year, std::int64_t month, std::int64_t day);

// The "XC<->JC" command: from the Western calendar to the era of the date, from an era to the
// Western year (by the number alone).
EraYear convertCalendar(int era, std::int64_t year, std::int64_t month, std::int64_t day);

} // namespace calendar
