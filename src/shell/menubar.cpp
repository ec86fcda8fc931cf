// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menubar.h"

#include "controls/bevelbutton.h"
#include "planner/document.h"

#include "shell/app.h"

#include "shell/mainwindow.h"
#include "strings/lookup.h"

#include <QDir>
#include <QMenuBar>

namespace shell {
namespace {

QAction* addItem(QMenu* menu, const char* name, const strings::Constant& caption, QKeySequence shortcut = {}) {
    QAction* item = menu->addAction(strings::text(caption));
    item->setObjectName(name);
    item->setShortcut(shortcut);
    return item;
}

} // namespace

void buildMenuBar(QMenuBar* bar, MainWindow* window) {
    QMenu* fileMenu = bar->addMenu(strings::text(strings::kFileMenu));
    fileMenu->setObjectName("FileMenu");
    // New and Quit are the application's: one action each, shared by every window's menu.
    fileMenu->addAction(App::instance()->fileNewAction());
    if (window) {
        QObject::connect(addItem(fileMenu, "FileOpen", strings::kFileOpen, QKeySequence::Open), &QAction::triggered,
                         window, [window] { planner::Document::openWithDialog(window); });
        QMenu* recent = fileMenu->addMenu(strings::text(strings::kFileOpenRecent));
        recent->setObjectName("FileOpenRecent");
        QObject::connect(recent, &QMenu::aboutToShow, window, [recent, window] {
            recent->clear();
            for (const QString& path : planner::Document::recentFiles())
                QObject::connect(recent->addAction(QDir::toNativeSeparators(path)), &QAction::triggered, window,
                                 [path, window] { planner::Document::open({path}, window); });
            recent->setEnabled(!recent->isEmpty());
        });
        fileMenu->addSeparator();
        QObject::connect(addItem(fileMenu, "FileSave", strings::kFileSave, QKeySequence::Save), &QAction::triggered,
                         window->document(), &planner::Document::save);
        // Ctrl+Shift+S where the platform names no Save As key (as on the offscreen platform).
        const QKeySequence saveAs =
            QKeySequence(QKeySequence::SaveAs).isEmpty() ? QKeySequence("Ctrl+Shift+S") : QKeySequence::SaveAs;
        QObject::connect(addItem(fileMenu, "FileSaveAs", strings::kFileSaveAs, saveAs), &QAction::triggered,
                         window->document(), &planner::Document::saveAs);
        fileMenu->addSeparator();
    }
    fileMenu->addAction(App::instance()->fileQuitAction());

    QMenu* editMenu = bar->addMenu(strings::text(strings::kEditMenu));
    editMenu->setObjectName("EditMenu");
    const struct {
        const char* name;
        const strings::Constant& caption;
        QKeySequence shortcut;
        MainWindow::EditCommand command;
    } editItems[] = {
        {"EditUndo", strings::kEditUndo, QKeySequence::Undo, MainWindow::EditCommand::Undo},
        {"EditRedo", strings::kEditRedo, QKeySequence::Redo, MainWindow::EditCommand::Redo},
        {"EditCut", strings::kEditCut, QKeySequence::Cut, MainWindow::EditCommand::Cut},
        {"EditCopy", strings::kEditCopy, QKeySequence::Copy, MainWindow::EditCommand::Copy},
        {"EditPaste", strings::kEditPaste, QKeySequence::Paste, MainWindow::EditCommand::Paste},
        {"EditClear", strings::kEditClear, {}, MainWindow::EditCommand::Clear},
        {"EditSelectAll", strings::kEditSelectAll, QKeySequence::SelectAll, MainWindow::EditCommand::SelectAll},
    };
    for (const auto& item : editItems) {
        if (item.command == MainWindow::EditCommand::Cut || item.command == MainWindow::EditCommand::SelectAll)
            editMenu->addSeparator();
        QAction* action = addItem(editMenu, item.name, item.caption, item.shortcut);
        action->setData(QVariant::fromValue(item.command));
        action->setEnabled(window != nullptr);
        if (window)
            QObject::connect(action, &QAction::triggered, window,
                             [window, command = item.command] { window->editCommand(command); });
    }
    if (window) {
        QMenu* planMenu = bar->addMenu(strings::text(strings::kPlanMenu));
        planMenu->setObjectName("PlanMenu");
        QAction* plan =
            addItem(planMenu, "PlanEvents", strings::kPlanItem, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
        QObject::connect(plan, &QAction::triggered, window, &MainWindow::showPlan);
    }
    // Help: the usage window, as the window's Usage button opens it, and About.
    QMenu* helpMenu = bar->addMenu(strings::text(strings::kHelpMenu));
    helpMenu->setObjectName("HelpMenu");
    QAction* usage = addItem(helpMenu, "HelpUsage", strings::kHelpUsage, QKeySequence::HelpContents);
    QAction* about = addItem(helpMenu, "AppleAbout", strings::kAppleAbout);
    about->setMenuRole(QAction::AboutRole);
    for (QAction* item : {usage, about}) item->setEnabled(window != nullptr);
    if (!window) return;
    QObject::connect(usage, &QAction::triggered, window, [window] {
        if (!window->HelpBtn->Value()) window->HelpBtn->click();
    });
    QObject::connect(about, &QAction::triggered, window, &MainWindow::_AppleAbout_Action);

    // The menu offers the edit commands the focused control can carry out when it opens. Closed,
    // every command stays enabled, so that its shortcut always reaches the window, which acts
    // only where it can: a state computed at one moment would be stale at the next key press.
    const auto editActions = [editMenu] {
        QList<QAction*> actions;
        for (QAction* action : editMenu->actions())
            if (action->data().canConvert<MainWindow::EditCommand>()) actions.append(action);
        return actions;
    };
    QObject::connect(editMenu, &QMenu::aboutToShow, window, [window, editActions] {
        for (QAction* action : editActions())
            action->setEnabled(window->canDo(action->data().value<MainWindow::EditCommand>()));
    });
    QObject::connect(editMenu, &QMenu::aboutToHide, window, [editActions] {
        for (QAction* action : editActions()) action->setEnabled(true);
    });
}

} // namespace shell
