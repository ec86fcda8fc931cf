// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/lender.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <charconv>
#include <cmath>

namespace engine {
namespace {

__extension__ typedef __int128 Wide; // 2^127: room for a 2^53 balance times a rate of 17 digits and more

// A finite double as digits x 10^exponent, from its shortest text: 0.7 is 7 x 10^-1.
struct Decimal {
    std::int64_t digits = 0;
    int exponent = 0;
};
Decimal decimalOf(double value) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr;
    Decimal d;
    const char* p = text;
    const bool negative = *p == '-';
    if (negative) ++p;
    int fraction = 0;
    bool point = false;
    for (; p < end && *p != 'e'; ++p) {
        if (*p == '.') {
            point = true;
            continue;
        }
        d.digits = d.digits * 10 + (*p - '0');
        fraction += point;
    }
    int exponent = 0;
    if (p < end) std::from_chars(p + (p[1] == '+' ? 2 : 1), end, exponent);
    d.exponent = exponent - fraction;
    if (negative) d.digits = -d.digits;
    return d;
}

bool multiply(Wide& value, Wide by) { return !__builtin_mul_overflow(value, by, &value); }

} // namespace

double roundBy(double amount, Rounding rule) {
    return rule == Rounding::Down ? std::trunc(amount) : runtime::Round(amount);
}

MonthsAndDays monthsAndDays(const calendar::Date& borrowed, const calendar::Date& firstPayment) {
    MonthsAndDays span;
    const auto monthEnd = [&borrowed](std::int64_t n) {
        return calendar::Date(borrowed.Year(), borrowed.Month() + n, borrowed.Day());
    };
    // At most a few months: the first payment falls within three months of the borrowing.
    while (span.months < 1200 && monthEnd(span.months + 1).days() <= firstPayment.days()) ++span.months;
    span.days = (firstPayment.days() - monthEnd(span.months).days()).count();
    return span;
}

double monthlyInterest(double balance, double ratePercent, MonthsAndDays span, Rounding rule) {
    // balance x rate% x (months x 365 + days x 12) / (100 x 12 x 365), over whole numbers.
    const Decimal rate = decimalOf(ratePercent);
    Wide numerator = static_cast<Wide>(span.months) * 365 + static_cast<Wide>(span.days) * 12;
    Wide denominator = 100 * 12 * 365;
    bool exact = std::trunc(balance) == balance && std::abs(balance) <= 9'007'199'254'740'992.0 &&
                 multiply(numerator, static_cast<Wide>(balance)) && multiply(numerator, rate.digits);
    for (int e = rate.exponent; exact && e > 0; --e) exact = multiply(numerator, 10);
    for (int e = rate.exponent; exact && e < 0; ++e) exact = multiply(denominator, 10);
    if (!exact) {
        // A fraction of a yen in the balance, or a product beyond 2^127: the walk refuses the latter.
        const double share = static_cast<double>(span.months) / 12.0 + static_cast<double>(span.days) / 365.0;
        return roundBy(balance * ratePercent / 100.0 * share, rule);
    }
    Wide quotient = numerator / denominator;
    const Wide remainder = numerator % denominator; // of the sign of the numerator
    if (rule == Rounding::Nearest && 2 * (remainder < 0 ? -remainder : remainder) >= denominator)
        quotient += numerator < 0 ? -1 : 1;
    return static_cast<double>(quotient);
}

bool BonusPart::isBonusPayment(std::int64_t firstMonth, std::int64_t n) const {
    const std::int64_t month = (firstMonth - 1 + n - 1) % 12 + 1;
    return month == months[0] || month == months[1];
}

std::int64_t BonusPart::bonusPayments(std::int64_t firstMonth, std::int64_t from, std::int64_t to) const {
    // Payments n whose month (firstMonth - 2 + n) % 12 + 1 is m: n = m + 1 - firstMonth (mod 12).
    std::int64_t count = 0;
    for (const std::int64_t m : months) {
        const auto upTo = [&](std::int64_t last) {
            const std::int64_t start = ((m + 1 - firstMonth) % 12 + 12) % 12; // the first such n >= 0
            return last < start ? 0 : (last - start) / 12 + 1;
        };
        count += upTo(to) - upTo(from - 1);
    }
    return count;
}

