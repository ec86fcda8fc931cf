// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/schedulecommand.h"

#include "calendar/era.h"
#include "engine/calculation.h"
#include "engine/document.h"
#include "engine/plan.h"
#include "runtime/files.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "strings/constants.h"
#include "table/export.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <map>
#include <optional>

namespace tools {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kUsage = R"(usage: kestrune-schedule [options]

Prints the repayment table of a loan, calculated from the texts given as a user would type
them into the form. No field corrections are applied. Each option is given as
"--option VALUE" or "--option=VALUE".

  --principal TEXT   principal, commas allowed (default "{principal}")
  --rate TEXT        annual rate in percent (default "{rate}")
  --times TEXT       number of monthly payments, at most {max} are walked (default "{times}")
  --first TEXT       number of the first payment listed (default "1")
  --last N           number of the last payment listed; negative or absent: to the end
  --era ERA          western, showa, heisei or reiwa: the era of --year (default reiwa)
  --year TEXT        borrowing year in that era (default: this year counted in that era,
                     so that the borrowing date is today whichever era names it)
  --month TEXT       borrowing month (default: this month)
  --day TEXT         borrowing day (default: today)
  --pay-day TEXT     day of the month of each payment; above 31 is the last day (default "{payday}")
  --delay DELAY      next, 2after or 3after: which pay day comes first (default next)
  --method METHOD    flat (flat payment) or equal (equal principal, the default)
  --format FORMAT    table (default), tsv, csv or json
  --prepay N:AMOUNT[:shorten|reduce][:every=M]
                     with payment N, AMOUNT more principal; shorten (the default) keeps the
                     payment and ends the loan earlier, reduce keeps the count and lowers the
                     payment; every=M repeats it every M payments
  --rate-change N:RATE  the annual rate RATE from the period that ends with payment N
  --fee N:AMOUNT     a cost paid with payment N (a refinancing or prepayment fee)
  --interest RULE    daily (the default): each period's actual days at rate / 365.2422 a day;
                     monthly, as lenders count: rate / 12 a month whatever its days, and the
                     first period's whole months at rate / 12 and its days left at rate / 365
  --rounding RULE    nearest (the default) or down: every amount computed is cut to the yen
  --bonus AMOUNT[:M1,M2]  AMOUNT of the principal is a bonus part, repaid by payments made with
                     the regular payments of months M1 and M2 (6 and 12 by default): its flat
                     payment at rate / 2 a half year, or equal principal; a Bonus column shows them
  --deduction [RATE[:YEARS[:CAP[:FROM[:LIMIT]]]]]
                     the housing-loan tax deduction: each year from FROM (the borrowing year)
                     for YEARS (13) years, min(the year-end balance, CAP (30,000,000)) x RATE
                     (0.7 %), cut to 100 yen and to LIMIT (the taxes paid); none where the loan
                     runs less than ten years. Any part may be empty for its default; with
                     --totals and --by-year, the deduction and the net cost
  --review           the five-year and 125 % rules of a variable rate (flat payment only): a
                     rate change sets the payment anew only at payments 61, 121, ... (a bonus
                     part's every 10 bonus payments), at most 1.25 times the one before; interest
                     a payment doesn't cover is carried unpaid and paid with the last payment
  --plan FILE        a plan document saved by Kestrune: its form, and the terms, deduction and
                     events of its first scenario; the other options override the form and add
                     to the scenario
  --scenario NAME    with --plan, the scenario of that name
  --compare          the figures of every scenario (the one the options make and, with --plan,
                     the document's others) beside the loan without events, the best of each
                     row marked with a star
  --save-plan FILE   write the plan of the other options to FILE as a plan document that
                     Kestrune opens, instead of printing it
  --events FILE|-    events one a line, as "prepay 12 1000000 reduce every 12", "rate 61 1.5",
                     "fee 61 330000", and terms, as "interest monthly", "rounding down",
                     "bonus 9000000 6 12", "review", "deduction 0.7 13 30000000 from 2025
                     limit 250000";
                     blank lines and lines from # are skipped
  --totals           after the table (in tsv and csv after a blank line), the totals and, with
                     events, the savings against the same loan without them
  --by-year          the figures of each calendar year instead of the rows
  -h, --help         print this text

An events text holds at most {lines} lines of at most {length} characters.

Exit status: 0 with the table printed; 1 when the calculation is refused (a zero principal,
rate or count, or amounts beyond 2^53) or the output cannot be written; 2 for a bad option,
term, event or events file.
)";

// The usage with the defaults of a new form filled in.
std::string usage() {
    const engine::LoanForm defaults;
    std::string text(kUsage);
    const std::pair<std::string_view, std::string> values[] = {{"{principal}", defaults.principal},
                                                               {"{rate}", defaults.rate},
                                                               {"{times}", defaults.times},
                                                               {"{max}", std::to_string(engine::kMaxPayments)},
                                                               {"{payday}", defaults.date.payDay},
                                                               {"{lines}", std::to_string(engine::kMaxPlanLines)},
                                                               {"{length}", std::to_string(engine::kMaxLineLength)}};
    for (const auto& [name, value] : values) text.replace(text.find(name), name.size(), value);
    return text;
}

const std::vector<std::string_view> kFormats{"table", "tsv", "csv", "json"};

table::Cells headerRow(table::PlanColumns columns) {
    return table::planHeadings(runtime::Split(strings::kHeader.defaultText, "\t"),
                               {std::string(strings::kBonusHeading.defaultText),
                                std::string(strings::kPrepaidHeading.defaultText),
                                std::string(strings::kUnpaidHeading.defaultText)},
                               columns);
}

// A JSON document on one line, as nlohmann-json writes it: every text escaped, any byte that is
// not UTF-8 replaced.
void printJson(const Json& document, std::ostream& out) {
    out << document.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

// Columns padded to their widest cell: text columns (before `firstAmount`) to the left, amounts to the right.
void printAligned(const table::Cells& header, const std::vector<table::Cells>& rows, std::size_t firstAmount,
                  std::ostream& out) {
    std::vector<std::size_t> width(header.size());
    for (std::size_t c = 0; c < width.size(); ++c) {
        width[c] = header[c].size();
        for (const auto& row : rows) width[c] = std::max(width[c], row[c].size());
    }
    const auto printRow = [&](const table::Cells& row) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string pad(width[c] - row[c].size(), ' ');
            out << (c > 0 ? "  " : "") << (c < firstAmount ? row[c] + pad : pad + row[c]);
        }
        out << '\n';
    };
    printRow(header);
    for (const auto& row : rows) printRow(row);
}

std::string amount(double value) { return runtime::Format(value, table::kAmountMask); }

// The lines of the totals and, for a plan with events, of its savings: a name and a value each.
struct TotalLines {
    std::vector<std::pair<std::string, std::string>> totals, savings;
};
TotalLines totalLines(const engine::PlanOutcome& outcome, bool withSavings, int era, bool review, bool deduction) {
    const auto date = [era](const calendar::Date& d) { return calendar::payoffText(d, era, {}); };
    const engine::PlanTotals& totals = outcome.totals;
    TotalLines lines;
    lines.totals = {{"payments", runtime::Str(totals.payments)},
                    {"paid", amount(totals.paid)},
                    {"principal", amount(totals.principal)},
                    {"interest", amount(totals.interest)},
                    {"prepaid", amount(totals.prepaid)},
                    {"fees", amount(totals.fees)},
                    {"payoff", date(totals.payoff)}};
    if (review) lines.totals.insert(lines.totals.begin() + 4, {"unpaid interest paid", amount(totals.unpaidPaid)});
    if (deduction) {
        lines.totals.insert(lines.totals.end() - 1,
                            {{"deduction", amount(totals.deduction)}, {"net cost", amount(totals.netCost)}});
        if (outcome.deductionTooShort)
            lines.totals.emplace_back("deduction note", "No deduction: the term is shorter than ten years");
        if (outcome.deductionEndsFrom)
            lines.totals.emplace_back("deduction note", "No deduction from " +
                                                            runtime::Str(*outcome.deductionEndsFrom) +
                                                            ": the term is now shorter than ten years");
    }
    if (!withSavings) return lines;
    const engine::PlanSavings& savings = outcome.savings;
    const std::int64_t saved = savings.paymentsSaved;
    lines.savings = {{"interest saved", amount(savings.interestSaved)},
                     {"payments saved", runtime::Str(saved) + " (" + runtime::Str(saved / 12) + " years " +
                                            runtime::Str(saved % 12) + " months)"},
                     {"net saving", amount(savings.netSaving)}};
    if (deduction) lines.savings.insert(lines.savings.begin() + 1, {"deduction lost", amount(savings.deductionLost)});
    const std::string_view none = totals.fees > 0 ? strings::kNotEarnedBack.defaultText : strings::kNoFees.defaultText;
    lines.savings.emplace_back("break-even payment", savings.breakEven ? runtime::Str(*savings.breakEven) + " (" +
                                                                             date(savings.breakEvenDate) + ")"
                                                                       : std::string(none));
    return lines;
}

// "N:AMOUNT[:shorten|reduce][:every=M]" and the like as an event line ("prepay N AMOUNT ..."),
// and "AMOUNT:M1,M2" as a bonus line ("bonus AMOUNT M1 M2").
std::string eventLineOf(const std::string& kind, const std::string& value) {
    std::string line = kind;
    const std::vector<std::string> parts = runtime::Split(value, ":");
    for (std::size_t i = 0; i < parts.size(); ++i) {
        std::string part = parts[i].starts_with("every=") ? "every " + parts[i].substr(6) : parts[i];
        if (kind == "bonus" && i > 0) std::replace(part.begin(), part.end(), ',', ' ');
        line += " " + part;
    }
    return line;
}

int usageError(std::ostream& err, const std::string& problem) {
    err << "kestrune-schedule: " << problem << "\nTry 'kestrune-schedule --help' for the options.\n";
    return 2;
}

// The event lines of an events file, or "-" for standard input; an error message where it can't
// be read whole.
std::string readEventsFile(const std::string& name, std::istream& in, std::vector<std::string>& lines) {
    std::ifstream file;
    if (name != "-") file.open(name);
    std::istream& stream = name == "-" ? in : file;
    const std::string cannot = "cannot read events from " + (name == "-" ? "standard input" : runtime::excerpt(name));
    if (name != "-" && !file) return cannot + ": " + std::strerror(errno);
    errno = 0;
    engine::PlanLines read = engine::readPlanLines(stream);
    if (stream.bad()) return cannot + ": " + std::strerror(errno != 0 ? errno : EIO);
    if (!read.error.empty()) return cannot + ": " + read.error;
    lines.insert(lines.end(), std::make_move_iterator(read.lines.begin()), std::make_move_iterator(read.lines.end()));
    return {};
}

// Every scenario of the document and the loan without events side by side, a column each, the
// best values of each row marked with a star (in JSON, named by their columns).
void printComparison(const engine::PlanDocument& document, int format, std::ostream& out) {
    const std::vector<engine::ComparedPlan> plans = engine::comparePlans(document);
    const char* const names[engine::kMeasures] = {
        "payments",  "payoff",   "paid",           "interest",   "fees",
        "deduction", "net cost", "interest saved", "net saving", "break-even payment"};
    table::Cells header{std::string(strings::kMeasure.defaultText)};
    for (const engine::ComparedPlan& plan : plans)
        header.push_back(plan.name.empty() ? std::string(strings::kWithoutEvents.defaultText) : plan.name);
    std::vector<table::Cells> rows;
    std::vector<table::Cells> best;
    for (int m = 0; m < engine::kMeasures; ++m) {
        const std::vector<std::size_t> bestColumns = engine::bestIn(plans, static_cast<engine::Measure>(m));
        table::Cells& row = rows.emplace_back(table::Cells{names[m]});
        row[0][0] = static_cast<char>(std::toupper(static_cast<unsigned char>(row[0][0])));
        table::Cells& bestNames = best.emplace_back();
        for (const std::size_t column : bestColumns) bestNames.push_back(header[column + 1]);
        for (std::size_t i = 0; i < plans.size(); ++i) {
            if (!plans[i].outcome) {
                row.emplace_back(strings::kRefused.defaultText);
                continue;
            }
            const TotalLines lines = totalLines(*plans[i].outcome, true, document.form.era, false, true);
            std::string value;
            for (const auto* part : {&lines.totals, &lines.savings})
                for (const auto& [name, text] : *part)
                    if (name == names[m]) value = text;
            const bool isBest = std::find(bestColumns.begin(), bestColumns.end(), i) != bestColumns.end();
            row.push_back(value + (format != 3 && isBest ? " *" : ""));
        }
    }
    switch (format) {
    case 0: printAligned(header, rows, 1, out); break;
    case 1: out << table::toTsv({header}) << table::toTsv(rows); break;
    case 2: out << table::toCsv({header}) << table::toCsv(rows); break;
    default: printJson({{"header", header}, {"rows", rows}, {"best", best}}, out);
    }
}

} // namespace

