// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-schedule run as a process: what it prints in each format, its refusals, bad options
// and write errors, and the borrowing date it takes by default.
#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Result {
    int status;
    std::string out, err;
};

// The exit status and what the tool wrote to each stream; `stdoutTo` redirects its output.
Result run(const std::string& args, const std::string& stdoutTo = "") {
    // Files of this process's own: tests may run side by side.
    const auto dir = std::filesystem::temp_directory_path();
    const std::string stem = "kestrune-schedule-test-" + std::to_string(getpid());
    const auto outFile = dir / (stem + ".out"), errFile = dir / (stem + ".err");
    const std::string command = std::string(KESTRUNE_SCHEDULE) + " " + args + " 2> " + errFile.string() + " " +
                                (stdoutTo.empty() ? "> " + outFile.string() : stdoutTo);
    const int status = std::system(command.c_str());
    const auto slurp = [](const std::filesystem::path& path) {
        std::ifstream in(path);
        return std::string(std::istreambuf_iterator<char>(in), {});
    };
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, stdoutTo.empty() ? slurp(outFile) : "", slurp(errFile)};
}

const std::string kLoan2020 = "--era western --year 2020 --month 3 --day 15 --method flat ";

TEST(ScheduleTool, PrintsTheTableInEachFormat) {
    EXPECT_EQ(run(kLoan2020 + "--last 1").out, "Pay off: 2032 / 3 / 8 \n\n"
                                               "No.  Repayment   Amount  Principal  Interest     Balance\n"
                                               "001  20.04.08   781,684    650,264   131,420  99,349,736\n");
    // By months, cut to the yen: 99,349,823 x 2 % / 12 = 165,583.04 after a payment of 781,683.
    EXPECT_EQ(run(kLoan2020 + "--interest monthly --rounding down --first 2 --last 2 --format json").out,
              "{\"payoff\":\"2032 / 3 / 8 \",\"header\":[\"No.\",\"Repayment\",\"Amount\",\"Principal\","
              "\"Interest\",\"Balance\"],\"rows\":[[\"002\",\"20.05.08\",\"781,683\",\"616,100\","
              "\"165,583\",\"98,733,723\"]],\"terms\":[\"interest monthly\",\"rounding down\"]}\n");
    EXPECT_EQ(run("--era=western --year=2020 --month=3 --day=15 --method=flat --last=1").out,
              run(kLoan2020 + "--last 1").out)
        << "--option=value";
    EXPECT_EQ(run("-h").out, run("--help").out);
}

TEST(ScheduleTool, PlansWithEventsTotalsAndYears) {
    const std::string loan = "--era western --year 2020 --month 3 --day 15 --principal 30,000,000 --rate 1.5 "
                             "--times 420 --method flat ";
    EXPECT_EQ(run(loan + "--prepay 60:1,000,000:every=60 --totals --last 0").out,
              "Pay off: 2049 / 5 / 8 \n\nNo.  Repayment  Amount  Principal  Interest  Prepaid  Balance\n\n"
              "Payments: 350\nPaid: 37,072,210\nPrincipal: 25,000,000\nInterest: 7,072,210\nPrepaid: 5,000,000\n"
              "Fees: 0\nPayoff: 2049 / 5 / 8 \nInterest saved: 1,493,928\nPayments saved: 70 (5 years 10 months)\n"
              "Net saving: 1,493,928\nBreak-even payment: no fees\n");
    EXPECT_EQ(run(loan + "--events - --last 1 < /dev/null").out, run(loan + "--last 1").out) << "no events";
    const auto file = std::filesystem::temp_directory_path() / "kestrune-events.txt";
    std::ofstream(file) << "# refinancing\nrate 61 0.9\n\nfee\t61\t330000\n";
    const Result options = run("--rate-change 61:0.9 --fee=61:330000 --format json --last 0 " + loan);
    EXPECT_EQ(options.out, run("--format json --last 0 --events " + file.string() + " " + loan).out);
    EXPECT_EQ(options.out, run("--format json --last 0 --events - " + loan + "< " + file.string()).out);
}

