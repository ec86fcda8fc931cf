// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An event of a plan: attached to a payment, it changes what the walk of the loan does there.
// A new kind (a bonus payment, a payment holiday) is a new kind here and one more case in the walk.

#include <cstdint>

namespace engine {

enum class EventKind { RateChange, Fee, Prepay }; // the order in which events of a payment act
enum class PrepayMode { Shorten, Reduce };

struct PlanEvent {
    EventKind kind = EventKind::Prepay;
    std::int64_t payment = 1; // the payment it comes with, from 1
    double value = 0.0;       // prepayment or fee: the amount; rate change: percent a year
    PrepayMode mode = PrepayMode::Shorten;
    std::int64_t every = 0; // a prepayment again every this many payments; 0: once
    friend bool operator==(const PlanEvent&, const PlanEvent&) = default;
};

} // namespace engine
