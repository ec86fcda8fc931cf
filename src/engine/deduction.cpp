// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/deduction.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <cmath>

namespace engine {

TermReading readDeduction(std::string_view line, std::optional<TaxDeduction>& deduction) {
    const std::vector<std::string> words = runtime::words(line);
    if (words.empty() || words[0] != "deduction") return {};
    const TermReading wrong{true, "deduction takes a rate, a count of years, a cap, \"from\" a year and \"limit\" an "
                                  "amount, all at least 0: " +
                                      runtime::excerpt(line)};
    TaxDeduction read;
    std::size_t next = 1;
    // Rate, years and cap in this order, each as far as given.
    for (int field = 0; field < 3 && next < words.size() && words[next] != "from" && words[next] != "limit";
         ++field, ++next) {
        const auto value = runtime::numberWord(words[next]);
        if (!value || *value < 0 || *value > 9'007'199'254'740'992.0) return wrong;
        if (field == 0) read.ratePercent = *value;
        if (field == 1 && (*value != std::trunc(*value) || *value > 100)) return wrong;
        if (field == 1) read.years = static_cast<std::int64_t>(*value);
        if (field == 2) read.cap = *value;
    }
    for (; next + 1 < words.size(); next += 2) {
        const auto value = runtime::numberWord(words[next + 1]);
        if (!value || *value < 0 || *value > 9'007'199'254'740'992.0) return wrong;
        if (words[next] == "from" && *value == std::trunc(*value) && *value <= 9999)
            read.fromYear = static_cast<std::int64_t>(*value);
        else if (words[next] == "limit")
            read.limit = *value;
        else
            return wrong;
    }
    if (next != words.size()) return wrong;
    deduction = read;
    return {true, ""};
}

std::string deductionLine(const TaxDeduction& deduction) {
    std::string line = "deduction " + runtime::Str(deduction.ratePercent) + " " + runtime::Str(deduction.years) + " " +
                       runtime::Str(deduction.cap);
    if (deduction.fromYear) line += " from " + runtime::Str(*deduction.fromYear);
    if (deduction.limit) line += " limit " + runtime::Str(*deduction.limit);
    return line;
}

std::int64_t repaymentMonths(const std::vector<Payment>& payments) {
    if (payments.empty()) return 0;
    const auto month = [](const calendar::Date& d) { return d.Year() * 12 + d.Month(); };
    return month(payments.back().date) - month(payments.front().date) + 1;
}

std::vector<YearDeduction> yearlyDeductions(const TaxDeduction& deduction, const std::vector<Payment>& payments,
                                            double principal, std::int64_t borrowedYear,
                                            std::optional<std::int64_t> endsFrom) {
    std::vector<YearDeduction> years;
    if (payments.empty()) return years;
    const std::int64_t first = deduction.fromYear.value_or(borrowedYear);
    const std::int64_t payoff = payments.back().date.Year();
    double balance = principal;
    std::size_t next = 0; // the first payment not yet counted
    for (std::int64_t year = first; year < first + deduction.years && year <= payoff; ++year) {
        for (; next < payments.size() && payments[next].date.Year() <= year; ++next) balance = payments[next].balance;
        if (endsFrom && year >= *endsFrom) break;
        // The share exactly from the rate as written, cut to the yen, then to 100 yen.
        const double share =
            monthlyInterest(std::min(balance, deduction.cap), deduction.ratePercent, {12, 0}, Rounding::Down);
        double amount = std::max(0.0, std::floor(share / 100.0) * 100.0);
        if (deduction.limit) amount = std::min(amount, std::floor(*deduction.limit));
        years.push_back({year, amount});
    }
    return years;
}

} // namespace engine