struct StatusCase {
    const char* args;
    int status;
    const char* err;
};

TEST(ScheduleTool, RefusalsBadOptionsAndWriteErrors) {
    const StatusCase cases[] = {
        {"--rate 0", 1, "kestrune-schedule: principal, rate and count must be non-zero\n"},
        {"--principal 1e400", 1, "kestrune-schedule: amounts out of range\n"},
        {"--era meiji", 2, "kestrune-schedule: bad value for --era: meiji\n"},
        {"--last x", 2, "kestrune-schedule: --last takes a whole number: x\n"},
        {"--frobnicate 1", 2, "kestrune-schedule: unknown option: --frobnicate\n"},
        {"--rate", 2, "kestrune-schedule: missing value for --rate\n"},
        {"--prepay 145:100", 2, "kestrune-schedule: bad event: payment outside 1 to the count: prepay 145 100\n"},
        {"--bonus 1000:6,6", 2,
         "kestrune-schedule: bad term: bonus takes an amount above 0 and two different months from 1 to 12: bonus "
         "1000 6 6\n"},
        {"--bonus 50,000,001", 2,
         "kestrune-schedule: bad term: the bonus part 50,000,001 is more than half the principal\n"},
        {"--times 2 --month 1 --bonus 1", 2, "kestrune-schedule: bad term: no payment falls in month 6 or 12\n"},
        {"--review", 2, "kestrune-schedule: bad term: the five-year and 125 % rules are for a flat payment only\n"},
        {"--deduction 1:2:3:2030:5:6", 2,
         "kestrune-schedule: bad term: deduction takes a rate, a count of years, a cap, \"from\" a year and \"limit\" "
         "an amount, all at least 0: deduction 1 2 3 from 2030 limit 5 6\n"},
        {"--prepay 1:1000:every=9223372036854775807", 2,
         "kestrune-schedule: bad event: every takes a count of payments from 1 to the count: prepay 1 1000 every "
         "9223372036854775807\n"},
        {"--events /dev/zero", 2,
         "kestrune-schedule: cannot read events from /dev/zero: line 1 is longer than 1,000 characters\n"},
        {"--events /", 2, "kestrune-schedule: cannot read events from /: Is a directory\n"},
        {"--plan /dev/zero", 2, "kestrune-schedule: cannot read the plan /dev/zero: larger than 16 MB\n"},
        {"--plan /dev/null", 2,
         "kestrune-schedule: cannot read the plan /dev/null: not JSON: an error at line 1, column 1\n"},
        {"--scenario A", 2, "kestrune-schedule: --scenario goes with --plan\n"},
        {"--save-plan /nonexistent/p", 1,
         "kestrune-schedule: cannot save the plan to /nonexistent/p: No such file or "
         "directory\n"},
        {"--principal 9007199254740993", 1, "kestrune-schedule: amounts out of range\n"},
        {"--rate-change 2:1e300", 1, "kestrune-schedule: amounts out of range from the event: rate 2 1e+300\n"},
        {"--era \"$(printf '\\033[31mred')\"", 2, "kestrune-schedule: bad value for --era: ?[31mred\n"},
        {"--times 100000 --format csv > /dev/full", 1,
         "kestrune-schedule: cannot write output: No space left on device\n"},
        {">&-", 1, "kestrune-schedule: cannot write output: Bad file descriptor\n"},
    };
    for (const auto& c : cases) {
        const Result r = run(c.args, std::string(c.args).find('>') != std::string::npos ? " " : "");
        EXPECT_EQ(r.status, c.status) << c.args;
        EXPECT_EQ(r.err.substr(0, std::string(c.err).size()), c.err) << c.args;
        EXPECT_EQ(r.out, "") << c.args;
    }
    EXPECT_EQ(run("--times 100000", "| head -c 10 > /dev/null").err, "") << "a closed pipe is no error to report";
}

