// SPDX-License-Identifier: GPL-3.0-or-later
// Plans: each kind of event on small loans worked by hand, the lines that name events, totals,
// savings and the figures of each year.
#include "engine/calculation.h"
#include "engine/plan.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace engine;

namespace {

// 1,200 in 12 payments of equal principal at a rate so small that every interest rounds to 0:
// each payment is 100 of principal, so the walk can be followed by hand.
LoanForm tinyLoan() {
    LoanForm form;
    form.principal = "1200";
    form.rate = "0.0001";
    form.times = "12";
    form.era = calendar::kWestern;
    form.date = {"2020", "3", "15", "8"};
    return form;
}

std::vector<PlanEvent> events(const std::vector<const char*>& lines, std::int64_t count = 12) {
    std::vector<PlanEvent> read;
    for (const char* line : lines) read.push_back(*readEvent(line, count).event);
    return read;
}

struct WalkCase {
    std::vector<const char*> events;
    std::size_t payments;
    double lastPrincipal, prepaid;
    const char* why;
};

TEST(Plan, PrepaymentsShortenOrReduce) {
    const WalkCase cases[] = {
        {{"prepay 3 250"}, 10, 50, 250, "1200-300-250 = 650 left; 6 x 100 leave 50, paid with payment 10"},
        {{"prepay 3 250 reduce"}, 12, 74, 250, "650 / 9 = 72 a payment; 8 x 72 leave 74 for payment 12"},
        {{"prepay 2 5000"}, 2, 100, 1000, "at most the 1000 left: the loan ends with payment 2"},
        {{"prepay 2 100 every 3"}, 9, 100, 300, "with payments 2, 5 and 8: 100 left after 8, paid with 9"},
        {{"prepay 12 50", "fee 1 30"}, 12, 100, 0, "nothing left to prepay with the last payment"},
    };
    for (const auto& c : cases) {
        const Calculation calc = calculate(tinyLoan(), {}, events(c.events));
        ASSERT_EQ(calc.payments.size(), c.payments) << c.why;
        EXPECT_EQ(calc.payments.back().principal, c.lastPrincipal) << c.why;
        EXPECT_EQ(calc.payments.back().balance, 0.0) << c.why;
        EXPECT_EQ(planTotals(calc.payments).prepaid, c.prepaid) << c.why;
    }
}

TEST(Plan, RateChangesActFromTheirPeriodAndBeforeAPrepayment) {
    LoanForm form = tinyLoan();
    form.principal = "1,000,000";
    form.rate = "1";
    form.times = "2";
    // Payment 2 (30 days from 8 April) at 12 %: Round(500,000 x 0.12 / 365.2422 x 30) = 4,928.
    const auto equal = calculate(form, {}, events({"rate 2 12"}, 2)).payments;
    EXPECT_EQ(equal[0].interest, 657.0) << "24 days at 1 %";
    EXPECT_EQ(equal[1].interest, 4928.0);
    // Flat payment: from payment 2 of 3 the payment is the annuity of what is left at 12 % over 2
    // months, Round(1.01^2 x 0.01 x B / (1.01^2 - 1)); the prepayment of payment 2 then lowers B.
    form.times = "3";
    form.flatPayment = true;
    const auto flat = calculate(form, {}, events({"prepay 2 100000 reduce", "rate 2 12"}, 3)).payments;
    const double b = flat[0].balance, t = 1.01 * 1.01;
    EXPECT_EQ(flat[1].amount, std::round(t * 0.01 * b / (t - 1.0)));
    EXPECT_EQ(flat[1].prepaid, 100000.0);
    EXPECT_EQ(flat[2].amount, flat[2].principal + flat[2].interest);
    EXPECT_EQ(flat[2].balance, 0.0);
}

TEST(Plan, FeesSavingsAndBreakEven) {
    // A refinancing of the 30,000,000 loan at payment 61 to 0.9 % with a fee of 330,000.
    LoanForm form = tinyLoan();
    form.principal = "30,000,000";
    form.rate = "1.5";
    form.times = "420";
    form.flatPayment = true;
    const auto base = calculate(form).payments;
    const auto plan = calculate(form, {}, events({"rate 61 0.9", "fee 61 330,000"}, 420)).payments;
    const PlanSavings savings = planSavings(base, plan);
    EXPECT_EQ(planTotals(plan).fees, 330000.0);
    EXPECT_EQ(savings.netSaving, savings.interestSaved - 330000.0);
    // The interest saved reaches the fee with the break-even payment, not before.
    double saved = 0;
    std::int64_t n = 0;
    while (saved < 330000.0) saved += base[n].interest - plan[n].interest, ++n;
    EXPECT_EQ(savings.breakEven, n);
    EXPECT_FALSE(planSavings(base, calculate(form, {}, events({"fee 1 1"}, 420)).payments).breakEven);
}

TEST(Plan, YearsFollowTheCalendarAcrossAnEra) {
    LoanForm form = tinyLoan();
    form.era = calendar::kHeisei;
    form.date = {"30", "10", "1", "8"};
    const auto years = yearlyFigures(calculate(form, {}, events({"prepay 2 300"})).payments);
    ASSERT_EQ(years.size(), 2u); // October 2018 to June 2019: Heisei 30 and 31, Reiwa 1
    EXPECT_EQ((std::array{years[0].year, years[0].payments, years[1].year, years[1].payments}),
              (std::array<std::int64_t, 4>{2018, 3, 2019, 6}));
    EXPECT_EQ(years[0].prepaid, 300.0);
    EXPECT_EQ(years[0].balance, 600.0);
    EXPECT_EQ(years[1].balance, 0.0);
}

TEST(Plan, EventLinesReadAndWrittenBack) {
    const std::pair<const char*, const char*> lines[] = {
        {"prepay 12 1,000,000 reduce every 12", "prepay 12 1000000 reduce every 12"},
        {"prepay\t3\t500", "prepay 3 500 shorten"},
        {"rate 61 1.5", "rate 61 1.5"},
        {"fee 61 330000", "fee 61 330000"},
    };
    for (const auto& [line, written] : lines) EXPECT_EQ(eventLine(*readEvent(line, 420).event), written) << line;
    const std::pair<const char*, const char*> errors[] = {
        {"prepay 421 100", "payment outside 1 to the count"},
        {"fee 3 -5", "negative amount"},
        {"rate 3 abc", "not a number"},
        {"prepay 3 100 sooner", "not an event"},
    };
    for (const auto& [line, why] : errors) EXPECT_EQ(readEvent(line, 420).error, std::string(why) + ": " + line);
}

} // namespace
