#include "engine/calculation.h"

#include <gtest/gtest.h>

using namespace engine;

namespace {

// The default loan borrowed on 2020-03-15, pay day 8, "Next": first payment 2020-04-08.
LoanForm defaultLoan(bool flat, int era = calendar::kWestern, std::string year = "2020") {
    LoanForm form;
    form.era = era;
    form.date = {std::move(year), "3", "15", "8"};
    form.isGanri = flat;
    return form;
}

struct RowCase {
    std::size_t index;
    Row row;
};

void expectRows(const std::vector<Row>& rows, std::initializer_list<RowCase> cases) {
    for (const auto& c : cases) {
        ASSERT_LT(c.index, rows.size());
        EXPECT_EQ(rows[c.index], c.row) << "row " << c.index + 1;
    }
}

TEST(Schedule, FlatPaymentOfTheDefaultLoan) {
    const Calculation calc = calculate(defaultLoan(true));
    ASSERT_EQ(calc.refusal, Refusal::None);
    EXPECT_EQ(calc.record.hPart, 781684.0);
    ASSERT_EQ(calc.rows.size(), 144u);
    expectRows(calc.rows, {
                              {0, {"001", "20.04.08", "781,684", "650,264", "131,420", "99,349,736"}},
                              {1, {"002", "20.05.08", "781,684", "618,478", "163,206", "98,731,258"}},
                              {142, {"143", "32.02.08", "781,684", "779,112", "2,572", "735,990"}},
                              {143, {"144", "32.03.08", "737,159", "735,990", "1,169", "0"}},
                          });
    EXPECT_EQ(calc.payoffText, "2032 / 3 / 8 ");
}

TEST(Schedule, EqualPrincipalOfTheDefaultLoan) {
    const Calculation calc = calculate(defaultLoan(false));
    ASSERT_EQ(calc.refusal, Refusal::None);
    EXPECT_EQ(calc.record.gPart, 694444.0);
    ASSERT_EQ(calc.rows.size(), 144u);
    expectRows(calc.rows, {
                              {0, {"001", "20.04.08", "825,864", "694,444", "131,420", "99,305,556"}},
                          });
    EXPECT_EQ(calc.rows[142][kPrincipal], "694,444");
    EXPECT_EQ(calc.rows[142][kBalance], "694,508");
    EXPECT_EQ(calc.rows[143][kPrincipal], "694,508");
    EXPECT_EQ(calc.rows[143][kInterest], "1,103");
    EXPECT_EQ(calc.rows[143][kAmount], "695,611");
    EXPECT_EQ(calc.rows[143][kBalance], "0");
}

TEST(Schedule, DateColumnShowsTheEraYear) {
    const Calculation reiwa = calculate(defaultLoan(false, calendar::kReiwa, "2"));
    EXPECT_EQ(reiwa.rows[0][kDate], "02.04.08");
    EXPECT_EQ(reiwa.payoffText, "Reiwa  14 / 3 / 8 ");

    // Heisei 30, March: the rows go from 31 to Reiwa 01 in May 2019.
    const Calculation heisei = calculate(defaultLoan(false, calendar::kHeisei, "30"));
    EXPECT_EQ(heisei.rows[12][kDate], "31.04.08");
    EXPECT_EQ(heisei.rows[13][kDate], "01.05.08");
    EXPECT_EQ(heisei.rows[14][kDate], "01.06.08");

    LoanForm showa = defaultLoan(false, calendar::kShowa, "63");
    showa.date = {"63", "12", "10", "7"};
    EXPECT_EQ(calculate(showa).rows[0][kDate], "64.01.07");
    showa.date.payDay = "8";
    EXPECT_EQ(calculate(showa).rows[0][kDate], "01.01.08");
}

TEST(Schedule, PayDay31FollowsTheEndOfEachMonth) {
    LoanForm form = defaultLoan(false);
    form.date = {"2023", "12", "31", "31"};
    const Calculation calc = calculate(form);
    EXPECT_EQ(calc.rows[0][kDate], "24.01.31");
    EXPECT_EQ(calc.rows[1][kDate], "24.02.29");
    EXPECT_EQ(calc.rows[2][kDate], "24.03.31");
    EXPECT_EQ(calc.rows[3][kDate], "24.04.30");
}

TEST(Schedule, OnePaymentClearsTheLoanWhateverTheMethod) {
    for (const bool flat : {true, false}) {
        LoanForm form = defaultLoan(flat);
        form.times = "1";
        const Calculation calc = calculate(form);
        ASSERT_EQ(calc.rows.size(), 1u);
        EXPECT_EQ(calc.rows[0][kPrincipal], "100,000,000");
        EXPECT_EQ(calc.rows[0][kBalance], "0");
    }
}

struct RangeCase {
    std::int64_t numTop, totalRows;
    const char* times;
    std::size_t rows;
    const char* first;
    const char* last;
};

TEST(Schedule, ListsPaymentsFromNumTopToTotalRows) {
    const RangeCase cases[] = {
        {1, 1, "144", 1, "001", "001"},  {10, 20, "144", 11, "010", "020"},
        {5, 12, "144", 8, "005", "012"}, {144, -1, "144", 1, "144", "144"},
        {150, -1, "144", 0, "", ""},     {1, 200, "144", 144, "001", "144"},
        {1, -1, "-12", 0, "", ""},       {1, -1, "1e9", 100000, "001", "100000"},
    };
    for (const auto& c : cases) {
        LoanForm form = defaultLoan(false);
        form.numTop = c.numTop;
        form.totalRows = c.totalRows;
        form.times = c.times;
        const Calculation calc = calculate(form);
        ASSERT_EQ(calc.refusal, Refusal::None);
        ASSERT_EQ(calc.rows.size(), c.rows) << c.numTop << " to " << c.totalRows;
        if (c.rows == 0) continue;
        EXPECT_EQ(calc.rows.front()[kNumber], c.first);
        EXPECT_EQ(calc.rows.back()[kNumber], c.last);
    }
    // A cut does not change the rows it keeps.
    LoanForm cut = defaultLoan(true);
    cut.totalRows = 12;
    EXPECT_EQ(calculate(cut).rows[11], calculate(defaultLoan(true)).rows[11]);
}

struct RefusalCase {
    const char* principal;
    const char* rate;
    const char* times;
    Refusal refusal;
};

TEST(Calculate, RefusesZeroAndInexactAmounts) {
    const RefusalCase cases[] = {
        {"", "2.0", "144", Refusal::ZeroInput},
        {"100", "0", "144", Refusal::ZeroInput},
        {"100", "2", "0", Refusal::ZeroInput},
        {"abc", "2", "144", Refusal::ZeroInput},
        {",5", "2", "144", Refusal::ZeroInput},
        {"1,000,000", "2", "144", Refusal::None},
        {"-100", "2", "12", Refusal::None},
        {"100", "1e-20", "144", Refusal::OutOfRange},
        {"100", "2", "0.5", Refusal::OutOfRange},
        {"1e308", "1e308", "144", Refusal::OutOfRange},
        {"100", "1e5", "100000", Refusal::OutOfRange},
        {"1e400", "2", "144", Refusal::OutOfRange},
        {"9007199254740992", "2", "144", Refusal::None},
        {"9007199254740994", "2", "144", Refusal::OutOfRange},
        {"9007199254740992", "2", "1", Refusal::OutOfRange}, // the one amount is principal + interest
    };
    for (const auto& c : cases) {
        LoanForm form = defaultLoan(false);
        form.principal = c.principal;
        form.rate = c.rate;
        form.times = c.times;
        form.isGanri = c.rate == std::string("1e-20") || c.rate == std::string("1e5");
        EXPECT_EQ(calculate(form).refusal, c.refusal) << c.principal << " " << c.rate << " " << c.times;
    }
}

TEST(Calculate, CommasInThePrincipalAreThousandsSeparators) {
    LoanForm form = defaultLoan(false);
    form.principal = "1,000,000";
    form.times = "1";
    EXPECT_EQ(calculate(form).record.gankin, 1000000.0);
}

} // namespace
