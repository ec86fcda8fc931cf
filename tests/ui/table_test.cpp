#include "uitest.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenuBar>
#include <QMimeData>

namespace {

using namespace uitest;

class TableTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        setDate(calendar::kWestern, "2020", "3", "15"); // the default loan borrowed on 2020-03-15
    }

    // Types over a cell as a user does: double-click, type, Return.
    void typeIntoCell(int row, int column, const QString& text) {
        QTest::mouseClick(w->ListBox1->viewport(), Qt::LeftButton, {}, cellCentre(row, column));
        QTest::mouseDClick(w->ListBox1->viewport(), Qt::LeftButton, {}, cellCentre(row, column));
        QWidget* editor = QApplication::focusWidget();
        ASSERT_NE(editor, w->ListBox1);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
    }
    MainWindow* newestWindow() const {
        for (MainWindow* m : shell::App::instance()->mainWindows())
            if (m != w && m->isVisible()) return m;
        return nullptr;
    }
};

// --- Selection sum ------------------------------------------------------------------------------

TEST_F(TableTest, NoSelectionShowsZeroAndDisablesTheButtons) {
    clickRow(2);
    w->SelectAllButton->click(); // all
    w->SelectAllButton->click(); // none
    EXPECT_EQ(w->ListBox1->SelCount(), 0);
    EXPECT_EQ(w->SelNum->text(), "0");
    EXPECT_EQ(w->RisokuTotal->text(), "0");
    EXPECT_FALSE(w->BevelNewNext->isEnabled());
    EXPECT_FALSE(w->BevelDelBelow->isEnabled());
    EXPECT_EQ(w->SelectAllButton->Caption(), "Select All");
}

TEST_F(TableTest, NonAdjacentRowsAreCountedAndSummed) {
    clickRow(0);
    EXPECT_TRUE(w->BevelNewNext->isEnabled());
    EXPECT_TRUE(w->BevelDelBelow->isEnabled());
    clickRow(2, Qt::ControlModifier);
    EXPECT_EQ(w->SelNum->text(), "2");
    EXPECT_EQ(w->RisokuTotal->text(), "298,813"); // 131,420 + 167,393
    EXPECT_FALSE(w->BevelNewNext->isEnabled());
    EXPECT_FALSE(w->BevelDelBelow->isEnabled());
}

TEST_F(TableTest, APressInTheHeadingBandIsConsumed) {
    EXPECT_TRUE(w->ListBox1_MouseDown(0, 16));
    EXPECT_FALSE(w->ListBox1_MouseDown(0, 17));
    EXPECT_TRUE(w->ListBox1_HeaderPressed(3));
    // Through the real widget: a press on the first row selects it.
    clickRow(0);
    EXPECT_EQ(w->ListBox1->ListIndex(), 0);
}

struct TypedCase {
    int row;
    const char* typed;
    const char* total;
};

TEST_F(TableTest, TypedOverInterestCellsCountAsTyped) {
    const TypedCase cases[] = {{0, "1,000", "1,000"}, {1, "abc", "0"}};
    for (const auto& c : cases) {
        typeIntoCell(c.row, engine::kInterest, c.typed);
        clickRow(10); // the sum follows the selection: select another row, then this one
        clickRow(c.row);
        EXPECT_EQ(w->RisokuTotal->text(), c.total) << c.typed;
    }
    typeIntoCell(3, engine::kInterest, "12.7");
    typeIntoCell(4, engine::kInterest, "12.7");
    clickRow(3);
    EXPECT_EQ(w->RisokuTotal->text(), "12");
    clickRow(4, Qt::ShiftModifier);
    EXPECT_EQ(w->RisokuTotal->text(), "24");
    // The number and date columns are not for typing.
    EXPECT_FALSE(w->ListBox1->model()->flags(w->ListBox1->model()->index(0, 1)) & Qt::ItemIsEditable);
}

// --- Select all ---------------------------------------------------------------------------------

