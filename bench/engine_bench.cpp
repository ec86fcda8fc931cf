// The calculate action from the form's texts to the rows as texts.
#include "engine/calculation.h"

#include <benchmark/benchmark.h>

namespace {

engine::LoanForm loan(std::int64_t payments, bool flat) {
    engine::LoanForm form;
    form.era = calendar::kWestern;
    form.date = {"2020", "3", "15", "8"};
    form.times = std::to_string(payments);
    form.rate = payments > 1000 ? "0.01" : "2.0";
    form.isGanri = flat;
    return form;
}

void DefaultLoan(benchmark::State& state) {
    const auto form = loan(144, state.range(0) != 0);
    for (auto _ : state) benchmark::DoNotOptimize(engine::calculate(form));
}
BENCHMARK(DefaultLoan)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void Payments(benchmark::State& state) {
    const auto form = loan(state.range(0), false);
    for (auto _ : state) benchmark::DoNotOptimize(engine::calculate(form));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Payments)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);

} // namespace
