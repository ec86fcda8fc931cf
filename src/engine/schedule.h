#pragma once
// The repayment schedule: the walk of the loan payment by payment, with interest on the
// actual days of each period, and the rows of the table as the texts it shows.

#include "engine/loan.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace engine {

// No., Repayment, Amount, Principal, Interest, Balance.
constexpr std::size_t kColumnCount = 6;
using Row = std::array<std::string, kColumnCount>;

enum Column : std::size_t { kNumber, kDate, kAmount, kPrincipal, kInterest, kBalance };

// The amount mask of the table and of the sums.
inline constexpr std::string_view kAmountMask = "###,###,###,###";

// The rows of payments numTop to the limit (totalRows or the last payment). Empty optional
// where an amount of a payment walked is beyond kMaxExactAmount.
std::optional<std::vector<Row>> scheduleRows(const LoanRecord& record, int era, std::int64_t payDay);

} // namespace engine
