// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The application: the texts in the user's language, the one help window and the one about
// window, the order in which main windows were in front, and the command for a new table,
// which works with no window in front. The program ends when its last window closes.

#include <QApplication>
#include <QList>
#include <QPointer>
#include <QTranslator>

class QAction;
class QMenuBar;

namespace shell {

class AboutWindow;
class HelpWindow;
class MainWindow;

class App : public QApplication {
    Q_OBJECT
public:
    App(int& argc, char** argv);
    ~App() override;
    static App* instance() { return static_cast<App*>(QCoreApplication::instance()); }

    // True while a HelpBtn has the help window showing.
    bool isExistHelp = false;

    bool _FileNew_Action();
    // File > New and File > Quit: their shortcuts work in every window of the application.
    QAction* fileNewAction() const { return m_fileNew; }
    QAction* fileQuitAction() const { return m_fileQuit; }

    // The implicit help and about windows, created at first use.
    HelpWindow* helpWindow();
    bool hasHelpWindow() const { return !m_help.isNull(); }
    AboutWindow* aboutWindow();

    // Main windows, the one most recently in front first.
    QList<MainWindow*> mainWindows() const;
    void addMainWindow(MainWindow* window);
    void mainWindowActivated(MainWindow* window);

private:
    void loadTranslation();

    void createApplicationActions();

    QTranslator m_translator;
    QAction* m_fileNew = nullptr;
    QAction* m_fileQuit = nullptr;
    QPointer<HelpWindow> m_help;
    QPointer<AboutWindow> m_about;
    QList<QPointer<MainWindow>> m_windows;
    QMenuBar* m_menuBarWithoutWindow = nullptr;
};

} // namespace shell
