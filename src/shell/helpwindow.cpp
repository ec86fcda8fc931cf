// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/helpwindow.h"

#include "controls/bevelbutton.h"
#include "shell/app.h"
#include "shell/mainwindow.h"
#include "strings/lookup.h"

#include <QCloseEvent>
#include <QLabel>

namespace shell {

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("HelpWindow");
    setWindowTitle(strings::text(strings::kAppName));
    addActions({App::instance()->fileNewAction(), App::instance()->fileQuitAction()});
    setFixedSize(400, 500);
    Label1 = new QLabel(strings::text(strings::kHelpText), this);
    Label1->setObjectName("Label1");
    Label1->setGeometry(20, 14, 360, 466);
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void HelpWindow::Event_Close() {
    if (parentWin && parentWin->HelpBtn->Value()) parentWin->HelpBtn->setValue(false);
    App::instance()->isExistHelp = false;
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    Event_Close();
    QWidget::closeEvent(event);
}

} // namespace shell
