// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/schedule.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <queue>
#include <tuple>
#include <utility>

namespace engine {
namespace {

// What the events of one payment ask of the walk.
struct DueEvents {
    std::optional<double> rate; // percent a year, from the last rate change of the payment
    double fee = 0.0;
    double reduce = 0.0, shorten = 0.0;         // prepaid amounts by mode
    bool anyReduce = false, anyShorten = false; // a prepayment of 0 still sets the payment or the term
};

// The events in the order of their payments. A recurring prepayment belongs to a series: the
// prepayments of one mode and period whose payments fall on the same residue of that period.
// A series comes due as one amount (the sum of its prepayments that have started), so that the
// walk costs about payments x series, however many lines repeat the same period.
class Agenda {
public:
    explicit Agenda(const std::vector<PlanEvent>& events) {
        std::map<std::tuple<std::int64_t, std::int64_t, PrepayMode>, std::size_t> seriesOf;
        for (const PlanEvent& event : events) {
            // readEvent keeps payments and periods within the count; an event built otherwise
            // past the longest loan never comes due.
            if (event.payment < 1 || event.payment > kMaxPayments || event.every > kMaxPayments) continue;
            if (event.kind != EventKind::Prepay || event.every < 1) {
                m_once.push_back(&event);
                continue;
            }
            const auto key = std::make_tuple(event.every, event.payment % event.every, event.mode);
            const auto [it, added] = seriesOf.try_emplace(key, m_series.size());
            if (added) m_series.push_back({event.every, event.mode, {}, 0, 0.0});
            m_series[it->second].starts.emplace_back(event.payment, event.value);
        }
        std::stable_sort(m_once.begin(), m_once.end(),
                         [](const PlanEvent* a, const PlanEvent* b) { return a->payment < b->payment; });
        for (std::size_t i = 0; i < m_series.size(); ++i) {
            std::sort(m_series[i].starts.begin(), m_series[i].starts.end());
            m_due.emplace(m_series[i].starts.front().first, i);
        }
    }

    // The events of payment n; n grows from one call to the next.
    DueEvents at(std::int64_t n) {
        DueEvents due;
        for (; m_nextOnce < m_once.size() && m_once[m_nextOnce]->payment <= n; ++m_nextOnce) {
            const PlanEvent& event = *m_once[m_nextOnce];
            if (event.payment < n) continue;
            if (event.kind == EventKind::RateChange) due.rate = event.value;
            if (event.kind == EventKind::Fee) due.fee += event.value;
            if (event.kind == EventKind::Prepay) add(due, event.mode, event.value);
        }
        while (!m_due.empty() && m_due.top().first <= n) {
            const auto [payment, index] = m_due.top();
            m_due.pop();
            Series& series = m_series[index];
            for (; series.joined < series.starts.size() && series.starts[series.joined].first <= payment;
                 ++series.joined)
                series.sum += series.starts[series.joined].second;
            if (payment == n) add(due, series.mode, series.sum);
            if (payment <= kMaxPayments - series.every) m_due.emplace(payment + series.every, index);
        }
        return due;
    }

private:
    static void add(DueEvents& due, PrepayMode mode, double value) {
        (mode == PrepayMode::Reduce ? due.reduce : due.shorten) += value;
        (mode == PrepayMode::Reduce ? due.anyReduce : due.anyShorten) = true;
    }
    struct Series {
        std::int64_t every;
        PrepayMode mode;
        std::vector<std::pair<std::int64_t, double>> starts; // payment and amount of each prepayment
        std::size_t joined;                                  // how many of them have started
        double sum;                                          // what those prepay each time
    };
    std::vector<const PlanEvent*> m_once; // the events that come once, by payment, in their order
    std::size_t m_nextOnce = 0;
    std::vector<Series> m_series;
    using Due = std::pair<std::int64_t, std::size_t>; // the payment a series comes due with
    std::priority_queue<Due, std::vector<Due>, std::greater<>> m_due;
};

} // namespace

double annuityPayment(double balance, double annualRate, std::int64_t payments, Rounding rule, int periodsPerYear) {
    const double periodic = annualRate / periodsPerYear;
    const double t = runtime::Pow(1.0 + periodic, static_cast<double>(payments));
    return roundBy(((t * periodic) * balance) / (t - 1.0), rule);
}

namespace {

// A part of the loan repaid by payments of its own: the whole loan, or its monthly part and its
// bonus part. The walk takes each part through the same steps.
struct Part {
    double balance = 0.0;
    double payment = 0.0;   // flat payment: principal and interest of each payment
    double principal = 0.0; // equal principal: the principal of each payment
    int periodsPerYear = 12;
    calendar::Date previous; // where its interest runs from
    bool paidOnce = false;
    bool shortened = false; // a prepayment shortens it: it ends when its principal is paid
    // After a shortening prepayment, the count of its payments (made ones too) that its payment
    // then needed: a payment set anew later is set over the ones left to it, the last of them
    // taking up the difference, so that the loan keeps its earlier end as a lender's does.
    std::int64_t term = std::numeric_limits<std::int64_t>::max();
    bool ended = false;
    // Under reviews: every how many of its payments the payment may be set anew, how many it has
    // made, the rate it was last set at and whether the 1.25 cap held it; the interest carried.
    std::int64_t reviewEvery = 60;
    std::int64_t made = 0;
    double setAtPercent = 0.0;
    bool capped = false;
    double unpaid = 0.0;

