// Recombination from a later first row or across an era, and where the help window stands.
#include "shell/helpplacement.h"
#include "table/recombination.h"

#include <gtest/gtest.h>

namespace {

TEST(Recombination, NewLoanFromTheSelectedRow) {
    const engine::Row row{"012", "21.03.08", "781,684", "660,000", "120,000", "91,234,567"};
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
    const PlacementCase cases[] = {
        {100, 485, 1440, 585}, {555, 485, 1440, 155}, {200, 485, 800, -200}, {554, 485, 1440, 1039}};
    for (const auto& c : cases)
        EXPECT_EQ(shell::helpWindowLeft(c.left, c.width, 400, c.screen), c.expected) << c.left << " on " << c.screen;
}

} // namespace