// 600,000 by equal principal at 3 % over 6 payments from Heisei 30-11-20, with 100,000 prepaid
// (shorten) with payment 2, 1.5 % from payment 3 and a fee of 2,000 with payment 4. By hand:
// 600,000 x 3 % / 365.2422 x 18 days = 887.08; 500,000 x 3 % / 365.2422 x 31 = 1,273.13; at 1.5 %
// 300,000 x 31 days = 381.93, 200,000 x 28 = 229.99, 100,000 x 31 = 127.32. 100,000 of principal a
// payment leaves 0 after payment 5: one payment saved. Heisei 31 runs to April: the loan ends in it.
const std::string kPlan = "--era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 "
                          "--method equal --prepay 2:100,000:shorten --rate-change 3:1.5 --fee 4:2,000 ";

TEST(ScheduleTool, APlanReadWholeInEachFormat) {
    const std::pair<std::string, std::string> cases[] = {
        {"--totals",
         "Pay off: Heisei  31 / 4 / 8 \n\n"
         "No.  Repayment   Amount  Principal  Interest  Prepaid  Balance\n"
         "001  30.12.08   100,887    100,000       887        0  500,000\n"
         "002  31.01.08   101,273    100,000     1,273  100,000  300,000\n"
         "003  31.02.08   100,382    100,000       382        0  200,000\n"
         "004  31.03.08   100,230    100,000       230        0  100,000\n"
         "005  31.04.08   100,127    100,000       127        0        0\n"
         "\nPayments: 5\nPaid: 604,899\nPrincipal: 500,000\nInterest: 2,899\nPrepaid: 100,000\n"
         "Fees: 2,000\nPayoff: Heisei  31 / 4 / 8 \nInterest saved: 1,725\n"
         "Payments saved: 1 (0 years 1 months)\nNet saving: -275\nBreak-even payment: not within the loan\n"},
        {"--totals --last 0 --format csv",
         "No.,Repayment,Amount,Principal,Interest,Prepaid,Balance\r\n\r\nPayments,5\r\nPaid,\"604,899\"\r\n"
         "Principal,\"500,000\"\r\nInterest,\"2,899\"\r\nPrepaid,\"100,000\"\r\nFees,\"2,000\"\r\n"
         "Payoff,Heisei  31 / 4 / 8 \r\nInterest saved,\"1,725\"\r\nPayments saved,1 (0 years 1 months)\r\n"
         "Net saving,-275\r\nBreak-even payment,not within the loan\r\n"},
        {"--format tsv --first 4 --last -2", "No.\tRepayment\tAmount\tPrincipal\tInterest\tPrepaid\tBalance\n"
                                             "004\t31.03.08\t100,230\t100,000\t230\t0\t100,000\n"
                                             "005\t31.04.08\t100,127\t100,000\t127\t0\t0\n"},
        {"--by-year", "Year  Era year   Payments   Amount  Principal  Interest  Prepaid   Fees  Balance\n"
                      "2018  Heisei 30         1  100,887    100,000       887        0      0  500,000\n"
                      "2019  Heisei 31         4  402,012    400,000     2,012  100,000  2,000        0\n"},
        {"--by-year --format json",
         "{\"payoff\":\"Heisei  31 / 4 / 8 \",\"header\":[\"Year\",\"Era year\",\"Payments\",\"Amount\","
         "\"Principal\",\"Interest\",\"Prepaid\",\"Fees\",\"Balance\"],\"rows\":[],\"totals\":{\"payments\":"
         "\"5\",\"paid\":\"604,899\",\"principal\":\"500,000\",\"interest\":\"2,899\",\"prepaid\":"
         "\"100,000\",\"fees\":\"2,000\",\"payoff\":\"Heisei  31 / 4 / 8 \"},\"savings\":{\"interest saved\":"
         "\"1,725\",\"payments saved\":\"1 (0 years 1 months)\",\"net saving\":\"-275\",\"break-even "
         "payment\":\"not within the loan\"},\"events\":[\"prepay 2 100000 shorten\",\"rate 3 1.5\",\"fee 4 "
         "2000\"],"
         "\"years\":[[\"2018\",\"Heisei 30\",\"1\",\"100,887\",\"100,000\",\"887\",\"0\",\"0\","
         "\"500,000\"],[\"2019\",\"Heisei 31\",\"4\",\"402,012\",\"400,000\",\"2,012\",\"100,000\","
         "\"2,000\",\"0\"]]}\n"},
    };
    for (const auto& [options, printed] : cases) {
        const Result r = run(kPlan + options);
        EXPECT_EQ(r.status, 0) << options;
        EXPECT_EQ(r.out, printed) << options;
    }
}

