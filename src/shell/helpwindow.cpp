// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/helpwindow.h"

#include "controls/bevelbutton.h"
#include "controls/locks.h"
#include "shell/app.h"
#include "shell/mainwindow.h"
#include "strings/lookup.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace shell {

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("HelpWindow");
    setWindowTitle(strings::text(strings::kAppName));
    addActions({App::instance()->fileNewAction(), App::instance()->fileQuitAction()});
    Label1 = new QLabel(strings::text(strings::kHelpText));
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Label1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Label1->setContentsMargins(14, 10, 14, 10);
    // The text scrolls where the window can't show it all.
    auto* scroll = new QScrollArea;
    scroll->setWidget(Label1);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAccessibleName(strings::withoutMnemonic(strings::kHelpButton));
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 0, 4);
    layout->addWidget(scroll);
    // 400 by 500 in the design's font, as much larger as its lines are in this one.
    const double scale = std::max(1.0, fontMetrics().height() / 14.0);
    controls::resizeWithinScreen(this, QSize(400, 500) * scale);
}

void HelpWindow::Event_Close() {
    if (parentWin && parentWin->HelpBtn->Value()) parentWin->HelpBtn->setValue(false);
    App::instance()->isExistHelp = false;
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    Event_Close();
    QDialog::closeEvent(event);
}

} // namespace shell
