#include "tools/schedulecommand.h"

#include <gtest/gtest.h>

#include <sstream>

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

struct StatusCase {
    std::vector<std::string> args;
    int status;
    const char* err;
};

TEST(ScheduleCommand, RefusalsAndBadOptions) {
    const StatusCase cases[] = {
        {with({"--rate", "0"}), 1, "principal, rate and count must be non-zero\n"},
        {with({"--principal", ""}), 1, "principal, rate and count must be non-zero\n"},
        {with({"--rate", "1e-20", "--method", "flat"}), 1, "amounts out of range\n"},
        {with({"--era", "meiji"}), 2, "kestrune-schedule: bad option or value: --era meiji"},
        {with({"--last", "x"}), 2, "kestrune-schedule: --last takes a whole number: x"},
        {with({"--frobnicate", "1"}), 2, "kestrune-schedule: bad option or value: --frobnicate 1"},
        {with({"--rate"}), 2, "kestrune-schedule: unknown option or missing value: --rate"},
    };
    for (const auto& c : cases) {
        const Result r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.err;
        EXPECT_EQ(r.err.substr(0, std::string(c.err).size()), c.err);
        EXPECT_EQ(r.out, "") << "nothing on stdout when refused";
    }
}

TEST(ScheduleCommand, HelpExplainsEveryOption) {
    const Result r = run({"--help"});
    EXPECT_EQ(r.status, 0);
    for (const char* option : {"--principal", "--rate", "--times", "--first", "--last", "--era", "--year", "--month",
                               "--day", "--pay-day", "--delay", "--method", "--format"})
        EXPECT_NE(r.out.find(option), std::string::npos) << option;
}

} // namespace