TEST_F(TableTest, SelectAllTogglesAndSurvivesARecalculation) {
    w->SelectAllButton->click();
    EXPECT_EQ(w->ListBox1->SelCount(), 144);
    EXPECT_EQ(w->SelNum->text(), "144");
    EXPECT_EQ(w->SelectAllButton->Caption(), "Deselect All");
    const QString total = w->RisokuTotal->text();

    typeAndLeave(w->Kaisu, "120");
    EXPECT_EQ(rows(), 120);
    EXPECT_EQ(w->ListBox1->SelCount(), 120);
    EXPECT_EQ(w->SelNum->text(), "120");
    EXPECT_NE(w->RisokuTotal->text(), total);
    EXPECT_TRUE(w->SelectAllButton->Value());

    clickRow(5, Qt::ControlModifier); // one row deselected by hand
    EXPECT_EQ(w->SelectAllButton->Caption(), "Select All");
    w->SelectAllButton->click();
    EXPECT_EQ(w->ListBox1->SelCount(), 120) << "a press selects all again";
}

TEST_F(TableTest, SelectAllKeyInTheTableAndInAField) {
    w->ListBox1->setFocus();
    QTest::keyClick(w->ListBox1, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->ListBox1->SelCount(), 144);
    EXPECT_EQ(w->SelectAllButton->Caption(), "Deselect All");

    w->SelectAllButton->click();
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    QTest::keyClick(w->Kaisu, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(w->Kaisu->selectedText(), "144");
    EXPECT_EQ(w->ListBox1->SelCount(), 0);
}

TEST_F(TableTest, ShowUntilPayOffWithAllSelectedKeepsOnlyTheFirst) {
    clickRow(11);
    w->BevelDelBelow->click();
    w->SelectAllButton->click();
    ASSERT_EQ(w->ListBox1->SelCount(), 12);
    w->BevelDispAll->click();
    EXPECT_EQ(rows(), 144);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{0});
    EXPECT_EQ(w->SelectAllButton->Caption(), "Select All");
}

// --- Hide below and show until pay off ----------------------------------------------------------

TEST_F(TableTest, HideTwiceThenShowEverything) {
    const QString payoff = w->Kansai->text();
    clickRow(11);
    w->BevelDelBelow->click();
    EXPECT_EQ(rows(), 12);
    EXPECT_EQ(w->ListBox1->ListIndex(), 11);
    EXPECT_TRUE(w->BevelDispAll->isEnabled());
    EXPECT_EQ(w->Kansai->text(), payoff);

    typeAndLeave(w->Nenriritsu, "3");
    EXPECT_EQ(rows(), 12) << "a cut outlives a recalculation";

    clickRow(4);
    w->BevelDelBelow->click();
    EXPECT_EQ(rows(), 5);
    w->BevelDispAll->click();
    EXPECT_EQ(rows(), 144);
    EXPECT_EQ(w->ListBox1->ListIndex(), 4);
    EXPECT_FALSE(w->BevelDispAll->isEnabled());
    EXPECT_EQ(w->Kansai->text(), payoff);
}

TEST_F(TableTest, HideBelowTheLastRowOrSeveralRowsDoesNothing) {
    clickRow(143);
    w->hideBelow();
    EXPECT_EQ(w->totalRows, -1);
    clickRow(3);
    clickRow(5, Qt::ControlModifier);
    w->hideBelow();
    EXPECT_EQ(w->totalRows, -1);
    EXPECT_EQ(rows(), 144);
}

TEST_F(TableTest, HideCountsPaymentNumbersNotRows) {
    typeAndLeave(w->Shokai, "5");
    clickRow(7); // payment 012
    ASSERT_EQ(cell(7, 0), "012");
    w->BevelDelBelow->click();
    EXPECT_EQ(w->totalRows, 12);
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(w->ListBox1->ListIndex(), 7);
    // A first row past the cut drops the cut; one at the cut keeps it.
    typeAndLeave(w->Shokai, "12");
    EXPECT_EQ(rows(), 1);
    typeAndLeave(w->Shokai, "13");
    EXPECT_EQ(rows(), 132);
    EXPECT_EQ(w->totalRows, -1);
}

// --- Recombination ------------------------------------------------------------------------------

