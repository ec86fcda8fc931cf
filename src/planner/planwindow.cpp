// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/planwindow.h"

#include "calendar/loandates.h"
#include "controls/locks.h"
#include "engine/calculation.h"
#include "form/amountfields.h"
#include "planner/cellsmodel.h"
#include "planner/deductionbox.h"
#include "planner/document.h"
#include "planner/eventsmodel.h"
#include "planner/savefile.h"
#include "planner/termsbox.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "shell/app.h"
#include "shell/mainwindow.h"
#include "strings/lookup.h"
#include "table/export.h"

#include <QBuffer>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QFileDialog>
#include <QFormLayout>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineSeries>
#include <QMenuBar>
#include <QMimeData>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableView>
#include <QToolTip>
#include <QUndoStack>
#include <QValueAxis>

#include <set>
#include <sstream>

namespace planner {
namespace {

using strings::text;

QString qs(const std::string& s) { return QString::fromStdString(s); }

// Kind and mode are chosen from lists.
class ChoiceDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        if (index.column() != EventsModel::kKind && index.column() != EventsModel::kMode)
            return QStyledItemDelegate::createEditor(parent, option, index);
        auto* choices = new QComboBox(parent);
        choices->addItems(
            strings::fields(index.column() == EventsModel::kKind ? strings::kEventKinds : strings::kPrepayModes, '\t'));
        return choices;
    }
};

QDateTime dateTime(const calendar::Date& date) {
    return QDateTime(QDate(static_cast<int>(date.Year()), static_cast<int>(date.Month()), static_cast<int>(date.Day())),
                     QTime(0, 0));
}

} // namespace

// A change of the user's to the terms, deduction or events: the scenario before and after it.
class ScenarioChange : public QUndoCommand {
public:
    ScenarioChange(std::function<void(const engine::Scenario&)> show, engine::Scenario before, engine::Scenario after)
        : m_show(std::move(show)), m_before(std::move(before)), m_after(std::move(after)) {}
    void undo() override { m_show(m_before); }
    // Pushed once it is done: the first redo has nothing to do.
    void redo() override {
        if (!m_done)
            m_done = true;
        else
            m_show(m_after);
    }

private:
    std::function<void(const engine::Scenario&)> m_show;
    engine::Scenario m_before, m_after;
    bool m_done = false;
};

