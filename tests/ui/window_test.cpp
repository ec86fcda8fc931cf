// SPDX-License-Identifier: GPL-3.0-or-later
// The window as a whole: start-up, a new window from the front one, refusals, the keyboard
// order, resizing, the help and About windows, the texts in Japanese.
#include "uitest.h"

#include "calendar/calendar.h"
#include "runtime/numbers.h"
#include "version.h"

#include <optional>

namespace {

using namespace uitest;
using shell::App;

QString today(int part) {
    const QDate date = QDate::currentDate();
    const int values[] = {static_cast<int>(calendar::yearInEra(calendar::kReiwa, date.year())), date.month(),
                          date.day()};
    return QString::number(values[part]);
}

TEST_F(WindowTest, OpensOnTodayInReiwaWithTheDefaultTable) {
    EXPECT_EQ(w->windowTitle(), "Equal principal Culc");
    EXPECT_EQ(w->RekiKind->text(), "Reiwa");
    EXPECT_EQ((QStringList{w->StartY->text(), w->StartM->text(), w->StartD->text()}),
              (QStringList{today(0), today(1), today(2)}));
    EXPECT_EQ(w->GankinField->text(), "100,000,000");
    EXPECT_EQ(rows(), 144);
    EXPECT_EQ(cell(0, table::kPrincipal), "694,444");
    EXPECT_EQ(w->SelNum->text(), "0");
    EXPECT_EQ(w->RisokuTotal->text(), "0");
    for (const QWidget* button : {w->BevelNewNext, w->BevelDispAll, w->BevelDelBelow})
        EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), w->ListBox1);
    EXPECT_FALSE(w->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(w->windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(w->CulcButton->isDefault()) << "drawn as the window's default button";
    EXPECT_EQ(joined(w->windowIcon().availableSizes(), [](QSize s) { return QString::number(s.width()); }),
              "16|32|48|64|128|256");
    // The number and the date centred, the amounts to the right.
    const QAbstractItemModel* model = w->ListBox1->model();
    for (int column = 0; column < model->columnCount(); ++column)
        EXPECT_EQ(model->index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                  Qt::AlignVCenter | (column >= int{table::kAmount} ? Qt::AlignRight : Qt::AlignHCenter))
            << column;
}

TEST_F(WindowTest, ThePayoffDateNamesItsEraInTheUsersLanguage) {
    Japanese japanese;
    engine::LoanForm form = loan2020();
    form.era = calendar::kReiwa;
    form.date.year = "2";
    setForm(form);
    EXPECT_EQ(w->Kansai->text(), "令和  14 年 3 月 8 日");
}

// New copies the front window's form (but for the pay day and the delay) and its size, and
// shows the table of that form, whichever the method.
TEST_F(WindowTest, NewCopiesTheFrontWindowsFormAndCalculatesIt) {
    for (const bool flat : {false, true}) {
        engine::LoanForm form{"30,000,000",        "1.5", "360", "5", calendar::kWestern, {"2020", "7", "29", "20"},
                              calendar::kTwoAfter, flat};
        setForm(form);
        w->resize(w->width() + 40, w->height() - 30);
        menuItem(w, "FileNew")->trigger();
        MainWindow* copy = newestWindow();
        ASSERT_NE(copy, nullptr);
        form.date.payDay = "8";
        form.delay = calendar::kNext;
        EXPECT_EQ(copy->loanForm(), form);
        EXPECT_EQ(copy->size(), w->size());
        const auto calc = engine::calculate(form);
        EXPECT_EQ(copy->ListBox1->RowCells(0), table::rowTexts(calc.payments, calendar::kWestern, 8).at(0))
            << "the table of the copied form, from payment 1 until the first-row field is left";
        EXPECT_EQ(copy->ListBox1->ListCount(), 360);
        copy->close();
    }
}

TEST_F(WindowTest, ARefusedCalculationKeepsTheTableAndBeeps) {
    const auto before = table();
    w->Nenriritsu->setText("abc");
    w->CulcButton->Push();
    EXPECT_EQ(table(), before);
    w->Nenriritsu->setText("1e-20");
    w->KindPopup->setListIndex(0);
    EXPECT_EQ(table(), before) << "a rate too small for the annuity formula";
    EXPECT_EQ(w->windowTitle(), "Flat payment Culc");
}

TEST_F(WindowTest, TabGoesThroughTheFieldsInReadingOrderThenTheTableAndTheButtons) {
    QTest::mouseClick(w->GankinField, Qt::LeftButton);
    // The buttons under the table take no focus while they are disabled, as they are at first.
    for (const QWidget* next :
         std::initializer_list<QWidget*>{w->Nenriritsu, w->Kaisu, w->Shokai, w->StartY, w->StartM, w->StartD,
                                         w->StartDX, w->ListBox1, w->RisokuTotal, w->SelectAllButton, w->RekiKind,
                                         w->DelayPop, w->KindPopup, w->CulcButton, w->HelpBtn, w->GankinField}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next) << next->objectName().toStdString();
    }
}

