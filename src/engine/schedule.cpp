// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/schedule.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <queue>
#include <tuple>

namespace engine {
namespace {

// The events in the order they come: by payment, then rate changes before fees before
// prepayments; a recurring prepayment comes back every so many payments.
class Agenda {
public:
    explicit Agenda(const std::vector<PlanEvent>& events) : m_events(events) {
        for (std::size_t i = 0; i < events.size(); ++i) m_due.push({events[i].payment, events[i].kind, i});
    }
    // The events of payment n, in order.
    std::vector<const PlanEvent*> at(std::int64_t n) {
        std::vector<const PlanEvent*> due;
        while (!m_due.empty() && m_due.top().payment <= n) {
            const Due next = m_due.top();
            m_due.pop();
            const PlanEvent& event = m_events[next.index];
            if (next.payment == n) due.push_back(&event);
            if (event.every > 0) m_due.push({next.payment + event.every, event.kind, next.index});
        }
        return due;
    }

private:
    struct Due {
        std::int64_t payment;
        EventKind kind;
        std::size_t index;
        bool operator>(const Due& o) const {
            return std::tie(payment, kind, index) > std::tie(o.payment, o.kind, o.index);
        }
    };
    const std::vector<PlanEvent>& m_events;
    std::priority_queue<Due, std::vector<Due>, std::greater<>> m_due;
};

} // namespace

double annuityPayment(double balance, double annualRate, std::int64_t payments) {
    const double monthly = annualRate / 12.0;
    const double t = runtime::Pow(1.0 + monthly, static_cast<double>(payments));
    return runtime::Round(((t * monthly) * balance) / (t - 1.0));
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
    bool shortened = false; // a prepayment shortens the loan: it ends when its principal is paid
    Agenda agenda(events);
    calendar::Date previous = record.dates.borrowed;
    calendar::Date current = record.dates.firstPayment;

    for (std::int64_t i = 0; i < limit; ++i) {
        const std::int64_t n = i + 1;
        const auto due = events.empty() ? std::vector<const PlanEvent*>{} : agenda.at(n);
        for (const PlanEvent* event : due) {
            if (event->kind != EventKind::RateChange) continue;
            annualRate = event->value / 100.0;
            dailyRate = annualRate / kDaysInYear;
            if (record.flatPayment) amount = annuityPayment(balance, annualRate, record.paymentCount - i);
        }
        const auto days = static_cast<double>(calendar::daysBetween(previous, current));
        const double interest = runtime::Round((balance * dailyRate) * days);
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

        // Fees and prepayments come after the regular payment; a reduce prepayment sets the
        // payments that follow.
        double prepaid = 0.0, fee = 0.0;
        for (const PlanEvent* event : due) {
            if (event->kind == EventKind::Fee) fee += event->value;
            if (event->kind != EventKind::Prepay || balance <= 0.0) continue;
            const double extra = std::min(event->value, balance);
            prepaid += extra;
            balance -= extra;
            shortened = shortened || event->mode == PrepayMode::Shorten;
            const std::int64_t left = record.paymentCount - n;
            if (event->mode == PrepayMode::Reduce && balance > 0.0 && left > 0) {
                if (record.flatPayment)
                    amount = annuityPayment(balance, annualRate, left);
                else
                    principal = runtime::Round(balance / static_cast<double>(left));
            }
        }
        for (const double figure : {paid.amount, paid.principal, interest, balance, amount, principal, fee})
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