    // Its carried interest, paid now: it adds to the payment's interest.
    double payUnpaid() { return std::exchange(unpaid, 0.0); }
    // Of the `scheduled` payments left to the loan, those left to its term, the next one included.
    std::int64_t left(std::int64_t scheduled) const {
        return std::min(scheduled, std::max<std::int64_t>(term - made, 1));
    }
    // The payments a payment set anew now is set over: from now on the term ends the part.
    std::int64_t setOver(std::int64_t scheduled) {
        shortened = shortened && term == std::numeric_limits<std::int64_t>::max();
        return left(scheduled);
    }
};

struct PartPaid {
    double amount = 0.0, principal = 0.0, interest = 0.0, unpaidPaid = 0.0;
    bool ends = false;
};

// The walk's rules for one part at a time.
struct Rules {
    const LoanRecord& record;
    double annualRate, ratePercent, dailyRate;

    double interest(const Part& part, const calendar::Date& date) const {
        const Rounding rounding = record.lender.rounding;
        if (record.lender.interest == InterestRule::Monthly) {
            // A whole period whatever its days; the first one its whole months and the days left.
            const MonthsAndDays span =
                part.paidOnce ? MonthsAndDays{12 / part.periodsPerYear, 0} : monthsAndDays(part.previous, date);
            return monthlyInterest(part.balance, ratePercent, span, rounding);
        }
        const auto days = static_cast<double>(calendar::daysBetween(part.previous, date));
        return roundBy((part.balance * dailyRate) * days, rounding);
    }

    // Pays the part's payment due on the date, with `left` of its payments left, this one included.
    PartPaid pay(Part& part, const calendar::Date& date, std::int64_t left) const {
        const bool review = record.lender.review;
        if (review && part.made > 0 && part.made % part.reviewEvery == 0 &&
            (ratePercent != part.setAtPercent || part.capped)) {
            // A review: the payment for what is left at the rate in force, at most 1.25 times the last.
            const Rounding rounding = record.lender.rounding;
            const double anew =
                annuityPayment(part.balance, annualRate, part.setOver(left), rounding, part.periodsPerYear);
            const double cap = roundBy(1.25 * part.payment, rounding);
            part.capped = anew > cap;
            part.payment = part.capped ? cap : anew;
            part.setAtPercent = ratePercent;
        }
        PartPaid paid;
        paid.interest = interest(part, date);
        const double regularPrincipal = record.flatPayment ? part.payment - paid.interest : part.principal;
        if (part.shortened ? left <= 1 || regularPrincipal >= part.balance : part.left(left) <= 1) {
            // The last payment takes up the difference, and any interest carried unpaid.
            paid.principal = part.balance;
            if (part.unpaid != 0.0) paid.interest += paid.unpaidPaid = part.payUnpaid();
            paid.ends = part.ended = true;
        } else if (review && regularPrincipal < 0.0) {
            // The payment doesn't cover the interest: all of it is interest, the rest is carried.
            part.unpaid += paid.interest - part.payment;
            paid.interest = part.payment;
            paid.principal = 0.0;
        } else {
            paid.principal = regularPrincipal;
        }
        paid.amount = paid.principal + paid.interest;
        if (record.flatPayment && !paid.ends) paid.amount = part.payment;
        part.balance -= paid.principal;
        part.previous = date;
        part.paidOnce = true;
        ++part.made;
        return paid;
    }

