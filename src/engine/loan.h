#pragma once
// The loan as the calculate action sees it: the form it reads and the record it fills.

#include "calendar/loandates.h"

#include <cstdint>
#include <string>

namespace engine {

// A count of payments above this acts as this many, in the pay-off date as in the schedule.
constexpr std::int64_t kMaxPayments = 100'000;

// Amounts up to 2^53 are whole numbers a double holds to the unit; a calculation that needs a
// larger one (or one that is not finite) is refused rather than shown rounded.
constexpr double kMaxExactAmount = 9'007'199'254'740'992.0;
inline bool isExactAmount(double amount) { return amount >= -kMaxExactAmount && amount <= kMaxExactAmount; }

// The form, as the texts and choices the calculate action reads.
struct LoanForm {
    std::string principal = "100000000"; // GankinField, commas allowed
    std::string rate = "2.0";            // Nenriritsu, percent a year
    std::string times = "144";           // Kaisu
    int era = calendar::kReiwa;          // RekiKind
    calendar::DateLineTexts date{"02", "3", "15", "8"};
    int delay = calendar::kNext; // DelayPop
    bool isGanri = false;        // flat payment; else equal principal
    std::int64_t numTop = 1;     // first payment listed
    std::int64_t totalRows = -1; // last payment listed; negative: to the end
};

// What a calculation settles.
struct LoanRecord {
    bool isGanri = false;
    double hPart = 0.0;  // the fixed payment of a flat-payment loan
    double gPart = 0.0;  // the fixed principal part of an equal-principal loan
    double gankin = 0.0; // principal
    double rate = 0.0;   // interest per day, as a fraction of the balance
    std::int64_t nTimes = 0;
    std::int64_t numTop = 1;
    std::int64_t totalRows = -1;
    calendar::LoanDates dates;
};

} // namespace engine
