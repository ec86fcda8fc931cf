// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The plan document of a main window: the file it was opened from or saved to, whether the loan
// and its plan changed since, and the commands that open and save it. A window without a file is
// an untitled document, as a new window is; it gains the modified mark once it has a file.

#include "engine/document.h"

#include <QAbstractListModel>
#include <QObject>
#include <QString>
#include <QStringList>

namespace shell {
class MainWindow;
}

namespace planner {

class PlanWindow;

class Document : public QObject {
    Q_OBJECT
public:
    explicit Document(shell::MainWindow* window);

    // The document's file, empty while untitled.
    QString path() const { return m_path; }
    // The window's form and the scenarios as a document.
    engine::PlanDocument current() const;

    // The scenarios, the one shown in the Plan window as it holds it now.
    std::vector<engine::Scenario> scenarios() const;
    std::size_t shown() const { return m_shown; }
    // The Plan window shows scenario `index`; the one it showed is kept as it held it.
    void show(std::size_t index);
    void addScenario(engine::Scenario scenario);
    void renameShown(const std::string& name);
    void removeShown();
    // The scenarios' names, a row each, for the list that chooses the one shown.
    QAbstractItemModel* names() const { return m_names; }
    // The Plan window, once made, shows the scenario chosen and tells of its changes.
    void attach(PlanWindow* plan);
    // Sets the modified mark where the window no longer holds what was saved.
    void update();

    bool save();
    bool saveAs();
    bool saveTo(const QString& path);
    // Whether the window may close: asks to save a changed document (Save, Discard, Cancel).
    bool maySave();

signals:
    // The scenarios' names, or which one is shown, changed.
    void scenariosChanged();

public:
    // Opens each file in a new main window; a file that can't be opened is told in a message
    // that names it and why, and opens nothing.
    static void open(const QStringList& paths, QWidget* parent);
    static void openWithDialog(QWidget* parent);
    // The files opened or saved last, the newest first.
    static QStringList recentFiles();

private:
    static void remember(const QString& path);
    // The Plan window shows the scenario kept as shown, and the list is told.
    void showStored();

    shell::MainWindow* m_window;
    QString m_path;
    std::string m_saved;                                             // the text of the file as last saved or opened
    std::vector<engine::Scenario> m_scenarios{{"Plan", {}, {}, {}}}; // the shown one as last kept
    std::size_t m_shown = 0;
    QAbstractListModel* m_names;

    friend class ScenarioNames;
};

} // namespace planner
