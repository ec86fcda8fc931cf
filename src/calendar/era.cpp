// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/era.h"

#include "runtime/numbers.h"

#include <algorithm>

namespace calendar {
namespace {

constexpr std::int64_t kLastShowaYear = 63;  // and 64 up to 7 January
constexpr std::int64_t kLastHeiseiYear = 30; // and 31 up to April

bool isLastDaysOfShowa(std::int64_t year, std::int64_t month, std::int64_t day) {
    return year == 64 && month == 1 && day < 8;
}
bool isLastMonthsOfHeisei(std::int64_t year, std::int64_t month) { return year == 31 && month < 5; }

} // namespace

std::int64_t readYear(std::string_view text) { return std::clamp(runtime::intVal(text), -kYearLimit, kYearLimit); }

EraYear displayedEraYear(int era, std::int64_t western, std::int64_t month, std::int64_t day) {
    EraYear shown{era, yearInEra(era, western)};
    if (era < 0 || era >= kEraCount) shown = {kWestern, western};
    if (shown.era == kShowa && shown.year > kLastShowaYear && !isLastDaysOfShowa(shown.year, month, day))
        shown = {kHeisei, shown.year - kLastShowaYear};
    if (shown.era == kHeisei && shown.year > kLastHeiseiYear && !isLastMonthsOfHeisei(shown.year, month))
        shown = {kReiwa, shown.year - kLastHeiseiYear};
    return shown;
}

EraCorrection correctEra(int era, std::int64_t year, std::int64_t month, std::int64_t day) {
    EraCorrection c{{era, std::clamp(year, -kYearLimit, kYearLimit)}, false};
    const auto moveTo = [&c](int newEra, std::int64_t newYear) {
        c.result = {newEra, newYear};
        c.changed = true;
    };
    EraYear& y = c.result;
    if (y.era == kShowa) {
        if (y.year < 1)
            moveTo(kWestern, y.year + westernYear(kShowa, 0));
        else if (y.year > kLastShowaYear && !isLastDaysOfShowa(y.year, month, day))
            moveTo(kHeisei, y.year - kLastShowaYear);
    }
    if (y.era == kHeisei) {
        if (y.year < 1)
            moveTo(kShowa, y.year + kLastShowaYear);
        else if (y.year > kLastHeiseiYear && !isLastMonthsOfHeisei(y.year, month))
            moveTo(kReiwa, y.year - kLastHeiseiYear);
    }
    if (y.era == kReiwa && y.year < 1) moveTo(kHeisei, y.year + kLastHeiseiYear);
    return c;
}

EraYear convertCalendar(int era, std::int64_t year, std::int64_t month, std::int64_t day) {
    if (era != kWestern) return {kWestern, westernYear(era, year)};
    if (year <= westernYear(kShowa, 0)) return {kWestern, year};
    // A Western year shows under the era of its date: Showa from 1926, and on from there.
    return displayedEraYear(kShowa, year, month, day);
}

} // namespace calendar
