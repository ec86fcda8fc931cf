// SPDX-License-Identifier: GPL-3.0-or-later
// The table's own rules: the interest of a selection, the texts a spreadsheet receives, the loan
// that Recombination starts, and where the help window stands.
#include "placement/helpplacement.h"
#include "table/export.h"
#include "table/recombination.h"
#include "table/selectionsum.h"

#include <gtest/gtest.h>

using namespace table;

namespace {

TEST(SelectionSum, AddsTheInterestCellsAsTheyReadTruncatingEachStep) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{}, "0"},        {{"1,234", "82,137"}, "83,371"}, {{"abc"}, "0"},
        {{"12.7"}, "12"}, {{"12.7", "12.7"}, "24"},        {{"12", "-0.5"}, "11"}};
    for (const auto& [cells, total] : cases) {
        SelectionSum sum;
        for (const char* cell : cells) sum.add(cell);
        EXPECT_EQ(sum.totalText(), total) << cells.size() << " cells";
        EXPECT_EQ(sum.countText(), std::to_string(cells.size()));
    }
}

TEST(Export, TsvCsvAndHtml) {
    const std::vector<Row> rows{{"001", "20.04.08", "781,684", "650,264", "131,420", "99,349,736"},
                                {"a\"b", "x\ny", "<1>", "&", "", ""}};
    EXPECT_EQ(toTsv({rows[0]}), "001\t20.04.08\t781,684\t650,264\t131,420\t99,349,736\n");
    EXPECT_EQ(toCsv(rows), "001,20.04.08,\"781,684\",\"650,264\",\"131,420\",\"99,349,736\"\r\n"
                           "\"a\"\"b\",\"x\ny\",<1>,&,,\r\n");
    EXPECT_EQ(toHtml({rows[1]}), "<table><tr><td>a&quot;b</td><td>x\ny</td><td>&lt;1&gt;</td><td>&amp;</td>"
                                 "<td></td><td></td></tr></table>");
}

struct RecombinationCase {
    int era;
    const char* year;     // of the old loan's borrowing
    const char* firstRow; // of the old table
    calendar::Date firstPayment;
    Row selected;
    std::int64_t rowsUpToSelected;
    int newEra;
    const char *newYear, *month, *day, *times;
};

TEST(Recombination, TheNewLoanStartsOnTheSelectedPayment) {
    const RecombinationCase cases[] = {
        // From payment 5, payment 12 is the eighth row: 144 - 8 - 5 + 1 payments remain.
        {0, "2020", "5", {2020, 4, 8}, {"012", "21.03.08", "", "", "", "91,234,567"}, 8, 0, "2021", "3", "8", "132"},
        {0, "2024", "1", {2024, 4, 8}, {"005", "24.08.08", "", "", "", "1"}, 5, 0, "2024", "8", "8", "139"},
        {0, "1999", "1", {1999, 4, 8}, {"033", "01.12.08", "", "", "", "1"}, 33, 0, "2001", "12", "8", "111"},
        // An era loan: the payment's own date names the year, also past the end of an era and in December.
        {2, "30", "1", {2018, 4, 8}, {"020", "01.11.08", "", "", "", "1"}, 20, 3, "1", "11", "8", "124"},
        {3, "2", "1", {2020, 4, 8}, {"009", "02.12.08", "", "", "", "1"}, 9, 3, "2", "12", "8", "135"},
    };
    for (const auto& c : cases) {
        engine::LoanForm old;
        old.era = c.era;
        old.date = {c.year, "3", "15", "8"};
        old.firstRow = c.firstRow;
        old.rate = "1.5";
        old.flatPayment = true;
        old.delay = calendar::kThreeAfter;
        // The balance on the payment's date, the rate, the pay day and the method; a new form's delay.
        const engine::LoanForm expected{
            c.selected[kBalance], "1.5", c.times, "1", c.newEra, {c.newYear, c.month, c.day, "8"},
            calendar::kNext,      true};
        EXPECT_TRUE(recombination(old, c.firstPayment, c.selected, c.rowsUpToSelected) == expected)
            << c.selected[kNumber];
    }
    // A number typed over beyond any loan counts as the longest loan's last payment: 2020-04 and
    // 99,999 months is 10353, Reiwa 8335.
    engine::LoanForm era;
    era.date.payDay = "8";
    EXPECT_EQ(recombination(era, {2020, 4, 8}, {"99999999999999999999", "", "", "", "", "1"}, 1).date.year, "8335");
    engine::LoanForm payDay31;
    payDay31.date.payDay = "31";
    EXPECT_EQ(recombination(payDay31, {2020, 4, 30}, {"001", "02.04.30", "", "", "", "1"}, 1).date.payDay, "31");
}

TEST(HelpPlacement, FlushRightWhereThereIsRoomElseFlushLeft) {
    const std::array<int, 4> cases[] = {{100, 485, 1440, 585}, {555, 485, 1440, 155}, {200, 485, 800, -200}};
    for (const auto& [left, width, screen, expected] : cases)
        EXPECT_EQ(placement::helpWindowLeft(left, width, 400, screen), expected) << left << " on " << screen;
}

} // namespace
