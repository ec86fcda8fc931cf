// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/schedule.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <map>
#include <queue>
#include <tuple>

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

double annuityPayment(double balance, double annualRate, std::int64_t payments, Rounding rule) {
    const double monthly = annualRate / 12.0;
    const double t = runtime::Pow(1.0 + monthly, static_cast<double>(payments));
    return roundBy(((t * monthly) * balance) / (t - 1.0), rule);
}

std::optional<std::vector<Payment>> walkSchedule(const LoanRecord& record, const ListedRange& listed,
                                                 const std::vector<PlanEvent>& events) {
    const std::int64_t all = std::min(record.paymentCount, kMaxPayments);
    const std::int64_t limit = listed.last < 0 ? all : std::min(listed.last, all);
    std::vector<Payment> payments;
    if (limit > 0 && listed.first <= limit)
        payments.reserve(static_cast<std::size_t>(limit - std::max<std::int64_t>(listed.first, 1) + 1));

    double balance = record.principal;
    double amount = record.fixedPayment;      // flat payment: the regular payment
    double principal = record.fixedPrincipal; // equal principal: the regular principal
    double dailyRate = record.dailyRate;
    double annualRate = record.annualRate;
    double ratePercent = record.ratePercent;
    const Rounding rounding = record.lender.rounding;
    bool shortened = false; // a prepayment shortens the loan: it ends when its principal is paid
    Agenda agenda(events);
    calendar::Date previous = record.dates.borrowed;
    calendar::Date current = record.dates.firstPayment;

    for (std::int64_t i = 0; i < limit; ++i) {
        const std::int64_t n = i + 1;
        const DueEvents due = agenda.at(n);
        if (due.rate) {
            ratePercent = *due.rate;
            annualRate = ratePercent / 100.0;
            dailyRate = annualRate / kDaysInYear;
            if (record.flatPayment) amount = annuityPayment(balance, annualRate, record.paymentCount - i, rounding);
        }
        double interest = 0.0;
        if (record.lender.interest == InterestRule::Monthly) {
            // A whole month whatever its days; the first period its whole months and the days left.
            const MonthsAndDays span = i == 0 ? monthsAndDays(previous, current) : MonthsAndDays{1, 0};
            interest = monthlyInterest(balance, ratePercent, span, rounding);
        } else {
            const auto days = static_cast<double>(calendar::daysBetween(previous, current));
            interest = roundBy((balance * dailyRate) * days, rounding);
        }
        const double regularPrincipal = record.flatPayment ? amount - interest : principal;
        bool ends = false;
        if (i == record.paymentCount - 1 || (shortened && regularPrincipal >= balance)) {
            // The last payment takes up the difference.
            principal = balance;
            amount = balance + interest;
            ends = true;
        } else if (record.flatPayment) {
            principal = amount - interest;
        } else {
            amount = principal + interest;
        }
        balance -= principal;
        Payment paid{n, current, amount, principal, interest, 0.0, 0.0, 0.0};

        // Fees and prepayments come after the regular payment. Prepayments that lower the payment
        // act first and set it from what they leave; those that shorten the loan follow.
        double prepaid = 0.0;
        const double fee = due.fee;
        if (due.anyReduce && balance > 0.0) {
            const double extra = std::min(due.reduce, balance);
            prepaid += extra;
            balance -= extra;
            const std::int64_t left = record.paymentCount - n;
            if (balance > 0.0 && left > 0) {
                if (record.flatPayment)
                    amount = annuityPayment(balance, annualRate, left, rounding);
                else
                    principal = roundBy(balance / static_cast<double>(left), rounding);
            }
        }
        if (due.anyShorten && balance > 0.0) {
            const double extra = std::min(due.shorten, balance);
            prepaid += extra;
            balance -= extra;
            shortened = true;
        }
        // What the row shows; a payment carried to the next row is checked there.
        for (const double figure : {paid.amount, paid.principal, interest, balance, prepaid, fee})
            if (!isExactAmount(figure)) return std::nullopt;
        paid.balance = balance;
        paid.prepaid = prepaid;
        paid.fee = fee;
        if (listed.first <= n) payments.push_back(paid);
        // A prepayment that clears the balance, or a shortened loan's last payment, ends the loan.
        if ((ends || prepaid > 0.0) && balance <= 0.0 && !events.empty()) break;
        previous = current;
        current = calendar::dateFromEraYear(calendar::kWestern, current.Year(), current.Month() + 1, record.payDay);
    }
    return payments;
}

} // namespace engine
