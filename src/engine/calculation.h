// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The calculation: from the form to the record, the pay-off date and the payments.

#include "engine/loan.h"
#include "engine/schedule.h"

#include <vector>

namespace engine {

// The record of a loan read from the form: its dates, daily rate and fixed amount.
LoanRecord settleLoan(const LoanTerms& terms, const LenderTerms& lender = {});

enum class Refusal {
    None,
    ZeroInput,  // principal, rate or count reads as zero
    OutOfRange, // an amount is beyond what a double holds to the unit
    BadTerms,   // the lender terms don't fit the loan
};

struct Calculation {
    Refusal refusal = Refusal::None;
    LoanTerms terms;
    LoanRecord record;
    std::vector<Payment> payments;
    TermsFit termsFit = TermsFit::Fits; // why the terms are refused
};

// With events and lender terms, the calculation of a plan; refused as without. No prepayment
// acts after payment `prepaymentsUntil`.
Calculation calculate(const LoanForm& form, const ListedRange& listed = {}, const std::vector<PlanEvent>& events = {},
                      const LenderTerms& lender = {}, std::int64_t prepaymentsUntil = kMaxPayments);

} // namespace engine
