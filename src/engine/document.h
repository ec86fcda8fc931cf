// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A plan document: the form as its fields hold it and one or more scenarios of its loan, each its
// lender terms, deduction and events as the lines of a plan's text. Kept as UTF-8 JSON that a
// person and a script can read; the schedule tool and the window read and write the same files.

#include "engine/loan.h"

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

} // namespace engine