TermsFit termsFit(const LenderTerms& terms, double principal, std::int64_t firstMonth, std::int64_t payments,
                  bool flatPayment) {
    if (terms.review && !flatPayment) return TermsFit::ReviewNeedsFlat;
    if (terms.bonus && terms.bonus->amount > principal / 2) return TermsFit::BonusAboveHalf;
    if (terms.bonus && terms.bonus->bonusPayments(firstMonth, 1, payments) == 0) return TermsFit::NoBonusPayment;
    return TermsFit::Fits;
}

std::string termsProblem(TermsFit fit, const LenderTerms& terms) {
    switch (fit) {
    case TermsFit::Fits: return {};
    case TermsFit::ReviewNeedsFlat: return "the five-year and 125 % rules are for a flat payment only";
    case TermsFit::BonusAboveHalf:
        return "the bonus part " + runtime::Format(terms.bonus->amount, "###,###,###,###,###") +
               " is more than half the principal";
    case TermsFit::NoBonusPayment:
        return "no payment falls in month " + runtime::Str(terms.bonus->months[0]) + " or " +
               runtime::Str(terms.bonus->months[1]);
    }
    return {};
}

TermReading readTerm(std::string_view line, LenderTerms& terms) {
    const std::vector<std::string> words = runtime::words(line);
    if (!words.empty() && words[0] == "review") {
        if (words.size() != 1) return {true, "review takes no value: " + runtime::excerpt(line)};
        terms.review = true;
        return {true, ""};
    }
    if (!words.empty() && words[0] == "bonus") {
        const std::string why = "bonus takes an amount above 0 and two different months from 1 to 12: ";
        BonusPart bonus;
        const auto amount = words.size() > 1 ? runtime::numberWord(words[1]) : std::nullopt;
        bool good = (words.size() == 2 || words.size() == 4) && amount && *amount > 0 &&
                    runtime::wideVal(runtime::withoutCommas(words[1])) <= 9'007'199'254'740'992.0L;
        if (good) bonus.amount = *amount;
        for (std::size_t i = 0; good && words.size() == 4 && i < 2; ++i) {
            const auto month = runtime::wholeNumberWord(words[2 + i]);
            good = month && *month >= 1 && *month <= 12;
            if (good) bonus.months[i] = *month;
        }
        if (!good || bonus.months[0] == bonus.months[1]) return {true, why + runtime::excerpt(line)};
        terms.bonus = bonus;
        return {true, ""};
    }
    if (words.empty() || (words[0] != "interest" && words[0] != "rounding")) return {};
    const bool interest = words[0] == "interest";
    const char* first = interest ? "daily" : "nearest";
    const char* second = interest ? "monthly" : "down";
    if (words.size() != 2 || (words[1] != first && words[1] != second))
        return {true, words[0] + " takes " + first + " or " + second + ": " + runtime::excerpt(line)};
    if (interest)
        terms.interest = words[1] == first ? InterestRule::Daily : InterestRule::Monthly;
    else
        terms.rounding = words[1] == first ? Rounding::Nearest : Rounding::Down;
    return {true, ""};
}

std::vector<std::string> termLines(const LenderTerms& terms) {
    std::vector<std::string> lines;
    if (terms.interest == InterestRule::Monthly) lines.emplace_back("interest monthly");
    if (terms.rounding == Rounding::Down) lines.emplace_back("rounding down");
    if (terms.bonus)
        lines.push_back("bonus " + runtime::Str(terms.bonus->amount) + " " + runtime::Str(terms.bonus->months[0]) +
                        " " + runtime::Str(terms.bonus->months[1]));
    if (terms.review) lines.emplace_back("review");
    return lines;
}

} // namespace engine