PlanWindow::PlanWindow(shell::MainWindow* main)
    : QMainWindow(main, Qt::Window), m_main(main), m_undo(new QUndoStack(this)), m_events(new EventsModel(this)),
      m_schedule(new CellsModel(table::kAmount, this)), m_years(new CellsModel(3, this)) {
    // Closing hides it: its terms and events belong to its main window's loan and come back when
    // it is opened again. It goes with its main window.
    setObjectName("PlanWindow");

    Terms = new TermsBox(this);
    connect(Terms, &TermsBox::changed, this, &PlanWindow::recalculate);
    Deduction = new DeductionBox(this);
    connect(Deduction, &DeductionBox::changed, this, &PlanWindow::recalculate);
    Events = new QTableView(this);
    Events->setObjectName("Events");
    Events->setModel(m_events);
    Events->setAccessibleName(text(strings::kEventsTitle));
    // What to do, said where the events will be while there are none.
    EventsHint = new QLabel(text(strings::kEventsHint));
    EventsHint->setWordWrap(true);
    EventsHint->setEnabled(false);
    (new QVBoxLayout(Events->viewport()))->addWidget(EventsHint, 0, Qt::AlignTop);
    Events->setItemDelegate(new ChoiceDelegate(Events));
    Events->verticalHeader()->hide();
    Events->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    Events->setTabKeyNavigation(false);
    // A cell edited, a row added or removed: the plan anew (not while the window itself sets them).
    const auto edited = [this] {
        if (!m_reading) recalculate();
    };
    connect(m_events, &QAbstractItemModel::dataChanged, this, edited);
    connect(m_events, &QAbstractItemModel::rowsInserted, this, edited);
    connect(m_events, &QAbstractItemModel::rowsRemoved, this, edited);
    const auto shortcut = [this](QKeySequence keys, void (PlanWindow::*action)()) {
        auto* s = new QShortcut(keys, Events, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(s, &QShortcut::activated, this, action);
    };
    shortcut(QKeySequence(Qt::Key_Insert), &PlanWindow::addEvent);
    shortcut(QKeySequence::Delete, &PlanWindow::removeEvents);
    shortcut(QKeySequence::Paste, &PlanWindow::pasteEvents);
    auto* copyEventsKey = new QShortcut(QKeySequence::Copy, Events, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(copyEventsKey, &QShortcut::activated, this, &PlanWindow::copyEvents);

    const auto button = [this](const strings::Constant& caption, auto action) {
        auto* b = new QPushButton(text(caption), this);
        connect(b, &QPushButton::clicked, this, action);
        return b;
    };
    AddButton = button(strings::kAddEvent, &PlanWindow::addEvent);
    RemoveButton = button(strings::kRemoveEvent, &PlanWindow::removeEvents);
    CopyButton = button(strings::kCopySchedule, &PlanWindow::copySchedule);
    CsvButton = button(strings::kSaveCsv, [this] {
        const char* name = shownTable() == m_years        ? "years.csv"
                           : shownTable() == m_comparison ? "comparison.csv"
                                                          : "schedule.csv";
        const QString path =
            QFileDialog::getSaveFileName(this, strings::withoutMnemonic(strings::kSaveCsv), name, "CSV (*.csv)");
        if (!path.isEmpty()) saveCsv(path);
    });
    CsvButton->setToolTip(text(strings::kSaveCsvTip));
    PrintButton = button(strings::kPrint, &PlanWindow::print);
    PdfButton = button(strings::kExportPdf, [this] {
        const QString path = QFileDialog::getSaveFileName(this, strings::withoutMnemonic(strings::kExportPdf),
                                                          "plan.pdf", "PDF (*.pdf)");
        if (!path.isEmpty()) exportPdf(path);
    });
    // New and Quit answer their keys here as in every window of the program.
    addActions({shell::App::instance()->fileNewAction(), shell::App::instance()->fileQuitAction()});
    // Ctrl+W closes it, as it closes a document window; so does an Escape no control takes.
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    // Copy Schedule answers its key wherever the focus is in this window.
    auto* copyScheduleKey = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), this);
    connect(copyScheduleKey, &QShortcut::activated, this, &PlanWindow::copySchedule);

    m_figures = new QFormLayout;
    for (const QString& name : strings::fields(strings::kTotalNames, '\t')) {
        auto* value = new QLabel(this);
        value->setAccessibleName(name);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_figures->addRow(name + ":", value);
        Figures.push_back(value);
    }

    // Rows as tall as the main window's table has them.
    const int rowHeight = fontMetrics().height() + 6;
    Events->verticalHeader()->setDefaultSectionSize(rowHeight);
    const auto tableView = [this, rowHeight](CellsModel* model, const char* name) {
        auto* view = new QTableView(this);
        view->setObjectName(name);
        view->setModel(model);
        view->verticalHeader()->hide();
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setTabKeyNavigation(false);
        view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        view->verticalHeader()->setDefaultSectionSize(rowHeight);
        // Copy takes the selected rows (also by its key, through the event filter).
        view->installEventFilter(this);
        view->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(view, &QWidget::customContextMenuRequested, this, [this, view](QPoint at) {
            QMenu menu(this);
            menu.addAction(text(strings::kEditCopy), this, [view] { copySelectedRows(view); })
                ->setEnabled(view->selectionModel()->hasSelection());
            menu.addAction(strings::withoutMnemonic(strings::kCopySchedule), this, &PlanWindow::copySchedule);
            menu.exec(view->viewport()->mapToGlobal(at));
        });
        return view;
    };
    Schedule = tableView(m_schedule, "Schedule");
    Years = tableView(m_years, "Years");
    m_comparison = new CellsModel(1, this);
    Comparison = tableView(m_comparison, "Comparison");
    Chart = new QChartView(this);
    Chart->setRenderHint(QPainter::Antialiasing);
    const QStringList tabNames = strings::fields(strings::kTabs, '\t');
    auto* tabs = new QTabWidget(this);
    m_tabs = tabs;
    tabs->setAccessibleName(tabNames.join(", "));
    tabs->addTab(Schedule, tabNames.value(0));
    tabs->addTab(Years, tabNames.value(1));
    tabs->addTab(Chart, tabNames.value(2));
    tabs->addTab(Comparison, tabNames.value(3));
    for (int i = 0; i < 4; ++i) tabs->widget(i)->setAccessibleName(tabNames.value(i));
    // Room for a table or the chart to read, where the window must scroll for it.
    tabs->setMinimumHeight(fontMetrics().height() * 18);
    // The comparison works out every scenario: only while it is shown.
    connect(tabs, &QTabWidget::currentChanged, this, [this] {
        if (m_tabs->currentWidget() == Comparison) showComparison();
    });

    // The scenario bar: which scenario the window shows, and the commands on the list.
    Scenarios = new QComboBox(this);
    Scenarios->setObjectName("Scenarios");
    Scenarios->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    planner::Document* document = main->document();
    Scenarios->setModel(document->names());
    connect(Scenarios, &QComboBox::activated, document,
            [document](int index) { document->show(static_cast<std::size_t>(index)); });
    connect(document, &Document::scenariosChanged, this, &PlanWindow::showScenarioNames);
    NewScenarioButton = button(strings::kNewScenario, [this, document] {
        document->addScenario({text(strings::kScenarioName).arg(Scenarios->count() + 1).toStdString(), {}, {}, {}});
    });
    DuplicateButton = button(strings::kDuplicateScenario, [this, document] {
        engine::Scenario copy = scenario();
        copy.name = text(strings::kScenarioCopy).arg(Scenarios->currentText()).toStdString();
        document->addScenario(copy);
    });
    RenameButton = button(strings::kRenameScenario, [this, document] {
        bool given = false;
        const QString name = QInputDialog::getText(this, strings::withoutMnemonic(strings::kRenameScenario),
                                                   strings::withoutMnemonic(strings::kScenarioLabel), QLineEdit::Normal,
                                                   Scenarios->currentText(), &given)
                                 .simplified()
                                 .left(static_cast<int>(engine::kMaxLineLength) / 10);
        if (given && !name.isEmpty()) document->renameShown(name.toStdString());
    });
    DeleteScenarioButton = button(strings::kDeleteScenario, [document] { document->removeShown(); });
    auto* scenarioLabel = new QLabel(text(strings::kScenarioLabel), this);
    scenarioLabel->setBuddy(Scenarios);
    auto* scenarioBar = new QHBoxLayout;
    scenarioBar->addWidget(scenarioLabel);
    scenarioBar->addWidget(Scenarios);
    for (QPushButton* b : {NewScenarioButton, DuplicateButton, RenameButton, DeleteScenarioButton})
        scenarioBar->addWidget(b);
    scenarioBar->addStretch();
    showScenarioNames();

    auto* eventButtons = new QVBoxLayout;
    eventButtons->addWidget(AddButton);
    eventButtons->addWidget(RemoveButton);
    eventButtons->addStretch();
    auto* eventsLine = new QHBoxLayout;
    eventsLine->addWidget(Events, 1);
    eventsLine->addLayout(eventButtons);
    auto* left = new QVBoxLayout;
    left->addWidget(Terms);
    left->addLayout(eventsLine, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(Deduction);
    right->addLayout(m_figures);
    right->addStretch();
    auto* top = new QHBoxLayout;
    top->addLayout(left, 3);
    top->addLayout(right, 2);
    auto* bottom = new QHBoxLayout;
    for (QPushButton* b : {CopyButton, CsvButton, PrintButton, PdfButton}) bottom->addWidget(b);
    bottom->addStretch();
    // All but the buttons scroll where the screen is smaller than they need, so that the buttons
    // stay on it.
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->addLayout(scenarioBar);
    layout->addLayout(top, 2);
    layout->addWidget(tabs, 5);
    auto* scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAccessibleName(strings::withoutMnemonic(strings::kPlanMenu));
    auto* central = new QWidget;
    auto* window = new QVBoxLayout(central);
    window->setContentsMargins({});
    auto* menus = new QMenuBar;
    QMenu* edit = menus->addMenu(text(strings::kEditMenu));
    QAction* undo = m_undo->createUndoAction(this, text(strings::kEditUndo));
    QAction* redo = m_undo->createRedoAction(this, text(strings::kEditRedo));
    undo->setShortcuts(QKeySequence::Undo);
    redo->setShortcuts(QKeySequence::Redo);
    edit->addActions({undo, redo});
    setMenuBar(menus);
    window->addWidget(scroll);
    bottom->setContentsMargins(layout->contentsMargins());
    window->addLayout(bottom);
    setCentralWidget(central);
    // As much larger as a field is taller in this font than in the design's, within the screen.
    const double scale = std::max(1.0, Terms->BonusAmount->sizeHint().height() / 22.0);
    const QSize needed =
        content->minimumSizeHint() + QSize(0, menus->sizeHint().height() + bottom->sizeHint().height() + 12);
    controls::resizeWithinScreen(this, (QSize(920, 760) * scale).expandedTo(needed));

    connect(main, &shell::MainWindow::calculated, this, &PlanWindow::recalculate);
}

std::vector<engine::PlanEvent> PlanWindow::readEvents(std::int64_t paymentCount) {
    m_reading = true;
    const QStringList reasons = strings::fields(strings::kEventErrors, '\t');
    std::vector<engine::PlanEvent> events;
    m_eventRows.clear();
    for (int row = 0; row < m_events->rowCount(); ++row) {
        const engine::EventReading reading = engine::readEvent(m_events->line(row), paymentCount);
        if (reading.event) {
            events.push_back(*reading.event);
            m_eventRows.push_back(row);
        }
        m_events->setProblem(row, reading.event ? QString() : reasons.value(static_cast<int>(reading.code)));
    }
    m_reading = false;
    return events;
}

void PlanWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        close();
    else
        QWidget::keyPressEvent(event);
}

