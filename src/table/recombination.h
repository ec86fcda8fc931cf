#pragma once
// Recombination: the rows below a selected payment become a new loan. What the new window's
// form receives, worked out from the old window's form and the selected row.

#include "calendar/date.h"
#include "engine/schedule.h"

#include <cstdint>
#include <string>

namespace table {

struct OldLoan {
    int era;              // RekiKind
    std::string year;     // StartY
    std::string times;    // Kaisu
    std::string firstRow; // Shokai
    calendar::Date firstPayment;
    std::int64_t payDay; // StartDX, as the schedule reads it
};

struct NewLoan {
    std::string principal; // the selected row's Balance, as it reads
    std::string times;     // the payments that remain
    int era;
    std::string year, month, day;
};

// `rowsUpToSelected` is the count of rows from the first listed to the selected one, inclusive.
NewLoan recombination(const OldLoan& old, const engine::Row& selected, std::int64_t rowsUpToSelected);

// A two-digit Western year widened to the first year at or after `baseYear` that ends in it.
std::int64_t widenedYear(std::int64_t baseYear, std::int64_t twoDigits);

} // namespace table