TEST(ScheduleTool, APlanSavedAsADocumentAndReadBack) {
    const std::string file = std::filesystem::temp_directory_path() / ("kestrune-" + std::to_string(getpid()));
    const std::string plan = kPlan + "--interest monthly --deduction --bonus 100,000 --totals --by-year --format json ";
    ASSERT_EQ(run(plan + "--save-plan " + file + ".kestrune").status, 0);
    EXPECT_EQ(run("--plan " + file + ".kestrune --totals --by-year --format json <&-").out, run(plan).out)
        << "read also where standard input is closed, and the file takes its number";
    EXPECT_EQ(run("--plan=" + file + ".kestrune --times 5 --fee 5:1 --totals").out,
              run(kPlan + "--interest monthly --deduction --bonus 100,000 --times 5 --fee 5:1 --totals").out)
        << "options override the form and add events";
    std::ofstream(file + ".json") << R"({"format": "kestrune-plan", "version": 1, "form": {"principal": "600,000",
        "rate": "3", "times": "6", "era": "heisei", "year": "30", "month": "11", "day": "20"},
        "scenarios": [{"name": "A"}, {"name": "B", "events": ["fee 4 2,000"]}]})";
    EXPECT_EQ(run("--plan " + file + ".json --scenario B --totals").out,
              run("--era heisei --year 30 --month 11 --day 20 --principal 600,000 --rate 3 --times 6 --fee 4:2000 "
                  "--totals")
                  .out);
    // Compared: the document's scenarios (A with the options' events), then the loan without events.
    EXPECT_EQ(run("--plan " + file + ".json --compare --format tsv --prepay 2:100,000 --rate-change 3:1.5").out,
              "Measure\tA\tB\tWithout events\nPayments\t5 *\t6\t6\n"
              "Payoff\tHeisei  31 / 4 / 8  *\tReiwa  1 / 5 / 8 \tReiwa  1 / 5 / 8 \n"
              "Paid\t602,899 *\t606,624\t604,624\nInterest\t2,899 *\t4,624\t4,624\nFees\t0 *\t2,000\t0 *\n"
              "Deduction\t0\t0\t0\nNet cost\t2,899 *\t6,624\t4,624\nInterest saved\t1,725 *\t0\t0\n"
              "Net saving\t1,725 *\t-2,000\t0\nBreak-even payment\tno fees\tnot within the loan\tno fees\n");
    EXPECT_EQ(run("--plan " + file + ".json --compare --format json --rate-change 2:1e300 --last 0").out,
              "{\"header\":[\"Measure\",\"A\",\"B\",\"Without events\"],\"rows\":[[\"Payments\",\"refused\","
              "\"6\",\"6\"],[\"Payoff\",\"refused\",\"Reiwa  1 / 5 / 8 \",\"Reiwa  1 / 5 / 8 \"],[\"Paid\","
              "\"refused\",\"606,624\",\"604,624\"],[\"Interest\",\"refused\",\"4,624\",\"4,624\"],[\"Fees\","
              "\"refused\",\"2,000\",\"0\"],[\"Deduction\",\"refused\",\"0\",\"0\"],[\"Net cost\",\"refused\","
              "\"6,624\",\"4,624\"],[\"Interest saved\",\"refused\",\"0\",\"0\"],[\"Net saving\",\"refused\","
              "\"-2,000\",\"0\"],[\"Break-even payment\",\"refused\",\"not within the loan\",\"no fees\"]],"
              "\"best\":[[],[],[\"Without events\"],[],[\"Without events\"],[],[\"Without events\"],[],"
              "[\"Without events\"],[]]}\n");
    std::filesystem::remove(file + ".kestrune");
    std::filesystem::remove(file + ".json");
}

