// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Recombination: the payments after a selected one become a new loan, whose form a new window
// receives, worked out from the old window's form and the selected row as it reads.

#include "engine/loan.h"
#include "table/rows.h"

#include <cstdint>

namespace table {

// `firstPayment` is the old loan's first payment date; `rowsUpToSelected` the count of rows from
// the first listed to the selected one, inclusive. The new loan keeps the rate, the pay day and
// the method; it borrows the selected row's balance on its date and starts from the next pay day.
engine::LoanForm recombination(const engine::LoanForm& old, const calendar::Date& firstPayment, const Row& selected,
                               std::int64_t rowsUpToSelected);

} // namespace table