int runScheduleCommand(const std::vector<std::string>& args, const calendar::Date& today, std::istream& in,
                       std::ostream& out, std::ostream& err) {
    engine::LoanForm form;
    form.date.month = runtime::Str(today.Month());
    form.date.day = runtime::Str(today.Day());
    engine::ListedRange listed;
    std::optional<std::string> year;
    int format = 0;
    int method = 1;
    bool showTotals = false, byYear = false, compare = false;
    std::vector<engine::Scenario> otherScenarios; // of a plan document, with --compare
    std::vector<std::string> eventLines;
    // Events and terms given as options become the lines of a plan's text.
    const std::map<std::string, std::string> eventKinds{{"--prepay", "prepay"},     {"--rate-change", "rate"},
                                                        {"--fee", "fee"},           {"--interest", "interest"},
                                                        {"--rounding", "rounding"}, {"--bonus", "bonus"}};

    const std::map<std::string, std::string*> texts{{"--principal", &form.principal}, {"--rate", &form.rate},
                                                    {"--times", &form.times},         {"--month", &form.date.month},
                                                    {"--day", &form.date.day},        {"--pay-day", &form.date.payDay}};
    const std::map<std::string, std::pair<const std::vector<std::string_view>*, int*>> choices{
        {"--era", {&engine::kEraWords, &form.era}},
        {"--delay", {&engine::kDelayWords, &form.delay}},
        {"--method", {&engine::kMethodWords, &method}},
        {"--format", {&kFormats, &format}}};

    // A plan document first: the options override its form and add to its scenario.
    std::optional<std::string> planFile, scenarioName, savePlan;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string option = args[i].substr(0, args[i].find('='));
        if (option != "--plan" && option != "--scenario") continue;
        const std::string value = option.size() < args[i].size() ? args[i].substr(option.size() + 1)
                                  : i + 1 < args.size()          ? args[i + 1]
                                                                 : "";
        (option == "--plan" ? planFile : scenarioName) = value;
    }
    if (scenarioName && !planFile) return usageError(err, "--scenario goes with --plan");
    std::string scenarioTitle = "Plan";
    if (planFile) {
        const engine::DocumentReading read = engine::readDocumentFile(*planFile);
        if (!read.document)
            return usageError(err, "cannot read the plan " + runtime::excerpt(*planFile) + ": " + read.error);
        const auto& scenarios = read.document->scenarios;
        const auto chosen = std::find_if(scenarios.begin(), scenarios.end(), [&](const engine::Scenario& s) {
            return !scenarioName || s.name == *scenarioName;
        });
        if (chosen == scenarios.end())
            return usageError(err,
                              "no scenario " + runtime::excerpt(*scenarioName) + " in " + runtime::excerpt(*planFile));
        form = read.document->form;
        year = form.date.year;
        method = form.flatPayment ? 0 : 1;
        scenarioTitle = chosen->name;
        for (const engine::Scenario& other : scenarios)
            if (&other != &*chosen) otherScenarios.push_back(other);
        eventLines = chosen->terms;
        if (chosen->deduction) eventLines.push_back(*chosen->deduction);
        eventLines.insert(eventLines.end(), chosen->events.begin(), chosen->events.end());
    }

    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--help" || args[i] == "-h") {
            out << usage();
            return 0;
        }
        // "--option value" or "--option=value".
        const auto equals = args[i].starts_with("--") ? args[i].find('=') : std::string::npos;
        const std::string option = args[i].substr(0, equals);
        if (option == "--review") {
            eventLines.emplace_back("review");
            continue;
        }
        if (option == "--deduction") {
            // Its value is optional: RATE[:YEARS[:CAP[:FROM[:LIMIT]]]], each part empty for its default.
            const bool given = equals != std::string::npos || (i + 1 < args.size() && !args[i + 1].starts_with("--"));
            const std::string value = equals != std::string::npos ? args[i].substr(equals + 1) : given ? args[++i] : "";
            std::vector<std::string> parts = runtime::Split(value, ":");
            parts.resize(std::max<std::size_t>(parts.size(), 5));
            const engine::TaxDeduction defaults;
            std::string line = "deduction " + (parts[0].empty() ? runtime::Str(defaults.ratePercent) : parts[0]) + " " +
                               (parts[1].empty() ? runtime::Str(defaults.years) : parts[1]) + " " +
                               (parts[2].empty() ? runtime::Str(defaults.cap) : parts[2]);
            if (!parts[3].empty()) line += " from " + parts[3];
            if (!parts[4].empty()) line += " limit " + parts[4];
            for (std::size_t extra = 5; extra < parts.size(); ++extra) line += " " + parts[extra];
            eventLines.push_back(line);
            continue;
        }
        if (option == "--totals" || option == "--by-year" || option == "--compare") {
            (option == "--totals" ? showTotals : option == "--by-year" ? byYear : compare) = true;
            continue;
        }
        const bool known = texts.contains(option) || choices.contains(option) || option == "--year" ||
                           option == "--first" || option == "--last" || eventKinds.contains(option) ||
                           option == "--events" || option == "--plan" || option == "--scenario" ||
                           option == "--save-plan";
        if (!known) return usageError(err, "unknown option: " + runtime::excerpt(option));
        if (equals == std::string::npos && i + 1 >= args.size()) return usageError(err, "missing value for " + option);
        const std::string value = equals == std::string::npos ? args[++i] : args[i].substr(equals + 1);

        if (const auto text = texts.find(option); text != texts.end()) {
            *text->second = value;
        } else if (const auto choice = choices.find(option); choice != choices.end()) {
            const auto& [names, target] = choice->second;
            const auto it = std::find(names->begin(), names->end(), value);
            if (it == names->end()) return usageError(err, "bad value for " + option + ": " + runtime::excerpt(value));
            *target = static_cast<int>(it - names->begin());
        } else if (const auto kind = eventKinds.find(option); kind != eventKinds.end()) {
            eventLines.push_back(eventLineOf(kind->second, value));
        } else if (option == "--events") {
            if (const std::string problem = readEventsFile(value, in, eventLines); !problem.empty())
                return usageError(err, problem);
        } else if (option == "--year") {
            year = value;
        } else if (option == "--save-plan") {
            savePlan = value;
        } else if (option == "--plan" || option == "--scenario") {
            // Read before the others.
        } else if (option == "--first") {
            listed.first = runtime::intVal(value);
        } else {
            const auto last = runtime::wholeNumberWord(value);
            if (!last) return usageError(err, "--last takes a whole number: " + runtime::excerpt(value));
            listed.last = *last < 0 ? -1 : *last;
        }
    }
    // Without --year, the borrowing date is today, counted in the chosen era.
    form.date.year = year ? *year : runtime::Str(calendar::yearInEra(form.era, today.Year()));
    form.flatPayment = method == 0;

    if (eventLines.size() > engine::kMaxPlanLines)
        return usageError(err, "more than " + std::to_string(engine::kMaxPlanLines) + " events");
    engine::ScenarioReading reading;
    for (const std::string& line : eventLines)
        if (!engine::readPlanLine(line, engine::readLoanForm(form).paymentCount, reading))
            return usageError(err, reading.error);
    const engine::LenderTerms& terms = reading.terms;
    const std::optional<engine::TaxDeduction>& deduction = reading.deduction;
    const std::vector<engine::PlanEvent>& events = reading.events;
    engine::PlanDocument document{form, {{scenarioTitle, engine::termLines(terms), std::nullopt, {}}}};
    engine::Scenario& scenario = document.scenarios.front();
    if (deduction) scenario.deduction = engine::deductionLine(*deduction);
    for (const engine::PlanEvent& e : events) scenario.events.push_back(engine::eventLine(e));
    if (savePlan) {
        if (const std::string problem = runtime::saveWhole(*savePlan, engine::documentText(document));
            !problem.empty()) {
            err << "kestrune-schedule: cannot save the plan to " << runtime::excerpt(*savePlan) << ": " << problem
                << '\n';
            return 1;
        }
        return 0;
    }
    if (compare) {
        // The document's other scenarios beside the one the options make.
        document.scenarios.insert(document.scenarios.end(), otherScenarios.begin(), otherScenarios.end());
        printComparison(document, format, out);
        return 0;
    }
    const bool plan = !events.empty() || showTotals || byYear;

    // A plan counts all its payments, whatever rows are listed.
    const engine::PlanOutcome outcome =
        plan ? engine::evaluatePlan(form, events, terms, deduction) : engine::PlanOutcome{};
    const engine::Calculation calc = plan ? outcome.plan : engine::calculate(form, listed, {}, terms);
    const engine::Refusal refusal = plan ? outcome.refusal : calc.refusal;
    if (refusal == engine::Refusal::BadTerms)
        return usageError(err, "bad term: " + engine::termsProblem(calc.termsFit, terms));
    if (refusal == engine::Refusal::ZeroInput) {
        err << "kestrune-schedule: principal, rate and count must be non-zero\n";
        return 1;
    }
    if (refusal == engine::Refusal::OutOfRange) {
        err << "kestrune-schedule: amounts out of range";
        if (outcome.refusedBy) err << " from the event: " << engine::eventLine(events[*outcome.refusedBy]);
        err << '\n';
        return 1;
    }
    const int era = calc.terms.dateLine.era;
    const std::int64_t payDay = calc.terms.dateLine.payDay;
    std::vector<engine::Payment> listedPayments;
    for (const engine::Payment& p : calc.payments)
        if (p.number >= listed.first && (listed.last < 0 || p.number <= listed.last)) listedPayments.push_back(p);
    const bool withPrepaid = !events.empty();
    const table::PlanColumns columns{terms.bonus.has_value(), withPrepaid, terms.review};
    std::vector<table::Cells> rows = table::planRowTexts(listedPayments, era, payDay, columns);
    table::Cells header = byYear ? runtime::Split(strings::kYearHeader.defaultText, "\t") : headerRow(columns);
    if (byYear && deduction) header.insert(header.end() - 1, std::string(strings::kDeductionHeading.defaultText));
    if (byYear)
        rows = table::yearRowTexts(outcome.years, era, payDay, calendar::PayoffWords{}.eraNames, deduction.has_value());

    const std::string payoff = calendar::payoffText(
        withPrepaid && !calc.payments.empty() ? outcome.totals.payoff : calc.record.dates.payoff, form.era, {});
    const TotalLines lines = totalLines(outcome, !events.empty(), form.era, terms.review, deduction.has_value());
    // The totals as rows of a name and a value, the name as a heading.
    std::vector<table::Cells> totalRows{{}};
    for (const auto* part : {&lines.totals, &lines.savings})
        for (auto [name, value] : *part) {
            name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
            totalRows.push_back({name, value});
        }
    if (!showTotals) totalRows.clear();

    switch (format) {
    case 0:
        if (!byYear) out << strings::kLabelText10.defaultText << ' ' << payoff << "\n\n";
        printAligned(header, rows, byYear ? std::size_t{2} : std::size_t{table::kAmount}, out);
        for (const table::Cells& row : totalRows) out << (row.empty() ? "" : row[0] + ": " + row[1]) << '\n';
        break;
    case 1: out << table::toTsv({header}) << table::toTsv(rows) << table::toTsv(totalRows); break;
    case 2: out << table::toCsv({header}) << table::toCsv(rows) << table::toCsv(totalRows); break;
    default: {
        Json json{{"payoff", payoff}, {"header", header}, {"rows", byYear ? std::vector<table::Cells>{} : rows}};
        const auto object = [](const std::vector<std::pair<std::string, std::string>>& part) {
            Json figures = Json::object();
            for (const auto& [name, value] : part) figures[name] = value;
            return figures;
        };
        if (plan) json["totals"] = object(lines.totals);
        if (!events.empty()) json["savings"] = object(lines.savings);
        table::Cells set = engine::termLines(terms);
        if (deduction) set.push_back(engine::deductionLine(*deduction));
        if (!set.empty()) json["terms"] = set;
        if (!events.empty()) {
            table::Cells read;
            for (const auto& event : events) read.push_back(engine::eventLine(event));
            json["events"] = read;
        }
        if (byYear) json["years"] = rows;
        printJson(json, out);
    }
    }
    return 0;
}

} // namespace tools
