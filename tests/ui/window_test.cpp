#include "uitest.h"

#include "runtime/numbers.h"

#include <QDate>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

namespace {

using namespace uitest;

std::string reiwaYearToday() { return runtime::Str(static_cast<std::int64_t>(QDate::currentDate().year() - 2018)); }

TEST_F(WindowTest, OpensOnTodayInReiwaWithTheDefaultTable) {
    EXPECT_EQ(w->windowTitle(), "Equal principal Culc");
    EXPECT_EQ(w->StartY->Text(), reiwaYearToday());
    EXPECT_EQ(w->StartM->Text(), runtime::Str(static_cast<std::int64_t>(QDate::currentDate().month())));
    EXPECT_EQ(w->StartD->Text(), runtime::Str(static_cast<std::int64_t>(QDate::currentDate().day())));
    EXPECT_EQ(w->RekiKind->Caption(), "Reiwa");
    EXPECT_EQ(w->GankinField->Text(), "100,000,000");
    EXPECT_EQ(rows(), 144);
    EXPECT_EQ(cell(0, 0), "001");
    EXPECT_EQ(cell(0, engine::kPrincipal), "694,444");
    EXPECT_EQ(cell(143, engine::kBalance), "0");
    EXPECT_EQ(w->SelNum->text(), "0");
    EXPECT_EQ(w->RisokuTotal->text(), "0");
    EXPECT_FALSE(w->BevelNewNext->isEnabled());
    EXPECT_FALSE(w->BevelDispAll->isEnabled());
    EXPECT_FALSE(w->BevelDelBelow->isEnabled());
    EXPECT_EQ(w->ListBox1, QApplication::focusWidget());
}

TEST_F(WindowTest, TableHasSixHeadingsAndNeverSorts) {
    const auto* header = w->ListBox1->horizontalHeader();
    QStringList headings;
    for (int c = 0; c < w->ListBox1->model()->columnCount(); ++c)
        headings << w->ListBox1->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(headings, (QStringList{"No.", "Repayment", "Amount", "Principal", "Interest", "Balance"}));

    w->ListBox1->setListIndex(3);
    const auto before = table();
    for (int c = 0; c < 6; ++c) {
        const QPoint inHeading(header->sectionViewportPosition(c) + 5, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, inHeading);
        QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, inHeading);
    }
    EXPECT_EQ(table(), before);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{3});
}

TEST_F(WindowTest, RefusedCalculationKeepsTheTable) {
    const auto before = table();
    for (const char* zero : {"0", "", "abc"}) {
        w->Nenriritsu->setText(zero);
        w->CulcButton->Push();
        EXPECT_EQ(table(), before) << "rate \"" << zero << "\"";
    }
    w->Nenriritsu->setText("1e-20");
    w->KindPopup->setListIndex(0);
    EXPECT_EQ(table(), before) << "a rate too small for the annuity formula";
    EXPECT_EQ(w->windowTitle(), "Flat payment Culc");
}

TEST_F(WindowTest, ReturnInAFieldPressesCulc) {
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    w->Kaisu->selectAll();
    QTest::keyClicks(w->Kaisu, "12");
    resetCalculations();
    QTest::keyClick(w->Kaisu, Qt::Key_Return);
    EXPECT_GE(calculations(), 1);
    EXPECT_EQ(rows(), 12);
}

TEST_F(WindowTest, TabGoesThroughTheFieldsInReadingOrderThenTheTable) {
    QTest::mouseClick(w->GankinField, Qt::LeftButton);
    const QWidget* expected[] = {w->Nenriritsu, w->Kaisu,  w->Shokai,  w->StartY,
                                 w->StartM,     w->StartD, w->StartDX, w->ListBox1};
    for (const QWidget* next : expected) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
    }
    EXPECT_EQ(calculations(), 1) << "the rate's first visit writes 2.0 as 2";
}

TEST_F(WindowTest, AClickOnAnotherFieldAfterAChangeLandsThere) {
    QTest::mouseClick(w->Nenriritsu, Qt::LeftButton);
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    EXPECT_EQ(w->Nenriritsu->Text(), "2");
    EXPECT_EQ(calculations(), 1);
    EXPECT_EQ(QApplication::focusWidget(), w->Kaisu);
}

