// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/document.h"

#include "engine/deduction.h"
#include "engine/plan.h"
#include "runtime/files.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace engine {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kFormat = "kestrune-plan";

// The form's texts by their names in a document, in the order they are written.
const std::pair<const char*, std::string LoanForm::*> kFormTexts[] = {{"principal", &LoanForm::principal},
                                                                      {"rate", &LoanForm::rate},
                                                                      {"times", &LoanForm::times},
                                                                      {"firstRow", &LoanForm::firstRow}};
const std::pair<const char*, std::string calendar::DateLineTexts::*> kDateTexts[] = {
    {"year", &calendar::DateLineTexts::year},
    {"month", &calendar::DateLineTexts::month},
    {"day", &calendar::DateLineTexts::day},
    {"payDay", &calendar::DateLineTexts::payDay}};

// A text a field or a list can hold: within a line's length, no control character.
bool holdable(const std::string& text) {
    return text.size() <= kMaxLineLength && std::none_of(text.begin(), text.end(), [](char c) {
               return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
           });
}

// Reads a document's fields, each by its path ("form.era", "scenarios[2].events[5]"); the first
// wrong one stops the reading with its reason.
class Reader {
public:
    std::string error;

    // The text at `key` of `object` into `target`; absent leaves the target as it is.
    bool text(const Json& object, const std::string& path, const char* key, std::string& target) {
        const auto it = object.find(key);
        if (it == object.end()) return true;
        return textOf(*it, path + "." + key, target);
    }
    bool textOf(const Json& value, const std::string& path, std::string& target) {
        if (!value.is_string()) return fail(path + " is not a text");
        target = value.get<std::string>();
        if (!holdable(target)) return fail(path + " holds more than 1,000 characters or a control character");
        return true;
    }
    // A word of `words` at `key` as its index into `target`.
    bool choice(const Json& object, const char* key, const std::vector<std::string_view>& words, int& target) {
        std::string word;
        if (!object.contains(key)) return true;
        if (!text(object, "form", key, word)) return false;
        const auto it = std::find(words.begin(), words.end(), word);
        if (it == words.end()) return fail(std::string("form.") + key + " is none of the words it takes");
        target = static_cast<int>(it - words.begin());
        return true;
    }
    bool lines(const Json& object, const std::string& path, const char* key, std::vector<std::string>& target) {
        const auto it = object.find(key);
        if (it == object.end()) return true;
        if (!it->is_array()) return fail(path + "." + key + " is not a list");
        for (std::size_t i = 0; i < it->size(); ++i) {
            if (++m_lines > kMaxPlanLines) return fail("more than 100,000 lines of terms and events");
            if (!textOf((*it)[i], path + "." + key + "[" + std::to_string(i + 1) + "]", target.emplace_back()))
                return false;
        }
        return true;
    }
    bool fail(std::string why) {
        error = std::move(why);
        return false;
    }

private:
    std::size_t m_lines = 0;
};

// The line and column of a byte of a text, both from 1.
std::pair<std::size_t, std::size_t> lineAndColumn(std::string_view text, std::size_t byte) {
    const std::string_view before = text.substr(0, std::min(byte > 0 ? byte - 1 : 0, text.size()));
    const std::size_t newline = before.rfind('\n');
    return {static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1,
            before.size() - (newline == std::string_view::npos ? 0 : newline + 1) + 1};
}

