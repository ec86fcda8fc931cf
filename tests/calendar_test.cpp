#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <limits>

using namespace calendar;

namespace {

struct Ymd {
    std::int64_t y, m, d;
};
Ymd ymd(const Date& date) { return {date.Year(), date.Month(), date.Day()}; }
bool operator==(const Ymd& a, const Ymd& b) { return a.y == b.y && a.m == b.m && a.d == b.d; }
std::ostream& operator<<(std::ostream& os, const Ymd& v) { return os << v.y << '-' << v.m << '-' << v.d; }

TEST(IsUruu, FollowsTheGregorianRule) {
    EXPECT_FALSE(isUruu(1900));
    EXPECT_TRUE(isUruu(2000));
    EXPECT_FALSE(isUruu(2023));
    EXPECT_TRUE(isUruu(2024));
    EXPECT_TRUE(isUruu(0));
    EXPECT_TRUE(isUruu(-4));
    EXPECT_FALSE(isUruu(-100));
}

TEST(GetSeireki, AddsTheEraBase) {
    EXPECT_EQ(getSeireki(1, 64), 1989);
    EXPECT_EQ(getSeireki(2, 1), 1989);
    EXPECT_EQ(getSeireki(2, 31), 2019);
    EXPECT_EQ(getSeireki(3, 1), 2019);
    EXPECT_EQ(getSeireki(0, 2023), 2023);
    EXPECT_EQ(getSeireki(4, 5), 0);
    EXPECT_EQ(getSeireki(-1, 5), 0);
}

struct MonthDayCase {
    int era;
    std::int64_t year, month, day, expected;
};

TEST(OptMonthDay, LimitsTheDayToTheMonth) {
    const MonthDayCase cases[] = {
        {0, 2023, 2, 31, 28},  {0, 2024, 2, 30, 29},
        {0, 2023, 4, 31, 30},  {0, 2023, 4, 30, 30},
        {0, 2023, 3, 31, 31},  {3, 6, 2, 30, 29},
        {3, 5, 2, 29, 28},     {0, 2023, 1, 0, 1},
        {0, 2023, 1, -5, 1},   {0, 2023, 1, 99, 31},
        {0, 2023, 14, 31, 31}, {0, 2023, 11, 31, 30},
        {0, 2023, 6, 45, 30},  {0, 2023, 9, 31, 30},
        {0, 2023, 0, 31, 31},  {0, 2023, 1, std::numeric_limits<std::int64_t>::max(), 31},
    };
    for (const auto& c : cases) {
        std::int64_t day = c.day;
        optMonthDay(c.era, c.year, c.month, day);
        EXPECT_EQ(day, c.expected) << "era " << c.era << " " << c.year << "-" << c.month << "-" << c.day;
    }
}

struct DateFromCase {
    int era;
    std::int64_t year, month, day;
    Ymd expected;
};

TEST(SetDateFrom, BuildsAWesternDateWithTheDayInItsMonth) {
    const DateFromCase cases[] = {
        {1, 64, 1, 7, {1989, 1, 7}},
        {2, 1, 1, 8, {1989, 1, 8}},
        {2, 31, 4, 30, {2019, 4, 30}},
        {3, 1, 5, 1, {2019, 5, 1}},
        {0, 2023, 2, 31, {2023, 2, 28}},
        {3, 6, 2, 31, {2024, 2, 29}},
        {0, 2023, 4, 15, {2023, 4, 15}},
        // A month outside 1 to 12 carries into the year, the day limited to the month it lands in.
        {0, 2023, 13, 5, {2024, 1, 5}},
        {0, 2023, 0, 5, {2022, 12, 5}},
        {0, 2023, 14, 31, {2024, 2, 29}},
        {0, 2023, -12, 1, {2021, 12, 1}},
        // Years beyond what a date holds stay at the limit.
        {0, std::numeric_limits<std::int64_t>::max(), 1, 1, {Date::kMaxYear, 1, 1}},
        {0, std::numeric_limits<std::int64_t>::min(), 1, 1, {Date::kMinYear, 1, 1}},
        {0, 40000, 1, 1, {Date::kMaxYear, 1, 1}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ymd(setDateFrom(c.era, c.year, c.month, c.day)), c.expected)
            << "setDateFrom(" << c.era << ", " << c.year << ", " << c.month << ", " << c.day << ")";
}

TEST(SetDateFrom, AnExtremeMonthCarriesToTheYearLimit) {
    EXPECT_EQ(setDateFrom(0, 2023, std::numeric_limits<std::int64_t>::min(), 1).Year(), Date::kMinYear);
    EXPECT_EQ(setDateFrom(0, 2023, std::numeric_limits<std::int64_t>::max(), 31).Year(), Date::kMaxYear);
}

TEST(GetDays, CountsWholeCalendarDays) {
    EXPECT_EQ(getDays(Date(2023, 1, 31), Date(2023, 2, 28)), 28);
    EXPECT_EQ(getDays(Date(2024, 1, 31), Date(2024, 2, 29)), 29);
    EXPECT_EQ(getDays(Date(2024, 1, 31), Date(2024, 1, 31)), 0);
    EXPECT_EQ(getDays(Date(2020, 3, 15), Date(2020, 4, 8)), 24);
    EXPECT_EQ(getDays(Date(2020, 4, 8), Date(2020, 3, 15)), -24);
}

} // namespace