TEST_F(WindowTest, TheCalculateButtonEndsAnEditAndLeavesTheFocusOnTheTable) {
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    w->Kaisu->selectAll();
    QTest::keyClicks(w->Kaisu, "0120");
    QTest::keyClick(w->Kaisu, Qt::Key_Enter);
    EXPECT_EQ(w->Kaisu->Text(), "120");
    EXPECT_EQ(rows(), 120);
    EXPECT_EQ(QApplication::focusWidget(), w->ListBox1);
}

TEST_F(WindowTest, ResizingFollowsTheLocks) {
    const QPoint culc = w->CulcButton->pos();
    const QPoint help = w->HelpBtn->pos();
    const QSize table = w->ListBox1->size();
    const QPoint hide = w->BevelDelBelow->pos();
    w->resize(w->width() + 100, w->height() + 50);
    QCoreApplication::processEvents();
    EXPECT_EQ(w->CulcButton->pos(), culc + QPoint(100, 0));
    EXPECT_EQ(w->HelpBtn->pos(), help + QPoint(100, 0));
    EXPECT_EQ(w->ListBox1->size(), table + QSize(100, 50));
    EXPECT_EQ(w->BevelDelBelow->pos(), hide + QPoint(0, 50));
    w->resize(100, 100);
    QCoreApplication::processEvents();
    EXPECT_GE(w->centralWidget()->width(), 485);
    EXPECT_GE(w->centralWidget()->height(), 250);
}

TEST_F(WindowTest, FileNewCopiesTheFrontWindowsForm) {
    w->KindPopup->setListIndex(0);
    typeAndLeave(w->Kaisu, "24");
    w->Shokai->setText("5");
    w->resize(600, 700);
    w->move(40, 30);
    QCoreApplication::processEvents();

    auto* fileNew = menuItem(w, "FileNew");
    ASSERT_NE(fileNew, nullptr);
    fileNew->trigger();
    auto windows = shell::App::instance()->mainWindows();
    MainWindow* created = nullptr;
    for (MainWindow* m : windows)
        if (m != w) created = m;
    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->windowTitle(), "Flat payment Culc");
    EXPECT_EQ(created->Kaisu->Text(), "24");
    EXPECT_EQ(created->Shokai->Text(), "5");
    EXPECT_EQ(created->StartY->Text(), w->StartY->Text());
    EXPECT_EQ(created->numTop, 1);
    EXPECT_EQ(created->ListBox1->ListCount(), 24);
    EXPECT_EQ(created->ListBox1->Cell(0, 0), "001");
    EXPECT_EQ(created->ListBox1->Cell(0, engine::kAmount), w->ListBox1->Cell(0, engine::kAmount));
    EXPECT_EQ(created->size(), w->size());
}

TEST_F(WindowTest, MenusCarryTheirItemsAndStandardShortcuts) {
    const struct {
        const char* name;
        const char* text;
        QKeySequence shortcut;
    } items[] = {
        {"FileNew", "New", QKeySequence::New},
        {"FileQuit", "Quit", QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {"EditUndo", "Undo", QKeySequence::Undo},
        {"EditRedo", "Redo", QKeySequence::Redo},
        {"EditCut", "Cut", QKeySequence::Cut},
        {"EditCopy", "Copy", QKeySequence::Copy},
        {"EditPaste", "Paste", QKeySequence::Paste},
        {"EditClear", "Delete", QKeySequence()},
        {"EditSelectAll", "Select All", QKeySequence::SelectAll},
        {"AppleAbout", "About this App", QKeySequence()},
    };
    for (const auto& item : items) {
        const auto* action = menuItem(w, item.name);
        ASSERT_NE(action, nullptr) << item.name;
        EXPECT_EQ(action->text(), item.text);
        EXPECT_EQ(action->shortcut(), item.shortcut) << item.name;
    }
    // Opening the Edit menu offers what the focused control can do.
    auto* editMenu = w->menuBar()->findChild<QMenu*>("EditMenu");
    const auto offered = [&](const char* name) {
        emit editMenu->aboutToShow();
        return menuItem(w, name)->isEnabled();
    };
    w->ListBox1->setFocus();
    EXPECT_FALSE(offered("EditCopy")) << "no row selected";
    w->ListBox1->setListIndex(0);
    EXPECT_TRUE(offered("EditCopy"));
    EXPECT_FALSE(offered("EditPaste"));
    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    EXPECT_TRUE(offered("EditPaste"));
    EXPECT_EQ(menuItem(w, "FileQuit")->menuRole(), QAction::QuitRole);
    EXPECT_EQ(menuItem(w, "AppleAbout")->menuRole(), QAction::AboutRole);
}

} // namespace
