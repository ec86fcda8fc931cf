#include "calendar/loandates.h"

#include <gtest/gtest.h>

using namespace calendar;

namespace {

std::string iso(const Date& d) {
    char text[32];
    std::snprintf(text, sizeof text, "%04lld-%02lld-%02lld", static_cast<long long>(d.Year()),
                  static_cast<long long>(d.Month()), static_cast<long long>(d.Day()));
    return text;
}

DateLine western(std::int64_t y, std::int64_t m, std::int64_t d, std::int64_t payDay, int delay) {
    return {kWestern, y, m, d, payDay, delay};
}

struct FirstPaymentCase {
    DateLine line;
    const char* first;
};

TEST(LoanDates, FirstPaymentFollowsPayDayAndDelay) {
    const FirstPaymentCase cases[] = {
        {western(2023, 1, 15, 20, kNext), "2023-01-20"},       {western(2023, 1, 15, 15, kNext), "2023-02-15"},
        {western(2023, 1, 15, 10, kNext), "2023-02-10"},       {western(2023, 1, 15, 20, kTwoAfter), "2023-02-20"},
        {western(2023, 1, 15, 10, kTwoAfter), "2023-03-10"},   {western(2023, 1, 15, 20, kThreeAfter), "2023-03-20"},
        {western(2023, 1, 15, 10, kThreeAfter), "2023-04-10"}, {western(2023, 1, 31, 31, kNext), "2023-02-28"},
        {western(2023, 2, 28, 31, kNext), "2023-03-31"},       {western(2023, 1, 30, 31, kTwoAfter), "2023-03-31"},
        {western(2024, 1, 29, 30, kNext), "2024-01-30"},       {western(2024, 1, 30, 30, kNext), "2024-02-29"},
        {western(2023, 12, 31, 31, kNext), "2024-01-31"},      {western(2023, 12, 20, 8, kNext), "2024-01-08"},
        {western(2023, 12, 20, 8, kTwoAfter), "2024-02-08"},   {western(2023, 12, 20, 8, kThreeAfter), "2024-03-08"},
        {western(2023, 11, 20, 8, kThreeAfter), "2024-02-08"}, {western(2023, 12, 30, 31, kThreeAfter), "2024-02-29"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(iso(loanDates(c.line, 12).start), c.first)
            << "borrowed " << c.line.year << "-" << c.line.month << "-" << c.line.day << " pay day " << c.line.payDay
            << " delay " << c.line.delay;
}

struct PayoffCase {
    DateLine line;
    std::int64_t count;
    const char* kariire;
    const char* kansai;
    const char* text;
};

TEST(LoanDates, PayoffDateAndStatement) {
    const PayoffCase cases[] = {
        {western(2020, 3, 15, 8, kNext), 144, "2020-03-15", "2032-03-08", "2032 / 3 / 8 "},
        {{kReiwa, 2, 3, 15, 8, kNext}, 144, "2020-03-15", "2032-03-08", "Reiwa  14 / 3 / 8 "},
        {{kHeisei, 32, 3, 15, 8, kNext}, 144, "2020-03-15", "2032-03-08", "Reiwa  14 / 3 / 8 "},
        {{kHeisei, 30, 3, 15, 8, kNext}, 12, "2018-03-15", "2019-03-08", "Heisei  31 / 3 / 8 "},
        {western(2022, 12, 20, 8, kNext), 12, "2022-12-20", "2023-12-08", "2023 / 12 / 8 "},
        {western(2023, 12, 31, 31, kNext), 2, "2023-12-31", "2024-02-29", "2024 / 2 / 29 "},
        {western(2020, 3, 15, 45, kNext), 1, "2020-03-15", "2020-03-31", "2020 / 3 / 31 "},
        // A negative count puts the pay-off date before the first payment; the month carries.
        {western(2020, 3, 15, 8, kNext), -2, "2020-03-15", "2020-01-08", "2020 / 1 / 8 "},
        {western(2020, 3, 15, 8, kNext), -5, "2020-03-15", "2019-10-08", "2019 / 10 / 8 "},
    };
    for (const auto& c : cases) {
        const LoanDates dates = loanDates(c.line, c.count);
        EXPECT_EQ(iso(dates.kariire), c.kariire) << c.text;
        EXPECT_EQ(iso(dates.kansai), c.kansai) << c.text;
        EXPECT_EQ(payoffText(dates.kansai, c.line.era, PayoffWords{}), c.text);
    }
}

TEST(LoanDates, StatementUsesTheGivenWords) {
    const PayoffWords japanese{{"", "昭和", "平成", "令和"}, "年", "月", "日"};
    EXPECT_EQ(payoffText(Date(2032, 3, 8), kReiwa, japanese), "令和  14 年 3 月 8 日");
}

TEST(ReadDateLine, ReadsEachFieldAsAnInteger) {
    const DateLine line = readDateLine(kShowa, {"64", "1.9", "7abc", "x"}, kTwoAfter);
    EXPECT_EQ(line.year, 64);
    EXPECT_EQ(line.month, 1);
    EXPECT_EQ(line.day, 7);
    EXPECT_EQ(line.payDay, 0);
    EXPECT_EQ(line.delay, kTwoAfter);
}

} // namespace