void PlanWindow::showEvent(QShowEvent* event) {
    recalculate();
    QWidget::showEvent(event);
}

void PlanWindow::recalculate() {
    EventsHint->setVisible(m_events->rowCount() == 0);
    // A closed window waits to be shown again.
    if (!m_main || !isVisible()) return;
    const engine::LoanForm form = m_main->loanForm();
    const engine::LoanTerms terms = engine::readLoanForm(form);
    const QString method = (form.flatPayment ? text(strings::kGanri) : text(strings::kGankin)).trimmed();
    setWindowTitle(text(strings::kPlanTitle)
                       .arg(method, qs(form::principalForDisplay(form.principal)), qs(form::plainNumber(form.rate)),
                            qs(runtime::Str(terms.paymentCount))));
    auto events = readEvents(terms.paymentCount);
    const std::optional<engine::LenderTerms> lender = Terms->terms();
    const DeductionBox::Reading deduction = Deduction->deduction();
    const QStringList notes = strings::fields(strings::kDeductionNotes, '\t');
    engine::PlanOutcome outcome;
    if (lender && deduction.readable) {
        outcome = engine::evaluatePlan(form, events, *lender, deduction.deduction);
        Terms->showFit(outcome.base.termsFit);
        Deduction->showNote(outcome.deductionTooShort   ? notes.value(0)
                            : outcome.deductionEndsFrom ? notes.value(1).arg(*outcome.deductionEndsFrom)
                                                        : QString());
    } else {
        // Terms or a deduction that can't be read refuse the plan, and say why.
        outcome.refusal = engine::Refusal::BadTerms;
        if (lender) Terms->showFit(engine::TermsFit::Fits);
        if (!lender) Terms->showUnreadableBonus();
        Deduction->showNote(deduction.readable ? QString() : notes.value(2));
    }
    m_deduction = deduction.deduction.has_value();
    // The last reason is the plan's refusal, for the row of the event that causes it.
    if (outcome.refusedBy) {
        m_reading = true;
        m_events->setProblem(m_eventRows[*outcome.refusedBy], strings::fields(strings::kEventErrors, '\t').last());
        m_reading = false;
    }
    // A refused plan shows no figures, rather than those of the plan before.
    m_payments = outcome.refusal == engine::Refusal::None ? outcome.plan.payments : std::vector<engine::Payment>{};

    const int era = terms.dateLine.era;
    m_columns = {lender && lender->bonus, true, lender && lender->review};
    table::Cells headings;
    for (const QString& heading : strings::fields(strings::kHeader, '\t')) headings.push_back(heading.toStdString());
    headings =
        table::planHeadings(headings,
                            {text(strings::kBonusHeading).toStdString(), text(strings::kPrepaidHeading).toStdString(),
                             text(strings::kUnpaidHeading).toStdString()},
                            m_columns);
    m_era = era;
    m_payDay = terms.dateLine.payDay;
    QStringList shownHeadings;
    for (const std::string& heading : headings) shownHeadings << qs(heading);
    m_schedule->setRows(shownHeadings, m_payments.size(), [this](std::size_t row) {
        return table::planRowText(m_payments[row], m_era, m_payDay, m_columns);
    });
    const int unpaid = static_cast<int>(Figures.size()) - 4;
    m_figures->setRowVisible(unpaid, m_columns.unpaid);
    for (int row = unpaid + 1; row < static_cast<int>(Figures.size()); ++row)
        m_figures->setRowVisible(row, m_deduction);
    auto years = std::make_shared<std::vector<table::Cells>>(table::yearRowTexts(
        outcome.refusal == engine::Refusal::None ? outcome.years : std::vector<engine::YearFigures>{}, era, m_payDay,
        shell::MainWindow::payoffWords().eraNames, m_deduction));
    if (!years->empty())
        years->push_back(table::yearTotalsRow(outcome.years, text(strings::kTotal).toStdString(), m_deduction));
    QStringList yearHeadings = strings::fields(strings::kYearHeader, '\t');
    if (m_deduction) yearHeadings.insert(yearHeadings.size() - 1, text(strings::kDeductionHeading));
    m_years->setRows(yearHeadings, years->size(), [years](std::size_t row) { return (*years)[row]; });
    showFigures(outcome, form.era);
    drawChart(chartLines(outcome));
    if (m_tabs->currentWidget() == Comparison) showComparison();
    if (!m_showing) keepChange();
    emit changed();
}

