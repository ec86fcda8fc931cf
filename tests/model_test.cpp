// SPDX-License-Identifier: GPL-3.0-or-later
// A reference model of the plan rules and the lender terms, written again from the README as
// plainly as possible (every event looked at for every payment, sums in straight loops), checked
// against the engine on random plans: every payment, the totals, the savings with the break-even
// payment and every year. It shares with the engine only its types and the Round, Pow and Date primitives.
// KESTRUNE_MODEL_PLANS and KESTRUNE_MODEL_SEED run more plans or others.
#include "engine/plan.h"
#include "runtime/numbers.h"

#include "settings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace engine {
// How gtest prints a payment where the model and the engine differ.
inline void PrintTo(const Payment& p, std::ostream* os) {
    *os << "#" << p.number << " " << p.date.Year() << "-" << p.date.Month() << "-" << p.date.Day() << " amount "
        << p.amount << " principal " << p.principal << " interest " << p.interest << " balance " << p.balance
        << " prepaid " << p.prepaid << " fee " << p.fee;
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

double annuity(double balance, double annual, std::int64_t count, bool down) {
    const double monthly = annual / 12.0;
    const double t = runtime::Pow(1.0 + monthly, static_cast<double>(count));
    return toYen(((t * monthly) * balance) / (t - 1.0), down);
}

// A lender's interest by months for a whole balance at a rate of whole hundredths of a percent:
// balance x rate / 12 a month and / 365 a day, in integers, rounded once.
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

// Is the event due with payment n: its own payment, and for a recurring prepayment every so many after.
bool due(const PlanEvent& e, std::int64_t n) {
    if (n == e.payment) return true;
    return e.kind == EventKind::Prepay && e.every > 0 && n > e.payment && (n - e.payment) % e.every == 0;
}

// The plan's payments, or none where an amount is beyond 2^53.
std::optional<std::vector<Payment>> walk(const engine::LoanRecord& loan, const engine::LenderTerms& terms,
                                         const std::vector<PlanEvent>& events) {
    const bool down = terms.rounding == engine::Rounding::Down;
    std::vector<Payment> paid;
    double annual = loan.annualRate, percent = loan.ratePercent;
    double balance = loan.principal;
    double payment = loan.flatPayment ? annuity(balance, annual, loan.paymentCount, down) : 0.0;
    double principalEach = loan.flatPayment ? 0.0 : toYen(balance / static_cast<double>(loan.paymentCount), down);
    if (beyond(balance) || beyond(payment) || beyond(principalEach)) return std::nullopt;
    bool shortened = false;
    calendar::Date before = loan.dates.borrowed, date = loan.dates.firstPayment;
    for (std::int64_t n = 1; n <= loan.paymentCount; ++n) {
        // A rate change sets the rate of the period that ends with its payment; the last one counts.
        for (const PlanEvent& e : events) {
            if (e.kind != EventKind::RateChange || !due(e, n)) continue;
            percent = e.value;
            annual = e.value / 100.0;
            if (loan.flatPayment) payment = annuity(balance, annual, loan.paymentCount - n + 1, down);
        }
        const double days = static_cast<double>((date.days() - before.days()).count());
        double interest = toYen(balance * (annual / 365.2422) * days, down);
        if (terms.interest == engine::InterestRule::Monthly && n > 1) {
            interest = interestByMonths(balance, percent, 1, 0, down);
        } else if (terms.interest == engine::InterestRule::Monthly) {
            // Whole months from the borrowing day, each ending on that day or its month's last.
            std::int64_t months = 0;
            const auto monthEnd = [&before](std::int64_t m) {
                return calendar::Date(before.Year(), before.Month() + m, before.Day());
            };
            while (monthEnd(months + 1).days() <= date.days()) ++months;
            interest =
                interestByMonths(balance, percent, months, (date.days() - monthEnd(months).days()).count(), down);
        }
        Payment p{n, date, 0, 0, interest, 0};
        const double regular = loan.flatPayment ? payment - interest : principalEach;
        const bool last = n == loan.paymentCount || (shortened && regular >= balance);
        p.principal = last ? balance : regular;
        p.amount = last || !loan.flatPayment ? p.principal + interest : payment;
        balance -= p.principal;
        double reduce = 0, shorten = 0;
        bool anyReduce = false, anyShorten = false;
        for (const PlanEvent& e : events) {
            if (!due(e, n)) continue;
            if (e.kind == EventKind::Fee) p.fee += e.value;
            if (e.kind != EventKind::Prepay) continue;
            (e.mode == PrepayMode::Reduce ? reduce : shorten) += e.value;
            (e.mode == PrepayMode::Reduce ? anyReduce : anyShorten) = true;
        }
        // Prepayments that lower the payment first, then those that shorten the loan.
        if (anyReduce && balance > 0) {
            const double extra = std::min(reduce, balance);
            p.prepaid += extra;
            balance -= extra;
            const std::int64_t left = loan.paymentCount - n;
            if (balance > 0 && left > 0) {
                if (loan.flatPayment)
                    payment = annuity(balance, annual, left, down);
                else
                    principalEach = toYen(balance / static_cast<double>(left), down);
            }
        }
        if (anyShorten && balance > 0) {
            const double extra = std::min(shorten, balance);
            p.prepaid += extra;
            balance -= extra;
            shortened = true;
        }
        p.balance = balance;
        for (const double figure : {p.amount, p.principal, p.interest, p.balance, p.prepaid, p.fee})
            if (beyond(figure)) return std::nullopt;
        paid.push_back(p);
        if ((last || p.prepaid > 0) && balance <= 0 && !events.empty()) break;
        before = date;
        date = calendar::Date(date.Year(), date.Month() + 1, loan.payDay);
    }
    return paid;
}

struct Model {
    bool refused = true;
    std::vector<Payment> plan, base;
    engine::PlanTotals totals;
    engine::PlanSavings savings;
    std::vector<engine::YearFigures> years;
};

engine::PlanTotals totalsOf(const std::vector<Payment>& payments) {
    engine::PlanTotals t;
    for (const Payment& p : payments) {
        t.paid += p.amount + p.prepaid + p.fee;
        t.principal += p.principal;
        t.interest += p.interest;
        t.prepaid += p.prepaid;
        t.fees += p.fee;
        t.payoff = p.date;
    }
    t.payments = static_cast<std::int64_t>(payments.size());
    return t;
}

bool exact(const engine::PlanTotals& t) {
    return !beyond(t.paid) && !beyond(t.principal) && !beyond(t.interest) && !beyond(t.prepaid) && !beyond(t.fees);
}

Model model(const engine::LoanRecord& loan, const engine::LenderTerms& terms, const std::vector<PlanEvent>& events) {
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
    return m;
}

// A random form and plan: every era, both methods, the three delays; events of each kind, several
// on one payment, recurring prepayments of both modes, prepayments that clear the loan, fees.
struct RandomPlan {
    engine::LoanForm form;
    std::vector<PlanEvent> events;
    engine::LenderTerms terms;
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
               pick(0, 1) ? engine::Rounding::Down : engine::Rounding::Nearest};
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

std::string describe(const RandomPlan& r) {
    std::string text = r.form.principal + " at " + r.form.rate + "% x" + r.form.times + " era " +
                       std::to_string(r.form.era) + " " + r.form.date.year + "-" + r.form.date.month + "-" +
                       r.form.date.day + " day " + r.form.date.payDay + " delay " + std::to_string(r.form.delay) +
                       (r.form.flatPayment ? " flat" : " equal");
    for (const std::string& line : engine::termLines(r.terms)) text += " | " + line;
    for (const PlanEvent& e : r.events) text += " | " + engine::eventLine(e);
    return text;
}

TEST(ReferenceModel, AgreesWithTheEngineOnRandomPlans) {
    const std::uint64_t plans = setting("KESTRUNE_MODEL_PLANS", 3000), seed = setting("KESTRUNE_MODEL_SEED", 1123);
    std::mt19937_64 random(seed);
    std::size_t refused = 0, cleared = 0, brokeEven = 0;
    for (std::uint64_t i = 0; i < plans; ++i) {
        const RandomPlan r = randomPlan(random);
        const engine::PlanOutcome engine = engine::evaluatePlan(r.form, r.events, r.terms);
        const std::string where = "seed " + std::to_string(seed) + " plan " + std::to_string(i) + ": " + describe(r);
        if (engine.base.refusal == engine::Refusal::ZeroInput) continue;
        const Model m = model(engine.base.record, r.terms, r.events);
        ASSERT_EQ(engine.refusal != engine::Refusal::None, m.refused) << where;
        if (m.refused) {
            ++refused;
            continue;
        }
        ASSERT_EQ(engine.plan.payments, m.plan) << where;
        ASSERT_EQ(engine.base.payments, m.base) << where;
        ASSERT_TRUE(engine.totals == m.totals) << where;
        ASSERT_TRUE(engine.savings == m.savings) << where;
        ASSERT_TRUE(engine.years == m.years) << where;
        cleared += m.plan.size() < m.base.size();
        brokeEven += m.savings.breakEven.has_value();
    }
    // The plans reach the rules that matter: refusals, loans ended early, fees earned back.
    EXPECT_GT(refused, 0u);
    EXPECT_GT(cleared, plans / 10);
    EXPECT_GT(brokeEven, plans / 50);
    std::cout << "model: " << plans << " plans from seed " << seed << ": " << refused << " refused, " << cleared
              << " ended early, " << brokeEven << " broke even\n";
}

} // namespace
