// The corrections the form's fields apply on leaving them.
#include "calendar/datefields.h"
#include "form/amountfields.h"

#include <gtest/gtest.h>

namespace {

struct TextCase {
    const char* typed;
    const char* shown;
};

TEST(AmountFields, PrincipalForEditingAndForDisplay) {
    const TextCase editing[] = {{"100,000,000", "100000000"}, {"1,2,3", "123"}, {"", ""}};
    for (const auto& c : editing) EXPECT_EQ(form::principalForEditing(c.typed), c.shown) << c.typed;
    const TextCase display[] = {{"100000000", "100,000,000"}, {"1,000,000", "1,000,000"}, {"12345.6", "12,346"},
                                {"", "0"}, {"abc", "0"}, {"-5000", "-5,000"}, {"1e3", "1,000"}};
    for (const auto& c : display) EXPECT_EQ(form::principalForDisplay(c.typed), c.shown) << c.typed;
}

TEST(AmountFields, RateAndCountAreWrittenPlainly) {
    const TextCase rates[] = {{"2.0", "2"}, {"2.50", "2.5"}, {"abc", "0"}, {" 3", "3"}, {"-0", "0"}, {"1e-20", "1e-20"}};
    for (const auto& c : rates) EXPECT_EQ(form::plainNumber(c.typed), c.shown) << c.typed;
    const TextCase counts[] = {{"0144", "144"}, {"144.9", "144.9"}, {"250000", "100000"}, {"1e999", "100000"}, {"-12", "-12"}};
    for (const auto& c : counts) EXPECT_EQ(form::countText(c.typed), c.shown) << c.typed;
}

struct FirstRowCase {
    const char* plain;
    const char* count;
    const char* shown;
    std::int64_t number;
};

TEST(AmountFields, FirstRowFallsBackToOneOutsideTheCount) {
    const FirstRowCase cases[] = {{"5", "144", "5", 5},   {"0", "144", "1", 1},     {"-3", "144", "1", 1},
                                  {"0", "144", "1", 1},   {"145", "144", "1", 1},   {"144", "144", "144", 144},
                                  {"2.9", "144", "2.9", 2}, {"3", "2.5", "1", 1}};
    for (const auto& c : cases) {
        const auto first = form::firstRow(c.plain, c.count);
        EXPECT_EQ(first.text, c.shown) << c.plain << " of " << c.count;
        EXPECT_EQ(first.number, c.number) << c.plain << " of " << c.count;
    }
}

struct YearCase {
    int era;
    calendar::DateFieldTexts texts;
    std::optional<int> newEra;
    const char* year;
};

TEST(DateFields, YearFieldAgainstItsEra) {
    const YearCase cases[] = {
        {0, {"02", "3", "15"}, std::nullopt, "2"},  {3, {"2.9", "3", "15"}, std::nullopt, "2"},
        {3, {"abc", "3", "15"}, 2, "30"},           {1, {"64", "1", "7"}, std::nullopt, "64"},
        {1, {"64", "1", "8"}, 2, "1"},              {2, {"31", "5", "1"}, 3, "1"},
        {3, {"99999", "1", "1"}, std::nullopt, "9999"},
    };
    for (const auto& c : cases) {
        const auto field = calendar::correctYearField(c.era, c.texts);
        EXPECT_EQ(field.era, c.newEra) << c.texts.year;
        EXPECT_EQ(field.year, c.year) << c.texts.year;
    }
}

struct MonthCase {
    calendar::DateFieldTexts texts;
    std::optional<std::string> month, day;
};

TEST(DateFields, MonthIntoRangeAndDayIntoTheMonth) {
    const MonthCase cases[] = {
        {{"2023", "13", "15"}, "12", std::nullopt}, {{"2023", "0", "15"}, "1", std::nullopt},
        {{"2023", "x", "15"}, "1", std::nullopt},   {{"2023", "4", "31"}, std::nullopt, "30"},
        {{"2023", "2", "30"}, std::nullopt, "28"},  {{"2024", "2", "30"}, std::nullopt, "29"},
        {{"2023", "5", "30"}, std::nullopt, std::nullopt}, {{"2023", "05", "30"}, std::nullopt, std::nullopt},
    };
    for (const auto& c : cases) {
        const auto field = calendar::correctMonthField(calendar::kWestern, c.texts);
        EXPECT_EQ(field.month, c.month) << c.texts.month << "/" << c.texts.day;
        EXPECT_EQ(field.day, c.day) << c.texts.month << "/" << c.texts.day;
    }
}

TEST(DateFields, DayAndPayDay) {
    EXPECT_EQ(calendar::correctDayField(0, {"2023", "4", "31"}), "30");
    EXPECT_EQ(calendar::correctDayField(0, {"2023", "4", "0"}), "1");
    EXPECT_EQ(calendar::correctDayField(0, {"2023", "4", "45"}), "30");
    EXPECT_EQ(calendar::correctDayField(3, {"6", "2", "30"}), "29");
    EXPECT_EQ(calendar::correctDayField(0, {"2023", "4", "015"}), std::nullopt);
    const TextCase payDays[] = {{"45", "31"}, {"0", "1"}, {"8.9", "8"}, {"abc", "1"}, {"-5", "1"}, {"31", "31"}};
    for (const auto& c : payDays) EXPECT_EQ(calendar::payDayText(c.typed), c.shown) << c.typed;
}

} // namespace