TEST_F(WindowTest, ResizingFollowsTheLocks) {
    const QPoint culc = w->CulcButton->pos(), help = w->HelpBtn->pos(), hide = w->BevelDelBelow->pos();
    const QSize table = w->ListBox1->size();
    w->GankinField->setFocus();
    w->resize(w->width() + 100, w->height() + 50);
    EXPECT_EQ(QApplication::focusWidget(), w->ListBox1) << "a resized window gives the table the focus";
    EXPECT_EQ(w->CulcButton->pos(), culc + QPoint(100, 0));
    EXPECT_EQ(w->HelpBtn->pos(), help + QPoint(100, 0));
    EXPECT_EQ(w->ListBox1->size(), table + QSize(100, 50));
    EXPECT_EQ(w->BevelDelBelow->pos(), hide + QPoint(0, 50));
    const int width = w->width();
    w->resize(100, 100);
    EXPECT_EQ(w->centralWidget()->width(), width - 100) << "no narrower than the design";
    EXPECT_EQ(w->centralWidget()->height(), 250);
}

TEST_F(WindowTest, TheHelpWindowStandsBesideItsWindowAndReleasesItsButton) {
    EXPECT_EQ(joined(w->menuBar()->findChild<QMenu*>("HelpMenu")->actions(), [](QAction* a) { return a->text(); }),
              "&Usage|A&bout this App");
    QTest::keyClick(w, Qt::Key_F1);
    EXPECT_TRUE(w->HelpBtn->Value()) << "F1 opens it as its button does";
    shell::HelpWindow* help = App::instance()->helpWindow();
    EXPECT_TRUE(help->isVisible());
    // The offscreen screen has no room on the right: the help window stands flush left, frame to frame.
    EXPECT_EQ(help->frameGeometry().topRight(), w->frameGeometry().topLeft() - QPoint(1, 0));
    EXPECT_EQ(help->windowTitle(), "Kestrune");
    EXPECT_FALSE(help->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(help->Label1->text().count('\n'), 9);
    help->Label1->setSelection(0, 20);
    EXPECT_EQ(help->Label1->selectedText(), help->Label1->text().left(20)) << "its text can be selected to copy";
    menuItem(w, "FileNew")->trigger();
    EXPECT_FALSE(help->isVisible()) << "New hides the help window";
    EXPECT_FALSE(w->HelpBtn->Value());
    w->HelpBtn->click();
    help->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(w->HelpBtn->Value()) << "closing it releases its window's button";
    EXPECT_FALSE(App::instance()->isExistHelp);
}

TEST_F(WindowTest, AboutShowsTheVersionAndHidesOnClose) {
    menuItem(w, "AppleAbout")->trigger();
    shell::AboutWindow* about = App::instance()->aboutWindow();
    EXPECT_EQ(about->verName->text(), QString("Version ") + kestrune::kVersion);
    EXPECT_EQ(about->size(), QSize(300, 320));
    QTest::mouseClick(about->urlMsg, Qt::RightButton);
    EXPECT_TRUE(about->isVisible()) << "only a left click opens the address";
    QTest::mouseClick(about->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(about->isVisible());
}

TEST(Strings, EveryTextInEnglishAndJapanese) {
    for (const bool japanese : {false, true}) {
        std::optional<Japanese> translation;
        if (japanese) translation.emplace();
        for (const auto& constant : strings::kAllConstants) {
            const std::string context(constant.context), name(constant.name), english(constant.defaultText);
            const QString text = QCoreApplication::translate(context.c_str(), name.c_str(), english.c_str());
            EXPECT_FALSE(japanese && text == QString::fromStdString(name)) << name << " has no Japanese text";
        }
        // The first four items of the era menu are the era names the window compares its caption with.
        EXPECT_EQ(strings::fields(strings::kRekiCombination, ',').mid(0, 4),
                  (QStringList{strings::text(strings::kRekiXst), strings::text(strings::kRekiS),
                               strings::text(strings::kRekiH), strings::text(strings::kRekiR)}));
        EXPECT_EQ(strings::fields(strings::kHeader, '\t').size(), 6);
    }
}

} // namespace