void PlanWindow::showFigures(const engine::PlanOutcome& outcome, int era) {
    const QStringList values = outcome.refusal == engine::Refusal::None ? figureTexts(outcome, era) : QStringList();
    // A screen reader reads each figure by its name, then its value.
    for (std::size_t i = 0; i < Figures.size(); ++i) {
        Figures[i]->setText(values.value(static_cast<int>(i)));
        Figures[i]->setAccessibleDescription(Figures[i]->text());
    }
}

void PlanWindow::showComparison() {
    const engine::PlanDocument document = m_main->document()->current();
    const std::vector<engine::ComparedPlan> plans = engine::comparePlans(document);
    const QStringList names = strings::fields(strings::kTotalNames, '\t');
    // The figures of each measure, by their place among the totals'.
    const int figureOf[engine::kMeasures] = {0, 5, 1, 2, 4, 11, 12, 6, 8, 9};
    QStringList headings{text(strings::kMeasure)};
    auto rows = std::make_shared<std::vector<table::Cells>>(engine::kMeasures);
    std::set<std::pair<int, int>> best;
    for (int m = 0; m < engine::kMeasures; ++m) {
        (*rows)[static_cast<std::size_t>(m)].push_back(names.value(figureOf[m]).toStdString());
        for (const std::size_t column : engine::bestIn(plans, static_cast<engine::Measure>(m)))
            best.emplace(m, static_cast<int>(column) + 1);
    }
    for (const engine::ComparedPlan& plan : plans) {
        headings << (plan.name.empty() ? text(strings::kWithoutEvents) : qs(plan.name));
        const QStringList figures = plan.outcome ? figureTexts(*plan.outcome, document.form.era) : QStringList();
        for (int m = 0; m < engine::kMeasures; ++m)
            (*rows)[static_cast<std::size_t>(m)].push_back(
                (plan.outcome ? figures.value(figureOf[m]) : text(strings::kRefused)).toStdString());
    }
    m_comparison->setRows(headings, rows->size(), [rows](std::size_t row) { return (*rows)[row]; });
    m_comparison->setMarked(std::move(best));
}