TEST_F(TableTest, RecombinationMovesTheRowsBelowToANewLoan) {
    w->KindPopup->setListIndex(0);
    setDate(calendar::kReiwa, "2", "3", "15");
    clickRow(11);
    const engine::Row selected = w->ListBox1->RowCells(11);
    w->BevelNewNext->click();

    EXPECT_EQ(rows(), 12);
    EXPECT_EQ(cell(11, 0), "012");
    MainWindow* next = newestWindow();
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(next->GankinField->Text(), selected[engine::kBalance]);
    EXPECT_EQ(next->Kaisu->Text(), "132");
    EXPECT_EQ(next->Shokai->Text(), "1");
    EXPECT_EQ(next->Nenriritsu->Text(), w->Nenriritsu->Text());
    EXPECT_EQ(next->KindPopup->ListIndex(), 0);
    EXPECT_EQ(next->windowTitle(), "Flat payment Culc");
    EXPECT_EQ(next->RekiKind->Caption(), "Reiwa");
    EXPECT_EQ(next->StartY->Text(), "3");
    EXPECT_EQ(next->StartM->Text(), "3");
    EXPECT_EQ(next->StartD->Text(), "8");
    ASSERT_EQ(next->ListBox1->ListCount(), 132);
    EXPECT_EQ(next->ListBox1->Cell(0, 0), "001");
    EXPECT_EQ(next->ListBox1->Cell(0, engine::kDate), "03.04.08");
    EXPECT_EQ(next->ListBox1->Cell(131, engine::kBalance), "0");
    EXPECT_EQ(next->size(), w->size());
}

struct WideningCase {
    const char* startYear;
    const char* month;
    int row;
    const char* date;
    const char* newYear;
};

TEST_F(TableTest, RecombinationWidensAWesternYear) {
    const WideningCase cases[] = {{"2024", "3", 23, "26.03.08", "2026"}, {"1999", "3", 23, "01.03.08", "2001"}};
    for (const auto& c : cases) {
        w->BevelDispAll_Action();
        w->StartY->setText(c.startYear);
        w->StartM->setText(c.month);
        w->CulcButton->Push();
        clickRow(c.row);
        ASSERT_EQ(cell(c.row, engine::kDate), c.date);
        w->BevelNewNext->click();
        MainWindow* next = newestWindow();
        ASSERT_NE(next, nullptr);
        EXPECT_EQ(next->StartY->Text(), c.newYear);
        EXPECT_EQ(next->RekiKind->MenuValue(), calendar::kWestern);
        next->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(TableTest, RecombinationAcrossAnEraNamesTheLaterEra) {
    setDate(calendar::kHeisei, "30", "3", "15");
    clickRow(19); // 2019-11-08, shown under Reiwa
    ASSERT_EQ(cell(19, engine::kDate), "01.11.08");
    w->BevelNewNext->click();
    MainWindow* next = newestWindow();
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(next->RekiKind->Caption(), "Reiwa");
    EXPECT_EQ(next->StartY->Text(), "1");
    EXPECT_EQ(next->ListBox1->Cell(0, engine::kDate), "01.12.08");
}

TEST_F(TableTest, RecombinationAtTheLastPaymentKeepsTheNewDefaultTable) {
    clickRow(143);
    w->BevelNewNext->click();
    EXPECT_EQ(rows(), 144);
    MainWindow* next = newestWindow();
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(next->Kaisu->Text(), "0");
    EXPECT_EQ(next->ListBox1->ListCount(), 144) << "the table of the default form";
    EXPECT_EQ(next->ListBox1->Cell(0, engine::kPrincipal), "694,444");
}

// --- Copy ---------------------------------------------------------------------------------------

TEST_F(TableTest, CopyPutsTheSelectedRowsOnTheClipboardForASpreadsheet) {
    clickRow(0);
    clickRow(1, Qt::ShiftModifier);
    QTest::keyClick(w->ListBox1, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text(), "001\t20.04.08\t825,864\t694,444\t131,420\t99,305,556\n"
                              "002\t20.05.08\t857,578\t694,444\t163,134\t98,611,112\n");
    EXPECT_EQ(copied->data("text/csv"), "001,20.04.08,\"825,864\",\"694,444\",\"131,420\",\"99,305,556\"\r\n"
                                        "002,20.05.08,\"857,578\",\"694,444\",\"163,134\",\"98,611,112\"\r\n");
    EXPECT_TRUE(copied->html().startsWith("<table><tr><td>001</td>"));

    QGuiApplication::clipboard()->clear();
    menuItem(w, "EditCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\t'), 10);
}

} // namespace
