// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does with the table: select and total, select all, hide below and show all,
// Recombination into a new window.
#include "uitest.h"

namespace {

using namespace uitest;

class TableTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        setForm(loan2020());
    }
    // Selection count, interest total, and the three buttons under the table, as the user sees them.
    void expectFigures(const char* count, const char* total, bool one, bool showAll, const char* caption) {
        EXPECT_EQ(w->SelNum->text(), count);
        EXPECT_EQ(w->RisokuTotal->text(), total);
        EXPECT_EQ(w->BevelNewNext->isEnabled(), one);
        EXPECT_EQ(w->BevelDelBelow->isEnabled(), one);
        EXPECT_EQ(w->BevelDispAll->isEnabled(), showAll);
        EXPECT_EQ(w->SelectAllButton->text(), caption);
    }
};

TEST_F(TableTest, TheFiguresFollowTheSelectionAlsoThroughARecalculation) {
    clickRow(0);
    expectFigures("1", "131,420", true, false, "Select All");
    clickRow(2, Qt::ControlModifier);
    expectFigures("2", "298,813", false, false, "Select All"); // 131,420 + 167,393
    typeAndLeave(w->Nenriritsu, "3");
    expectFigures("0", "0", false, false, "Select All");
    clickRow(11);
    w->BevelDelBelow->click();
    expectFigures("1", "212,416", true, true, "Select All"); // payment 12 at 3 %
    // A press in the heading band neither selects nor sorts.
    QTest::mouseClick(w->ListBox1, Qt::LeftButton, {}, QPoint(30, 8));
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{11});
    EXPECT_EQ(cell(0, table::kNumber), "001");
}

TEST_F(TableTest, SelectAllTogglesAndSurvivesARecalculation) {
    w->SelectAllButton->click();
    expectFigures("144", "12,048,294", false, false, "Deselect All");
    typeAndLeave(w->Kaisu, "120");
    EXPECT_EQ(w->SelNum->text(), "120");
    EXPECT_TRUE(w->SelectAllButton->Value());
    clickRow(5, Qt::ControlModifier);
    EXPECT_EQ(w->SelectAllButton->text(), "Select All");
    w->SelectAllButton->click();
    EXPECT_EQ(w->SelNum->text(), "120") << "a press selects all again";
    w->SelectAllButton->click();
    expectFigures("0", "0", false, false, "Select All");
    w->ListBox1->setFocus();
    QTest::keyClick(w->ListBox1, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->SelNum->text(), "120");
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    QTest::keyClick(w->Kaisu, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->Kaisu->selectedText(), "120") << "in a field, Ctrl+A selects its text";
}

TEST_F(TableTest, HideBelowCountsPaymentsAndShowUntilPayOffBringsThemBack) {
    typeAndLeave(w->Shokai, "5");
    clickRow(7); // payment 012
    w->BevelDelBelow->click();
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{7});
    typeAndLeave(w->Nenriritsu, "3");
    EXPECT_EQ(rows(), 8) << "a cut outlives a recalculation";
    clickRow(143 - 136); // the last row: nothing below to hide
    w->BevelDelBelow->click();
    EXPECT_EQ(rows(), 8);
    w->SelectAllButton->click();
    w->BevelDispAll->click();
    EXPECT_EQ(rows(), 140);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{0}) << "the first selected row stays selected";
    typeAndLeave(w->Shokai, "13");
    clickRow(1);
    w->BevelDelBelow->click(); // payments 13 and 14
    typeAndLeave(w->Shokai, "14");
    EXPECT_EQ(rows(), 1) << "a first row at the cut keeps it";
    typeAndLeave(w->Shokai, "15");
    EXPECT_EQ(rows(), 130) << "a first row past the cut drops it";
}

TEST_F(TableTest, RecombinationMovesTheRowsBelowToANewWindow) {
    engine::LoanForm form = loan2020();
    form.era = calendar::kHeisei;
    form.date = {"30", "3", "15", "20"};
    form.flatPayment = true;
    setForm(form);
    ASSERT_EQ(cell(20, table::kDate), "01.11.20"); // 2019-11-20, shown under Reiwa
    const std::string balance = cell(20, table::kBalance);
    contextMenu(w->ListBox1, 20, "Recombination");
    EXPECT_EQ(rows(), 21) << "the old window ends at the selected payment";
    MainWindow* next = newestWindow();
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(next->windowTitle(), "Flat payment Culc");
    EXPECT_EQ(next->loanForm().principal, balance);
    EXPECT_EQ(next->RekiKind->text(), "Reiwa");
    EXPECT_EQ((QStringList{next->StartY->text(), next->StartM->text(), next->StartD->text(), next->StartDX->text()}),
              (QStringList{"1", "11", "20", "20"}));
    ASSERT_EQ(next->ListBox1->ListCount(), 123);
    EXPECT_EQ(next->ListBox1->Cell(0, table::kDate), "01.12.20");
    EXPECT_EQ(next->ListBox1->Cell(122, table::kBalance), "0");
    EXPECT_EQ(next->size(), w->size());
    // From the first payment too: the other 143 move.
    next->close();
    setForm(loan2020());
    clickRow(0);
    w->BevelNewNext->click();
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(newestWindow()->ListBox1->ListCount(), 143);
}

} // namespace
