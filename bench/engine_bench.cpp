// SPDX-License-Identifier: GPL-3.0-or-later
// The calculation from the form's texts to the payments, and on to the rows as the table shows them.
#include "engine/calculation.h"
#include "engine/plan.h"
#include "table/rows.h"

#include <benchmark/benchmark.h>

namespace {

engine::LoanForm loan(std::int64_t payments, bool flat) {
    engine::LoanForm form;
    form.era = calendar::kWestern;
    form.date = {"2020", "3", "15", "8"};
    form.times = std::to_string(payments);
    form.rate = payments > 1000 ? "0.01" : "2.0";
    form.flatPayment = flat;
    return form;
}

std::vector<table::Row> rows(const engine::LoanForm& form) {
    const auto calc = engine::calculate(form);
    return table::rowTexts(calc.payments, calc.terms.dateLine.era, calc.terms.dateLine.payDay);
}

void DefaultLoan(benchmark::State& state) {
    const auto form = loan(144, state.range(0) != 0);
    for (auto _ : state) benchmark::DoNotOptimize(rows(form));
}
BENCHMARK(DefaultLoan)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void Payments(benchmark::State& state) {
    const auto form = loan(state.range(0), false);
    for (auto _ : state) benchmark::DoNotOptimize(rows(form));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Payments)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);

// A plan of 100,000 payments with 1,000 events: prepayments (some recurring), rate changes and
// fees, with its totals, savings and years.
void PlanWithEvents(benchmark::State& state) {
    engine::LoanForm form = loan(100'000, state.range(0) != 0);
    form.principal = "9,000,000,000,000";
    std::vector<engine::PlanEvent> events;
    for (std::int64_t i = 0; i < 1000; ++i) {
        const std::int64_t n = 1 + i * 97;
        if (i % 3 == 0) events.push_back({engine::EventKind::RateChange, n, 0.01 + 0.001 * double(i % 7)});
        if (i % 3 == 1) events.push_back({engine::EventKind::Fee, n, 1000.0});
        if (i % 3 == 2)
            events.push_back({engine::EventKind::Prepay, n, 1000.0,
                              i % 2 ? engine::PrepayMode::Reduce : engine::PrepayMode::Shorten, i % 10 ? 0 : 1000});
    }
    for (auto _ : state) {
        const auto plan = engine::calculate(form, {}, events);
        const auto base = engine::calculate(form);
        benchmark::DoNotOptimize(engine::planTotals(plan.payments));
        benchmark::DoNotOptimize(engine::planSavings(base.payments, plan.payments));
        benchmark::DoNotOptimize(engine::yearlyFigures(plan.payments));
        state.counters["payments"] = static_cast<double>(plan.payments.size());
    }
}
BENCHMARK(PlanWithEvents)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same plan (flat payment) on a lender's terms: interest by months, rounding down, a bonus
// part and the five-year and 125 % rules.
void PlanOnLenderTerms(benchmark::State& state) {
    engine::LoanForm form = loan(100'000, true);
    form.principal = "9,000,000,000,000";
    std::vector<engine::PlanEvent> events;
    for (std::int64_t i = 0; i < 1000; ++i) {
        const std::int64_t n = 1 + i * 97;
        if (i % 2 == 0) events.push_back({engine::EventKind::RateChange, n, 0.01 + 0.001 * double(i % 7)});
        if (i % 2 == 1)
            events.push_back({engine::EventKind::Prepay, n, 1000.0,
                              i % 4 == 1 ? engine::PrepayMode::Reduce : engine::PrepayMode::Shorten});
    }
    const engine::LenderTerms terms{engine::InterestRule::Monthly, engine::Rounding::Down,
                                    engine::BonusPart{1'000'000'000'000, {6, 12}}, true};
    for (auto _ : state) {
        const auto plan = engine::calculate(form, {}, events, terms);
        benchmark::DoNotOptimize(engine::planTotals(plan.payments));
        state.counters["payments"] = static_cast<double>(plan.payments.size());
    }
}
BENCHMARK(PlanOnLenderTerms)->Unit(benchmark::kMillisecond);

// Recurring prepayments on 100,000 payments, each from its own payment: the lines repeat one
// period (as 1,000 or 10,000 lines "prepay K 1 every 1") or spread over twelve.
void RecurringEvents(benchmark::State& state) {
    engine::LoanForm form = loan(100'000, true);
    form.principal = "9,000,000,000,000";
    std::vector<engine::PlanEvent> events;
    for (std::int64_t k = 1; k <= state.range(0); ++k)
        events.push_back({engine::EventKind::Prepay, k, 1.0, engine::PrepayMode::Shorten, 1 + k % state.range(1)});
    for (auto _ : state) benchmark::DoNotOptimize(engine::evaluatePlan(form, events));
}
BENCHMARK(RecurringEvents)->Args({1'000, 1})->Args({10'000, 1})->Args({10'000, 12})->Unit(benchmark::kMillisecond);

} // namespace
