// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/schedulecommand.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace {

struct Result {
    int status;
    std::string out, err;
};

Result run(std::vector<std::string> args) {
    std::ostringstream out, err;
    const int status = tools::runScheduleCommand(args, calendar::Date(2026, 11, 23), out, err);
    return {status, out.str(), err.str()};
}

const std::vector<std::string> kLoan2020{"--era", "western", "--year", "2020", "--month", "3", "--day", "15"};

std::vector<std::string> with(std::vector<std::string> extra) {
    std::vector<std::string> args = kLoan2020;
    args.insert(args.end(), extra.begin(), extra.end());
    return args;
}

TEST(ScheduleCommand, DefaultFormIsTodayInReiwaByEqualPrincipal) {
    const Result r = run({"--format", "tsv"});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out.substr(0, r.out.find('\n')), "No.\tRepayment\tAmount\tPrincipal\tInterest\tBalance");
    EXPECT_NE(r.out.find("\n001\t08.12.08\t"), std::string::npos) << r.out.substr(0, 200);
    EXPECT_NE(r.out.find("\n144\t20.11.08\t"), std::string::npos);
}

TEST(ScheduleCommand, TablePrintsThePayoffLineAndAlignedRows) {
    const Result r = run(with({"--method", "flat"}));
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out.substr(0, r.out.find('\n')), "Pay off: 2032 / 3 / 8 ");
    EXPECT_NE(r.out.find("No.  Repayment   Amount  Principal  Interest     Balance\n"
                         "001  20.04.08   781,684    650,264   131,420  99,349,736\n"),
              std::string::npos)
        << r.out.substr(0, 400);
}

TEST(ScheduleCommand, CsvAndJson) {
    const Result csv = run(with({"--method", "flat", "--last", "1", "--format", "csv"}));
    EXPECT_EQ(csv.out, "No.,Repayment,Amount,Principal,Interest,Balance\r\n"
                       "001,20.04.08,\"781,684\",\"650,264\",\"131,420\",\"99,349,736\"\r\n");
    const Result json = run(with({"--method", "flat", "--first", "2", "--last", "2", "--format", "json"}));
    EXPECT_EQ(json.out, "{\"payoff\": \"2032 / 3 / 8 \", \"header\": [\"No.\", \"Repayment\", \"Amount\", "
                        "\"Principal\", \"Interest\", \"Balance\"], \"rows\": [[\"002\", \"20.05.08\", "
                        "\"781,684\", \"618,478\", \"163,206\", \"98,731,258\"]]}\n");
}

// The built tool run as a process: its exit status and what it wrote to each stream.
Result runTool(const std::string& args, const std::string& stdoutTo = "") {
    const auto dir = std::filesystem::temp_directory_path();
    const auto outFile = dir / "kestrune-schedule-test.out", errFile = dir / "kestrune-schedule-test.err";
    const std::string command = std::string(KESTRUNE_SCHEDULE) + " " + args + " 2> " + errFile.string() + " " +
                                (stdoutTo.empty() ? "> " + outFile.string() : stdoutTo);
    const int status = std::system(command.c_str());
    const auto slurp = [](const std::filesystem::path& path) {
        std::ifstream in(path);
        return std::string(std::istreambuf_iterator<char>(in), {});
    };
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, stdoutTo.empty() ? slurp(outFile) : "", slurp(errFile)};
}

struct StatusCase {
    const char* args;
    int status;
    const char* err;
};

TEST(ScheduleTool, RefusalsBadOptionsAndWriteErrors) {
    const StatusCase cases[] = {
        {"--rate 0", 1, "principal, rate and count must be non-zero\n"},
        {"--principal ''", 1, "principal, rate and count must be non-zero\n"},
        {"--rate 1e-20 --method flat", 1, "amounts out of range\n"},
        {"--principal 1e400", 1, "amounts out of range\n"},
        {"--principal 9007199254740992 --times 1", 1, "amounts out of range\n"},
        {"--era meiji", 2, "kestrune-schedule: bad value for --era: meiji\n"},
        {"--format=xml", 2, "kestrune-schedule: bad value for --format: xml\n"},
        {"--last x", 2, "kestrune-schedule: --last takes a whole number: x\n"},
        {"--frobnicate 1", 2, "kestrune-schedule: unknown option: --frobnicate\n"},
        {"-x", 2, "kestrune-schedule: unknown option: -x\n"},
        {"--rate", 2, "kestrune-schedule: missing value for --rate\n"},
        {"--times 100000 --format csv > /dev/full", 1,
         "kestrune-schedule: cannot write output: No space left on device\n"},
        {">&-", 1, "kestrune-schedule: cannot write output: Bad file descriptor\n"},
    };
    for (const auto& c : cases) {
        const std::string redirect = std::string(c.args).find('>') != std::string::npos ? " " : "";
        const Result r = runTool(c.args, redirect);
        EXPECT_EQ(r.status, c.status) << c.args;
        EXPECT_EQ(r.err.substr(0, std::string(c.err).size()), c.err) << c.args;
        EXPECT_EQ(r.out, "") << c.args;
    }
}

TEST(ScheduleTool, OptionsTakeAValueAfterAnEqualsSignAndHelpAShortName) {
    const Result spaced = runTool("--era western --year 2020 --month 3 --day 15 --last 2 --format csv");
    const Result joined = runTool("--era=western --year=2020 --month=3 --day=15 --last=2 --format=csv");
    EXPECT_EQ(spaced.status, 0);
    EXPECT_EQ(joined.out, spaced.out);
    EXPECT_EQ(runTool("-h").out, runTool("--help").out);
    EXPECT_EQ(runTool("--times 100000", "| head -c 10 > /dev/null").err, "") << "a closed pipe is no error to report";
}

TEST(ScheduleTool, WithoutAYearTheBorrowingDateIsTodayInEveryEra) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const int year = local.tm_year + 1900;
    const std::string form = "--month 1 --day 1 --times 1 --format json --era ";
    const std::string western = "{\"payoff\": \"" + std::to_string(year) + " / 1 / 8 \"";
    const std::string reiwa = "{\"payoff\": \"Reiwa  " + std::to_string(year - 2018) + " / 1 / 8 \"";
    EXPECT_EQ(runTool(form + "western").out.substr(0, western.size()), western);
    for (const char* era : {"showa", "heisei", "reiwa"})
        EXPECT_EQ(runTool(form + era).out.substr(0, reiwa.size()), reiwa) << era;
}

TEST(ScheduleCommand, HelpExplainsEveryOption) {
    const Result r = run({"--help"});
    EXPECT_EQ(r.status, 0);
    for (const char* option : {"--principal", "--rate", "--times", "--first", "--last", "--era", "--year", "--month",
                               "--day", "--pay-day", "--delay", "--method", "--format"})
        EXPECT_NE(r.out.find(option), std::string::npos) << option;
}

} // namespace
