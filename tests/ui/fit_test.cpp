// SPDX-License-Identifier: GPL-3.0-or-later
#include "uitest.h"

#include <memory>

namespace {

using namespace uitest;

// Each check compares the text's advance in the control's font with the room the control gives it.
void expectWhole(const controls::TextField* field) {
    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    const QMargins margins = field->textMargins();
    const int room = field->style()->subElementRect(QStyle::SE_LineEditContents, &option, field).width() - 2 * 2 - 1 -
                     margins.left() - margins.right();
    EXPECT_GE(field->height(), field->sizeHint().height()) << field->objectName().toStdString() << " is too low";
    EXPECT_LE(field->fontMetrics().horizontalAdvance(field->text()), room)
        << field->objectName().toStdString() << " \"" << field->text().toStdString() << "\"";
}

// Every label, button and drop-down of a window as wide as its text needs, every column of its
// tables as wide as its heading and its first and last rows, and the window within the screen.
void expectWholeTexts(const QWidget* window) {
    const QSize room = window->screen()->availableSize(), size = window->frameGeometry().size();
    EXPECT_TRUE(size.width() <= room.width() && size.height() <= room.height())
        << window->objectName().toStdString() << " " << size.width() << "x" << size.height() << " on the screen";
    // Every control has a place of its own, and so has a text that a layout places: none lies over
    // another beside it.
    const auto isControl = [](const QWidget* c) {
        const auto* label = qobject_cast<const QLabel*>(c);
        return c->isVisible() && (qobject_cast<const QAbstractButton*>(c) || qobject_cast<const QLineEdit*>(c) ||
                                  qobject_cast<const QAbstractSpinBox*>(c) || qobject_cast<const QComboBox*>(c) ||
                                  (label && !label->text().isEmpty() && c->parentWidget()->layout()));
    };
    const auto all = window->findChildren<QWidget*>();
    for (const QWidget* a : all)
        for (const QWidget* b : all)
            if (a < b && a->parent() == b->parent() && isControl(a) && isControl(b)) {
                EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                    << a->metaObject()->className() << " " << a->objectName().toStdString() << " and "
                    << b->metaObject()->className() << " " << b->objectName().toStdString();
            }
    for (const QWidget* c : window->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(c);
        if (c->isVisible() && ((label && !label->wordWrap()) || qobject_cast<const QAbstractButton*>(c) ||
                               qobject_cast<const QComboBox*>(c))) {
            EXPECT_GE(c->width(), c->sizeHint().width())
                << c->objectName().toStdString() << " " << c->metaObject()->className();
        }
        const auto* view = qobject_cast<const QTableView*>(c);
        if (!view || !c->isVisible() || view->model()->rowCount() == 0) continue;
        const QAbstractItemModel* model = view->model();
        for (int column = 0; column < model->columnCount(); ++column)
            for (const QString& text :
                 {model->headerData(column, Qt::Horizontal).toString(), model->index(0, column).data().toString(),
                  model->index(model->rowCount() - 1, column).data().toString()})
                EXPECT_LE(view->fontMetrics().horizontalAdvance(text) + 6, view->columnWidth(column))
                    << view->objectName().toStdString() << " \"" << text.toStdString() << "\"";
    }
}

void checkEveryTextShowsWhole(const char* language) {
    SCOPED_TRACE(language);
    auto* w = new MainWindow;
    showActive(w);
    const std::pair<controls::TextField*, const char*> widest[] = {{w->GankinField, "999,999,999,999"},
                                                                   {w->Nenriritsu, "12.345"},
                                                                   {w->Kaisu, "100000"},
                                                                   {w->Shokai, "100000"},
                                                                   {w->StartY, "-9999"},
                                                                   {w->RisokuTotal, "999,999,999,999"}};
    for (const auto& [field, text] : widest) {
        field->setText(text);
        expectWhole(field);
    }
    // Fields and buttons keep their distance from their neighbours on the line.
    const auto controls = w->centralWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* a : controls)
        for (const QWidget* b : controls) {
            const bool labels = qobject_cast<const QLabel*>(a) || qobject_cast<const QLabel*>(b);
            const QRect widened = a->geometry().adjusted(-1, 0, 1, 0);
            EXPECT_TRUE(a == b || labels || !a->isVisible() || !widened.intersects(b->geometry()))
                << a->objectName().toStdString() << " and " << b->objectName().toStdString();
        }

    // The first and last rows of a loan of 100,000,000 in 1, 10 and 144 payments, both methods.
    w->RekiKind->setMenuValue(calendar::kWestern);
    w->StartY->setText("2020");
    w->GankinField->setText("100000000");
    w->Nenriritsu->setText("12.345");
    w->Shokai->setText("1");
    for (const char* times : {"1", "10", "144"})
        for (const int method : {0, 1}) {
            w->Kaisu->setText(times);
            w->KindPopup->setListIndex(method);
            w->CulcButton->Push();
            expectWholeTexts(w);
        }

