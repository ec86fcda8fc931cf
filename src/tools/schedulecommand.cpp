// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/schedulecommand.h"

#include "engine/calculation.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "strings/constants.h"
#include "table/export.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>

namespace tools {
namespace {

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
  -h, --help         print this text

Exit status: 0 with the table printed; 1 when the calculation is refused (a zero principal,
rate or count, or amounts beyond 2^53) or the output cannot be written; 2 for a bad option.
)";

// The usage with the defaults of a new form filled in.
std::string usage() {
    const engine::LoanForm defaults;
    std::string text(kUsage);
    const std::pair<std::string_view, std::string> values[] = {{"{principal}", defaults.principal},
                                                               {"{rate}", defaults.rate},
                                                               {"{times}", defaults.times},
                                                               {"{max}", std::to_string(engine::kMaxPayments)},
                                                               {"{payday}", defaults.date.payDay}};
    for (const auto& [name, value] : values) text.replace(text.find(name), name.size(), value);
    return text;
}

// The words of each choice, in the order of the values they stand for.
const std::vector<std::string_view> kEras{"western", "showa", "heisei", "reiwa"};
const std::vector<std::string_view> kDelays{"next", "2after", "3after"};
const std::vector<std::string_view> kMethods{"flat", "equal"};
const std::vector<std::string_view> kFormats{"table", "tsv", "csv", "json"};

std::optional<std::int64_t> wholeNumber(const std::string& text) {
    std::int64_t n = 0;
    const auto [ptr, error] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (error != std::errc{} || ptr != text.data() + text.size()) return std::nullopt;
    return n;
}

table::Row headerRow() {
    table::Row header;
    const auto headings = runtime::Split(strings::kHeader.defaultText, "\t");
    std::copy_n(headings.begin(), std::min(headings.size(), header.size()), header.begin());
    return header;
}

std::string jsonString(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
        case '"': quoted += "\\\""; break;
        case '\\': quoted += "\\\\"; break;
        case '\n': quoted += "\\n"; break;
        case '\t': quoted += "\\t"; break;
        default: quoted += c;
        }
    }
    return quoted + '"';
}

std::string jsonArray(const table::Row& cells) {
    std::string text = "[";
    for (std::size_t i = 0; i < cells.size(); ++i) text += (i > 0 ? ", " : "") + jsonString(cells[i]);
    return text + "]";
}

void printTable(const std::string& payoff, const std::vector<table::Row>& rows, std::ostream& out) {
    out << strings::kLabelText10.defaultText << ' ' << payoff << "\n\n";
    const table::Row header = headerRow();
    std::array<std::size_t, table::kColumnCount> width{};
    for (std::size_t c = 0; c < width.size(); ++c) {
        width[c] = header[c].size();
        for (const auto& row : rows) width[c] = std::max(width[c], row[c].size());
    }
    const auto printRow = [&](const table::Row& row) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string pad(width[c] - row[c].size(), ' ');
            out << (c > 0 ? "  " : "") << (c < table::kAmount ? row[c] + pad : pad + row[c]);
        }
        out << '\n';
    };
    printRow(header);
    for (const auto& row : rows) printRow(row);
}

void printJson(const std::string& payoff, const std::vector<table::Row>& rows, std::ostream& out) {
    out << "{\"payoff\": " << jsonString(payoff) << ", \"header\": " << jsonArray(headerRow()) << ", \"rows\": [";
    for (std::size_t i = 0; i < rows.size(); ++i) out << (i > 0 ? ", " : "") << jsonArray(rows[i]);
    out << "]}\n";
}

int usageError(std::ostream& err, const std::string& problem) {
    err << "kestrune-schedule: " << problem << "\nTry 'kestrune-schedule --help' for the options.\n";
    return 2;
}

} // namespace

int runScheduleCommand(const std::vector<std::string>& args, const calendar::Date& today, std::ostream& out,
                       std::ostream& err) {
    engine::LoanForm form;
    form.date.month = runtime::Str(today.Month());
    form.date.day = runtime::Str(today.Day());
    engine::ListedRange listed;
    std::optional<std::string> year;
    int format = 0;
    int method = 1;

    const std::map<std::string, std::string*> texts{{"--principal", &form.principal}, {"--rate", &form.rate},
                                                    {"--times", &form.times},         {"--month", &form.date.month},
                                                    {"--day", &form.date.day},        {"--pay-day", &form.date.payDay}};
    const std::map<std::string, std::pair<const std::vector<std::string_view>*, int*>> choices{
        {"--era", {&kEras, &form.era}},
        {"--delay", {&kDelays, &form.delay}},
        {"--method", {&kMethods, &method}},
        {"--format", {&kFormats, &format}}};

    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--help" || args[i] == "-h") {
            out << usage();
            return 0;
        }
        // "--option value" or "--option=value".
        const auto equals = args[i].starts_with("--") ? args[i].find('=') : std::string::npos;
        const std::string option = args[i].substr(0, equals);
        const bool known = texts.contains(option) || choices.contains(option) || option == "--year" ||
                           option == "--first" || option == "--last";
        if (!known) return usageError(err, "unknown option: " + option);
        if (equals == std::string::npos && i + 1 >= args.size()) return usageError(err, "missing value for " + option);
        const std::string value = equals == std::string::npos ? args[++i] : args[i].substr(equals + 1);

        if (const auto text = texts.find(option); text != texts.end()) {
            *text->second = value;
        } else if (const auto choice = choices.find(option); choice != choices.end()) {
            const auto& [names, target] = choice->second;
            const auto it = std::find(names->begin(), names->end(), value);
            if (it == names->end()) return usageError(err, "bad value for " + option + ": " + value);
            *target = static_cast<int>(it - names->begin());
        } else if (option == "--year") {
            year = value;
        } else if (option == "--first") {
            listed.first = runtime::intVal(value);
        } else {
            const auto last = wholeNumber(value);
            if (!last) return usageError(err, "--last takes a whole number: " + value);
            listed.last = *last < 0 ? -1 : *last;
        }
    }
    // Without --year, the borrowing date is today, counted in the chosen era.
    form.date.year = year ? *year : runtime::Str(calendar::yearInEra(form.era, today.Year()));
    form.flatPayment = method == 0;

    const engine::Calculation calc = engine::calculate(form, listed);
    if (calc.refusal == engine::Refusal::ZeroInput) {
        err << "principal, rate and count must be non-zero\n";
        return 1;
    }
    if (calc.refusal == engine::Refusal::OutOfRange) {
        err << "amounts out of range\n";
        return 1;
    }
    const std::string payoff = calendar::payoffText(calc.record.dates.payoff, form.era, {});
    const auto rows = table::rowTexts(calc.payments, calc.terms.dateLine.era, calc.terms.dateLine.payDay);
    switch (format) {
    case 0: printTable(payoff, rows, out); break;
    case 1: out << table::toTsv({headerRow()}) << table::toTsv(rows); break;
    case 2: out << table::toCsv({headerRow()}) << table::toCsv(rows); break;
    default: printJson(payoff, rows, out);
    }
    return 0;
}

} // namespace tools
