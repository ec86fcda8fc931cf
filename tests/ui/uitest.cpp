#include "uitest.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace uitest {

void showActive(QWidget* window) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}

QAction* menuItem(QMainWindow* window, const char* name) {
    for (QAction* top : window->menuBar()->actions())
        if (top->menu())
            for (QAction* item : top->menu()->actions())
                if (item->objectName() == name) return item;
    return nullptr;
}

void closeAllWindows() {
    // Main windows and the help window delete themselves on closing.
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowTest::SetUp() {
    w = new MainWindow;
    showActive(w);
    m_calculations = std::make_unique<QSignalSpy>(w->CulcButton, &controls::PushButton::Action);
}

void WindowTest::typeAndLeave(controls::TextField* field, const QString& text) {
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

void WindowTest::visit(controls::TextField* field) {
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_Tab);
}

void WindowTest::chooseMenuItem(controls::BevelButton* button, int item) {
    button->menu()->actions().at(item)->trigger();
}

void WindowTest::setDate(int era, const char* year, const char* month, const char* day) {
    w->RekiKind->setMenuValue(era);
    w->RekiKind->setCaption(w->RekiKind->List(era));
    w->StartY->setText(year);
    w->StartM->setText(month);
    w->StartD->setText(day);
    w->CulcButton->Push();
    resetCalculations();
}

QMenu* WindowTest::openMenu(const char* name) {
    auto* menu = w->menuBar()->findChild<QMenu*>(name);
    QTest::mouseClick(w->menuBar(), Qt::LeftButton, {}, w->menuBar()->actionGeometry(menu->menuAction()).center());
    EXPECT_TRUE(QTest::qWaitForWindowExposed(menu)) << name;
    return menu;
}

std::vector<engine::Row> WindowTest::table() const {
    std::vector<engine::Row> all;
    for (int r = 0; r < rows(); ++r) all.push_back(w->ListBox1->RowCells(r));
    return all;
}

} // namespace uitest
