// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The usage text, beside the main window whose HelpBtn opened it. One is shared by all main
// windows; closing it with its close button destroys it and releases the parent's HelpBtn.

#include <QDialog>
#include <QPointer>

class QLabel;

namespace shell {

class MainWindow;

class HelpWindow : public QDialog {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);

    // The window whose HelpBtn last opened this one; nil once that window is closed.
    QPointer<MainWindow> parentWin;
    QLabel* Label1;

    void Event_Close();

protected:
    void closeEvent(QCloseEvent* event) override;
    // Escape closes it, as its close button does.
    void reject() override { close(); }
};

} // namespace shell
