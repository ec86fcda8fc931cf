// SPDX-License-Identifier: GPL-3.0-or-later
// The calculation from the form's texts to the payments, and on to the rows as the table shows them.
#include "engine/calculation.h"
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

} // namespace
