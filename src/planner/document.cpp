// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/document.h"

#include "planner/planwindow.h"
#include "planner/savefile.h"
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

class ScenarioNames : public QAbstractListModel {
public:
    explicit ScenarioNames(Document* document) : QAbstractListModel(document), m_document(document) {
        connect(document, &Document::scenariosChanged, this, [this] {
            beginResetModel();
            endResetModel();
        });
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_document->m_scenarios.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
        return QString::fromStdString(m_document->m_scenarios.at(static_cast<std::size_t>(index.row())).name);
    }

private:
    const Document* m_document;
};

// The names' model first, so that it is anew before anyone else hears of a change.
Document::Document(shell::MainWindow* window) : QObject(window), m_window(window), m_names(new ScenarioNames(this)) {}

engine::PlanDocument Document::current() const { return {m_window->loanForm(), scenarios()}; }

std::vector<engine::Scenario> Document::scenarios() const {
    std::vector<engine::Scenario> all = m_scenarios;
    if (const PlanWindow* plan = m_window->planWindow()) {
        all[m_shown] = plan->scenario();
        all[m_shown].name = m_scenarios[m_shown].name;
    }
    return all;
}

void Document::show(std::size_t index) {
    m_scenarios = scenarios();
    m_shown = std::min(index, m_scenarios.size() - 1);
    showStored();
}

void Document::showStored() {
    if (PlanWindow* plan = m_window->planWindow()) plan->setScenario(m_scenarios[m_shown]);
    emit scenariosChanged();
    update();
}

void Document::addScenario(engine::Scenario scenario) {
    m_scenarios = scenarios();
    m_scenarios.push_back(std::move(scenario));
    show(m_scenarios.size() - 1);
}

void Document::renameShown(const std::string& name) {
    m_scenarios[m_shown].name = name;
    emit scenariosChanged();
    update();
}

void Document::removeShown() {
    if (m_scenarios.size() < 2) return;
    m_scenarios.erase(m_scenarios.begin() + static_cast<std::ptrdiff_t>(m_shown));
    m_shown = m_shown > 0 ? m_shown - 1 : 0;
    showStored();
}

void Document::attach(PlanWindow* plan) {
    // Shown in the window, lines take the window's spelling ("deduction" becomes "deduction 0.7
    // 13 30000000"); looking at a document changes nothing in it.
    const bool unchanged = !m_window->isWindowModified();
    plan->setScenario(m_scenarios[m_shown]);
    if (unchanged && !m_path.isEmpty()) m_saved = engine::documentText(current());
    connect(plan, &PlanWindow::changed, this, &Document::update);
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
        const engine::DocumentReading read = engine::readDocumentFile(path.toStdString());
        if (!read.document) {
            warn(parent, strings::text(strings::kOpenFailed)
                             .arg(QDir::toNativeSeparators(path), QString::fromStdString(read.error)));
            continue;
        }
        auto* window = new shell::MainWindow;
        window->setForm(read.document->form);
        Document* document = window->document();
        document->m_scenarios = read.document->scenarios;
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