// 1,200,000 at 2 % in 12 payments from 2020-03-15, 300,000 of it a bonus part. Flat, months 6
// and 12: the bonus payment 300,000 x 1.01^2 x 0.01 / (1.01^2 - 1) = 152,253.73, its interest
// 85 days at 2 % / 365.2422 = 1,396.34, leaving 149,142. The prepayment of 300,000 with payment 4
// goes 300,000 x 149,142 / 750,807 = 59,592.8 to it, and both payments are set anew. Equal
// principal by months, months 7 and 1: 150,000 a bonus payment, interest 300,000 x 2 % x
// (3 / 12 + 23 / 365) = 1,878.08 for 3 months and 23 days, then 150,000 x 2 % / 2 = 1,500.
TEST(ScheduleTool, ALoanWithABonusPart) {
    const std::string loan =
        "--principal 1,200,000 --rate 2 --times 12 --era western --year 2020 --month 3 --day 15 --format tsv ";
    const std::pair<std::string, std::string> cases[] = {
        {"--method flat --bonus 300,000 --prepay 4:300,000:reduce",
         "No.\tRepayment\tAmount\tPrincipal\tInterest\tBonus\tPrepaid\tBalance\n"
         "001\t20.04.08\t75,815\t74,632\t1,183\t0\t0\t1,125,368\n002\t20.05.08\t75,815\t74,459\t1,356\t0\t0\t1,050,"
         "909\n"
         "003\t20.06.08\t228,069\t225,398\t2,671\t152,254\t0\t825,511\n"
         "004\t20.07.08\t75,815\t74,704\t1,111\t0\t300,000\t450,807\n005\t20.08.08\t45,497\t44,884\t613\t0\t0\t405,"
         "923\n"
         "006\t20.09.08\t45,497\t44,960\t537\t0\t0\t360,963\n007\t20.10.08\t45,497\t45,051\t446\t0\t0\t315,912\n"
         "008\t20.11.08\t45,497\t45,113\t384\t0\t0\t270,799\n009\t20.12.08\t135,943\t134,748\t1,195\t90,446\t0\t136,"
         "051\n"
         "010\t21.01.08\t45,497\t45,266\t231\t0\t0\t90,785\n011\t21.02.08\t45,497\t45,343\t154\t0\t0\t45,442\n"
         "012\t21.03.08\t45,512\t45,442\t70\t0\t0\t0\n"},
        {"--method equal --interest monthly --bonus=300,000:7,1 --first 3 --last 4",
         "No.\tRepayment\tAmount\tPrincipal\tInterest\tBonus\tBalance\n003\t20.06.08\t76,250\t75,000\t1,250\t0\t975,"
         "000\n"
         "004\t20.07.08\t228,003\t225,000\t3,003\t151,878\t750,000\n"},
    };
    for (const auto& [options, printed] : cases) EXPECT_EQ(run(loan + options).out, printed) << options;
}

