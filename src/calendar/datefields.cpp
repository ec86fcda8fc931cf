// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/datefields.h"

#include "runtime/numbers.h"

#include <algorithm>

namespace calendar {

using runtime::intVal;
using runtime::Str;

YearField correctYearField(int era, const DateFieldTexts& texts) {
    const auto corrected = correctEra(era, readYear(texts.year), intVal(texts.month), intVal(texts.day));
    YearField field{std::nullopt, Str(corrected.result.year)};
    if (corrected.changed) field.era = corrected.result.era;
    return field;
}

MonthField correctMonthField(int era, const DateFieldTexts& texts) {
    const std::int64_t month = intVal(texts.month);
    const std::int64_t day = intVal(texts.day);
    const std::int64_t newMonth = std::clamp<std::int64_t>(month, 1, 12);
    const std::int64_t newDay = dayWithinMonth(era, readYear(texts.year), newMonth, day);

    MonthField field;
    if (newMonth != month) field.month = Str(newMonth);
    if (newDay != day) field.day = Str(newDay);
    return field;
}

std::optional<std::string> correctDayField(int era, const DateFieldTexts& texts) {
    const std::int64_t day = intVal(texts.day);
    const std::int64_t newDay = dayWithinMonth(era, readYear(texts.year), intVal(texts.month), day);
    if (newDay == day) return std::nullopt;
    return Str(newDay);
}

std::string payDayText(std::string_view text) { return Str(std::clamp<std::int64_t>(intVal(text), 1, 31)); }

} // namespace calendar
