// SPDX-License-Identifier: GPL-3.0-or-later
#include "uitest.h"

#include <functional>
#include <map>
#include <optional>

namespace {

using namespace uitest;

int copiedRows() { return static_cast<int>(QGuiApplication::clipboard()->text().count('\n')); }

void pressCopy() {
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
}

TEST_F(WindowTest, CopyTakesTheSelectedRowsWhicheverControlHasTheFocus) {
    QTest::keyClick(openMenu("EditMenu"), Qt::Key_Escape); // shown with nothing to copy
    clickRow(0);
    QTest::mouseClick(w->SelectAllButton, Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), w->SelectAllButton);
    pressCopy();
    EXPECT_EQ(copiedRows(), 144) << "Ctrl+C on the Select All button";

    QMenu* edit = openMenu("EditMenu");
    EXPECT_EQ(joined(edit->actions(), [](const QAction* item) { return item->text(); }),
              "&Undo|&Redo||Cu&t|&Copy|&Paste|&Delete||Select &All");
    EXPECT_TRUE(menuItem(w, "EditCopy")->isEnabled());
    QGuiApplication::clipboard()->clear();
    QTest::mouseClick(edit, Qt::LeftButton, {}, edit->actionGeometry(menuItem(w, "EditCopy")).center());
    EXPECT_EQ(copiedRows(), 144) << "Edit > Copy";

    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    pressCopy();
    EXPECT_EQ(copiedRows(), 144) << "a field with no text selected";
    w->Kaisu->selectAll();
    pressCopy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "144") << "a field's selected text is the field's";
    w->Kaisu->clear();
    edit = openMenu("EditMenu");
    QTest::mouseClick(edit, Qt::LeftButton, {}, edit->actionGeometry(menuItem(w, "EditPaste")).center());
    EXPECT_EQ(w->Kaisu->text(), "144") << "Edit > Paste into a field with nothing selected";
}

TEST_F(WindowTest, EditOffersTheCommandsOfTheFocusedControlAfterAnotherMenuIsDismissed) {
    // Escape leaves the menu bar holding the keyboard: Right and Down open Edit from there.
    const auto openEditFromFile = [this] {
        QTest::keyClick(openMenu("FileMenu"), Qt::Key_Escape);
        QTest::keyClick(w->menuBar(), Qt::Key_Right);
        QTest::keyClick(w->menuBar(), Qt::Key_Down);
        EXPECT_EQ(QApplication::activePopupWidget(), w->menuBar()->findChild<QMenu*>("EditMenu"));
    };
    clickRow(2);
    openEditFromFile();
    EXPECT_TRUE(menuItem(w, "EditCopy")->isEnabled());
    EXPECT_FALSE(menuItem(w, "EditPaste")->isEnabled()) << "nothing pastes into the table";
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);

    QTest::mouseClick(w->Kaisu, Qt::LeftButton);
    openEditFromFile();
    EXPECT_TRUE(menuItem(w, "EditPaste")->isEnabled()) << "Paste into the field being edited";
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

TEST_F(WindowTest, TheTableIsOneTabStopAndTabNeverChangesTheSelection) {
    clickRow(3);
    QTest::keyClick(w->ListBox1, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), w->RisokuTotal);
    QTest::keyClick(w->RisokuTotal, Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), w->ListBox1);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{3});
    EXPECT_EQ(w->SelNum->text(), "1");
    QTest::keyClick(w->ListBox1, Qt::Key_Down);
    EXPECT_EQ(w->ListBox1->SelectedRows(), std::vector<int>{4}) << "arrows move the selection";
}