    // The part's payment or principal set anew for the payments left.
    void reset(Part& part, std::int64_t scheduled) const {
        if (scheduled <= 0) return;
        const std::int64_t left = part.setOver(scheduled);
        if (record.flatPayment)
            part.payment = annuityPayment(part.balance, annualRate, left, record.lender.rounding, part.periodsPerYear);
        else
            part.principal = roundBy(part.balance / static_cast<double>(left), record.lender.rounding);
        part.setAtPercent = ratePercent;
        part.capped = false;
    }

    // A prepayment has shortened the part: its term ends with the payment that its payment, at the
    // rate in force, or its principal then repays its balance with.
    void shorten(Part& part) const {
        part.shortened = true;
        if (part.balance <= 0.0) return;
        const double periodic = annualRate / part.periodsPerYear, interest = part.balance * periodic;
        double periods = part.balance / part.principal;
        if (record.flatPayment && part.payment <= interest) return; // never repaid: the term stays
        if (record.flatPayment && periodic > 0.0)
            periods = std::log(part.payment / (part.payment - interest)) / std::log1p(periodic);
        else if (record.flatPayment)
            periods = part.balance / part.payment;
        if (!(periods < static_cast<double>(kMaxPayments))) return;
        part.term = std::min(part.term, part.made + static_cast<std::int64_t>(std::ceil(periods)));
    }
};

// A prepayment split between the parts in proportion to their balances: the bonus part's share
// by the rule, the monthly part the rest; neither more than its balance, and none to a part that
// owes nothing (a bonus part repaid, or one that its first short period left overpaid).
std::pair<double, double> split(double amount, double monthly, double bonus, Rounding rounding) {
    if (amount >= monthly + bonus) return {monthly, bonus};
    if (bonus <= 0.0) return {amount, 0.0};
    if (monthly <= 0.0) return {0.0, amount};
    double bonusShare = std::min(roundBy(amount * bonus / (monthly + bonus), rounding), bonus);
    double monthlyShare = amount - bonusShare;
    if (monthlyShare > monthly) {
        monthlyShare = monthly;
        bonusShare = amount - monthly;
    }
    return {monthlyShare, bonusShare};
}

} // namespace

std::optional<std::vector<Payment>> walkSchedule(const LoanRecord& record, const ListedRange& listed,
                                                 const std::vector<PlanEvent>& events, std::int64_t prepaymentsUntil) {
    const std::int64_t all = std::min(record.paymentCount, kMaxPayments);
    const std::int64_t limit = listed.last < 0 ? all : std::min(listed.last, all);
    std::vector<Payment> payments;
    if (limit > 0 && listed.first <= limit)
        payments.reserve(static_cast<std::size_t>(limit - std::max<std::int64_t>(listed.first, 1) + 1));

    Rules rules{record, record.annualRate, record.ratePercent, record.dailyRate};
    Part monthly{record.principal - record.bonusAmount, record.fixedPayment, record.fixedPrincipal, 12,
                 record.dates.borrowed};
    Part bonus{record.bonusAmount, record.bonusPayment, record.bonusPrincipal, 2, record.dates.borrowed};
    bonus.ended = !record.lender.bonus;
    bonus.reviewEvery = 10;
    monthly.setAtPercent = bonus.setAtPercent = record.ratePercent;
    const std::int64_t firstMonth = record.dates.firstPayment.Month();
    const auto bonusPaymentsFrom = [&](std::int64_t from) {
        return record.lender.bonus ? record.lender.bonus->bonusPayments(firstMonth, from, record.paymentCount) : 0;
    };
    Agenda agenda(events);
    calendar::Date current = record.dates.firstPayment;

    for (std::int64_t i = 0; i < limit; ++i) {
        const std::int64_t n = i + 1;
        DueEvents due = agenda.at(n);
        if (n > prepaymentsUntil) due.anyReduce = due.anyShorten = false;
        const bool bonusDue = !bonus.ended && record.lender.bonus->isBonusPayment(firstMonth, n);
        if (due.rate) {
            rules.ratePercent = *due.rate;
            rules.annualRate = rules.ratePercent / 100.0;
            rules.dailyRate = rules.annualRate / kDaysInYear;
            if (record.flatPayment && !record.lender.review) {
                monthly.payment = annuityPayment(monthly.balance, rules.annualRate,
                                                 monthly.setOver(record.paymentCount - i), record.lender.rounding);
                if (!bonus.ended) rules.reset(bonus, bonusPaymentsFrom(n));
            }
        }
        PartPaid paid[2];
        if (!monthly.ended) paid[0] = rules.pay(monthly, current, record.paymentCount - i);
        if (bonusDue) paid[1] = rules.pay(bonus, current, bonusPaymentsFrom(n));
        Payment row{n,
                    current,
                    paid[0].amount + paid[1].amount,
                    paid[0].principal + paid[1].principal,
                    paid[0].interest + paid[1].interest,
                    0.0};
        row.bonus = paid[1].amount;
        row.unpaidPaid = paid[0].unpaidPaid + paid[1].unpaidPaid;

        // Fees and prepayments come after the regular payment. Prepayments that lower the payment
        // act first and set it from what they leave; those that shorten the loan follow.
        const auto balance = [&] { return monthly.balance + bonus.balance; };
        double prepaid = 0.0;
        const double fee = due.fee;
        const auto prepay = [&](double amount) {
            const auto [toMonthly, toBonus] = split(amount, monthly.balance, bonus.balance, record.lender.rounding);
            monthly.balance -= toMonthly;
            bonus.balance -= toBonus;
            prepaid += toMonthly + toBonus;
        };
        if (due.anyReduce && balance() > 0.0) {
            prepay(due.reduce);
            if (balance() > 0.0) {
                rules.reset(monthly, record.paymentCount - n);
                if (!bonus.ended) rules.reset(bonus, bonusPaymentsFrom(n + 1));
            }
        }
        if (due.anyShorten && balance() > 0.0) {
            prepay(due.shorten);
            rules.shorten(monthly);
            rules.shorten(bonus);
        }
        // A part that a prepayment clears is repaid, with its interest carried unpaid.
        for (Part* part : {&monthly, &bonus}) {
            if (prepaid <= 0.0 || part->balance > 0.0) continue;
            part->ended = true;
            if (part->unpaid == 0.0) continue;
            const double carried = part->payUnpaid();
            row.interest += carried;
            row.amount += carried;
            row.unpaidPaid += carried;
        }
        row.unpaid = monthly.unpaid + bonus.unpaid;
        // What the row shows; a payment carried to the next row is checked there.
        for (const double figure :
             {row.amount, row.principal, row.interest, balance(), prepaid, fee, row.bonus, row.unpaid})
            if (!isExactAmount(figure)) return std::nullopt;
        row.balance = balance();
        row.prepaid = prepaid;
        row.fee = fee;
        if (listed.first <= n) payments.push_back(row);
        // A prepayment that clears the balance, or a shortened loan's last payment, ends the loan.
        if ((paid[0].ends || paid[1].ends || prepaid > 0.0) && balance() <= 0.0 && !events.empty()) break;
        current = calendar::dateFromEraYear(calendar::kWestern, current.Year(), current.Month() + 1, record.payDay);
    }
    return payments;
}

} // namespace engine
