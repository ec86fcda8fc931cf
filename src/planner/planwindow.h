// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The Plan window of a main window: prepayments, rate changes and fees on its loan, with the
// plan's schedule, totals and savings, the figures of each year and a chart; the schedule can be
// copied, saved as CSV, printed or exported as PDF. It follows its main window's calculations.

#include "engine/document.h"
#include "engine/plan.h"
#include "planner/report.h"

#include <QColor>
#include <QMainWindow>
#include <QPointer>

class QChartView;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QTableView;
class QPagedPaintDevice;
class QTabWidget;
class QUndoStack;

namespace shell {
class MainWindow;
}

namespace planner {

class CellsModel;
class DeductionBox;
class EventsModel;
class TermsBox;

class PlanWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit PlanWindow(shell::MainWindow* main);

    // The plan anew from the main window's form and the events of the list.
    void recalculate();
    void addEvent();
    void removeEvents();
    // The lender terms that differ from the defaults and the selected events, one line each; events
    // and terms pasted from lines.
    void copyEvents() const;
    void pasteEvents();
    // The terms, deduction and events the window holds, each event as its row reads; and set anew,
    // which starts their undo history afresh.
    engine::Scenario scenario() const;
    void setScenario(const engine::Scenario& scenario);
    // Every change to the terms, deduction and events, to undo and redo (Ctrl+Z, Ctrl+Shift+Z).
    QUndoStack* undoStack() const { return m_undo; }
    // The whole schedule, headings and every row, for a spreadsheet.
    void copySchedule() const;
    // Rows as text, CSV and HTML, for a spreadsheet or a document.
    static void copyRows(const std::vector<table::Cells>& rows);
    static void copySelectedRows(const QTableView* view);
    // The table of the tab shown (the schedule under the chart) as CSV, saved whole or not at all;
    // a failure is told in a message that names the file.
    bool saveCsv(const QString& path);
    bool exportPdf(const QString& path);

    TermsBox* Terms;
    DeductionBox* Deduction;
    QTableView* Events;
    EventsModel* eventRows() const { return m_events; }
    QLabel* EventsHint; // shown while the list is empty
    QTableView* Schedule;
    QTableView* Years;
    // Every scenario and the loan without events side by side, the best of each measure in bold.
    QTableView* Comparison;
    QChartView* Chart;
    // Totals, then savings, then the unpaid interest paid under reviews, then the deduction, the
    // net cost and the deduction lost where there is a deduction.
    std::vector<QLabel*> Figures;
    QPushButton *AddButton, *RemoveButton, *CopyButton, *CsvButton, *PrintButton, *PdfButton;
    // The scenarios of the document, the one shown chosen; each has its own terms and events.
    QComboBox* Scenarios;
    QPushButton *NewScenarioButton, *DuplicateButton, *RenameButton, *DeleteScenarioButton;

signals:
    // The plan was calculated anew: its events, terms or deduction, or its loan, changed.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The events the list holds, with the row of each; a row the plan can't use is marked with
    // the reason.
    std::vector<engine::PlanEvent> readEvents(std::int64_t paymentCount);
    void showScenarioNames();
    // Sets the terms, deduction and events without taking it for a change of the user's.
    void showScenario(const engine::Scenario& scenario);
    // What changed since the last change kept, as one step to undo.
    void keepChange();
    void showFigures(const engine::PlanOutcome& outcome, int era);
    // The figures of a plan as the window shows them, in the order of Figures.
    QStringList figureTexts(const engine::PlanOutcome& outcome, int era) const;
    void showComparison();
    // A line of the chart: a plan's balance, or the interest it paid so far.
    struct ChartLine {
        QString name;
        std::vector<engine::Payment> payments;
        bool interest;
        QColor colour;
        Qt::PenStyle style;
    };
    // The plan beside the loan without events; with several scenarios, each in a colour of its own.
    std::vector<ChartLine> chartLines(const engine::PlanOutcome& outcome) const;
    void drawChart(const std::vector<ChartLine>& lines);
    CellsModel* shownTable() const;
    void print();
    // Paints the report with a progress dialog that can cancel it.
    Painted paintReport(QPagedPaintDevice& device);

    QPointer<shell::MainWindow> m_main;
    QUndoStack* m_undo;
    EventsModel* m_events;
    engine::Scenario m_last; // as the last calculation read it: where the next change undoes to
    bool m_showing = false;  // changes kept as one step, or none
    CellsModel* m_schedule;
    CellsModel* m_years;
    CellsModel* m_comparison;
    QTabWidget* m_tabs;
    QFormLayout* m_figures;
    std::vector<engine::Payment> m_payments;
    table::PlanColumns m_columns; // as the terms have them
    bool m_deduction = false;     // a deduction is set
    std::vector<int> m_eventRows; // the list's row of each event read
    int m_era = 0;                // of the form, for the date column
    std::int64_t m_payDay = 0;    // as the form reads it
    bool m_reading = false;
};

} // namespace planner