QStringList PlanWindow::figureTexts(const engine::PlanOutcome& outcome, int era) const {
    const auto amount = [](double value) { return qs(runtime::Format(value, table::kAmountMask)); };
    const calendar::PayoffWords words = m_main->payoffWords();
    const auto date = [&](const calendar::Date& d) { return qs(calendar::payoffText(d, era, words)); };
    const engine::PlanTotals& totals = outcome.totals;
    const engine::PlanSavings& savings = outcome.savings;
    const std::int64_t saved = savings.paymentsSaved;
    const QString breakEven =
        savings.breakEven ? QString::number(*savings.breakEven) + " (" + date(savings.breakEvenDate).trimmed() + ")"
                          : text(totals.fees > 0 ? strings::kNotEarnedBack : strings::kNoFees);
    const QString values[] = {QString::number(totals.payments),
                              amount(totals.paid),
                              amount(totals.interest),
                              amount(totals.prepaid),
                              amount(totals.fees),
                              date(totals.payoff),
                              amount(savings.interestSaved),
                              text(strings::kYearsMonths).arg(saved).arg(saved / 12).arg(saved % 12),
                              amount(savings.netSaving),
                              breakEven,
                              amount(totals.unpaidPaid),
                              amount(totals.deduction),
                              amount(totals.netCost),
                              amount(savings.deductionLost)};
    return QStringList(std::begin(values), std::end(values));
}

std::vector<PlanWindow::ChartLine> PlanWindow::chartLines(const engine::PlanOutcome& outcome) const {
    if (outcome.refusal != engine::Refusal::None) return {};
    const QStringList names = strings::fields(strings::kChartNames, '\t');
    static const QColor kColours[] = {"#1f5fbf", "#d9480f", "#2b8a3e", "#7048e8", "#c2255c", "#0b7285"};
    // Each scenario's payments and its name; the one shown alone needs no name.
    std::vector<std::pair<QString, std::vector<engine::Payment>>> plans{{QString(), outcome.plan.payments}};
    const engine::PlanDocument document = m_main->document()->current();
    if (document.scenarios.size() > 1) {
        plans.clear();
        for (const engine::ComparedPlan& plan : engine::comparePlans(document))
            if (plan.outcome && !plan.name.empty())
                plans.emplace_back(qs(plan.name) + ": ", plan.outcome->plan.payments);
    }
    std::vector<ChartLine> lines;
    for (const bool interest : {false, true}) {
        for (std::size_t i = 0; i < plans.size(); ++i) {
            const QColor colour = kColours[i % std::size(kColours)].darker(interest ? 130 : 100);
            lines.push_back({plans[i].first + names.value(interest ? 2 : 0), plans[i].second, interest, colour,
                             interest ? Qt::DotLine : Qt::SolidLine});
        }
        lines.push_back({names.value(interest ? 3 : 1), outcome.base.payments, interest,
                         QColor("#888888").darker(interest ? 130 : 100), interest ? Qt::DashDotLine : Qt::DashLine});
    }
    return lines;
}

