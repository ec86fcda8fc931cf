// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/document.h"

#include "planner/planwindow.h"
#include "planner/savefile.h"
#include "runtime/files.h"
#include "shell/mainwindow.h"
#include "strings/lookup.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

namespace planner {
namespace {

constexpr int kRecentFiles = 8;

QString filter() { return strings::text(strings::kPlanFilter) + " (*.kestrune)"; }

} // namespace

Document::Document(shell::MainWindow* window) : QObject(window), m_window(window) {}

engine::PlanDocument Document::current() const {
    engine::PlanDocument document{m_window->loanForm(), {m_window->planScenario()}};
    document.scenarios.insert(document.scenarios.end(), m_others.begin(), m_others.end());
    return document;
}

void Document::update() {
    if (!m_path.isEmpty()) m_window->setWindowModified(engine::documentText(current()) != m_saved);
}

bool Document::save() { return m_path.isEmpty() ? saveAs() : saveTo(m_path); }

bool Document::saveAs() {
    const QString path = QFileDialog::getSaveFileName(m_window, strings::withoutMnemonic(strings::kFileSaveAs),
                                                      m_path.isEmpty() ? "plan.kestrune" : m_path, filter());
    return !path.isEmpty() && saveTo(path);
}

bool Document::saveTo(const QString& path) {
    const std::string text = engine::documentText(current());
    if (const QString error = saveWhole(path, QByteArray::fromStdString(text)); !error.isEmpty()) {
        showSaveError(m_window, path, error);
        return false;
    }
    m_path = QFileInfo(path).absoluteFilePath();
    m_saved = text;
    remember(m_path);
    m_window->showTitle();
    update();
    return true;
}

bool Document::maySave() {
    if (m_path.isEmpty() || !m_window->isWindowModified()) return true;
    const auto answer =
        QMessageBox::question(m_window, strings::text(strings::kAppName),
                              strings::text(strings::kSaveChanges).arg(QFileInfo(m_path).fileName()),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void Document::open(const QStringList& paths, QWidget* parent) {
    for (const QString& path : paths) {
        std::string text;
        std::string error = runtime::readWhole(path.toStdString(), engine::kMaxDocumentBytes, text);
        engine::DocumentReading read;
        if (error.empty()) read = engine::readDocument(text);
        if (error.empty()) error = read.error;
        if (!error.empty()) {
            warn(
                parent,
                strings::text(strings::kOpenFailed).arg(QDir::toNativeSeparators(path), QString::fromStdString(error)));
            continue;
        }
        auto* window = new shell::MainWindow;
        window->setForm(read.document->form);
        const auto& scenarios = read.document->scenarios;
        window->setPlanScenario(scenarios.front());
        Document* document = window->document();
        document->m_others.assign(scenarios.begin() + 1, scenarios.end());
        document->m_path = QFileInfo(path).absoluteFilePath();
        // What it would save now: the form as the window holds it once calculated.
        document->m_saved = engine::documentText(document->current());
        remember(document->m_path);
        window->showTitle();
        window->show();
    }
}

void Document::openWithDialog(QWidget* parent) {
    open(QFileDialog::getOpenFileNames(parent, strings::withoutMnemonic(strings::kFileOpen), {}, filter()), parent);
}

QStringList Document::recentFiles() { return QSettings().value("recentFiles").toStringList(); }

void Document::remember(const QString& path) {
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue("recentFiles", files.mid(0, kRecentFiles));
}

} // namespace planner
