#pragma once
// Driving the real windows offscreen: a window shown and active, fields typed into and left as
// a user does, and what the user would see read back.

#include "controls/bevelbutton.h"
#include "controls/listbox.h"
#include "controls/popupmenu.h"
#include "controls/pushbutton.h"
#include "controls/textfield.h"
#include "shell/app.h"
#include "shell/mainwindow.h"
#include "strings/constants.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

// How gtest prints a QString when a case fails.
inline void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }

namespace uitest {

using shell::MainWindow;

// The Japanese translation, installed for the length of a scope.
class Japanese {
public:
    Japanese() {
        m_loaded = m_translator.load(":/i18n/kestrune_ja.qm");
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Japanese() { QCoreApplication::removeTranslator(&m_translator); }
    bool loaded() const { return m_loaded; }
    QString raw(const strings::Constant& c) const {
        return m_translator.translate(std::string(c.context).c_str(), std::string(c.name).c_str());
    }

private:
    QTranslator m_translator;
    bool m_loaded = false;
};

// Shows the window and waits until it is active, so that focus events flow.
void showActive(QWidget* window);

// The item of the window's menus with that object name (FileNew, EditCopy, ...); null if none.
QAction* menuItem(QMainWindow* window, const char* name);

// Every top-level window closed and deleted.
void closeAllWindows();

class WindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override { closeAllWindows(); }

    // Clicks into the field, replaces its text by typing, and leaves it with Tab.
    void typeAndLeave(controls::TextField* field, const QString& text);
    // Clicks into the field and leaves it with Tab, typing nothing.
    void visit(controls::TextField* field);
    void chooseMenuItem(controls::BevelButton* button, int item);
    // The borrowing date in the given era, calculated, and the count of calculations reset.
    void setDate(int era, const char* year, const char* month, const char* day);

    QPoint cellCentre(int row, int column) const {
        return w->ListBox1->visualRect(w->ListBox1->model()->index(row, column)).center();
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        w->ListBox1->scrollTo(w->ListBox1->model()->index(row, 0));
        QTest::mouseClick(w->ListBox1->viewport(), Qt::LeftButton, modifiers, cellCentre(row, 0));
    }
    // Opens a menu of the menu bar with a click on its title, as a user does.
    QMenu* openMenu(const char* name);

    std::string cell(int row, int column) const { return w->ListBox1->Cell(row, column); }
    int rows() const { return w->ListBox1->ListCount(); }
    std::vector<engine::Row> table() const;
    // How many times the calculate action ran since the spy was made.
    int calculations() const { return static_cast<int>(m_calculations->count()); }
    void resetCalculations() { m_calculations->clear(); }

    MainWindow* w = nullptr;

private:
    std::unique_ptr<QSignalSpy> m_calculations;
};

} // namespace uitest
