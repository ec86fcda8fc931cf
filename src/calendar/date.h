// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A calendar day, with no time of day, so that the days between two dates are always whole.

#include <chrono>
#include <cstdint>

namespace calendar {

class Date {
public:
    // The years a date can hold: those of std::chrono::year. Years beyond are held at the limit.
    static constexpr std::int64_t kMinYear = -32767;
    static constexpr std::int64_t kMaxYear = 32767;

    Date() = default;
    // A month outside 1 to 12 is carried into the year (13 of 2023 is January 2024, 0 is
    // December 2022); the day is then limited to the length of the month that results.
    Date(std::int64_t year, std::int64_t month, std::int64_t day);

    std::int64_t Year() const { return static_cast<int>(ymd_.year()); }
    std::int64_t Month() const { return static_cast<unsigned>(ymd_.month()); }
    std::int64_t Day() const { return static_cast<unsigned>(ymd_.day()); }
    std::chrono::sys_days days() const { return std::chrono::sys_days{ymd_}; }

    friend bool operator==(const Date&, const Date&) = default;

private:
    std::chrono::year_month_day ymd_{std::chrono::year{2000}, std::chrono::January, std::chrono::day{1}};
};

} // namespace calendar
