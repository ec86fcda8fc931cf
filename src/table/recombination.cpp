#include "table/recombination.h"

#include "calendar/era.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace table {

using runtime::intVal;
using runtime::Str;
using runtime::Val;

std::int64_t widenedYear(std::int64_t baseYear, std::int64_t twoDigits) {
    const std::int64_t year = baseYear / 100 * 100 + twoDigits;
    return year < baseYear ? year + 100 : year;
}

NewLoan recombination(const OldLoan& old, const engine::Row& selected, std::int64_t rowsUpToSelected) {
    const std::int64_t month = intVal(runtime::NthField(selected[engine::kDate], ".", 2));
    const std::int64_t day = intVal(runtime::NthField(selected[engine::kDate], ".", 3));

    NewLoan loan;
    loan.principal = selected[engine::kBalance];
    loan.times = Str(Val(old.times) - static_cast<double>(rowsUpToSelected) - Val(old.firstRow) + 1.0);
    loan.month = Str(month);
    loan.day = Str(day);
    if (old.era == calendar::kWestern) {
        const std::int64_t twoDigits = intVal(runtime::NthField(selected[engine::kDate], ".", 1));
        loan.era = calendar::kWestern;
        loan.year = Str(widenedYear(calendar::readYear(old.year), twoDigits));
    } else {
        // The cell shows two digits of a year whose era may have moved on during the schedule:
        // take the payment's real date and name its era and year.
        const std::int64_t payment = intVal(selected[engine::kNumber]);
        const calendar::Date date(old.firstPayment.Year(), old.firstPayment.Month() + payment - 1, old.payDay);
        const auto shown = calendar::displayedEraYear(old.era, date.Year(), date.Month(), old.payDay);
        loan.era = shown.era;
        loan.year = Str(shown.year);
    }
    return loan;
}

} // namespace table
