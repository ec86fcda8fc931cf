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

  --principal TEXT   principal, commas allowed (default "100000000")
  --rate TEXT        annual rate in percent (default "2.0")
  --times TEXT       number of monthly payments, at most 100000 are walked (default "144")
  --first TEXT       number of the first payment listed (default "1")
  --last N           number of the last payment listed; negative or absent: to the end
  --era ERA          western, showa, heisei or reiwa: the era of --year (default reiwa)
  --year TEXT        borrowing year in that era (default: this year counted in that era,
                     so that the borrowing date is today whichever era names it)
  --month TEXT       borrowing month (default: this month)
  --day TEXT         borrowing day (default: today)
  --pay-day TEXT     day of the month of each payment; above 31 is the last day (default "8")
  --delay DELAY      next, 2after or 3after: which pay day comes first (default next)
  --method METHOD    flat (flat payment) or equal (equal principal, the default)
  --format FORMAT    table (default), tsv, csv or json
  -h, --help         print this text

Exit status: 0 with the table printed; 1 when the calculation is refused (a zero principal,
rate or count, or amounts beyond 2^53) or the output cannot be written; 2 for a bad option.
)";

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
    err << "kestrune-schedule: " << problem << "\nTry 'kestrune-schedule --help' for the options.\n";
    return 2;
}

} // namespace

int runScheduleCommand(const std::vector<std::string>& args, const calendar::Date& today, std::ostream& out,
                       std::ostream& err) {
    engine::LoanForm form;
    form.date = {"", runtime::Str(today.Month()), runtime::Str(today.Day()), "8"};
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
            out << kUsage;
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
            form.numTop = runtime::intVal(value);
        } else {
            const auto last = wholeNumber(value);
            if (!last) return usageError(err, "--last takes a whole number: " + value);
            form.totalRows = *last < 0 ? -1 : *last;
        }
    }
    // Without --year, the borrowing date is today, counted in the chosen era.
    form.date.year = year ? *year : runtime::Str(today.Year() - calendar::getSeireki(form.era, 0));
    form.isGanri = method == 0;

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
