// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Driving the real windows offscreen: a window shown and active, fields typed into and left as a
// user does, menus opened with the mouse, and what the user would see read back.

// The windows under test, and the whole of Qt's widgets, charts and test helpers for every test.
#include "controls/bevelbutton.h"
#include "controls/popupmenu.h"
#include "controls/pushbutton.h"
#include "controls/textfield.h"
#include "planner/deductionbox.h"
#include "planner/document.h"
#include "planner/eventsmodel.h"
#include "planner/planwindow.h"
#include "planner/termsbox.h"
#include "shell/aboutwindow.h"
#include "shell/app.h"
#include "shell/helpwindow.h"
#include "shell/listbox.h"
#include "shell/mainwindow.h"
#include "strings/constants.h"
#include "strings/lookup.h"

#include <QtCharts>
#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <fstream>
#include <ranges>
#include <span>

// How gtest prints a QString when a case fails.
inline void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }

namespace engine {
// How gtest prints a form when a case fails.
inline void PrintTo(const LoanForm& f, std::ostream* os) {
    *os << f.principal << " " << f.rate << " " << f.times << " " << f.firstRow << " era " << f.era << " " << f.date.year
        << "-" << f.date.month << "-" << f.date.day << " day " << f.date.payDay << " delay " << f.delay
        << (f.flatPayment ? " flat" : " equal");
}
} // namespace engine

namespace uitest {

using shell::MainWindow;

// The Japanese translation, installed for the length of a scope.
class Japanese {
public:
    Japanese() : m_loaded(m_translator.load(":/i18n/kestrune_ja.qm")) {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Japanese() { QCoreApplication::removeTranslator(&m_translator); }
    bool loaded() const { return m_loaded; }

private:
    QTranslator m_translator;
    bool m_loaded;
};

// Shows the window and waits until it is active, so that focus events flow.
void showActive(QWidget* window);
// Every top-level window closed and deleted.
void closeAllWindows();
// The item of the window's menus with that object name (FileNew, EditCopy, ...); null if none.
QAction* menuItem(QMainWindow* window, const char* name);

// Answers the next modal dialog or menu: a file dialog with the file, a print dialog by printing
// to the file, a text with the text, a question with the button, a menu with the item of that text.
void answer(const QString& text, QMessageBox::StandardButton button = QMessageBox::NoButton);
// Clicks the row of the view and chooses the item of its context menu.
void contextMenu(QAbstractItemView* view, int row, const QString& item);

// The texts of the message boxes the window showed, a blank line apart, and the boxes closed;
// "(a message not shown)" for one that did not show.
QString messages(QWidget* window);
// The whole of a file.
std::string fileText(const QString& path);
// The texts of a list, one for each item, a bar apart: the items of a menu, the series of a chart.
template <class List, class Text> QString joined(const List& list, Text text) {
    QStringList texts;
    for (const auto& item : list) texts << text(item);
    return texts.join('|');
}
// What a shell command writes on its standard output.
std::string commandOutput(const std::string& command);
// The text of a PDF as pdftotext reads it, each line's words one blank apart.
std::string pdfText(const QString& path);

// A cell of a Plan window's event list: its text, or its tooltip or colour ("" where none).
QString eventCell(const planner::PlanWindow* plan, int row, int column, int role = Qt::DisplayRole);
// Qt's model tester on each list and table of the Plan window for as long as it lives: a model
// that breaks Qt's rules of a model as it changes stops the program.
void watchModels(planner::PlanWindow* plan);

// The default loan, borrowed on 2020-03-15 in the Western calendar: first payment 2020-04-08.
engine::LoanForm loan2020();

class WindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override { closeAllWindows(); }

    // Writes the form into the window, calculated, and resets the count of calculations.
    void setForm(const engine::LoanForm& form);
    // Clicks into the field, replaces its text by typing, and leaves it with Tab.
    void typeAndLeave(controls::TextField* field, const QString& text);
    void chooseMenuItem(controls::BevelButton* button, int item) { button->menu()->actions().at(item)->trigger(); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {});
    // Opens a menu of the menu bar with a click on its title, as a user does.
    QMenu* openMenu(const char* name);
    // Another main window on the screen: the one that New or Recombination opened.
    MainWindow* newestWindow() const;

    std::string cell(int row, int column) const { return w->ListBox1->Cell(row, column); }
    int rows() const { return w->ListBox1->ListCount(); }
    std::vector<table::Row> table() const;
    // How many times the calculate action ran since the form was set.
    int calculations() const { return static_cast<int>(m_calculations->count()); }
    void resetCalculations() { m_calculations->clear(); }

    MainWindow* w = nullptr;

private:
    std::unique_ptr<QSignalSpy> m_calculations;
};

} // namespace uitest