void PlanWindow::drawChart(const std::vector<ChartLine>& lines) {
    const QStringList names = strings::fields(strings::kChartNames, '\t');
    auto* chart = new QChart;
    chart->setLocalizeNumbers(true);                                 // amounts with the locale's separators
    chart->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries); // colour and line style
    // Several scenarios' names in a column of their own, where a row would cut them.
    if (lines.size() > 4) chart->legend()->setAlignment(Qt::AlignRight);
    auto* dates = new QDateTimeAxis;
    dates->setFormat("yyyy");
    dates->setTitleText(names.value(4));
    auto* amounts = new QValueAxis;
    amounts->setLabelFormat("%.0f"); // its amounts need no title, which would lie on its side
    chart->addAxis(dates, Qt::AlignBottom);
    chart->addAxis(amounts, Qt::AlignLeft);
    // No more points than the chart has pixels across; the last payment always.
    const auto pixels = static_cast<std::size_t>(std::max(100, Chart->width()));
    double highest = 0;
    qint64 first = std::numeric_limits<qint64>::max(), last = std::numeric_limits<qint64>::min();
    for (const ChartLine& line : lines) {
        auto* series = new QLineSeries;
        series->setName(line.name);
        series->setPen(QPen(line.colour, 2, line.style));
        const std::vector<engine::Payment>& payments = line.payments;
        const std::size_t step = std::max<std::size_t>(1, (payments.size() + pixels - 1) / pixels);
        std::vector<engine::Payment> shown; // the payment of each point
        double total = 0;
        for (std::size_t i = 0; i < payments.size(); ++i) {
            total += payments[i].interest;
            highest = std::max({highest, payments[i].balance + payments[i].principal + payments[i].prepaid, total});
            if (i % step != 0 && i + 1 != payments.size()) continue;
            const qint64 at = dateTime(payments[i].date).toMSecsSinceEpoch();
            first = std::min(first, at);
            last = std::max(last, at);
            series->append(static_cast<double>(at), line.interest ? total : payments[i].balance);
            shown.push_back(payments[i]);
        }
        chart->addSeries(series);
        series->attachAxis(dates);
        series->attachAxis(amounts);
        // The series' own figure at the point nearest the pointer, with its payment and its date as
        // the figures write dates.
        connect(series, &QLineSeries::hovered, this, [this, series, shown](QPointF point, bool inside) {
            const QList<QPointF> points = series->points();
            if (!inside || points.isEmpty()) return;
            const auto nearest = std::min_element(points.begin(), points.end(), [&point](QPointF a, QPointF b) {
                return std::abs(a.x() - point.x()) < std::abs(b.x() - point.x());
            });
            const engine::Payment& payment = shown.at(static_cast<std::size_t>(nearest - points.begin()));
            QToolTip::showText(QCursor::pos(), text(strings::kPointer)
                                                   .arg(payment.number)
                                                   .arg(qs(calendar::payoffText(payment.date, m_main->loanForm().era,
                                                                                shell::MainWindow::payoffWords())))
                                                   .arg(qs(runtime::Format(nearest->y(), table::kAmountMask)))
                                                   .arg(series->name()));
        });
    }
    // Every loan whole: from the first payment to the last end, from 0 to the highest figure.
    if (first <= last) {
        dates->setRange(QDateTime::fromMSecsSinceEpoch(first), QDateTime::fromMSecsSinceEpoch(last));
        amounts->setRange(0, highest);
        amounts->applyNiceNumbers();
    }
    QChart* old = Chart->chart();
    Chart->setChart(chart);
    delete old;
}

bool PlanWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* view = qobject_cast<QTableView*>(watched);
    if (!view || event->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return QWidget::eventFilter(watched, event);
    copySelectedRows(view);
    return true;
}

void PlanWindow::copySelectedRows(const QTableView* view) {
    std::set<int> selected;
    for (const QModelIndex& index : view->selectionModel()->selectedIndexes()) selected.insert(index.row());
    std::vector<table::Cells> rows;
    for (const int row : selected) rows.push_back(static_cast<CellsModel*>(view->model())->row(row));
    if (!rows.empty()) copyRows(rows);
}

void PlanWindow::addEvent() {
    // A prepayment with the next payment from today, its amount left to type: marked until it is.
    const QDate today = QDate::currentDate();
    const auto next = std::find_if(m_payments.begin(), m_payments.end(),
                                   [&today](const engine::Payment& p) { return dateTime(p.date).date() > today; });
    m_reading = true;
    m_events->appendPrepayment(next == m_payments.end() ? 1 : static_cast<int>(next->number));
    m_reading = false;
    Events->setCurrentIndex(m_events->index(m_events->rowCount() - 1, EventsModel::kValue));
    recalculate();
}

void PlanWindow::removeEvents() {
    std::set<int> rows;
    for (const QModelIndex& index : Events->selectionModel()->selectedIndexes()) rows.insert(index.row());
    if (rows.empty() && Events->currentIndex().isValid()) rows.insert(Events->currentIndex().row());
    m_reading = true;
    for (auto it = rows.rbegin(); it != rows.rend(); ++it) m_events->removeRow(*it);
    m_reading = false;
    recalculate();
}