// 12,000,000 flat in 180 payments from 2020-04-08, interest by months under the five-year and
// 125 % rules. At 1 % the payment is 71,819; at 12 % from the first payment a month's interest is
// 120,000: no principal is paid and 48,181 a month is carried unpaid. Review 61 would set 172,165
// and is capped at 1.25 x 71,819 = 89,773.75; review 121, after a cap, again: 1.25 x 89,774 =
// 112,217.5. The last payment: 12,000,000 + 120,000 + 60 x 48,181 + 60 x 30,226 + 59 x 7,782.
// At 3 % (82,870 a payment) falling to 1 % with payment 30, review 61 lowers the payment to that
// of 8,082,900 over 120 payments at 1 %: 70,809.54.
TEST(ScheduleTool, AVariableRateUnderTheFiveYearAnd125Rules) {
    const std::string loan = "--principal 12,000,000 --times 180 --era western --year 2020 --month 4 --day 8 "
                             "--method flat --interest monthly --review --format tsv ";
    const std::pair<std::string, std::string> cases[] = {
        {"--rate 1 --rate-change 1:12 --first 60 --last 61",
         "060\t25.04.08\t71,819\t0\t71,819\t0\t2,890,860\t12,000,000\n"
         "061\t25.05.08\t89,774\t0\t89,774\t0\t2,921,086\t12,000,000\n"},
        {"--rate 1 --rate-change 1:12 --first 120 --last 121",
         "120\t30.04.08\t89,774\t0\t89,774\t0\t4,704,420\t12,000,000\n"
         "121\t30.05.08\t112,218\t0\t112,218\t0\t4,712,202\t12,000,000\n"},
        {"--rate 1 --rate-change 1:12 --first 180", "180\t35.04.08\t17,283,558\t12,000,000\t5,283,558\t0\t0\t0\n"},
        {"--rate 1 --rate-change 1:12 --totals --last 0", "\nPayments\t180\nPaid\t33,600,000\nPrincipal\t12,000,"
                                                          "000\nInterest\t21,600,000\nUnpaid interest paid\t5,163,558\n"
                                                          "Prepaid\t0\nFees\t0\nPayoff\t2035 / 4 / 8 \nInterest "
                                                          "saved\t-20,672,509\nPayments saved\t0 (0 years 0 months)\n"
                                                          "Net saving\t-20,672,509\nBreak-even payment\tno fees\n"},
        {"--rate 3 --rate-change 30:1 --first 60 --last 61", "060\t25.04.08\t82,870\t76,071\t6,799\t0\t0\t8,082,900\n"
                                                             "061\t25.05.08\t70,810\t64,074\t6,736\t0\t0\t8,018,826\n"},
    };
    const std::string header = "No.\tRepayment\tAmount\tPrincipal\tInterest\tPrepaid\tUnpaid interest\tBalance\n";
    for (const auto& [options, printed] : cases) EXPECT_EQ(run(loan + options).out, header + printed) << options;
}

