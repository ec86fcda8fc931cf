// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A plan document: the form as its fields hold it and one or more scenarios of its loan, each its
// lender terms, deduction and events as the lines of a plan's text. Kept as UTF-8 JSON that a
// person and a script can read; the schedule tool and the window read and write the same files.

#include "engine/plan.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// The format's major version: a reader refuses a document of a newer one.
constexpr int kDocumentVersion = 1;
// A document is at most this large; each of its texts holds at most kMaxLineLength characters.
constexpr std::size_t kMaxDocumentBytes = 16 << 20;

// The words of the form's choices in a document and on the tool's command line, in the order
// of the values they stand for.
inline const std::vector<std::string_view> kEraWords{"western", "showa", "heisei", "reiwa"};
inline const std::vector<std::string_view> kDelayWords{"next", "2after", "3after"};
inline const std::vector<std::string_view> kMethodWords{"flat", "equal"};

struct Scenario {
    std::string name;
    std::vector<std::string> terms;       // each a line that readTerm reads without error
    std::optional<std::string> deduction; // a line that readDeduction reads without error
    std::vector<std::string> events;      // as typed: a window keeps an event it can't read, marked
    friend bool operator==(const Scenario&, const Scenario&) = default;
};

struct PlanDocument {
    LoanForm form;
    std::vector<Scenario> scenarios; // at least one
    friend bool operator==(const PlanDocument&, const PlanDocument&) = default;
};

std::string documentText(const PlanDocument& document);

// The document of a text, or what is wrong with it in English: not JSON (with its line and
// column), not a plan document, a newer version, a field of the wrong type or one that holds
// what its field can't. Fields a reader doesn't know are left alone.
struct DocumentReading {
    std::optional<PlanDocument> document;
    std::string error;
};
DocumentReading readDocument(std::string_view text);
// The document of a file, or why it can't be read: the system's reason, its size, or the text's.
DocumentReading readDocumentFile(const std::string& path);

// A scenario's lines read: its terms, its deduction and its events, or why a line is wrong, as
// "bad term: ..." or "bad event: ...".
struct ScenarioReading {
    LenderTerms terms;
    std::optional<TaxDeduction> deduction;
    std::vector<PlanEvent> events;
    std::string error;
};
// One line of a plan's text into the reading: a deduction, a term or else an event. False where
// it is wrong; the first wrong line's reason is kept.
bool readPlanLine(std::string_view line, std::int64_t paymentCount, ScenarioReading& reading);
ScenarioReading readScenario(const Scenario& scenario, std::int64_t paymentCount);

// The scenarios of a document worked out side by side, then the loan without events (on the
// first scenario's terms and deduction).
struct ComparedPlan {
    std::string name;
    std::optional<PlanOutcome> outcome; // none where a line is wrong or the plan is refused
};
std::vector<ComparedPlan> comparePlans(const PlanDocument& document);

// What the comparison shows of each plan, in its order.
enum class Measure { Payments, Payoff, Paid, Interest, Fees, Deduction, NetCost, InterestSaved, NetSaving, BreakEven };
constexpr int kMeasures = 10;
// The measure of a plan as a number (a date as its day count); none for a break-even that isn't.
std::optional<double> measureOf(const PlanOutcome& outcome, Measure measure);
// The plans best in a measure: the fewest payments, the earliest pay-off or break-even, the least
// paid, interest, fees and net cost, the most deduction and saving. None where all are equal.
std::vector<std::size_t> bestIn(const std::vector<ComparedPlan>& plans, Measure measure);

} // namespace engine
