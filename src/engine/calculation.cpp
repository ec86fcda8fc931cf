// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/calculation.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <algorithm>

namespace engine {
namespace {

using runtime::Val;

} // namespace

LoanTerms readLoanForm(const LoanForm& form) {
    LoanTerms terms;
    // The zero test reads the raw texts: ",5" is a zero principal.
    terms.zeroInput = Val(form.principal) == 0.0 || Val(form.rate) == 0.0 || Val(form.times) == 0.0;
    terms.principal = Val(runtime::withoutCommas(form.principal));
    terms.ratePercent = Val(form.rate);
    terms.annualRate = terms.ratePercent / 100.0;
    terms.paymentCount = std::clamp(runtime::intVal(form.times), -kMaxPayments, kMaxPayments);
    terms.dateLine = calendar::readDateLine(form.era, form.date, form.delay);
    terms.flatPayment = form.flatPayment;
    return terms;
}

LoanRecord settleLoan(const LoanTerms& terms, const LenderTerms& lender) {
    LoanRecord record;
    record.lender = lender;
    record.ratePercent = terms.ratePercent;
    record.flatPayment = terms.flatPayment;
    record.principal = terms.principal;
    record.paymentCount = terms.paymentCount;
    record.annualRate = terms.annualRate;
    record.dailyRate = terms.annualRate / kDaysInYear;
    record.payDay = terms.dateLine.payDay;
    record.dates = calendar::loanDates(terms.dateLine, terms.paymentCount);
    // The monthly part: all of the principal but a bonus part's.
    record.bonusAmount = lender.bonus ? lender.bonus->amount : 0.0;
    const double monthly = record.principal - record.bonusAmount;
    if (terms.flatPayment)
        record.fixedPayment = annuityPayment(monthly, terms.annualRate, terms.paymentCount, lender.rounding);
    else
        record.fixedPrincipal = roundBy(monthly / static_cast<double>(terms.paymentCount), lender.rounding);
    const std::int64_t bonusPayments =
        lender.bonus ? lender.bonus->bonusPayments(record.dates.firstPayment.Month(), 1, terms.paymentCount) : 0;
    if (bonusPayments <= 0) return record; // a bonus part without payments is refused
    if (terms.flatPayment)
        record.bonusPayment = annuityPayment(record.bonusAmount, terms.annualRate, bonusPayments, lender.rounding, 2);
    else
        record.bonusPrincipal = roundBy(record.bonusAmount / static_cast<double>(bonusPayments), lender.rounding);
    return record;
}

Calculation calculate(const LoanForm& form, const ListedRange& listed, const std::vector<PlanEvent>& events,
                      const LenderTerms& lender, std::int64_t prepaymentsUntil) {
    Calculation calc;
    calc.terms = readLoanForm(form);
    if (calc.terms.zeroInput) {
        calc.refusal = Refusal::ZeroInput;
        return calc;
    }
    calc.record = settleLoan(calc.terms, lender);
    calc.termsFit = termsFit(lender, calc.record.principal, calc.record.dates.firstPayment.Month(),
                             calc.record.paymentCount, calc.record.flatPayment);
    if (calc.termsFit != TermsFit::Fits) {
        calc.refusal = Refusal::BadTerms;
        return calc;
    }
    const double fixedAmount = calc.record.flatPayment ? calc.record.fixedPayment : calc.record.fixedPrincipal;
    const double bonusAmount = calc.record.flatPayment ? calc.record.bonusPayment : calc.record.bonusPrincipal;
    // The principal as typed, not as a double rounds it: 2^53 + 1 is beyond.
    const long double typed = runtime::wideVal(runtime::withoutCommas(form.principal));
    const bool exact = typed >= -kMaxExactAmount && typed <= kMaxExactAmount && isExactAmount(fixedAmount) &&
                       isExactAmount(bonusAmount);
    auto payments = exact ? walkSchedule(calc.record, listed, events, prepaymentsUntil) : std::nullopt;
    if (!payments) {
        calc.refusal = Refusal::OutOfRange;
        return calc;
    }
    calc.payments = std::move(*payments);
    return calc;
}

} // namespace engine
