// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/app.h"

#include "controls/bevelbutton.h"
#include "shell/aboutwindow.h"
#include "shell/helpwindow.h"
#include "shell/mainwindow.h"
#include "shell/menubar.h"
#include "strings/lookup.h"
#include "version.h"

#include <QAction>
#include <QIcon>
#include <QLocale>
#include <QMenuBar>

namespace shell {

App::App(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName("kestrune");
    setApplicationVersion(kestrune::kVersion);
    setDesktopFileName("org.kestrune.Kestrune");
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) icon.addFile(QString(":/icons/kestrune-%1.png").arg(size));
    setWindowIcon(icon);
    loadTranslation();
    setApplicationDisplayName(strings::text(strings::kAppName));
    createApplicationActions();
#ifdef Q_OS_MACOS
    // The menu bar macOS shows while no window is open, so that New still works.
    m_menuBarWithoutWindow = new QMenuBar(nullptr);
    buildMenuBar(m_menuBarWithoutWindow, nullptr);
#endif
}

App::~App() {
    delete m_menuBarWithoutWindow;
    delete m_help;
    delete m_about;
}

void App::loadTranslation() {
    if (m_translator.load(QLocale(), "kestrune", "_", ":/i18n")) installTranslator(&m_translator);
}

void App::createApplicationActions() {
    m_fileNew = new QAction(strings::text(strings::kFileNew), this);
    m_fileNew->setObjectName("FileNew");
    m_fileNew->setShortcut(QKeySequence::New);
    connect(m_fileNew, &QAction::triggered, this, &App::_FileNew_Action);
    m_fileQuit = new QAction(strings::text(strings::kFileQuit), this);
    m_fileQuit->setObjectName("FileQuit");
    // Ctrl+Q where the platform names no Quit key (as on the offscreen platform).
    const QKeySequence quit(QKeySequence::Quit);
    m_fileQuit->setShortcut(quit.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Q) : quit);
    m_fileQuit->setMenuRole(QAction::QuitRole);
    // Every window closes (each hides the help window as it goes, each changed document asks),
    // then the application ends, also where no window was open.
    connect(m_fileQuit, &QAction::triggered, this, [this] {
        QApplication::closeAllWindows();
        // A window whose changed document the user kept (Cancel) stays open, and so does the program.
        for (const MainWindow* window : mainWindows())
            if (window->isVisible()) return;
        QApplication::quit();
    });
}

bool App::_FileNew_Action() {
    // From the About window's shortcut: the information gives way to the new window.
    if (m_about) m_about->hide();
    if (isExistHelp) {
        if (MainWindow* parent = helpWindow()->parentWin) parent->HelpBtn->setValue(false);
        helpWindow()->hide();
        isExistHelp = false;
    }
    const QList<MainWindow*> windows = mainWindows();
    MainWindow* const source = windows.isEmpty() ? nullptr : windows.front();
    auto* window = new MainWindow;
    if (source) {
        // The form of the front window, but for the pay day and the delay, which stay the new one's.
        engine::LoanForm form = source->loanForm();
        const engine::LoanForm own = window->loanForm();
        form.date.payDay = own.date.payDay;
        form.delay = own.delay;
        window->setForm(form);
        window->resize(source->size());
    }
    window->show();
    return true;
}

HelpWindow* App::helpWindow() {
    if (!m_help) m_help = new HelpWindow;
    return m_help;
}

AboutWindow* App::aboutWindow() {
    if (!m_about) m_about = new AboutWindow;
    return m_about;
}

QList<MainWindow*> App::mainWindows() const {
    QList<MainWindow*> windows;
    for (const auto& window : m_windows)
        if (window) windows.append(window);
    return windows;
}

void App::addMainWindow(MainWindow* window) { m_windows.append(window); }

void App::mainWindowActivated(MainWindow* window) {
    m_windows.removeAll(window);
    m_windows.prepend(window);
}

} // namespace shell
