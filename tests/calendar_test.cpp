// SPDX-License-Identifier: GPL-3.0-or-later
// Dates, eras and the corrections of the date line; the loan's dates as the schedule tool shows
// them are in tests/tool/rules.t.
#include "calendar/era.h"
#include "calendar/loandates.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

using namespace calendar;

namespace calendar {
std::ostream& operator<<(std::ostream& os, const EraYear& e) { return os << "era " << e.era << " year " << e.year; }
} // namespace calendar

namespace {

std::string iso(const Date& d) {
    char text[40];
    std::snprintf(text, sizeof text, "%lld-%02lld-%02lld", static_cast<long long>(d.Year()),
                  static_cast<long long>(d.Month()), static_cast<long long>(d.Day()));
    return text;
}

TEST(Calendar, LeapYearsAndEraYears) {
    for (const auto& [year, leap] : {std::pair{1900, false}, {2000, true}, {2023, false}, {2024, true}, {-100, false}})
        EXPECT_EQ(isLeapYear(year), leap) << year;
    EXPECT_EQ(westernYear(kShowa, 64), 1989);
    EXPECT_EQ(westernYear(kHeisei, 31), 2019);
    EXPECT_EQ(westernYear(4, 5), 0) << "no such era";
    EXPECT_EQ(yearInEra(kShowa, 2026), 101);
}

struct DateCase {
    int era;
    std::int64_t year, month, day;
    const char* date;
};

TEST(Calendar, DateFromAnEraYearLimitsTheDayAndCarriesTheMonth) {
    constexpr auto kHuge = std::numeric_limits<std::int64_t>::max();
    const DateCase cases[] = {
        {kShowa, 64, 1, 7, "1989-01-07"},       {kReiwa, 6, 2, 31, "2024-02-29"},
        {kReiwa, 5, 2, 29, "2023-02-28"},       {kWestern, 2023, 9, 31, "2023-09-30"},
        {kWestern, 2023, 1, -5, "2023-01-01"},  {kWestern, 2023, 13, 5, "2024-01-05"},
        {kWestern, 2023, 0, 5, "2022-12-05"},   {kWestern, 2023, 14, 31, "2024-02-29"},
        {kWestern, kHuge, 1, 1, "32767-01-01"}, {kWestern, 2023, -kHuge, 1, "-32767-08-01"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(iso(dateFromEraYear(c.era, c.year, c.month, c.day)), c.date)
            << "era " << c.era << " " << c.year << "-" << c.month << "-" << c.day;
    EXPECT_EQ(dayWithinMonth(kWestern, 2023, 9, 31), 30) << "as the day field corrects it";
    EXPECT_EQ(daysBetween(Date(2024, 1, 31), Date(2024, 2, 29)), 29);
    EXPECT_EQ(daysBetween(Date(2020, 4, 8), Date(2020, 3, 15)), -24);
}

struct CorrectionCase {
    int era;
    std::int64_t year, month;
    EraYear result;
    bool changed;
};

TEST(Era, AYearThatDoesNotFitItsEraMoves) {
    const CorrectionCase cases[] = {
        {kShowa, 1, 12, {kShowa, 1}, false},
        {kShowa, 63, 6, {kShowa, 63}, false},
        {kShowa, 64, 1, {kShowa, 64}, false},
        {kShowa, 64, 2, {kHeisei, 1}, true},
        {kHeisei, 31, 4, {kHeisei, 31}, false},
        {kHeisei, 31, 5, {kReiwa, 1}, true},
        {kReiwa, 0, 6, {kHeisei, 30}, true},
        {kHeisei, 0, 6, {kShowa, 63}, true},
        {kShowa, 0, 6, {kWestern, 1925}, true},
        {kShowa, 100, 6, {kReiwa, 7}, true},
        {kReiwa, 99999, 6, {kReiwa, kYearLimit}, false},
    };
    for (const auto& c : cases) {
        const auto corrected = correctEra(c.era, c.year, c.month, 7);
        EXPECT_EQ(corrected.result, c.result) << "era " << c.era << " year " << c.year << " month " << c.month;
        EXPECT_EQ(corrected.changed, c.changed) << "era " << c.era << " year " << c.year;
    }
    EXPECT_EQ(convertCalendar(kWestern, 1925, 6, 1), (EraYear{kWestern, 1925})) << "before Showa";
}

} // namespace