// 30,000,000 flat over 420 payments from 1 April 2025, with the default deduction (0.7 % of at most
// 30,000,000 for 13 years from 2025). At 0.2 %, 10,000,000 prepaid with payment 12 saves 577,412
// of interest but loses 850,600 of deduction (2026: 18,530,453 x 0.7 % = 129,713 cut to 129,700,
// against 199,800): a net loss of 273,188. At 0.5 %, 25,000,000 prepaid with payment 12 (April
// 2026) ends the loan within six years: no deduction from 2026; 2025 gives 29,401,184 x 0.7 % =
// 205,808, cut to 205,800.
TEST(ScheduleTool, TheTaxDeductionInTheTotalsAndYears) {
    const std::string loan = "--era western --year 2025 --month 4 --day 1 --principal 30,000,000 --times 420 "
                             "--method flat --prepay 12:";
    const std::pair<std::string, std::string> cases[] = {
        {"10,000,000 --rate 0.2 --deduction --totals --last 0 --format tsv",
         "No.\tRepayment\tAmount\tPrincipal\tInterest\tPrepaid\tBalance\n\nPayments\t277\nPaid\t30,483,272\n"
         "Principal\t20,000,000\nInterest\t483,272\nPrepaid\t10,000,000\nFees\t0\nDeduction\t1,365,700\n"
         "Net cost\t-882,428\nPayoff\t2048 / 4 / 8 \nInterest saved\t577,412\nDeduction lost\t850,600\n"
         "Payments saved\t143 (11 years 11 months)\nNet saving\t-273,188\nBreak-even payment\tno fees\n"},
        {"25,000,000 --rate 0.5 --deduction=:::2025: --by-year --totals --format tsv",
         "Year\tEra year\tPayments\tAmount\tPrincipal\tInterest\tPrepaid\tFees\tDeduction\tBalance\n"
         "2025\t2025\t9\t700,884\t598,816\t102,068\t0\t0\t205,800\t29,401,184\n"
         "2026\t2026\t12\t934,512\t883,685\t50,827\t25,000,000\t0\t0\t3,517,499\n"
         "2027\t2027\t12\t934,512\t919,042\t15,470\t0\t0\t0\t2,598,457\n"
         "2028\t2028\t12\t934,512\t923,609\t10,903\t0\t0\t0\t1,674,848\n"
         "2029\t2029\t12\t934,512\t928,271\t6,241\t0\t0\t0\t746,577\n"
         "2030\t2030\t10\t748,227\t746,577\t1,650\t0\t0\t0\t0\n\nPayments\t67\nPaid\t30,187,159\n"
         "Principal\t5,000,000\nInterest\t187,159\nPrepaid\t25,000,000\nFees\t0\nDeduction\t205,800\n"
         "Net cost\t-18,641\nPayoff\t2030 / 10 / 8 \n"
         "Deduction note\tNo deduction from 2026: the term is now shorter than ten years\nInterest saved\t2,509,304\n"
         "Deduction lost\t2,030,100\nPayments saved\t353 (29 years 5 months)\nNet saving\t479,204\n"
         "Break-even payment\tno fees\n"},
        // 19,000,000 prepaid in December 2025 leaves ten years; 4,000,000 more in January 2026 does not:
        // no deduction from 2026, and 2025's kept.
        {"0 --prepay 9:19,000,000 --prepay 10:4,000,000 --rate 0.5 --deduction --totals --last 0 --format tsv",
         "No.\tRepayment\tAmount\tPrincipal\tInterest\tPrepaid\tBalance\n\nPayments\t93\nPaid\t30,217,344\n"
         "Principal\t7,000,000\nInterest\t217,344\nPrepaid\t23,000,000\nFees\t0\nDeduction\t72,800\nNet cost\t144,544\n"
         "Payoff\t2032 / 12 / 8 \nDeduction note\tNo deduction from 2026: the term is now shorter than ten years\n"
         "Interest saved\t2,479,119\nDeduction lost\t2,163,100\nPayments saved\t327 (27 years 3 months)\n"
         "Net saving\t316,019\nBreak-even payment\tno fees\n"},
        // 119 payments: shorter than ten years from the start, with or without events.
        {"0 --rate 0.5 --times 119 --deduction --totals --last 0 --format tsv",
         "No.\tRepayment\tAmount\tPrincipal\tInterest\tPrepaid\tBalance\n\nPayments\t119\nPaid\t30,746,158\n"
         "Principal\t30,000,000\nInterest\t746,158\nPrepaid\t0\nFees\t0\nDeduction\t0\nNet cost\t746,158\n"
         "Payoff\t2035 / 2 / 8 \nDeduction note\tNo deduction: the term is shorter than ten years\nInterest saved\t0\n"
         "Deduction lost\t0\nPayments saved\t0 (0 years 0 months)\nNet saving\t0\nBreak-even payment\tno fees\n"},
    };
    for (const auto& [options, printed] : cases) EXPECT_EQ(run(loan + options).out, printed) << options;
}

TEST(ScheduleTool, WithoutAYearTheBorrowingDateIsTodayInEveryEra) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const int year = local.tm_year + 1900;
    const std::string form = "--month 1 --day 1 --times 1 --format json --era ";
    const std::string western = "{\"payoff\":\"" + std::to_string(year) + " / 1 / 8 \"";
    const std::string reiwa = "{\"payoff\":\"Reiwa  " + std::to_string(year - 2018) + " / 1 / 8 \"";
    EXPECT_EQ(run(form + "western").out.substr(0, western.size()), western);
    for (const char* era : {"showa", "heisei", "reiwa"})
        EXPECT_EQ(run(form + era).out.substr(0, reiwa.size()), reiwa) << era;
}

} // namespace
