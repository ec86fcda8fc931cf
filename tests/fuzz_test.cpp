// SPDX-License-Identifier: GPL-3.0-or-later
// The schedule tool's reading fed random and hostile options and events texts, in-process so that
// the sanitizer build stops on any undefined behaviour. A fixed seed and count in CI;
// KESTRUNE_FUZZ_RUNS and KESTRUNE_FUZZ_SEED run it longer or elsewhere.
#include "engine/document.h"
#include "tools/schedulecommand.h"

#include "settings.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <sstream>

namespace {

std::vector<std::string> split(std::string_view text, char apart) {
    std::vector<std::string> words(1);
    for (const char c : text) c == apart ? (void)words.emplace_back() : words.back().push_back(c);
    return words;
}

// Random options and events texts: mostly well formed, with numbers at and past every limit, the
// words of the options and events, and bytes a terminal or UTF-8 reader could trip on.
class Inputs {
public:
    explicit Inputs(std::uint64_t seed) : m_random(seed) {}

    std::string word() {
        static const std::vector<std::string> kWords = split(
            "0|1|-1|12|144|420|100000|100001|1.5|0.0001|1e300|-1e300|1e-300|1e999|9007199254740992|9007199254740993|"
            "9223372036854775807|-9223372036854775808|99999999999999999999|30,000,000|,5|1.|.|nan|inf|| |reduce|"
            "shorten|every|prepay|rate|fee|#|western|heisei|equal|next|2after|json|-|\x1b[31m|\xff\xfe|\xe2\x82\xac|"
            "\t|\r",
            '|');
        switch (pick(40)) {
        case 0: return std::string(pick(3000), static_cast<char>(pick(256)));
        case 1:
        case 2: return std::to_string(static_cast<std::int64_t>(m_random()) >> pick(64));
        default: return kWords[pick(kWords.size())];
        }
    }
    std::string number() {
        if (pick(8) == 0) return word();
        return std::to_string(pick(2) ? pick(500) : pick(100'000'000)) +
               (pick(4) ? "" : "." + std::to_string(pick(100)));
    }
    // A payment of the loan, now and then one past it.
    std::string payment() { return std::to_string(1 + pick(pick(30) ? m_times : m_times + 10)); }
    // A prepayment's mode and period, a bonus part, a deduction: their fields `apart`.
    std::string prepayment(const char* apart, const char* every) {
        std::string fields = pick(2) ? "" : std::string(apart) + (pick(2) ? "reduce" : "shorten");
        if (pick(3) == 0) fields += apart + std::string(every) + (pick(6) ? std::to_string(1 + pick(60)) : word());
        return fields;
    }
    std::string bonus(const char* apart) {
        return number() + apart + std::to_string(pick(14)) + apart + std::to_string(pick(14));
    }
    std::string deduction(const char* apart, const char* from, const char* limit) {
        std::string text;
        for (const char* part : {"", apart, apart}) text += part + (pick(3) ? number() : std::string());
        if (pick(2)) text += from + std::to_string(pick(2) ? 1990 + pick(60) : pick(100'000));
        return pick(2) ? text + limit + number() : text;
    }
    // Now and then a term line instead of an event, or words at random.
    std::string eventLine() {
        static const char* const kKinds[] = {"prepay", "rate", "fee"};
        const std::size_t kind = pick(3);
        switch (pick(50) == 0 ? 12 : pick(12)) {
        case 0: return pick(2) ? "interest monthly" : "rounding " + word();
        case 1: return pick(3) ? "review" : "review " + word();
        case 2: return "bonus " + bonus(" ");
        case 3: return "deduction " + deduction(" ", " from ", " limit ");
        case 12: return word() + " " + word() + " " + word();
        default:
            return kKinds[kind] + (" " + payment() + " " + number()) + (kind == 0 ? prepayment(" ", "every ") : "");
        }
    }
    std::string value(const std::string& option) {
        static const std::map<std::string, std::vector<const char*>> kChoices{
            {"--era", {"western", "showa", "heisei", "reiwa"}},
            {"--delay", {"next", "2after", "3after"}},
            {"--method", {"flat", "equal"}},
            {"--format", {"table", "tsv", "csv", "json"}},
            {"--interest", {"daily", "monthly"}},
            {"--rounding", {"nearest", "down"}}};
        if (pick(20) == 0) return word();
        if (const auto words = kChoices.find(option); words != kChoices.end())
            return words->second[pick(words->second.size())];
        if (option == "--prepay") return payment() + ":" + number() + prepayment(":", "every=");
        if (option == "--rate-change" || option == "--fee") return payment() + ":" + number();
        if (option == "--bonus") return pick(2) ? number() : bonus(":");
        if (option == "--deduction") return deduction(":", ":", ":");
        return number();
    }
    std::vector<std::string> options() {
        static const std::vector<std::string> kOptions =
            split("--principal --rate --first --last --era --year --month --day --pay-day --delay --method --format "
                  "--prepay --rate-change --fee --prepay --totals --by-year --interest --rounding --bonus --review "
                  "--deduction --deduction --compare",
                  ' ');
        // Loans short enough to walk quickly, with now and then the longest.
        m_times = pick(20) == 0 ? 100'000 : 1 + pick(600);
        std::vector<std::string> args{"--times", std::to_string(m_times)};
        for (std::size_t n = pick(8); n > 0; --n) {
            const std::string option = kOptions[pick(kOptions.size())];
            if (option == "--totals" || option == "--by-year" || option == "--review" || option == "--compare" ||
                (option == "--deduction" && pick(2)))
                args.push_back(pick(50) ? option : pick(2) ? "--help" : word());
            else if (pick(2))
                args.push_back(option + "=" + value(option));
            else
                args.insert(args.end(), {option, value(option)});
        }
        return args;
    }
    // A plan document with a few of its bytes cut, replaced or added, now and then nested deep.
    std::string document(const std::string& whole) {
        if (pick(100) == 0) return std::string(100'000, '[') + std::string(pick(2) ? 100'000 : 0, ']');
        std::string text = whole;
        for (std::size_t n = 1 + pick(4); n > 0; --n) {
            const std::size_t at = pick(text.size() + 1);
            switch (pick(3)) {
            case 0: text.erase(at, pick(40)); break;
            case 1: text.insert(at, word()); break;
            default: text.insert(at, 1, "\"[]{}:,0\\"[pick(10)]);
            }
        }
        return text;
    }
    std::string eventsText() {
        std::string text;
        for (std::size_t n = pick(30); n > 0; --n) text += eventLine() + (pick(10) ? "\n" : "\r\n");
        return text;
    }

private:
    std::size_t pick(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }
    std::mt19937_64 m_random;
    std::size_t m_times = 1;
};

TEST(Fuzz, TheToolReadsAnyOptionsAndEvents) {
    const std::uint64_t runs = setting("KESTRUNE_FUZZ_RUNS", 1000), seed = setting("KESTRUNE_FUZZ_SEED", 20261123);
    Inputs inputs(seed);
    std::size_t statuses[3] = {};
    for (std::uint64_t run = 0; run < runs; ++run) {
        std::vector<std::string> args = inputs.options();
        if (run % 2) args.insert(args.end(), {"--events", "-"});
        std::istringstream in(inputs.eventsText());
        std::ostringstream out, err;
        const int status = tools::runScheduleCommand(args, calendar::Date(2026, 11, 23), in, out, err);
        std::string shown;
        for (const std::string& arg : args) shown += " '" + arg.substr(0, 40) + "'";
        ASSERT_TRUE(status >= 0 && status <= 2) << "seed " << seed << " run " << run << ":" << shown;
        ++statuses[status];
        // Every failure says why, and what it quotes of the input is short and shows no control character.
        if (status == 0) continue;
        const std::string said = err.str();
        EXPECT_EQ(said.rfind("kestrune-schedule: ", 0), 0u) << "run " << run << ":" << shown;
        EXPECT_LT(said.size(), 400u) << "run " << run << ":" << shown;
        for (const char c : said)
            ASSERT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << "run " << run << ":" << shown;
    }
    std::cout << "fuzz: " << runs << " inputs from seed " << seed << ": " << statuses[0] << " printed, " << statuses[1]
              << " refused, " << statuses[2] << " bad options\n";
}

TEST(Fuzz, TheDocumentReaderReadsAnyText) {
    const std::uint64_t runs = setting("KESTRUNE_FUZZ_RUNS", 1000), seed = setting("KESTRUNE_FUZZ_SEED", 20261124);
    Inputs inputs(seed);
    const std::string whole = engine::documentText(
        {{},
         {{"A", {"interest monthly", "bonus 1000 6 12"}, "deduction 0.7 13 30000000", {"prepay 12 1000 every 12"}}}});
    std::size_t read = 0;
    for (std::uint64_t run = 0; run < runs; ++run) {
        const engine::DocumentReading reading = engine::readDocument(inputs.document(whole));
        ASSERT_NE(reading.document.has_value(), !reading.error.empty()) << "seed " << seed << " run " << run;
        read += reading.document.has_value();
    }
    std::cout << "fuzz: " << runs << " documents from seed " << seed << ": " << read << " read, " << runs - read
              << " refused\n";
}

} // namespace
