#include "calendar/era.h"

#include <gtest/gtest.h>

using namespace calendar;

namespace calendar {
// How gtest prints an era year when a case fails.
static std::ostream& operator<<(std::ostream& os, const EraYear& e) {
    return os << "era " << e.era << " year " << e.year;
}
} // namespace calendar

namespace {

struct DisplayCase {
    std::int64_t year, month, day;
    int era;
    EraYear shown;
};

// The date column's era table: the year each era index shows for a date.
TEST(DisplayedEraYear, MovesOnAtTheEndOfAnEra) {
    const DisplayCase cases[] = {
        {1989, 1, 7, 0, {0, 1989}}, {1989, 1, 7, 1, {1, 64}}, {1989, 1, 7, 2, {2, 1}},    {1989, 2, 7, 0, {0, 1989}},
        {1989, 2, 7, 1, {2, 1}},    {1989, 2, 7, 2, {2, 1}},  {2019, 4, 8, 0, {0, 2019}}, {2019, 4, 8, 1, {2, 31}},
        {2019, 4, 8, 2, {2, 31}},   {2019, 4, 8, 3, {3, 1}},  {2019, 5, 8, 0, {0, 2019}}, {2019, 5, 8, 1, {3, 1}},
        {2019, 5, 8, 2, {3, 1}},    {2019, 5, 8, 3, {3, 1}},  {2024, 4, 8, 0, {0, 2024}}, {2024, 4, 8, 1, {3, 6}},
        {2024, 4, 8, 2, {3, 6}},    {2024, 4, 8, 3, {3, 6}},  {1989, 1, 8, 1, {2, 1}},    {2032, 3, 8, 2, {3, 14}},
        {2019, 3, 8, 2, {2, 31}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(displayedEraYear(c.era, c.year, c.month, c.day), c.shown)
            << c.year << "-" << c.month << "-" << c.day << " under era " << c.era;
}

struct CorrectionCase {
    int era;
    std::int64_t year, month, day;
    EraYear result;
    bool changed;
};

TEST(CorrectEra, MovesAYearThatDoesNotFitItsEra) {
    const CorrectionCase cases[] = {
        {1, 64, 1, 7, {1, 64}, false},
        {1, 64, 1, 8, {2, 1}, true},
        {1, 64, 2, 1, {2, 1}, true},
        {1, 63, 12, 31, {1, 63}, false},
        {2, 31, 4, 30, {2, 31}, false},
        {2, 31, 5, 1, {3, 1}, true},
        {2, 30, 12, 31, {2, 30}, false},
        {1, 0, 6, 1, {0, 1925}, true},
        {1, -2, 6, 1, {0, 1923}, true},
        {3, 0, 6, 1, {2, 30}, true},
        {2, 0, 6, 1, {1, 63}, true},
        {3, 1, 3, 1, {3, 1}, false},
        {1, 70, 6, 1, {2, 7}, true},
        {2, 200, 6, 1, {3, 170}, true},
        {1, 100, 6, 1, {3, 7}, true},
        {3, -40, 6, 1, {2, -10}, true},
        {0, -5, 6, 1, {0, -5}, false},
        {2, 1, 1, 3, {2, 1}, false},
        {3, 99999, 6, 1, {3, kYearLimit}, false},
    };
    for (const auto& c : cases) {
        const auto corrected = correctEra(c.era, c.year, c.month, c.day);
        EXPECT_EQ(corrected.result, c.result) << "era " << c.era << " year " << c.year << " month " << c.month;
        EXPECT_EQ(corrected.changed, c.changed) << "era " << c.era << " year " << c.year;
    }
}

struct ConversionCase {
    int era;
    std::int64_t year, month, day;
    EraYear result;
};

TEST(ConvertCalendar, TurnsWesternYearsIntoEraYearsAndBack) {
    const ConversionCase cases[] = {
        {0, 1989, 1, 7, {1, 64}},   {0, 1989, 1, 8, {2, 1}},  {0, 2019, 4, 30, {2, 31}},  {0, 2019, 5, 1, {3, 1}},
        {0, 1925, 6, 1, {0, 1925}}, {0, 1926, 1, 1, {1, 1}},  {0, 1988, 12, 31, {1, 63}}, {0, 2023, 6, 1, {3, 5}},
        {3, 5, 6, 1, {0, 2023}},    {1, 64, 6, 1, {0, 1989}}, {0, 1989, 6, 1, {2, 1}},    {2, 200, 1, 1, {0, 2188}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(convertCalendar(c.era, c.year, c.month, c.day), c.result) << "era " << c.era << " year " << c.year;
}

TEST(ReadYear, HoldsTheYearWithinTheLimit) {
    EXPECT_EQ(readYear("02"), 2);
    EXPECT_EQ(readYear("2.9"), 2);
    EXPECT_EQ(readYear("abc"), 0);
    EXPECT_EQ(readYear("1e30"), kYearLimit);
    EXPECT_EQ(readYear("-99999999"), -kYearLimit);
}

} // namespace
