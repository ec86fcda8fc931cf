// SPDX-License-Identifier: GPL-3.0-or-later
// The schedule tool's reading fed hostile options, events texts and plan documents: well-formed
// ones with words cut, replaced or added, in-process so that the sanitizer build stops on any
// undefined behaviour. A fixed seed and count in CI; KESTRUNE_FUZZ_RUNS and KESTRUNE_FUZZ_SEED run
// it longer or elsewhere.
#include "engine/document.h"
#include "tools/schedulecommand.h"

#include "settings.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace {

std::vector<std::string> split(std::string_view text, char apart) {
    std::vector<std::string> words(1);
    for (const char c : text) c == apart ? (void)words.emplace_back() : words.back().push_back(c);
    return words;
}

// Every option, event and term, well formed, as the fuzz starts from them.
const std::vector<std::string> kOptions = split(
    "--principal 30,000,000|--rate 1.5|--times 420|--times 100000|--first 2|--last 30|--era heisei|--year 30|"
    "--month 11|--day 20|--pay-day 27|--delay 2after|--method flat|--format json|--format csv|--format tsv|"
    "--prepay 12:1,000,000:reduce:every=12|--prepay 3:500|--rate-change 61:0.9|--fee 61:330000|--totals|--by-year|"
    "--interest monthly|--rounding down|--bonus 3000000:7,1|--review|--deduction|--deduction 0.7:13::2025:100000|"
    "--compare|--events -",
    '|');
const std::vector<std::string> kLines = split("prepay 12 1000000 shorten every 12|prepay 3 500 reduce|rate 61 2|"
                                              "fee 1 1000|interest monthly|rounding down|bonus 1000 6 12|review|"
                                              "deduction 0.7 13 30000000 from 2025 limit 250000|# a note|",
                                              '|');
// What replaces a word: numbers at and past every limit, the words of the options and events, and
// bytes a terminal or UTF-8 reader could trip on.
const std::vector<std::string> kWords =
    split("0|1|-1|12|144|420|100000|100001|1.5|0.0001|1e300|-1e300|1e-300|1e999|9007199254740992|9007199254740993|"
          "9223372036854775807|-9223372036854775808|99999999999999999999|30,000,000|,5|1.|.|nan|inf|| |reduce|shorten|"
          "every|every=|prepay|rate|fee|from|limit|#|:|::|=|--help|western|equal|next|json|-|\x1b[31m|\xff\xfe|"
          "\xe2\x82\xac|\t|\r|\"|[]|{}|\\",
          '|');

class Inputs {
public:
    explicit Inputs(std::uint64_t seed) : m_random(seed) {}

    std::size_t pick(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }
    std::string word() {
        switch (pick(40)) {
        case 0: return std::string(pick(3000), static_cast<char>(pick(256)));
        case 1: return std::to_string(static_cast<std::int64_t>(m_random()) >> pick(64));
        default: return kWords[pick(kWords.size())];
        }
    }
    // A text with a few of its words, or of its bytes, cut, replaced or added.
    std::string hurt(std::string text, std::size_t most) {
        for (std::size_t n = pick(most + 1); n > 0; --n) {
            const std::size_t at = pick(text.size() + 1);
            switch (pick(4)) {
            case 0: text.erase(at, pick(12)); break;
            case 1: text.insert(at, word()); break;
            case 2: text.insert(at, 1, static_cast<char>(pick(256))); break;
            default: {
                const std::size_t end = text.find_first_of(" :,\n", at);
                text.replace(at, end == std::string::npos ? end : end - at, word());
            }
            }
        }
        return text;
    }
    std::vector<std::string> options() {
        std::vector<std::string> args;
        for (std::size_t n = pick(10); n > 0; --n) {
            std::vector<std::string> words = split(hurt(kOptions[pick(kOptions.size())], pick(3) == 0), ' ');
            if (words.size() == 2 && pick(2)) words = {words[0] + "=" + words[1]};
            args.insert(args.end(), words.begin(), words.end());
        }
        return args;
    }
    std::string eventsText() {
        std::string text;
        for (std::size_t n = pick(30); n > 0; --n) text += kLines[pick(kLines.size())] + (pick(10) ? "\n" : "\r\n");
        return hurt(text, 4);
    }

private:
    std::mt19937_64 m_random;
};

TEST(Fuzz, TheToolReadsAnyOptionsAndEvents) {
    const std::uint64_t runs = setting("KESTRUNE_FUZZ_RUNS", 1000), seed = setting("KESTRUNE_FUZZ_SEED", 20261123);
    Inputs inputs(seed);
    std::size_t statuses[3] = {};
    for (std::uint64_t run = 0; run < runs; ++run) {
        const std::vector<std::string> args = inputs.options();
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
        const std::string text =
            inputs.pick(100) ? inputs.hurt(whole, 4) : std::string(100'000, '[') + std::string(50'000, ']');
        const engine::DocumentReading reading = engine::readDocument(text);
        ASSERT_NE(reading.document.has_value(), !reading.error.empty()) << "seed " << seed << " run " << run;
        read += reading.document.has_value();
    }
    std::cout << "fuzz: " << runs << " documents from seed " << seed << ": " << read << " read, " << runs - read
              << " refused\n";
}

} // namespace