// Ctrl+N answers in every window, as in the main one, and hides the About window; so does Ctrl+Q
// in the Plan window.
TEST_F(WindowTest, NewAndQuitWorkFromEveryWindow) {
    w->HelpBtn->click();
    w->showPlan();
    auto* plan = w->findChild<planner::PlanWindow*>();
    for (QWidget* window :
         std::initializer_list<QWidget*>{shell::App::instance()->helpWindow(), plan->Events, nullptr}) {
        if (!window) w->_AppleAbout_Action(); // modal: opened last
        window = window ? window : shell::App::instance()->aboutWindow();
        showActive(window->window());
        const auto opened = shell::App::instance()->mainWindows().size();
        QTest::keyClick(window, Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(shell::App::instance()->mainWindows().size(), opened + 1) << window->objectName().toStdString();
    }
    EXPECT_FALSE(shell::App::instance()->aboutWindow()->isVisible());
    QSignalSpy quit(shell::App::instance()->fileQuitAction(), &QAction::triggered);
    showActive(plan);
    QTest::keyClick(plan->Events, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quit.count(), 1);
}

// Every control the keyboard reaches, and every figure, has a name of its own for a screen
// reader: not empty, and for a control with a value or a figure, not merely what it shows. A combo
// box is named on Linux by its label (the relation a screen reader follows), as Qt has it.
void expectNamedForAssistiveTechnology(QWidget* window, const std::string& where) {
    std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* node) {
        for (int i = 0; i < node->childCount(); ++i) {
            QAccessibleInterface* child = node->child(i);
            if (!child || child->state().invisible) continue;
            QString name = child->text(QAccessible::Name);
            const auto labels = child->relations(QAccessible::Label);
            if (child->role() == QAccessible::ComboBox && !labels.isEmpty())
                name = labels.front().first->text(QAccessible::Name);
            const auto* label = qobject_cast<QLabel*>(child->object());
            const QString shown = label ? label->text() : child->text(QAccessible::Value);
            const QString object = child->object() ? child->object()->objectName() : QString(); // a tab has none
            const bool figure = object == "SelNum" || object == "Kansai";
            const std::string what = where + " " + object.toStdString() + " \"" + name.toStdString() + "\"";
            if (child->state().focusable || figure) {
                EXPECT_FALSE(name.isEmpty()) << what;
            }
            if ((child->state().focusable && !label && child->role() != QAccessible::Table) || figure) {
                EXPECT_NE(name, shown) << what;
            }
            if (child->role() != QAccessible::Table) walk(child);
        }
    };
    walk(QAccessible::queryAccessibleInterface(window));
}

TEST(Accessibility, EveryControlAndFigureHasANameInEachLanguage) {
    for (const bool japanese : {false, true}) {
        std::optional<Japanese> translation;
        if (japanese) translation.emplace();
        auto* w = new MainWindow;
        showActive(w);
        w->HelpBtn->click();
        const std::string language = japanese ? "Japanese" : "English";
        expectNamedForAssistiveTechnology(w, language + " main window");
        expectNamedForAssistiveTechnology(shell::App::instance()->helpWindow(), language + " help window");
        expectNamedForAssistiveTechnology(shell::App::instance()->aboutWindow(), language + " About window");
        w->showPlan();
        expectNamedForAssistiveTechnology(w->findChild<planner::PlanWindow*>(), language + " Plan window");
        EXPECT_EQ(w->menuBar()->actions().at(0)->text(), japanese ? "ファイル(&F)" : "&File");
        // Each field and figure is named by its own label.
        const QWidget* named[] = {w->GankinField, w->Nenriritsu, w->Kaisu, w->Shokai,
                                  w->RisokuTotal, w->SelNum,     w->Kansai};
        if (!japanese) {
            EXPECT_EQ(joined(named, [](const QWidget* c) { return c->accessibleName(); }),
                      "Principal|Rate|Times|First|Interest|Selection|Pay off");
        }
        // The Plan and help windows are windows to a screen reader, and a figure is read with its value.
        auto* plan = w->findChild<planner::PlanWindow*>();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(plan)->role(), QAccessible::Window);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(shell::App::instance()->helpWindow())->role(),
                  QAccessible::Dialog);
        const QAccessibleInterface* paid = QAccessible::queryAccessibleInterface(plan->Figures[1]);
        EXPECT_EQ(paid->text(QAccessible::Name) + ": " + paid->text(QAccessible::Description),
                  (japanese ? "支払総額: " : "Total paid: ") + plan->Figures[1]->text());
        // Every button, label, group and menu of the Plan window has a key of its own (a label's
        // takes the focus to its field), and the file dialogs' titles show none.
        QStringList texts;
        for (const QAbstractButton* button : plan->findChildren<QAbstractButton*>()) texts << button->text();
        for (const QLabel* label : plan->findChildren<QLabel*>()) {
            texts << label->text();
            EXPECT_TRUE(QKeySequence::mnemonic(label->text()).isEmpty() || label->buddy())
                << label->text().toStdString() << " moves the focus nowhere";
        }
        for (const QGroupBox* group : plan->findChildren<QGroupBox*>()) texts << group->title();
        for (const QAction* menu : plan->findChild<QMenuBar*>()->actions()) texts << menu->text();
        std::map<QKeySequence, QString> taken;
        for (const QString& text : texts) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            EXPECT_TRUE(key.isEmpty() || taken.emplace(key, text).second)
                << text.toStdString() << " and " << taken[key].toStdString();
        }
        EXPECT_EQ(taken.size(), 17u);
        EXPECT_EQ(strings::withoutMnemonic(strings::kSaveCsv), japanese ? "CSV で保存..." : "Save as CSV...");
        closeAllWindows();
    }
}

} // namespace