std::optional<Scenario> readScenario(const Json& value, const std::string& path, Reader& reader) {
    if (!value.is_object()) return reader.fail(path + " is not an object"), std::nullopt;
    Scenario scenario;
    if (!reader.text(value, path, "name", scenario.name) || !reader.lines(value, path, "terms", scenario.terms) ||
        !reader.lines(value, path, "events", scenario.events))
        return std::nullopt;
    if (const auto deduction = value.find("deduction"); deduction != value.end() && !deduction->is_null()) {
        if (!reader.textOf(*deduction, path + ".deduction", scenario.deduction.emplace())) return std::nullopt;
        std::optional<TaxDeduction> read;
        const TermReading reading = readDeduction(*scenario.deduction, read);
        if (!reading.isTerm || !reading.error.empty())
            return reader.fail(path + ".deduction: " + (reading.isTerm ? reading.error : "not a deduction")),
                   std::nullopt;
    }
    LenderTerms terms;
    for (std::size_t i = 0; i < scenario.terms.size(); ++i) {
        const TermReading reading = readTerm(scenario.terms[i], terms);
        if (!reading.isTerm || !reading.error.empty())
            return reader.fail(path + ".terms[" + std::to_string(i + 1) +
                               "]: " + (reading.isTerm ? reading.error : "not a lender term")),
                   std::nullopt;
    }
    return scenario;
}

} // namespace

