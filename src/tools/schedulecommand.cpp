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
them into the form. No field corrections are applied.

  --principal TEXT   principal, commas allowed (default "100000000")
  --rate TEXT        annual rate in percent (default "2.0")
  --times TEXT       number of monthly payments, at most 100000 are walked (default "144")
  --first TEXT       number of the first payment listed (default "1")
  --last N           number of the last payment listed; negative or absent: to the end
  --era ERA          western, showa, heisei or reiwa: the era of --year (default reiwa)
  --year TEXT        borrowing year in that era (default: this year)
  --month TEXT       borrowing month (default: this month)
  --day TEXT         borrowing day (default: today)
  --pay-day TEXT     day of the month of each payment; above 31 is the last day (default "8")
  --delay DELAY      next, 2after or 3after: which pay day comes first (default next)
  --method METHOD    flat (flat payment) or equal (equal principal, the default)
  --format FORMAT    table (default), tsv, csv or json
  --help             print this text
)";

constexpr std::array kEras{"western", "showa", "heisei", "reiwa"};
constexpr std::array kDelays{"next", "2after", "3after"};
constexpr std::array kMethods{"flat", "equal"};
constexpr std::array kFormats{"table", "tsv", "csv", "json"};

template <std::size_t N>
std::optional<int> choiceIndex(const std::array<const char*, N>& choices, const std::string& value) {
    const auto it = std::find(choices.begin(), choices.end(), value);
    if (it == choices.end()) return std::nullopt;
    return static_cast<int>(it - choices.begin());
}

std::optional<std::int64_t> wholeNumber(const std::string& text) {
    std::int64_t n = 0;
    const auto [ptr, error] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (error != std::errc{} || ptr != text.data() + text.size()) return std::nullopt;
    return n;
}

engine::Row headerRow() {
    engine::Row header;
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

std::string jsonArray(const engine::Row& cells) {
    std::string text = "[";
    for (std::size_t i = 0; i < cells.size(); ++i) text += (i > 0 ? ", " : "") + jsonString(cells[i]);
    return text + "]";
}

void printTable(const engine::Calculation& calc, std::ostream& out) {
    out << strings::kLabelText10.defaultText << ' ' << calc.payoffText << "\n\n";
    const engine::Row header = headerRow();
    std::array<std::size_t, engine::kColumnCount> width{};
    for (std::size_t c = 0; c < width.size(); ++c) {
        width[c] = header[c].size();
        for (const auto& row : calc.rows) width[c] = std::max(width[c], row[c].size());
    }
    const auto printRow = [&](const engine::Row& row) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string pad(width[c] - row[c].size(), ' ');
            out << (c > 0 ? "  " : "") << (c < engine::kAmount ? row[c] + pad : pad + row[c]);
        }
        out << '\n';
    };
    printRow(header);
    for (const auto& row : calc.rows) printRow(row);
}

void printJson(const engine::Calculation& calc, std::ostream& out) {
    out << "{\"payoff\": " << jsonString(calc.payoffText) << ", \"header\": " << jsonArray(headerRow())
        << ", \"rows\": [";
    for (std::size_t i = 0; i < calc.rows.size(); ++i) out << (i > 0 ? ", " : "") << jsonArray(calc.rows[i]);
    out << "]}\n";
}

int usageError(std::ostream& err, const std::string& problem) {
    err << "kestrune-schedule: " << problem << "\n\n" << kUsage;
    return 2;
}

} // namespace

int runScheduleCommand(const std::vector<std::string>& args, const calendar::Date& today, std::ostream& out,
                       std::ostream& err) {
    engine::LoanForm form;
    form.date = {runtime::Str(today.Year() - calendar::getSeireki(calendar::kReiwa, 0)), runtime::Str(today.Month()),
                 runtime::Str(today.Day()), "8"};
    int format = 0;

    const std::map<std::string, std::string*> texts{{"--principal", &form.principal}, {"--rate", &form.rate},
                                                    {"--times", &form.times},         {"--year", &form.date.year},
                                                    {"--month", &form.date.month},    {"--day", &form.date.day},
                                                    {"--pay-day", &form.date.payDay}};

    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& option = args[i];
        if (option == "--help") {
            out << kUsage;
            return 0;
        }
        if (i + 1 >= args.size()) return usageError(err, "unknown option or missing value: " + option);
        const std::string& value = args[++i];
        std::optional<int> choice;
        if (const auto text = texts.find(option); text != texts.end()) {
            *text->second = value;
            continue;
        }
        if (option == "--first") {
            form.numTop = runtime::intVal(value);
            continue;
        }
        if (option == "--last") {
            const auto last = wholeNumber(value);
            if (!last) return usageError(err, "--last takes a whole number: " + value);
            form.totalRows = *last < 0 ? -1 : *last;
            continue;
        }
        if (option == "--era" && (choice = choiceIndex(kEras, value))) {
            form.era = *choice;
        } else if (option == "--delay" && (choice = choiceIndex(kDelays, value))) {
            form.delay = *choice;
        } else if (option == "--method" && (choice = choiceIndex(kMethods, value))) {
            form.isGanri = *choice == 0;
        } else if (option == "--format" && (choice = choiceIndex(kFormats, value))) {
            format = *choice;
        } else {
            return usageError(err, "bad option or value: " + option + " " + value);
        }
    }

    const engine::Calculation calc = engine::calculate(form);
    if (calc.refusal == engine::Refusal::ZeroInput) {
        err << "principal, rate and count must be non-zero\n";
        return 1;
    }
    if (calc.refusal == engine::Refusal::OutOfRange) {
        err << "amounts out of range\n";
        return 1;
    }
    switch (format) {
    case 0: printTable(calc, out); break;
    case 1: out << table::toTsv({headerRow()}) << table::toTsv(calc.rows); break;
    case 2: out << table::toCsv({headerRow()}) << table::toCsv(calc.rows); break;
    default: printJson(calc, out);
    }
    return 0;
}

} // namespace tools
