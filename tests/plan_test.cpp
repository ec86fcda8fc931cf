// SPDX-License-Identifier: GPL-3.0-or-later
// Plans: the lines that name events, the bounds of an events text and the event that makes a plan
// refused. The walk, totals, savings and years are checked by the reference model (model_test.cpp).
#include "engine/calculation.h"
#include "engine/plan.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace engine;

namespace {

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

TEST(Plan, TheBreakEvenPaymentIsTheOneWhoseSavingMeetsTheFees) {
    LoanForm form = tinyLoan();
    form.principal = "1,200,000";
    form.rate = "1.5";
    const auto base = calculate(form).payments, prepaid = calculate(form, {}, events({"prepay 1 600000"})).payments;
    // The prepayment saves interest from payment 2 on: a fee of exactly that saving is earned back with it.
    const double saved = base[1].interest - prepaid[1].interest;
    const auto plan = events({"prepay 1 600000", ("fee 1 " + std::to_string(static_cast<long>(saved))).c_str()});
    EXPECT_EQ(evaluatePlan(form, plan).savings.breakEven, 2);
}

TEST(Plan, EventLinesReadAndWrittenBack) {
    const std::pair<const char*, const char*> lines[] = {
        {"prepay 12 1,000,000 reduce every 12", "prepay 12 1000000 reduce every 12"},
        {"prepay\t3\t500", "prepay 3 500 shorten"},
        {"prepay 3 500 every 1", "prepay 3 500 shorten every 1"},
        {"rate 61 1.5", "rate 61 1.5"},
        {"fee 61 330000", "fee 61 330000"},
    };
    for (const auto& [line, written] : lines) EXPECT_EQ(eventLine(*readEvent(line, 420).event), written) << line;
    const std::pair<std::string, std::string> errors[] = {
        {"prepay 421 100", "payment outside 1 to the count: prepay 421 100"},
        {"fee 3 -5", "negative amount: fee 3 -5"},
        {"rate 3 abc", "not a number: rate 3 abc"},
        {"prepay 3 100 sooner", "not an event: prepay 3 100 sooner"},
        {"prepay 3 100 every 0", "every takes a count of payments from 1 to the count: prepay 3 100 every 0"},
        {"prepay 1 1000 every 421", "every takes a count of payments from 1 to the count: prepay 1 1000 every 421"},
        {"prepay 1 1000 every 922337203685477580700000",
         "every takes a count of payments from 1 to the count: prepay 1 1000 every 92233720368547758070..."},
        {"fee 1 9007199254740993", "amount beyond 9,007,199,254,740,992: fee 1 9007199254740993"},
        {"prepay 1 1e300", "amount beyond 9,007,199,254,740,992: prepay 1 1e300"},
        {"prepay 1 \x1b[31mred\xff \xe2\x82\xac", "not a number: prepay 1 ?[31mred? \xe2\x82\xac"},
        {"fee 1 \xc2\x85\xc2\xa0x", "not a number: fee 1 ??\xc2\xa0x"}, // a C1 control, then a no-break space
    };
    for (const auto& [line, why] : errors) EXPECT_EQ(readEvent(line, 420).error, why) << line;
    EXPECT_TRUE(readEvent("rate 1 1e300", 420).event) << "a rate is no amount: the walk refuses it";
    EXPECT_TRUE(readEvent("fee 1 9007199254740992", 420).event);
    // The last payment of the longest loan takes its events.
    LoanForm longest = tinyLoan();
    longest.times = "100000";
    EXPECT_EQ(evaluatePlan(longest, {*readEvent("fee 100000 5", 100000).event}).totals.fees, 5.0);
}

TEST(Plan, TextsAreReadWithinTheirBounds) {
    const std::string longest(kMaxLineLength, 'x');
    std::string tooMany;
    for (std::size_t i = 0; i <= kMaxPlanLines; ++i) tooMany += "#\n";
    struct Case {
        std::string text;
        std::vector<std::string> lines;
        std::string error;
    };
    const Case cases[] = {
        {"fee 1 1\n\n  # a note\r\nrate 2 1\r\nprepay 3 1", {"fee 1 1", "rate 2 1\r", "prepay 3 1"}, ""},
        {longest + "\n" + longest, {longest, longest}, ""},
        {"fee 1 1\n" + longest + "y\nfee 2 2", {"fee 1 1"}, "line 2 is longer than 1,000 characters"},
        {std::string(1 << 20, '\0'), {}, "line 1 is longer than 1,000 characters"},
        {tooMany.substr(2), {}, ""},
        {tooMany, {}, "more than 100,000 lines"},
    };
    for (const Case& c : cases) {
        std::istringstream in(c.text);
        const PlanLines read = readPlanLines(in);
        EXPECT_EQ(read.lines, c.lines) << c.text.substr(0, 30);
        EXPECT_EQ(read.error, c.error) << c.text.substr(0, 30);
    }
}

TEST(Plan, ARefusedPlanNamesTheEventThatMakesIt) {
    const std::pair<std::vector<const char*>, std::optional<std::size_t>> cases[] = {
        {{"prepay 1 5", "rate 2 1e300", "fee 3 1"}, 1},
        {{"fee 1 5,000,000,000,000,000", "fee 2 1", "fee 3 5,000,000,000,000,000"}, 2}, // the total paid
        {{"prepay 1 5", "fee 3 1"}, std::nullopt},
    };
    for (const auto& [lines, by] : cases) {
        const PlanOutcome outcome = evaluatePlan(tinyLoan(), events(lines));
        EXPECT_EQ(outcome.refusal, by ? Refusal::OutOfRange : Refusal::None) << lines[1];
        EXPECT_EQ(outcome.refusedBy, by) << lines[1];
    }
    // The principal as typed, though a double reads 2^53 + 1 as 2^53.
    LoanForm form = tinyLoan();
    for (const auto& [principal, refusal] : {std::pair{"9007199254740992", Refusal::None},
                                             {"9,007,199,254,740,993", Refusal::OutOfRange},
                                             {"9007199254740992.5", Refusal::OutOfRange}}) {
        form.principal = principal;
        EXPECT_EQ(calculate(form).refusal, refusal) << principal;
    }
    EXPECT_EQ(evaluatePlan(form, {}).refusal, Refusal::OutOfRange) << "its total paid, with interest, is beyond";
}

} // namespace