std::string documentText(const PlanDocument& document) {
    Json form;
    for (const auto& [name, text] : kFormTexts) form[name] = document.form.*text;
    form["era"] = kEraWords.at(static_cast<std::size_t>(document.form.era));
    for (const auto& [name, text] : kDateTexts) form[name] = document.form.date.*text;
    form["delay"] = kDelayWords.at(static_cast<std::size_t>(document.form.delay));
    form["method"] = kMethodWords[document.form.flatPayment ? 0 : 1];
    Json scenarios = Json::array();
    for (const Scenario& s : document.scenarios) {
        Json scenario{{"name", s.name}, {"terms", s.terms}};
        if (s.deduction) scenario["deduction"] = *s.deduction;
        scenario["events"] = s.events;
        scenarios.push_back(std::move(scenario));
    }
    const Json root{{"format", kFormat}, {"version", kDocumentVersion}, {"form", form}, {"scenarios", scenarios}};
    return root.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

DocumentReading readDocument(std::string_view text) {
    if (text.size() > kMaxDocumentBytes) return {std::nullopt, "larger than 16 MB"};
    Json root;
    try {
        root = Json::parse(text);
    } catch (const Json::parse_error& e) {
        const auto [line, column] = lineAndColumn(text, e.byte);
        return {std::nullopt,
                "not JSON: an error at line " + std::to_string(line) + ", column " + std::to_string(column)};
    } catch (const Json::exception&) {
        // The one other failure of a parse: a number beyond a double, which nlohmann-json tells
        // without its place.
        return {std::nullopt, "not JSON: a number too large to read"};
    }
    if (!root.is_object() || root.value("format", Json()) != kFormat) return {std::nullopt, "not a plan document"};
    const Json version = root.value("version", Json());
    if (!version.is_number_integer() || version.get<std::int64_t>() < 1)
        return {std::nullopt, "a plan document without a version it can read"};
    if (version.get<std::int64_t>() > kDocumentVersion)
        return {std::nullopt, "made by a newer Kestrune (format version " + version.dump() + "; this one reads " +
                                  std::to_string(kDocumentVersion) + ")"};
    Reader reader;
    PlanDocument document;
    const Json form = root.value("form", Json::object());
    if (!form.is_object()) return {std::nullopt, "form is not an object"};
    bool read = true;
    for (const auto& [name, field] : kFormTexts) read = read && reader.text(form, "form", name, document.form.*field);
    for (const auto& [name, field] : kDateTexts)
        read = read && reader.text(form, "form", name, document.form.date.*field);
    int method = document.form.flatPayment ? 0 : 1;
    read = read && reader.choice(form, "era", kEraWords, document.form.era) &&
           reader.choice(form, "delay", kDelayWords, document.form.delay) &&
           reader.choice(form, "method", kMethodWords, method);
    document.form.flatPayment = method == 0;
    const Json scenarios = root.value("scenarios", Json());
    if (read && (!scenarios.is_array() || scenarios.empty())) reader.fail("scenarios is not a list of at least one");
    for (std::size_t i = 0; read && reader.error.empty() && i < scenarios.size(); ++i) {
        auto scenario = readScenario(scenarios[i], "scenarios[" + std::to_string(i + 1) + "]", reader);
        if (scenario) document.scenarios.push_back(std::move(*scenario));
    }
    if (!reader.error.empty()) return {std::nullopt, reader.error};
    return {std::move(document), {}};
}

DocumentReading readDocumentFile(const std::string& path) {
    std::string text;
    if (std::string error = runtime::readWhole(path, kMaxDocumentBytes, text); !error.empty())
        return {std::nullopt, std::move(error)};
    return readDocument(text);
}

bool readPlanLine(std::string_view line, std::int64_t paymentCount, ScenarioReading& reading) {
    const auto wrong = [&reading](const std::string& why) {
        if (reading.error.empty()) reading.error = why;
        return false;
    };
    if (const TermReading read = readDeduction(line, reading.deduction); read.isTerm)
        return read.error.empty() || wrong("bad term: " + read.error);
    if (const TermReading read = readTerm(line, reading.terms); read.isTerm)
        return read.error.empty() || wrong("bad term: " + read.error);
    EventReading read = readEvent(line, paymentCount);
    if (!read.event) return wrong("bad event: " + read.error);
    reading.events.push_back(*read.event);
    return true;
}

ScenarioReading readScenario(const Scenario& scenario, std::int64_t paymentCount) {
    ScenarioReading reading;
    for (const std::string& line : scenario.terms) readPlanLine(line, paymentCount, reading);
    if (scenario.deduction) readPlanLine(*scenario.deduction, paymentCount, reading);
    for (const std::string& line : scenario.events) readPlanLine(line, paymentCount, reading);
    return reading;
}

std::vector<ComparedPlan> comparePlans(const PlanDocument& document) {
    const std::int64_t count = readLoanForm(document.form).paymentCount;
    const auto planOf = [&](const Scenario& scenario) -> ComparedPlan {
        const ScenarioReading read = readScenario(scenario, count);
        PlanOutcome outcome = evaluatePlan(document.form, read.events, read.terms, read.deduction);
        if (!read.error.empty() || outcome.refusal != Refusal::None) return {scenario.name, std::nullopt};
        return {scenario.name, std::move(outcome)};
    };
    std::vector<ComparedPlan> plans;
    for (const Scenario& scenario : document.scenarios) plans.push_back(planOf(scenario));
    Scenario without = document.scenarios.front();
    without.name.clear();
    without.events.clear();
    plans.push_back(planOf(without));
    return plans;
}

std::optional<double> measureOf(const PlanOutcome& outcome, Measure measure) {
    const PlanTotals& t = outcome.totals;
    const PlanSavings& s = outcome.savings;
    switch (measure) {
    case Measure::Payments: return static_cast<double>(t.payments);
    case Measure::Payoff: return static_cast<double>(t.payoff.days().time_since_epoch().count());
    case Measure::Paid: return t.paid;
    case Measure::Interest: return t.interest;
    case Measure::Fees: return t.fees;
    case Measure::Deduction: return t.deduction;
    case Measure::NetCost: return t.netCost;
    case Measure::InterestSaved: return s.interestSaved;
    case Measure::NetSaving: return s.netSaving;
    case Measure::BreakEven:
        if (!s.breakEven) return std::nullopt;
        return static_cast<double>(s.breakEvenDate.days().time_since_epoch().count());
    }
    return std::nullopt;
}

std::vector<std::size_t> bestIn(const std::vector<ComparedPlan>& plans, Measure measure) {
    const bool most =
        measure == Measure::Deduction || measure == Measure::InterestSaved || measure == Measure::NetSaving;
    std::vector<std::pair<double, std::size_t>> values; // of the plans that have the measure
    for (std::size_t i = 0; i < plans.size(); ++i)
        if (const auto value = plans[i].outcome ? measureOf(*plans[i].outcome, measure) : std::nullopt)
            values.emplace_back(most ? -*value : *value, i);
    std::vector<std::size_t> best;
    if (values.empty()) return best;
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    for (const auto& [value, i] : values)
        if (value == low->first && low->first < high->first) best.push_back(i);
    return best;
}

} // namespace engine
