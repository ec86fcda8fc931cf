// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/recombination.h"

#include "calendar/era.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

#include <algorithm>

namespace table {

using runtime::intVal;
using runtime::Str;
using runtime::Val;

namespace {

// A two-digit Western year widened to the first year at or after `baseYear` that ends in it.
std::int64_t widenedYear(std::int64_t baseYear, std::int64_t twoDigits) {
    const std::int64_t year = baseYear / 100 * 100 + twoDigits;
    return year < baseYear ? year + 100 : year;
}

} // namespace

engine::LoanForm recombination(const engine::LoanForm& old, const calendar::Date& firstPayment, const Row& selected,
                               std::int64_t rowsUpToSelected) {
    // The rate, the pay day and the method stay; the delay and the first row are a new form's.
    const engine::LoanForm fresh;
    engine::LoanForm loan = old;
    loan.delay = fresh.delay;
    loan.firstRow = fresh.firstRow;
    loan.principal = selected[kBalance];
    loan.times = Str(Val(old.times) - static_cast<double>(rowsUpToSelected) - Val(old.firstRow) + 1.0);
    loan.date.month = Str(intVal(runtime::NthField(selected[kDate], ".", 2)));
    loan.date.day = Str(intVal(runtime::NthField(selected[kDate], ".", 3)));
    if (old.era == calendar::kWestern) {
        const std::int64_t twoDigits = intVal(runtime::NthField(selected[kDate], ".", 1));
        loan.date.year = Str(widenedYear(calendar::readYear(old.date.year), twoDigits));
    } else {
        // The cell shows two digits of a year whose era may have moved on during the schedule:
        // take the payment's real date and name its era and year.
        const std::int64_t payDay = intVal(old.date.payDay);
        // A typed-over number counts as it reads, within the longest loan.
        const std::int64_t payment = std::clamp(intVal(selected[kNumber]), -engine::kMaxPayments, engine::kMaxPayments);
        const calendar::Date date(firstPayment.Year(), firstPayment.Month() + payment - 1, payDay);
        const auto shown = calendar::displayedEraYear(old.era, date.Year(), date.Month(), payDay);
        loan.era = shown.era;
        loan.date.year = Str(shown.year);
    }
    return loan;
}

} // namespace table