    // The pay-off label of a 100,000-payment loan from the last year the form takes, and its
    // count of selected rows.
    for (const int era : {calendar::kWestern, calendar::kReiwa}) {
        w->RekiKind->setMenuValue(era);
        w->StartY->setText("9999");
        w->Kaisu->setText("100000");
        w->CulcButton->Push();
        expectWholeTexts(w);
    }
    w->SelectAllButton->click();
    EXPECT_EQ(w->SelNum->text(), "100000");
    expectWholeTexts(w);
    EXPECT_LE(w->SelNum->geometry().right(), w->Rectangle1->contentsRect().right());

    // Leaving a field that can't show all it holds shows the head of the text.
    w->GankinField->setText("1234567890123456789012345678901234567890");
    QTest::mouseClick(w->GankinField, Qt::LeftButton);
    QTest::keyClick(w->GankinField, Qt::Key_End);
    QTest::keyClick(w->GankinField, Qt::Key_Tab);
    EXPECT_EQ(w->GankinField->cursorPosition(), 0);

    w->KindPopup->setListIndex(0);
    w->Kaisu->setText("420");
    w->CulcButton->Push();
    w->showPlan();
    auto* plan = w->findChild<planner::PlanWindow*>();
    plan->Terms->BonusAmount->setText("x");
    plan->Terms->Bonus->click(); // with a problem of the terms shown
    ASSERT_TRUE(plan->Terms->Problem->isVisible());
    expectWholeTexts(plan);
    // The help text whole, where need be by scrolling.
    w->HelpBtn->click();
    const QLabel* help = shell::App::instance()->helpWindow()->Label1;
    QCoreApplication::processEvents();
    expectWholeTexts(help->window());
    EXPECT_GE(help->height(), help->heightForWidth(help->width()));
    EXPECT_LE(help->width(), help->parentWidget()->width()) << "as wide as the window shows";
    closeAllWindows();
}

// Every control of a new window where the design puts it, each line a control (by its name, a
// label by its text) and its left, top, width and height, as the default font of the offscreen
// platform lays them out; controls widen for their text and move right for the one before them.
TEST(Fit, EveryControlStandsWhereTheDesignPutsIt) {
    auto* w = new MainWindow;
    showActive(w);
    if (w->GankinField->fontMetrics().horizontalAdvance("999,999,999,999") != 103)
        GTEST_SKIP() << "another default font than the one these places were read with";
    std::string all;
    for (const QWidget* c : w->centralWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const auto* label = qobject_cast<const QLabel*>(c);
        const QRect r = c->geometry();
        all += (c->objectName().isEmpty() && label ? label->text() : c->objectName()).toStdString() + " " +
               std::to_string(r.x()) + " " + std::to_string(r.y()) + " " + std::to_string(r.width()) + " " +
               std::to_string(r.height()) + "; ";
    }
    all += "columns";
    for (int c = 0; c < 6; ++c) all += " " + std::to_string(w->ListBox1->columnWidth(c));
    all += "; ";
    EXPECT_EQ(all, "Rectangle1 82 114 48 22; Principal: 20 23 56 20; Rate: 190 23 38 20; Times: 281 23 42 20; "
                   "PayStart: 324 55 62 20; / 214 55 15 20; / 257 55 15 20;  299 55 15 20; Selection: 20 116 60 20; "
                   "GankinField 77 21 110 22; Nenriritsu 229 21 49 22; Kaisu 327 21 53 22; StartY 171 53 42 22; "
                   "StartM 231 53 25 22; StartD 273 53 25 22; KindPopup 291 85 123 20; CulcButton 481 82 80 58; "
                   "ListBox1 20 146 541 440; RisokuTotal 192 114 113 22; SelectAllButton 312 114 106 22; "
                   "RekiKind 89 53 80 22; Interest: 133 116 52 20; BevelNewNext 20 598 140 22; "
                   "BevelDispAll 172 598 140 22; BevelDelBelow 324 598 140 22; First: 388 23 30 20; "
                   "Shokai 419 21 53 22; Pay off: 20 85 59 20; Kansai 89 85 140 20; Borrow: 20 55 64 20; "
                   "th 497 55 15 20; StartDX 473 53 25 22; HelpBtn 479 21 80 22; DelayPop 390 53 80 22; "
                   "Method 0 0 100 30; columns 53 88 87 87 87 119; ");
    closeAllWindows();
}

TEST(Fit, EveryFieldLabelAndCellShowsItsWholeTextInEnglish) { checkEveryTextShowsWhole("English"); }

TEST(Fit, EveryFieldLabelAndCellShowsItsWholeTextInALargeFont) {
    const QFont normal = QApplication::font();
    QFont large = normal;
    large.setPointSizeF(normal.pointSizeF() * 1.5);
    QApplication::setFont(large);
    checkEveryTextShowsWhole("a font one and a half times larger");
    QApplication::setFont(normal);
}

TEST(Fit, EveryFieldLabelAndCellShowsItsWholeTextInJapanese) {
    Japanese japanese;
    ASSERT_TRUE(japanese.loaded());
    checkEveryTextShowsWhole("Japanese");
}

} // namespace
