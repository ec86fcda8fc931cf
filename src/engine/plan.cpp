// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/plan.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

#include <algorithm>

namespace engine {
EventReading readEvent(std::string_view line, std::int64_t paymentCount) {
    const std::vector<std::string> words = runtime::words(line);
    const auto fail = [&line](EventError code) {
        const char* reasons[] = {"",
                                 "not an event",
                                 "payment outside 1 to the count",
                                 "not a number",
                                 "negative amount",
                                 "every takes a count of payments from 1 to the count",
                                 "amount beyond 9,007,199,254,740,992"};
        return EventReading{std::nullopt, code, reasons[static_cast<int>(code)] + (": " + runtime::excerpt(line))};
    };
    if (words.size() < 3) return fail(EventError::NotAnEvent);

    PlanEvent event;
    if (words[0] == "prepay")
        event.kind = EventKind::Prepay;
    else if (words[0] == "rate")
        event.kind = EventKind::RateChange;
    else if (words[0] == "fee")
        event.kind = EventKind::Fee;
    else
        return fail(EventError::NotAnEvent);
    const auto payment = runtime::wholeNumberWord(words[1]);
    if (!payment || *payment < 1 || *payment > paymentCount) return fail(EventError::PaymentOutside);
    event.payment = *payment;
    const auto value = runtime::numberWord(words[2]);
    if (!value) return fail(EventError::NotANumber);
    if (*value < 0) return fail(EventError::NegativeAmount);
    if (event.kind != EventKind::RateChange && runtime::wideVal(runtime::withoutCommas(words[2])) > kMaxExactAmount)
        return fail(EventError::AmountTooLarge);
    event.value = *value;

    std::size_t next = 3;
    if (event.kind == EventKind::Prepay && next < words.size() && (words[next] == "shorten" || words[next] == "reduce"))
        event.mode = words[next++] == "reduce" ? PrepayMode::Reduce : PrepayMode::Shorten;
    if (event.kind == EventKind::Prepay && next + 1 < words.size() && words[next] == "every") {
        const auto every = runtime::wholeNumberWord(words[next + 1]);
        if (!every || *every < 1 || *every > paymentCount) return fail(EventError::BadEvery);
        event.every = *every;
        next += 2;
    }
    if (next != words.size()) return fail(EventError::NotAnEvent);
    return {event, EventError::None, ""};
}

std::string eventLine(const PlanEvent& event) {
    const char* kinds[] = {"rate", "fee", "prepay"};
    std::string line = std::string(kinds[static_cast<int>(event.kind)]) + " " + runtime::Str(event.payment) + " " +
                       runtime::Str(event.value);
    if (event.kind != EventKind::Prepay) return line;
    line += event.mode == PrepayMode::Reduce ? " reduce" : " shorten";
    if (event.every > 0) line += " every " + runtime::Str(event.every);
    return line;
}

PlanLines readPlanLines(std::istream& in) {
    PlanLines read;
    // Room for the longest line allowed and its end: getline stops a longer line with failbit.
    std::string line(kMaxLineLength + 1, '\0');
    for (std::size_t number = 1;; ++number) {
        in.getline(line.data(), static_cast<std::streamsize>(line.size()));
        const auto extracted = static_cast<std::size_t>(in.gcount());
        if (in.bad() || (in.fail() && extracted == 0)) return read; // a failed stream, or the end
        if (in.fail() && !in.eof()) {
            read.problem = PlanLines::LineTooLong;
            read.line = number;
            read.error = "line " + runtime::Str(static_cast<std::int64_t>(number)) + " is longer than " +
                         runtime::Format(kMaxLineLength, "#,###") + " characters";
            return read;
        }
        if (number > kMaxPlanLines) {
            read.problem = PlanLines::TooManyLines;
            read.error = "more than " + runtime::Format(kMaxPlanLines, "###,###") + " lines";
            return read;
        }
        // The line's end was extracted with it, unless the text ended first.
        const std::string_view text(line.data(), extracted - (in.eof() ? 0 : 1));
        const auto start = text.find_first_not_of(" \t\r");
        if (start != std::string_view::npos && text[start] != '#') read.lines.emplace_back(text);
        if (in.eof()) return read;
    }
}

PlanTotals planTotals(const std::vector<Payment>& payments) {
    PlanTotals totals;
    for (const Payment& p : payments) {
        totals.paid += p.amount + p.prepaid + p.fee;
        totals.principal += p.principal;
        totals.interest += p.interest;
        totals.prepaid += p.prepaid;
        totals.fees += p.fee;
        totals.unpaidPaid += p.unpaidPaid;
    }
    totals.payments = static_cast<std::int64_t>(payments.size());
    totals.netCost = totals.interest + totals.fees;
    if (!payments.empty()) totals.payoff = payments.back().date;
    return totals;
}

PlanSavings planSavings(const std::vector<Payment>& withoutEvents, const std::vector<Payment>& plan) {
    const PlanTotals base = planTotals(withoutEvents), totals = planTotals(plan);
    PlanSavings savings;
    savings.interestSaved = base.interest - totals.interest;
    savings.paymentsSaved = base.payments - totals.payments;
    savings.netSaving = savings.interestSaved - totals.fees;
    double saved = 0.0, fees = 0.0;
    bool feePaid = false;
    for (std::size_t i = 0; i < std::max(withoutEvents.size(), plan.size()); ++i) {
        // A payment past a loan's end counts 0.
        saved +=
            (i < withoutEvents.size() ? withoutEvents[i].interest : 0.0) - (i < plan.size() ? plan[i].interest : 0.0);
        fees += i < plan.size() ? plan[i].fee : 0.0;
        feePaid = feePaid || fees > 0.0;
        if (feePaid && saved >= fees) {
            savings.breakEven = static_cast<std::int64_t>(i) + 1;
            savings.breakEvenDate = (i < plan.size() ? plan[i] : withoutEvents[i]).date;
            break;
        }
    }
    return savings;
}

namespace {

bool exactTotals(const PlanTotals& totals) {
    return isExactAmount(totals.paid) && isExactAmount(totals.principal) && isExactAmount(totals.interest) &&
           isExactAmount(totals.prepaid) && isExactAmount(totals.fees);
}

// The plan calculated whole, refused also where a total is beyond what a double holds exactly.
Calculation planCalculation(const LoanForm& form, const std::vector<PlanEvent>& events, const LenderTerms& lender) {
    Calculation calc = calculate(form, {}, events, lender);
    if (calc.refusal == Refusal::None && !exactTotals(planTotals(calc.payments))) calc.refusal = Refusal::OutOfRange;
    return calc;
}

} // namespace

namespace {

// The year of the first prepayment after which the plan, with no later prepayment, would run less
// than ten years; none where it runs ten years or more. Such a plan has fewer than 120 payments,
// so each prepayment is tried on those 120 at most.
std::optional<std::int64_t> deductionEndsFrom(const LoanForm& form, const std::vector<PlanEvent>& events,
                                              const LenderTerms& lender, const std::vector<Payment>& plan) {
    if (repaymentMonths(plan) >= kMinDeductionMonths) return std::nullopt;
    for (const Payment& p : plan) {
        if (p.prepaid <= 0.0) continue;
        const Calculation until = calculate(form, {1, kMinDeductionMonths}, events, lender, p.number);
        if (until.refusal == Refusal::None && repaymentMonths(until.payments) < kMinDeductionMonths)
            return p.date.Year();
    }
    return std::nullopt;
}

// Each year's deduction added to the totals and to the years it belongs to; a year before the
// first payment gains a row of its own with the principal as its balance.
void addDeductions(const std::vector<YearDeduction>& deductions, double principal, PlanTotals& totals,
                   std::vector<YearFigures>& years) {
    for (const YearDeduction& d : deductions) {
        totals.deduction += d.amount;
        auto at = std::find_if(years.begin(), years.end(), [&d](const YearFigures& y) { return y.year >= d.year; });
        if (at == years.end() || at->year != d.year) {
            YearFigures before;
            before.year = d.year;
            before.balance = principal;
            before.lastPayment = calendar::Date(d.year, 12, 31);
            at = years.insert(at, before);
        }
        at->deduction = d.amount;
    }
    totals.netCost = totals.interest + totals.fees - totals.deduction;
}

} // namespace

PlanOutcome evaluatePlan(const LoanForm& form, const std::vector<PlanEvent>& events, const LenderTerms& lender,
                         const std::optional<TaxDeduction>& deduction) {
    PlanOutcome outcome;
    outcome.base = planCalculation(form, {}, lender);
    outcome.plan = events.empty() ? outcome.base : planCalculation(form, events, lender);
    outcome.refusal = outcome.base.refusal != Refusal::None ? outcome.base.refusal : outcome.plan.refusal;
    if (outcome.refusal != Refusal::None) {
        if (outcome.base.refusal == Refusal::None) {
            // The shortest head of the events that is refused ends with the event to blame.
            std::size_t fine = 0, refused = events.size();
            while (refused - fine > 1) {
                const std::size_t middle = fine + (refused - fine) / 2;
                const std::vector<PlanEvent> head(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(middle));
                (planCalculation(form, head, lender).refusal == Refusal::None ? fine : refused) = middle;
            }
            outcome.refusedBy = refused - 1;
        }
        return outcome;
    }
    outcome.totals = planTotals(outcome.plan.payments);
    outcome.savings = planSavings(outcome.base.payments, outcome.plan.payments);
    outcome.years = yearlyFigures(outcome.plan.payments);
    if (!deduction) return outcome;
    // A loan shorter than ten years from the start has no deduction, with or without events.
    const double principal = outcome.plan.record.principal;
    const std::int64_t borrowed = outcome.plan.record.dates.borrowed.Year();
    outcome.deductionTooShort = repaymentMonths(outcome.base.payments) < kMinDeductionMonths;
    if (outcome.deductionTooShort) return outcome;
    outcome.deductionEndsFrom = deductionEndsFrom(form, events, lender, outcome.plan.payments);
    const auto ofPlan =
        yearlyDeductions(*deduction, outcome.plan.payments, principal, borrowed, outcome.deductionEndsFrom);
    PlanTotals base = planTotals(outcome.base.payments);
    std::vector<YearFigures> baseYears;
    addDeductions(yearlyDeductions(*deduction, outcome.base.payments, principal, borrowed, std::nullopt), principal,
                  base, baseYears);
    addDeductions(ofPlan, principal, outcome.totals, outcome.years);
    outcome.savings.deductionLost = base.deduction - outcome.totals.deduction;
    outcome.savings.netSaving = base.netCost - outcome.totals.netCost;
    return outcome;
}

std::vector<YearFigures> yearlyFigures(const std::vector<Payment>& payments) {
    std::vector<YearFigures> years;
    for (const Payment& p : payments) {
        if (years.empty() || years.back().year != p.date.Year()) years.emplace_back().year = p.date.Year();
        YearFigures& y = years.back();
        ++y.payments;
        y.amount += p.amount;
        y.principal += p.principal;
        y.interest += p.interest;
        y.prepaid += p.prepaid;
        y.fees += p.fee;
        y.balance = p.balance;
        y.lastPayment = p.date;
    }
    return years;
}

} // namespace engine
