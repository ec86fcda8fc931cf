// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date.h"

#include <algorithm>

namespace calendar {
namespace {

// Bounds that keep the month carry free of overflow; far beyond any year a date can hold.
constexpr std::int64_t kCarryLimit = 1'000'000'000'000;

std::int64_t floorDiv(std::int64_t a, std::int64_t b) {
    const std::int64_t q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

} // namespace

Date::Date(std::int64_t year, std::int64_t month, std::int64_t day) {
    using namespace std::chrono;
    year = std::clamp(year, -kCarryLimit, kCarryLimit);
    month = std::clamp(month, -kCarryLimit, kCarryLimit);
    const std::int64_t monthsFromZero = month - 1;
    const std::int64_t carriedYear = std::clamp(year + floorDiv(monthsFromZero, 12), kMinYear, kMaxYear);
    const auto monthOfYear = static_cast<unsigned>(monthsFromZero - floorDiv(monthsFromZero, 12) * 12 + 1);

    const year_month ym{std::chrono::year{static_cast<int>(carriedYear)}, std::chrono::month{monthOfYear}};
    const auto lastDay = static_cast<std::int64_t>(static_cast<unsigned>((ym / last).day()));
    ymd_ = ym / std::chrono::day{static_cast<unsigned>(std::clamp<std::int64_t>(day, 1, lastDay))};
}

} // namespace calendar
