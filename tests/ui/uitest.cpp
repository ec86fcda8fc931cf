// SPDX-License-Identifier: GPL-3.0-or-later
#include "uitest.h"

#include <QPrintDialog>

#include <cstdio>

namespace uitest {

void showActive(QWidget* window) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}

void closeAllWindows() {
    // Main windows and the help window delete themselves on closing; a changed document asks
    // nothing here.
    for (MainWindow* window : shell::App::instance()->mainWindows()) window->setWindowModified(false);
    QApplication::closeAllWindows();
    if (shell::App::instance()->hasHelpWindow()) delete shell::App::instance()->helpWindow(); // hidden, not closed
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QAction* menuItem(QMainWindow* window, const char* name) {
    for (QAction* top : window->menuBar()->actions())
        if (top->menu())
            for (QAction* item : top->menu()->actions())
                if (item->objectName() == name) return item;
    return nullptr;
}

void contextMenu(QAbstractItemView* view, int row, const QString& item) {
    view->scrollTo(view->model()->index(row, 0));
    const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
    answer(item);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
    QApplication::sendEvent(view->viewport(), &event);
}

void answer(const QString& text, QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [text, button] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            dialog->selectFile(text);
            QMetaObject::invokeMethod(dialog, "accept");
        } else if (auto* input = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
            input->setTextValue(text);
            input->accept();
        } else if (auto* print = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            print->findChild<QLineEdit*>("filename")->setText(text); // printed to that file
            print->accept();
        } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            box->button(button)->click();
        } else if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (QAction* item : menu->actions())
                if (item->text() == text) item->trigger();
            menu->close();
        }
    });
}

QString messages(QWidget* window) {
    QStringList said;
    for (QMessageBox* box : window->findChildren<QMessageBox*>()) {
        said << (box->isVisible() ? box->text() : "(a message not shown)");
        delete box;
    }
    return said.join("\n\n");
}

std::string fileText(const QString& path) {
    std::ifstream in(path.toStdString(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

std::string commandOutput(const std::string& command) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    for (int c; (c = std::fgetc(pipe)) != EOF;) out += static_cast<char>(c);
    pclose(pipe);
    return out;
}

std::string pdfText(const QString& path) {
    std::string text;
    for (const QString& line :
         QString::fromStdString(commandOutput("pdftotext -layout " + path.toStdString() + " -")).split('\n'))
        text += line.simplified().toStdString() + "\n";
    return text;
}

void watchModels(planner::PlanWindow* plan) {
    for (QAbstractItemModel* model :
         std::initializer_list<QAbstractItemModel*>{plan->eventRows(), plan->Schedule->model(), plan->Years->model(),
                                                    plan->Comparison->model(), plan->Scenarios->model()})
        new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal, plan);
}

QString eventCell(const planner::PlanWindow* plan, int row, int column, int role) {
    return plan->Events->model()->index(row, column).data(role).toString();
}

engine::LoanForm loan2020() {
    engine::LoanForm form;
    form.era = calendar::kWestern;
    form.date = {"2020", "3", "15", "8"};
    return form;
}

void WindowTest::SetUp() {
    w = new MainWindow;
    showActive(w);
    m_calculations = std::make_unique<QSignalSpy>(w->CulcButton, &controls::PushButton::Action);
}

void WindowTest::setForm(const engine::LoanForm& form) {
    w->setForm(form);
    resetCalculations();
}

void WindowTest::typeAndLeave(controls::TextField* field, const QString& text) {
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

void WindowTest::clickRow(int row, Qt::KeyboardModifiers modifiers) {
    const QModelIndex index = w->ListBox1->model()->index(row, 0);
    w->ListBox1->scrollTo(index);
    QTest::mouseClick(w->ListBox1->viewport(), Qt::LeftButton, modifiers, w->ListBox1->visualRect(index).center());
}

QMenu* WindowTest::openMenu(const char* name) {
    auto* menu = w->menuBar()->findChild<QMenu*>(name);
    QTest::mouseClick(w->menuBar(), Qt::LeftButton, {}, w->menuBar()->actionGeometry(menu->menuAction()).center());
    EXPECT_TRUE(QTest::qWaitForWindowExposed(menu)) << name;
    return menu;
}

MainWindow* WindowTest::newestWindow() const {
    for (MainWindow* window : shell::App::instance()->mainWindows())
        if (window != w && window->isVisible()) return window;
    return nullptr;
}

std::vector<table::Row> WindowTest::table() const {
    std::vector<table::Row> all;
    for (int r = 0; r < rows(); ++r) all.push_back(w->ListBox1->RowCells(r));
    return all;
}

} // namespace uitest
