// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The plan document of a main window: the file it was opened from or saved to, whether the loan
// and its plan changed since, and the commands that open and save it. A window without a file is
// an untitled document, as a new window is; it gains the modified mark once it has a file.

#include "engine/document.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace shell {
class MainWindow;
}

namespace planner {

class Document : public QObject {
    Q_OBJECT
public:
    explicit Document(shell::MainWindow* window);

    // The document's file, empty while untitled.
    QString path() const { return m_path; }
    // The window's form and its Plan window's scenario as a document.
    engine::PlanDocument current() const;
    // Sets the modified mark where the window no longer holds what was saved.
    void update();

    bool save();
    bool saveAs();
    bool saveTo(const QString& path);
    // Whether the window may close: asks to save a changed document (Save, Discard, Cancel).
    bool maySave();

    // Opens each file in a new main window; a file that can't be opened is told in a message
    // that names it and why, and opens nothing.
    static void open(const QStringList& paths, QWidget* parent);
    static void openWithDialog(QWidget* parent);
    // The files opened or saved last, the newest first.
    static QStringList recentFiles();

private:
    static void remember(const QString& path);

    shell::MainWindow* m_window;
    QString m_path;
    std::string m_saved; // the text of the file as last saved or opened
    // The document's scenarios after the one the Plan window shows, kept as they were read.
    std::vector<engine::Scenario> m_others;
};

} // namespace planner
