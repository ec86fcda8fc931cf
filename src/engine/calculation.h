#pragma once
// The calculate action: from the form to the record, the pay-off statement and the rows.

#include "calendar/loandates.h"
#include "engine/loan.h"
#include "engine/schedule.h"

#include <string>
#include <vector>

namespace engine {

// The action runs only where principal, rate and count each read as a non-zero number,
// tested on the raw texts, commas included.
bool passesZeroTest(const LoanForm& form);

// The daily rate, the count and the fixed amount of the method, from the form's texts.
void culcFixedAmount(LoanRecord& record, const LoanForm& form);

enum class Refusal {
    None,
    ZeroInput,  // principal, rate or count reads as zero
    OutOfRange, // an amount is beyond what a double holds to the unit
};

struct Calculation {
    Refusal refusal = Refusal::None;
    LoanRecord record;
    std::string payoffText;
    std::vector<Row> rows;
};

Calculation calculate(const LoanForm& form, const calendar::PayoffWords& words = {});

} // namespace engine