void PlanWindow::showScenarioNames() {
    const planner::Document* document = m_main->document();
    const QSignalBlocker blocker(Scenarios);
    Scenarios->setCurrentIndex(static_cast<int>(document->shown()));
    DeleteScenarioButton->setEnabled(Scenarios->count() > 1);
}

engine::Scenario PlanWindow::scenario() const {
    engine::Scenario scenario;
    if (const auto terms = Terms->terms()) scenario.terms = engine::termLines(*terms);
    if (const auto deduction = Deduction->deduction().deduction) scenario.deduction = engine::deductionLine(*deduction);
    for (int row = 0; row < m_events->rowCount(); ++row) scenario.events.push_back(m_events->line(row));
    return scenario;
}

void PlanWindow::keepChange() {
    if (const engine::Scenario now = scenario(); now != m_last) {
        m_undo->push(new ScenarioChange([this](const engine::Scenario& s) { showScenario(s); }, m_last, now));
        m_last = now;
    }
}

void PlanWindow::setScenario(const engine::Scenario& scenario) {
    showScenario(scenario);
    m_undo->clear();
}

void PlanWindow::showScenario(const engine::Scenario& scenario) {
    engine::LenderTerms terms;
    for (const std::string& line : scenario.terms) engine::readTerm(line, terms);
    std::optional<engine::TaxDeduction> deduction;
    if (scenario.deduction) engine::readDeduction(*scenario.deduction, deduction);
    m_showing = true;
    Terms->setTerms(terms);
    Deduction->setDeduction(deduction);
    m_reading = true;
    m_events->removeRows(0, m_events->rowCount());
    m_events->appendLines(scenario.events);
    m_reading = false;
    recalculate();
    m_last = this->scenario(); // also while hidden, when nothing was calculated
    m_showing = false;
}

void PlanWindow::copyEvents() const {
    const engine::Scenario all = scenario();
    QStringList lines;
    for (const std::string& line : all.terms) lines << qs(line);
    if (all.deduction) lines << qs(*all.deduction);
    std::set<int> rows;
    for (const QModelIndex& index : Events->selectionModel()->selectedIndexes()) rows.insert(index.row());
    for (const int row : rows) lines << qs(m_events->line(row));
    QGuiApplication::clipboard()->setText(lines.join('\n') + (lines.isEmpty() ? "" : "\n"));
}

void PlanWindow::pasteEvents() {
    std::istringstream pasted(QGuiApplication::clipboard()->text().toStdString());
    const engine::PlanLines read = engine::readPlanLines(pasted);
    if (read.problem != engine::PlanLines::None) {
        const QString why =
            read.problem == engine::PlanLines::LineTooLong
                ? text(strings::kLineTooLong).arg(read.line).arg(engine::kMaxLineLength)
                : text(strings::kTooManyLines).arg(QLocale().toString(qulonglong{engine::kMaxPlanLines}));
        warn(this, text(strings::kPasteRefused).arg(why));
        return;
    }
    // Terms set the controls, events add rows; a term set wrongly refuses the whole text.
    engine::LenderTerms terms = Terms->terms().value_or(engine::LenderTerms{});
    std::optional<engine::TaxDeduction> deduction = Deduction->deduction().deduction;
    std::vector<std::string> eventLines;
    for (std::size_t i = 0; i < read.lines.size(); ++i) {
        engine::TermReading term = engine::readDeduction(read.lines[i], deduction);
        if (!term.isTerm) term = engine::readTerm(read.lines[i], terms);
        if (!term.error.empty()) {
            warn(this, text(strings::kPasteRefused)
                           .arg(text(strings::kBadTermLine).arg(i + 1).arg(qs(runtime::excerpt(read.lines[i])))));
            return;
        }
        if (!term.isTerm) eventLines.push_back(read.lines[i]);
    }
    // One change to undo, though the terms, the deduction and the list each recalculate.
    m_showing = true;
    Terms->setTerms(terms);
    Deduction->setDeduction(deduction);
    m_reading = true;
    m_events->appendLines(eventLines);
    m_reading = false;
    recalculate();
    m_showing = false;
    keepChange();
}

CellsModel* PlanWindow::shownTable() const {
    return m_tabs->currentWidget() == Years        ? m_years
           : m_tabs->currentWidget() == Comparison ? m_comparison
                                                   : m_schedule;
}

void PlanWindow::copySchedule() const { copyRows(m_schedule->all()); }

void PlanWindow::copyRows(const std::vector<table::Cells>& rows) {
    auto* mime = new QMimeData;
    mime->setText(qs(table::toTsv(rows)));
    mime->setData("text/csv", QByteArray::fromStdString(table::toCsv(rows)));
    mime->setHtml(qs(table::toHtml(rows)));
    QGuiApplication::clipboard()->setMimeData(mime);
}

