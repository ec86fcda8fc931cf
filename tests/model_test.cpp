// SPDX-License-Identifier: GPL-3.0-or-later
// A reference model of the plan rules, the lender terms and the deduction, written again from the
// README as plainly as possible and checked against the engine on random plans. It shares with the
// engine only its types and the Round, Pow and Date primitives. KESTRUNE_MODEL_PLANS and
// KESTRUNE_MODEL_SEED run more plans or others.
#include "engine/plan.h"
#include "runtime/numbers.h"

#include "settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <random>

namespace engine {
inline void PrintTo(const Payment& p, std::ostream* os) {
    *os << "#" << p.number << " " << p.date.Year() << "-" << p.date.Month() << "-" << p.date.Day() << " amount "
        << p.amount << " principal " << p.principal << " interest " << p.interest << " balance " << p.balance
        << " prepaid " << p.prepaid << " fee " << p.fee << " bonus " << p.bonus << " unpaid " << p.unpaid
        << " unpaid paid " << p.unpaidPaid;
}
} // namespace engine

namespace {

using engine::EventKind;
using engine::Payment;
using engine::PlanEvent;
using engine::PrepayMode;

constexpr double kLimit = 9007199254740992.0; // 2^53: amounts beyond it are refused

// Halves away from zero, or toward zero where the lender cuts amounts to the yen.
double toYen(double amount, bool down) { return down ? std::trunc(amount) : runtime::Round(amount); }

double annuity(double balance, double annual, std::int64_t count, bool down, double perYear) {
    const double periodic = annual / perYear;
    const double t = runtime::Pow(1.0 + periodic, static_cast<double>(count));
    return toYen(((t * periodic) * balance) / (t - 1.0), down);
}

// Interest by months at a rate of whole hundredths of a percent, in integers, rounded once.
double interestByMonths(double balance, double ratePercent, std::int64_t months, std::int64_t days, bool down) {
    __extension__ typedef __int128 Wide;
    const Wide numerator = static_cast<Wide>(balance) * std::llround(ratePercent * 100) * (months * 365 + days * 12);
    const Wide denominator = 1200 * 365 * 100;
    Wide whole = numerator / denominator;
    const Wide twice = 2 * (numerator % denominator);
    if (!down && (twice >= denominator || -twice >= denominator)) whole += numerator < 0 ? -1 : 1;
    return static_cast<double>(whole);
}

bool beyond(double amount) { return !(amount >= -kLimit && amount <= kLimit); }

bool due(const PlanEvent& e, std::int64_t n) {
    if (n == e.payment) return true;
    return e.kind == EventKind::Prepay && e.every > 0 && n > e.payment && (n - e.payment) % e.every == 0;
}

// The monthly part of the loan, or the bonus part paid twice a year; under reviews its payments
// so far, the rate its payment was set at, whether the cap held it, the interest carried unpaid.
struct Part {
    double balance = 0, payment = 0, principalEach = 0, perYear = 12;
    calendar::Date from; // the date its interest runs from
    bool paidBefore = false, shortened = false, ended = false, capped = false;
    std::int64_t made = 0;
    double setAt = 0, unpaid = 0;
    std::int64_t term = INT64_MAX; // after a shortening prepayment: its payments up to its new end
};

// The payments left to a part, this one included: the loan's, or fewer where it was shortened.
std::int64_t leftOf(const Part& part, std::int64_t scheduled) {
    if (part.term == INT64_MAX) return scheduled;
    return std::min(scheduled, std::max<std::int64_t>(part.term - part.made, 1));
}

// A payment set anew over the payments left: a shortened part then ends with the last of its term.
std::int64_t setOver(Part& part, std::int64_t scheduled) {
    if (part.term != INT64_MAX) part.shortened = false;
    return leftOf(part, scheduled);
}

// The plan's payments, or none where an amount is beyond 2^53 or the bonus part doesn't fit.
std::optional<std::vector<Payment>> walk(const engine::LoanRecord& loan, const engine::LenderTerms& terms,
                                         const std::vector<PlanEvent>& events,
                                         std::int64_t prepayUntil = engine::kMaxPayments) {
    const bool down = terms.rounding == engine::Rounding::Down, flat = loan.flatPayment;
    const std::int64_t count = loan.paymentCount;
    std::vector<calendar::Date> dates{loan.dates.borrowed, loan.dates.firstPayment};
    while (static_cast<std::int64_t>(dates.size()) <= count)
        dates.emplace_back(dates.back().Year(), dates.back().Month() + 1, loan.payDay);
    const auto isBonus = [&](std::int64_t n) {
        return terms.bonus &&
               (dates[n].Month() == terms.bonus->months[0] || dates[n].Month() == terms.bonus->months[1]);
    };
    const auto bonusLeft = [&](std::int64_t from) {
        std::int64_t left = 0;
        for (std::int64_t n = from; n <= count; ++n) left += isBonus(n);
        return left;
    };
    const double bonusAmount = terms.bonus ? terms.bonus->amount : 0;
    if (terms.bonus && (bonusAmount > loan.principal / 2 || bonusLeft(1) == 0)) return std::nullopt;
    if (terms.review && !flat) return std::nullopt;
    double annual = loan.annualRate, percent = loan.ratePercent;
    const auto setAnew = [&](Part& part, std::int64_t scheduled) {
        if (scheduled <= 0) return;
        const std::int64_t left = setOver(part, scheduled);
        if (flat)
            part.payment = annuity(part.balance, annual, left, down, part.perYear);
        else
            part.principalEach = toYen(part.balance / static_cast<double>(left), down);
        part.setAt = percent;
        part.capped = false;
    };
    Part monthly{loan.principal - bonusAmount, 0, 0, 12, loan.dates.borrowed};
    Part bonus{bonusAmount, 0, 0, 2, loan.dates.borrowed};
    monthly.setAt = bonus.setAt = percent;
    bonus.ended = !terms.bonus;
    setAnew(monthly, count);
    if (terms.bonus) setAnew(bonus, bonusLeft(1));
    for (const double figure :
         {loan.principal, monthly.payment, monthly.principalEach, bonus.payment, bonus.principalEach})
        if (beyond(figure)) return std::nullopt;
    const auto pay = [&](Part& part, std::int64_t n, std::int64_t left, Payment& p) {
        // Reviews: after every 60 monthly or 10 bonus payments, where the rate moved or the cap held.
        const std::int64_t every = part.perYear == 12 ? 60 : 10;
        if (terms.review && part.made > 0 && part.made % every == 0 && (percent != part.setAt || part.capped)) {
            const double anew = annuity(part.balance, annual, setOver(part, left), down, part.perYear);
            const double cap = toYen(1.25 * part.payment, down);
            part.capped = anew > cap;
            part.payment = std::min(anew, cap);
            part.setAt = percent;
        }
        const double actualDays = static_cast<double>((dates[n].days() - part.from.days()).count());
        double interest = toYen(part.balance * (annual / 365.2422) * actualDays, down);
        if (terms.interest == engine::InterestRule::Monthly && part.paidBefore) {
            interest = interestByMonths(part.balance, percent, part.perYear == 12 ? 1 : 6, 0, down);
        } else if (terms.interest == engine::InterestRule::Monthly) {
            // Whole months from the borrowing day, each ending on that day or its month's last.
            const calendar::Date b = part.from;
            std::int64_t months = 0;
            while (calendar::Date(b.Year(), b.Month() + months + 1, b.Day()).days() <= dates[n].days()) ++months;
            const std::int64_t days =
                (dates[n].days() - calendar::Date(b.Year(), b.Month() + months, b.Day()).days()).count();
            interest = interestByMonths(part.balance, percent, months, days, down);
        }
        const double regular = flat ? part.payment - interest : part.principalEach;
        const bool last = part.shortened ? left == 1 || regular >= part.balance : leftOf(part, left) == 1;
        double principal = last ? part.balance : regular;
        if (!last && terms.review && regular < 0) {
            // Interest above the payment: the payment is all interest, the rest carried.
            part.unpaid += interest - part.payment;
            interest = part.payment;
            principal = 0;
        }
        if (last) {
            interest += part.unpaid;
            p.unpaidPaid += part.unpaid;
            part.unpaid = 0;
        }
        const double amount = last || !flat ? principal + interest : part.payment;
        part.balance -= principal;
        part.from = dates[n];
        part.paidBefore = true;
        part.made += 1;
        part.ended = part.ended || last;
        p.amount += amount;
        p.principal += principal;
        p.interest += interest;
        return last;
    };
    std::vector<Payment> paid;
    for (std::int64_t n = 1; n <= count; ++n) {
        // A rate change sets the rate of the period that ends with its payment; the last one counts.
        for (const PlanEvent& e : events) {
            if (e.kind != EventKind::RateChange || !due(e, n)) continue;
            percent = e.value;
            annual = e.value / 100.0;
            if (flat && !terms.review)
                monthly.payment = annuity(monthly.balance, annual, setOver(monthly, count - n + 1), down, 12);
            if (flat && !terms.review && !bonus.ended) setAnew(bonus, bonusLeft(n));
        }
        Payment p{n, dates[n], 0, 0, 0, 0};
        bool last = false;
        if (!monthly.ended) last = pay(monthly, n, count - n + 1, p);
        if (!bonus.ended && isBonus(n)) {
            const double before = p.amount;
            last = pay(bonus, n, bonusLeft(n), p) || last;
            p.bonus = p.amount - before;
        }
        double reduce = 0, shorten = 0;
        bool anyReduce = false, anyShorten = false;
        for (const PlanEvent& e : events) {
            if (!due(e, n)) continue;
            if (e.kind == EventKind::Fee) p.fee += e.value;
            if (e.kind != EventKind::Prepay || n > prepayUntil) continue;
            (e.mode == PrepayMode::Reduce ? reduce : shorten) += e.value;
            (e.mode == PrepayMode::Reduce ? anyReduce : anyShorten) = true;
        }
        // A prepayment goes to the parts in proportion to their balances, the bonus part's share
        // rounded; no part takes more than its balance, and one that owes nothing takes none.
        const auto prepay = [&](double amount) {
            double toBonus = bonus.balance, toMonthly = monthly.balance;
            if (amount < monthly.balance + bonus.balance && bonus.balance <= 0) {
                toBonus = 0, toMonthly = amount;
            } else if (amount < monthly.balance + bonus.balance && monthly.balance <= 0) {
                toBonus = amount, toMonthly = 0;
            } else if (amount < monthly.balance + bonus.balance) {
                toBonus =
                    std::min(toYen(amount * bonus.balance / (monthly.balance + bonus.balance), down), bonus.balance);
                toMonthly = amount - toBonus;
                if (toMonthly > monthly.balance) toMonthly = monthly.balance, toBonus = amount - monthly.balance;
            }
            monthly.balance -= toMonthly;
            bonus.balance -= toBonus;
            p.prepaid += toMonthly + toBonus;
        };
        // Prepayments that lower the payment first, then those that shorten the loan.
        if (anyReduce && monthly.balance + bonus.balance > 0) {
            prepay(reduce);
            if (monthly.balance + bonus.balance > 0) {
                setAnew(monthly, count - n);
                if (!bonus.ended) setAnew(bonus, bonusLeft(n + 1));
            }
        }
        if (anyShorten && monthly.balance + bonus.balance > 0) {
            prepay(shorten);
            // Each part's new end: the payments its payment (at the rate in force) or its
            // principal needs for its balance, by the annuity formula solved for the count.
            for (Part* part : {&monthly, &bonus}) {
                part->shortened = true;
                if (part->balance <= 0) continue;
                const double r = annual / part->perYear;
                double needed = part->balance / part->principalEach;
                if (flat) {
                    if (part->payment <= part->balance * r) continue;
                    needed = r > 0 ? std::log(part->payment / (part->payment - part->balance * r)) / std::log1p(r)
                                   : part->balance / part->payment;
                }
                if (needed < engine::kMaxPayments)
                    part->term = std::min(part->term, part->made + static_cast<std::int64_t>(std::ceil(needed)));
            }
        }
        // A part a prepayment clears is repaid, and with it the interest it carried unpaid.
        for (Part* part : {&monthly, &bonus}) {
            if (p.prepaid <= 0 || part->balance > 0) continue;
            part->ended = true;
            p.interest += part->unpaid;
            p.amount += part->unpaid;
            p.unpaidPaid += part->unpaid;
            part->unpaid = 0;
        }
        p.balance = monthly.balance + bonus.balance;
        p.unpaid = monthly.unpaid + bonus.unpaid;
        for (const double figure : {p.amount, p.principal, p.interest, p.balance, p.prepaid, p.fee, p.bonus, p.unpaid})
            if (beyond(figure)) return std::nullopt;
        paid.push_back(p);
        if ((last || p.prepaid > 0) && p.balance <= 0 && !events.empty()) break;
    }
    return paid;
}

struct Model {
    bool refused = true;
    std::vector<Payment> plan, base;
    engine::PlanTotals totals;
    engine::PlanSavings savings;
    std::vector<engine::YearFigures> years;
    bool tooShort = false;
    std::optional<std::int64_t> endsFrom;
};

engine::PlanTotals totalsOf(const std::vector<Payment>& payments) {
    engine::PlanTotals t;
    for (const Payment& p : payments) {
        t.paid += p.amount + p.prepaid + p.fee;
        t.principal += p.principal;
        t.interest += p.interest;
        t.prepaid += p.prepaid;
        t.fees += p.fee;
        t.unpaidPaid += p.unpaidPaid;
        t.payoff = p.date;
    }
    t.payments = static_cast<std::int64_t>(payments.size());
    t.netCost = t.interest + t.fees;
    return t;
}

bool exact(const engine::PlanTotals& t) {
    return !beyond(t.paid) && !beyond(t.principal) && !beyond(t.interest) && !beyond(t.prepaid) && !beyond(t.fees);
}

std::int64_t months(const std::vector<Payment>& payments) {
    return payments.empty() ? 0
                            : (payments.back().date.Year() - payments.front().date.Year()) * 12 +
                                  payments.back().date.Month() - payments.front().date.Month() + 1;
}

// The deduction of each year of a deduction at a rate of whole tenths of a percent: the balance
// after the year's last payment so far (the principal before any), at most the cap, x the rate,
// cut to 100 yen, no less than 0 and no more than the limit; none after the pay-off or from
// `endsFrom` on.
std::map<std::int64_t, double> deductions(const engine::TaxDeduction& d, const std::vector<Payment>& payments,
                                          double principal, std::int64_t borrowedYear, std::int64_t endsFrom) {
    std::map<std::int64_t, double> years;
    const std::int64_t first = d.fromYear.value_or(borrowedYear);
    for (std::int64_t year = first; year < first + d.years && year < endsFrom; ++year) {
        if (payments.empty() || year > payments.back().date.Year()) break;
        double balance = principal;
        for (const Payment& p : payments)
            if (p.date.Year() <= year) balance = p.balance;
        const auto yen = static_cast<std::int64_t>(std::min(balance, d.cap)) * std::llround(d.ratePercent * 10) / 1000;
        years[year] =
            std::min(static_cast<double>(std::max<std::int64_t>(0, yen / 100 * 100)), d.limit.value_or(1e300));
    }
    return years;
}

Model model(const engine::LoanRecord& loan, const engine::LenderTerms& terms, const std::vector<PlanEvent>& events,
            const std::optional<engine::TaxDeduction>& deduction) {
    Model m;
    const auto plan = walk(loan, terms, events), base = walk(loan, terms, {});
    if (!plan || !base || !exact(totalsOf(*plan)) || !exact(totalsOf(*base))) return m;
    m.refused = false;
    m.plan = *plan;
    m.base = *base;
    m.totals = totalsOf(m.plan);
    const engine::PlanTotals without = totalsOf(m.base);
    m.savings.interestSaved = without.interest - m.totals.interest;
    m.savings.paymentsSaved = without.payments - m.totals.payments;
    m.savings.netSaving = m.savings.interestSaved - m.totals.fees;
    // The break-even payment: from the first fee on, the first whose interest saved so far
    // reaches the fees so far; a payment past one loan's end counts 0 in it.
    double saved = 0, fees = 0;
    for (std::size_t i = 0; i < std::max(m.plan.size(), m.base.size()); ++i) {
        if (i < m.base.size()) saved += m.base[i].interest;
        if (i < m.plan.size()) saved -= m.plan[i].interest, fees += m.plan[i].fee;
        if (fees > 0 && saved >= fees) {
            m.savings.breakEven = static_cast<std::int64_t>(i + 1);
            m.savings.breakEvenDate = i < m.plan.size() ? m.plan[i].date : m.base[i].date;
            break;
        }
    }
    for (const Payment& p : m.plan) {
        if (m.years.empty() || m.years.back().year != p.date.Year()) m.years.emplace_back().year = p.date.Year();
        engine::YearFigures& y = m.years.back();
        y.payments += 1;
        y.amount += p.amount;
        y.principal += p.principal;
        y.interest += p.interest;
        y.prepaid += p.prepaid;
        y.fees += p.fee;
        y.balance = p.balance;
        y.lastPayment = p.date;
    }
    if (!deduction || months(m.base) < 120) {
        m.tooShort = deduction.has_value();
        return m;
    }
    // The ten-year rule: the first prepayment after which the plan, prepaying no more, runs less.
    std::int64_t endsFrom = 99999;
    for (const Payment& p : m.plan) {
        if (months(m.plan) >= 120) break;
        const auto until = p.prepaid > 0 ? walk(loan, terms, events, p.number) : std::nullopt;
        if (until && months(*until) < 120) {
            endsFrom = p.date.Year();
            m.endsFrom = endsFrom;
            break;
        }
    }
    const std::int64_t borrowed = loan.dates.borrowed.Year();
    double baseDeduction = 0;
    for (const auto& [year, amount] : deductions(*deduction, m.base, loan.principal, borrowed, 99999))
        baseDeduction += amount;
    for (const auto& [year, amount] : deductions(*deduction, m.plan, loan.principal, borrowed, endsFrom)) {
        m.totals.deduction += amount;
        auto y = std::find_if(m.years.begin(), m.years.end(), [year](const auto& f) { return f.year >= year; });
        if (y == m.years.end() || y->year != year) {
            y = m.years.insert(y, engine::YearFigures{});
            y->year = year;
            y->balance = loan.principal;
            y->lastPayment = calendar::Date(year, 12, 31);
        }
        y->deduction = amount;
    }
    m.totals.netCost = m.totals.interest + m.totals.fees - m.totals.deduction;
    m.savings.deductionLost = baseDeduction - m.totals.deduction;
    m.savings.netSaving = (without.interest - baseDeduction) - m.totals.netCost;
    return m;
}

// A random form and plan: every era, both methods, the three delays; events of each kind, several
// on one payment, recurring prepayments of both modes, prepayments that clear the loan, fees.
struct RandomPlan {
    engine::LoanForm form;
    std::vector<PlanEvent> events;
    engine::LenderTerms terms;
    std::optional<engine::TaxDeduction> deduction;
};

RandomPlan randomPlan(std::mt19937_64& random) {
    const auto pick = [&random](std::int64_t from, std::int64_t to) {
        return std::uniform_int_distribution<std::int64_t>(from, to)(random);
    };
    RandomPlan r;
    const std::int64_t count = pick(0, 9) == 0 ? pick(361, 1200) : pick(1, 360);
    r.form.times = std::to_string(count);
    r.form.principal = std::to_string(pick(1, 3) == 1 ? pick(1, 100'000) : pick(100'000, 500'000'000));
    r.form.rate = std::to_string(static_cast<double>(pick(1, 1500)) / 100.0);
    r.form.era = static_cast<int>(pick(0, 3));
    const std::int64_t year = r.form.era == calendar::kWestern ? pick(1950, 2060) : pick(1, 64);
    r.form.date = {std::to_string(year), std::to_string(pick(1, 12)), std::to_string(pick(1, 31)),
                   std::to_string(pick(1, 31))};
    r.form.delay = static_cast<int>(pick(0, 2));
    r.form.flatPayment = pick(0, 1) == 1;
    r.terms = {pick(0, 1) ? engine::InterestRule::Monthly : engine::InterestRule::Daily,
               pick(0, 1) ? engine::Rounding::Down : engine::Rounding::Nearest, std::nullopt};
    // Reviews for most flat loans, and now and then for one of equal principal, to be refused.
    r.terms.review = pick(0, 2) > 0 ? r.form.flatPayment : pick(0, 30) == 0;
    // Now and then a tax deduction, its rate in tenths of a percent, now and then limited.
    if (pick(0, 2) == 0) {
        r.deduction = engine::TaxDeduction{static_cast<double>(pick(1, 10)) / 10.0, pick(1, 15),
                                           static_cast<double>(pick(1, 50'000'000)), std::nullopt, std::nullopt};
        if (pick(0, 2) == 0) r.deduction->fromYear = pick(1950, 2060);
        if (pick(0, 2) == 0) r.deduction->limit = static_cast<double>(pick(0, 300'000));
    }
    // Now and then a bonus part, up to half the principal (or above, to be refused).
    if (pick(0, 2) == 0) {
        const std::int64_t principal = std::stoll(r.form.principal), first = pick(1, 12);
        const std::int64_t second = (first + pick(0, 10)) % 12 + 1;
        r.terms.bonus =
            engine::BonusPart{static_cast<double>(pick(1, principal / 2 + (pick(0, 20) == 0))), {first, second}};
    }
    const double principal = std::stod(r.form.principal);
    for (std::int64_t n = pick(0, 8); n > 0; --n) {
        PlanEvent e;
        e.kind = static_cast<EventKind>(pick(0, 2));
        // Now and then on the payment of the event before it.
        e.payment = !r.events.empty() && pick(0, 3) == 0 ? r.events.back().payment : pick(1, count);
        if (e.kind == EventKind::RateChange) e.value = static_cast<double>(pick(0, 1500)) / 100.0;
        if (e.kind == EventKind::Fee) e.value = static_cast<double>(pick(0, 10) == 0 ? 0 : pick(1, 500'000));
        if (e.kind == EventKind::Prepay) {
            // From nothing to more than the whole principal.
            e.value = std::round(principal * static_cast<double>(pick(0, 120)) / 100.0 / (pick(0, 1) ? 1 : 20));
            e.mode = static_cast<PrepayMode>(pick(0, 1));
            if (pick(0, 2) == 0) e.every = pick(1, std::min<std::int64_t>(count, 24));
            // Now and then another of the series before it: its mode and period, from a later payment.
            const PlanEvent& before = r.events.empty() ? e : r.events.back();
            if (before.every > 0 && pick(0, 1) == 0 && before.payment + before.every <= count) {
                e.mode = before.mode;
                e.every = before.every;
                e.payment = before.payment + before.every * pick(1, (count - before.payment) / before.every);
            }
        }
        // Now and then an amount that no plan can hold.
        if (pick(0, 300) == 0) e.value = e.kind == EventKind::RateChange ? 1e300 : 5e15;
        r.events.push_back(e);
    }
    return r;
}

// The first payment where the engine and the model differ, both ways; empty where none does.
std::string firstDifference(const std::vector<Payment>& engine, const std::vector<Payment>& model) {
    for (std::size_t i = 0; i < std::max(engine.size(), model.size()); ++i) {
        if (i < engine.size() && i < model.size() && engine[i] == model[i]) continue;
        const auto show = [i](const std::vector<Payment>& payments) {
            return i < payments.size() ? ::testing::PrintToString(payments[i]) : std::string("none");
        };
        return "payment " + std::to_string(i + 1) + ": engine " + show(engine) + ", model " + show(model);
    }
    return "";
}

std::string describe(const RandomPlan& r) {
    std::string text = r.form.principal + " at " + r.form.rate + "% x" + r.form.times + " era " +
                       std::to_string(r.form.era) + " " + r.form.date.year + "-" + r.form.date.month + "-" +
                       r.form.date.day + " day " + r.form.date.payDay + " delay " + std::to_string(r.form.delay) +
                       (r.form.flatPayment ? " flat" : " equal");
    for (const std::string& line : engine::termLines(r.terms)) text += " | " + line;
    if (r.deduction) text += " | " + engine::deductionLine(*r.deduction);
    for (const PlanEvent& e : r.events) text += " | " + engine::eventLine(e);
    return text;
}

TEST(ReferenceModel, AgreesWithTheEngineOnRandomPlans) {
    const std::uint64_t plans = setting("KESTRUNE_MODEL_PLANS", 3000), seed = setting("KESTRUNE_MODEL_SEED", 1123);
    std::mt19937_64 random(seed);
    // The plans reach the rules that matter, each in at least one plan in a thousand.
    std::map<std::string, std::size_t> reached;
    for (std::uint64_t i = 0; i < plans; ++i) {
        const RandomPlan r = randomPlan(random);
        const engine::PlanOutcome engine = engine::evaluatePlan(r.form, r.events, r.terms, r.deduction);
        const std::string where = "seed " + std::to_string(seed) + " plan " + std::to_string(i) + ": " + describe(r);
        if (engine.base.refusal == engine::Refusal::ZeroInput) continue;
        const Model m = model(engine.base.record, r.terms, r.events, r.deduction);
        ASSERT_EQ(engine.refusal != engine::Refusal::None, m.refused) << where;
        reached["refused"] += m.refused;
        if (m.refused) continue;
        ASSERT_EQ(firstDifference(engine.plan.payments, m.plan), "") << where;
        ASSERT_EQ(firstDifference(engine.base.payments, m.base), "") << where;
        ASSERT_TRUE(engine.totals == m.totals && engine.savings == m.savings && engine.years == m.years) << where;
        ASSERT_EQ(std::pair(engine.deductionTooShort, engine.deductionEndsFrom), std::pair(m.tooShort, m.endsFrom))
            << where;
        reached["ended early"] += m.plan.size() < m.base.size();
        reached["broke even"] += m.savings.breakEven.has_value();
        reached["carried interest unpaid"] += m.totals.unpaidPaid > 0;
        reached["had a bonus part"] += r.terms.bonus.has_value();
        reached["had a deduction"] += m.totals.deduction > 0;
        reached["lost it to the ten-year rule"] += m.endsFrom.has_value();
    }
    std::cout << "model: " << plans << " plans from seed " << seed;
    for (const auto& [what, count] : reached) {
        EXPECT_GT(count * 1000, plans) << what;
        std::cout << ", " << count << " " << what;
    }
    std::cout << "\n";
}

} // namespace
