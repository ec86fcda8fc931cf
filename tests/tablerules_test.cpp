// What the table computes from its cells, and where the help window stands.
#include "shell/helpplacement.h"
#include "table/recombination.h"
#include "table/selectionsum.h"

#include <gtest/gtest.h>

namespace {

TEST(SelectionSum, AddsTheInterestCellsAsTheyRead) {
    table::SelectionSum sum;
    EXPECT_EQ(sum.totalText(), "0");
    EXPECT_EQ(sum.countText(), "0");
    for (const char* cell : {"1,234", "abc", "", "12.7"}) sum.add(cell);
    EXPECT_EQ(sum.totalText(), "1,246");
    EXPECT_EQ(sum.countText(), "4");

    table::SelectionSum typed;
    typed.add("12.7");
    EXPECT_EQ(typed.totalText(), "12");
    typed.add("12.7");
    EXPECT_EQ(typed.totalText(), "24");
}

struct WideningCase {
    std::int64_t base, digits, year;
};

TEST(Recombination, WidensATwoDigitYearToTheFirstAtOrAfterTheBase) {
    const WideningCase cases[] = {{2024, 26, 2026}, {1999, 1, 2001}, {2020, 20, 2020}, {2099, 0, 2100}, {1950, 99, 1999}};
    for (const auto& c : cases) EXPECT_EQ(table::widenedYear(c.base, c.digits), c.year) << c.base << " " << c.digits;
}

TEST(Recombination, NewLoanFromTheSelectedRow) {
    const engine::Row row{"012", "21.03.08", "781,684", "660,000", "120,000", "91,234,567"};
    const table::OldLoan western{calendar::kWestern, "2020", "144", "1", calendar::Date(2020, 4, 8), 8};
    const auto loan = table::recombination(western, row, 12);
    EXPECT_EQ(loan.principal, "91,234,567");
    EXPECT_EQ(loan.times, "132");
    EXPECT_EQ(loan.era, calendar::kWestern);
    EXPECT_EQ(loan.year, "2021");
    EXPECT_EQ(loan.month, "3");
    EXPECT_EQ(loan.day, "8");

    // Starting at payment 5, the selected payment 12 is the eighth row: 144 - 8 - 5 + 1.
    const table::OldLoan fromFifth{calendar::kWestern, "2020", "144", "5", calendar::Date(2020, 4, 8), 8};
    EXPECT_EQ(table::recombination(fromFifth, row, 8).times, "132");

    // Heisei 30 borrowing: payment 20 falls in Reiwa, and the new loan says so.
    const table::OldLoan heisei{calendar::kHeisei, "30", "144", "1", calendar::Date(2018, 4, 8), 8};
    const auto reiwa = table::recombination(heisei, {"020", "01.11.08", "", "", "", "1"}, 20);
    EXPECT_EQ(reiwa.era, calendar::kReiwa);
    EXPECT_EQ(reiwa.year, "1");
}

struct PlacementCase {
    int left, width, screen, expected;
};

TEST(HelpPlacement, FlushRightWhereThereIsRoomElseFlushLeft) {
    const PlacementCase cases[] = {{100, 485, 1440, 585}, {555, 485, 1440, 155}, {200, 485, 800, -200},
                                   {554, 485, 1440, 1039}};
    for (const auto& c : cases)
        EXPECT_EQ(shell::helpWindowLeft(c.left, c.width, 400, c.screen), c.expected) << c.left << " on " << c.screen;
}

} // namespace