bool PlanWindow::saveCsv(const QString& path) {
    const QByteArray csv = QByteArray::fromStdString(table::toCsv(shownTable()->all()));
    const QString error = saveWhole(path, csv);
    if (!error.isEmpty()) showSaveError(this, path, error);
    return error.isEmpty();
}

Painted PlanWindow::paintReport(QPagedPaintDevice& device) {
    ReportContent content;
    content.title = windowTitle();
    content.events.headings = strings::fields(strings::kEventHeader, '\t');
    std::vector<table::Cells> events;
    for (int row = 0; row < m_events->rowCount(); ++row) {
        table::Cells& cells = events.emplace_back();
        for (const QString& cell : m_events->shownRow(row)) cells.push_back(cell.toStdString());
    }
    content.events.rowCount = events.size();
    content.events.row = [events](std::size_t row) { return events[row]; };
    content.events.firstAmount = EventsModel::kValue;
    const QStringList names = strings::fields(strings::kTotalNames, '\t');
    // The loan's dates under its title, as the figures write dates.
    const engine::LoanTerms loan = engine::readLoanForm(m_main->loanForm());
    content.terms = text(strings::kReportDates)
                        .arg(qs(calendar::payoffText(calendar::loanDates(loan.dateLine, loan.paymentCount).borrowed,
                                                     m_main->loanForm().era, shell::MainWindow::payoffWords())))
                        .arg(loan.dateLine.payDay);
    if (const QString terms = Terms->described(); !terms.isEmpty())
        content.terms += "\n" + text(strings::kTermsTitle) + ": " + terms;
    if (!Deduction->Note->isHidden()) content.terms += "\n" + Deduction->Note->text();
    for (std::size_t i = 0; i < Figures.size(); ++i)
        if (m_figures->isRowVisible(static_cast<int>(i)))
            content.figures.emplace_back(names.value(static_cast<int>(i)), Figures[i]->text());
    auto years = std::make_shared<const std::vector<table::Cells>>(m_years->all());
    content.years.headings = m_years->headings();
    content.years.rowCount = years->size() - 1;
    content.years.row = [years](std::size_t row) { return (*years)[row + 1]; };
    content.years.firstAmount = 2;
    // With several scenarios, their comparison.
    if (m_main->document()->scenarios().size() > 1) {
        showComparison();
        auto compared = std::make_shared<const std::vector<table::Cells>>(m_comparison->all());
        content.comparison.headings = m_comparison->headings();
        content.comparison.rowCount = compared->size() - 1;
        content.comparison.row = [compared](std::size_t row) { return (*compared)[row + 1]; };
        content.comparison.firstAmount = 1;
    }
    // The chart at the report's size, whatever size the view has (or had, where it was never shown).
    content.chart = QImage(1200, 700, QImage::Format_RGB32); // its texts as large as a page reads them
    content.chart.fill(Qt::white);
    QChart* chart = Chart->chart();
    const QSizeF shown = chart->size();
    chart->resize(content.chart.size());
    QPainter painter(&content.chart);
    painter.setRenderHint(QPainter::Antialiasing);
    chart->scene()->render(&painter, content.chart.rect(), QRectF(QPointF(), chart->size()));
    painter.end();
    chart->resize(shown);
    // The report keeps its own copy of the rows: the window may recalculate while it is painted.
    auto payments = std::make_shared<const std::vector<engine::Payment>>(m_payments);
    content.schedule.headings = m_schedule->headings();
    content.schedule.rowCount = payments->size();
    content.schedule.row = [payments, era = m_era, payDay = m_payDay, columns = m_columns](std::size_t row) {
        return table::planRowText((*payments)[row], era, payDay, columns);
    };
    content.schedule.firstAmount = table::kAmount;

    QProgressDialog progress(text(strings::kWritingReport), text(strings::kCancel), 0,
                             static_cast<int>(payments->size()), this);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(300);
    return planner::paintReport(device, content, [&progress](std::size_t done, std::size_t) {
        progress.setValue(static_cast<int>(done));
        return !progress.wasCanceled();
    });
}

bool PlanWindow::exportPdf(const QString& path) {
    // Painted whole before any file is touched: a cancel leaves none.
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(300);
    writer.setTitle(windowTitle());
    writer.setCreator(text(strings::kAppName));
    const Painted painted = paintReport(writer);
    if (painted == Painted::Cancelled) return false;
    const QString error = painted == Painted::Failed ? text(strings::kReportFailed) : saveWhole(path, pdf);
    if (!error.isEmpty()) showSaveError(this, path, error);
    return error.isEmpty();
}

void PlanWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    if (paintReport(printer) == Painted::Failed || printer.printerState() == QPrinter::Error)
        warn(this, text(strings::kPrintFailed));
}

} // namespace planner
