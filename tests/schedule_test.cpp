// SPDX-License-Identifier: GPL-3.0-or-later
// The calculation: worked examples, the date column, the listed range and refusals. The walk on
// random forms is checked by the reference model (model_test.cpp).
#include "engine/calculation.h"
#include "runtime/numbers.h"
#include "table/rows.h"

#include <gtest/gtest.h>

using namespace engine;
using table::Row;

namespace {

// The default loan borrowed on 2020-03-15, pay day 8, "Next": first payment 2020-04-08.
LoanForm loan2020(bool flat, int era = calendar::kWestern, std::string year = "2020") {
    LoanForm form;
    form.era = era;
    form.date = {std::move(year), "3", "15", "8"};
    form.flatPayment = flat;
    return form;
}

std::vector<Row> rows(const LoanForm& form, const ListedRange& listed = {}) {
    const Calculation calc = calculate(form, listed);
    return table::rowTexts(calc.payments, calc.terms.dateLine.era, calc.terms.dateLine.payDay);
}

TEST(Schedule, WorkedExamplesOfBothMethods) {
    const auto flat = rows(loan2020(true));
    ASSERT_EQ(flat.size(), 144u);
    EXPECT_EQ(flat[0], (Row{"001", "20.04.08", "781,684", "650,264", "131,420", "99,349,736"}));
    EXPECT_EQ(flat[1], (Row{"002", "20.05.08", "781,684", "618,478", "163,206", "98,731,258"}));
    EXPECT_EQ(flat[142], (Row{"143", "32.02.08", "781,684", "779,112", "2,572", "735,990"}));
    EXPECT_EQ(flat[143], (Row{"144", "32.03.08", "737,159", "735,990", "1,169", "0"}));
    const auto equal = rows(loan2020(false));
    EXPECT_EQ(equal[0], (Row{"001", "20.04.08", "825,864", "694,444", "131,420", "99,305,556"}));
    EXPECT_EQ(equal[143], (Row{"144", "32.03.08", "695,611", "694,508", "1,103", "0"}));
}

TEST(Schedule, TheDateColumnShowsTheYearOfTheEraInForce) {
    struct Case {
        int era;
        calendar::DateLineTexts date;
        std::size_t row;
        const char* shown;
    };
    const Case cases[] = {
        {calendar::kHeisei, {"30", "3", "15", "8"}, 12, "31.04.08"}, // the last month of Heisei
        {calendar::kHeisei, {"30", "3", "15", "8"}, 13, "01.05.08"}, // Reiwa 1 from May 2019
        {calendar::kShowa, {"63", "12", "10", "7"}, 0, "64.01.07"},  // the last day of Showa
        {calendar::kShowa, {"63", "12", "10", "8"}, 0, "01.01.08"},  // Heisei 1 from 8 January 1989
        {calendar::kShowa, {"1", "12", "1", "25"}, 0, "01.12.25"},   // the first day of Showa
        {calendar::kWestern, {"1926", "12", "1", "25"}, 0, "26.12.25"},
        // Year 0 of an era is the year before its first, counted in it.
        {calendar::kShowa, {"0", "3", "15", "8"}, 9, "01.01.08"},
        {calendar::kHeisei, {"0", "3", "15", "8"}, 0, "00.04.08"},
        {calendar::kReiwa, {"0", "3", "15", "8"}, 8, "00.12.08"},
    };
    for (const Case& c : cases) {
        LoanForm form = loan2020(false, c.era);
        form.date = c.date;
        EXPECT_EQ(rows(form)[c.row][table::kDate], c.shown) << c.era << " " << c.date.year << "-" << c.date.month;
    }
}

TEST(Schedule, ListsTheRangeAskedAndACutKeepsItsRows) {
    EXPECT_EQ(rows(loan2020(false), {10, 20}).front()[table::kNumber], "010");
    EXPECT_EQ(rows(loan2020(false), {std::numeric_limits<std::int64_t>::min(), 2}).size(), 2u);
    EXPECT_TRUE(rows(loan2020(false), {150, -1}).empty());
    EXPECT_EQ(rows(loan2020(false), {140, 150}).size(), 5u) << "a range past the last payment ends with it";
    EXPECT_EQ(rows(loan2020(false), {0, 3}).size(), 3u) << "a first row of 0 lists from the first";
    EXPECT_EQ(rows(loan2020(true), {1, 12})[11], rows(loan2020(true))[11]);
}

struct RefusalCase {
    const char* principal;
    const char* rate;
    const char* times;
    Refusal refusal;
};

TEST(Calculate, RefusesZeroAndInexactAmounts) {
    const RefusalCase cases[] = {
        {",5", "2", "144", Refusal::ZeroInput}, // the zero test reads the raw text
        {"-100", "2", "12", Refusal::None},
        {"100", "1e-20", "144", Refusal::OutOfRange}, // the annuity formula divides by zero
        {"1e400", "2", "144", Refusal::OutOfRange},
        {"9007199254740992", "2", "144", Refusal::None},
        {"9007199254740994", "2", "144", Refusal::OutOfRange},
        {"9007199254740992", "2", "1", Refusal::OutOfRange}, // principal + interest passes 2^53
    };
    for (const auto& c : cases) {
        LoanForm form = loan2020(true);
        form.principal = c.principal;
        form.rate = c.rate;
        form.times = c.times;
        EXPECT_EQ(calculate(form).refusal, c.refusal) << c.principal << " " << c.rate << " " << c.times;
    }
}

} // namespace
