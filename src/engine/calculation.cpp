#include "engine/calculation.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <algorithm>

namespace engine {
namespace {

using runtime::Val;

// The mean length of a year in days: the daily rate's divisor, whatever years the loan spans.
constexpr double kDaysInYear = 365.2422;

std::int64_t paymentCount(const LoanForm& form) {
    return std::clamp(runtime::intVal(form.times), -kMaxPayments, kMaxPayments);
}

} // namespace

bool passesZeroTest(const LoanForm& form) {
    return Val(form.principal) != 0.0 && Val(form.rate) != 0.0 && Val(form.times) != 0.0;
}

void culcFixedAmount(LoanRecord& record, const LoanForm& form) {
    record.gankin = Val(runtime::withoutCommas(form.principal));
    const double annual = Val(form.rate) / 100.0;
    const double monthly = annual / 12.0;
    record.nTimes = paymentCount(form);
    record.rate = annual / kDaysInYear;
    record.isGanri = form.isGanri;
    const auto n = static_cast<double>(record.nTimes);
    if (record.isGanri) {
        const double t = runtime::Pow(1.0 + monthly, n);
        record.hPart = runtime::Round(((t * monthly) * record.gankin) / (t - 1.0));
    } else {
        record.gPart = runtime::Round(record.gankin / n);
    }
}

Calculation calculate(const LoanForm& form, const calendar::PayoffWords& words) {
    Calculation calc;
    if (!passesZeroTest(form)) {
        calc.refusal = Refusal::ZeroInput;
        return calc;
    }
    const calendar::DateLine line = calendar::readDateLine(form.era, form.date, form.delay);
    calc.record.dates = calendar::loanDates(line, paymentCount(form));
    calc.payoffText = calendar::payoffText(calc.record.dates.kansai, form.era, words);

    culcFixedAmount(calc.record, form);
    calc.record.numTop = form.numTop;
    calc.record.totalRows = form.totalRows;
    const double fixedAmount = calc.record.isGanri ? calc.record.hPart : calc.record.gPart;
    const bool exact = isExactAmount(calc.record.gankin) && isExactAmount(fixedAmount);
    auto rows = exact ? scheduleRows(calc.record, form.era, line.payDay) : std::nullopt;
    if (!rows) {
        calc.refusal = Refusal::OutOfRange;
        return calc;
    }
    calc.rows = std::move(*rows);
    return calc;
}

} // namespace engine
