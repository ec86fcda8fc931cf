// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/planwindow.h"

#include "engine/calculation.h"
#include "form/amountfields.h"
#include "runtime/numbers.h"
#include "shell/cellsmodel.h"
#include "shell/mainwindow.h"
#include "strings/lookup.h"
#include "table/export.h"

#include <QApplication>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineSeries>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTextDocument>
#include <QToolTip>
#include <QValueAxis>

namespace shell {
namespace {

using strings::text;

enum EventColumn { kPayment, kKind, kValue, kMode, kEvery };
const QStringList kKinds{"prepay", "rate", "fee"};
const QStringList kModes{"shorten", "reduce"};

QString qs(const std::string& s) { return QString::fromStdString(s); }

// Kind and mode are chosen from lists.
class ChoiceDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        if (index.column() != kKind && index.column() != kMode)
            return QStyledItemDelegate::createEditor(parent, option, index);
        auto* choices = new QComboBox(parent);
        choices->addItems(index.column() == kKind ? kKinds : kModes);
        return choices;
    }
};

QDateTime dateTime(const calendar::Date& date) {
    return QDateTime(QDate(static_cast<int>(date.Year()), static_cast<int>(date.Month()), static_cast<int>(date.Day())),
                     QTime(0, 0));
}

} // namespace

PlanWindow::PlanWindow(MainWindow* main)
    : QWidget(main, Qt::Window), m_main(main), m_schedule(new CellsModel(table::kAmount, this)),
      m_years(new CellsModel(3, this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("PlanWindow");
    resize(820, 720);

    Events = new QTableWidget(0, 5, this);
    Events->setObjectName("Events");
    Events->setAccessibleName(text(strings::kEventsTitle));
    Events->setHorizontalHeaderLabels(strings::fields(strings::kEventHeader, '\t'));
    Events->setItemDelegate(new ChoiceDelegate(Events));
    Events->verticalHeader()->hide();
    Events->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    Events->setTabKeyNavigation(false);
    connect(Events, &QTableWidget::itemChanged, this, [this] {
        if (!m_reading) recalculate();
    });
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
        const QString path = QFileDialog::getSaveFileName(this, text(strings::kSaveCsv), "schedule.csv", "CSV (*.csv)");
        if (!path.isEmpty() && !saveCsv(path)) QApplication::beep();
    });
    PrintButton = button(strings::kPrint, &PlanWindow::print);
    PdfButton = button(strings::kExportPdf, [this] {
        const QString path = QFileDialog::getSaveFileName(this, text(strings::kExportPdf), "plan.pdf", "PDF (*.pdf)");
        if (!path.isEmpty() && !exportPdf(path)) QApplication::beep();
    });
    // Copy Schedule answers its key wherever the focus is in this window.
    auto* copyScheduleKey = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), this);
    connect(copyScheduleKey, &QShortcut::activated, this, &PlanWindow::copySchedule);

    auto* figures = new QFormLayout;
    for (const QString& name : strings::fields(strings::kTotalNames, '\t')) {
        auto* value = new QLabel(this);
        value->setAccessibleName(name);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        figures->addRow(name + ":", value);
        Figures.push_back(value);
    }

    const auto tableView = [this](CellsModel* model, const char* name) {
        auto* view = new QTableView(this);
        view->setObjectName(name);
        view->setModel(model);
        view->verticalHeader()->hide();
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setTabKeyNavigation(false);
        view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        return view;
    };
    Schedule = tableView(m_schedule, "Schedule");
    Schedule->installEventFilter(this); // Copy takes its selected rows
    Years = tableView(m_years, "Years");
    Chart = new QChartView(this);
    Chart->setRenderHint(QPainter::Antialiasing);
    const QStringList tabNames = strings::fields(strings::kTabs, '\t');
    auto* tabs = new QTabWidget(this);
    tabs->setAccessibleName(tabNames.join(", "));
    tabs->addTab(Schedule, tabNames.value(0));
    tabs->addTab(Years, tabNames.value(1));
    tabs->addTab(Chart, tabNames.value(2));
    for (int i = 0; i < 3; ++i) tabs->widget(i)->setAccessibleName(tabNames.value(i));

    auto* eventButtons = new QVBoxLayout;
    eventButtons->addWidget(AddButton);
    eventButtons->addWidget(RemoveButton);
    eventButtons->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(Events, 3);
    top->addLayout(eventButtons);
    top->addLayout(figures, 2);
    auto* bottom = new QHBoxLayout;
    for (QPushButton* b : {CopyButton, CsvButton, PrintButton, PdfButton}) bottom->addWidget(b);
    bottom->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 2);
    layout->addWidget(tabs, 5);
    layout->addLayout(bottom);

    connect(main, &MainWindow::calculated, this, &PlanWindow::recalculate);
    recalculate();
}

std::vector<engine::PlanEvent> PlanWindow::readEvents(std::int64_t paymentCount) {
    m_reading = true;
    const QStringList reasons = strings::fields(strings::kEventErrors, '\t');
    std::vector<engine::PlanEvent> events;
    for (int row = 0; row < Events->rowCount(); ++row) {
        const auto cell = [this, row](int column) {
            const QTableWidgetItem* item = Events->item(row, column);
            return item ? item->text().trimmed() : QString();
        };
        QString line = cell(kKind) + " " + cell(kPayment) + " " + cell(kValue);
        if (cell(kKind) == "prepay") line += " " + (cell(kMode).isEmpty() ? kModes[0] : cell(kMode));
        if (cell(kKind) == "prepay" && !cell(kEvery).isEmpty()) line += " every " + cell(kEvery);
        const engine::EventReading reading = engine::readEvent(line.toStdString(), paymentCount);
        if (reading.event) events.push_back(*reading.event);
        for (int column = 0; column < Events->columnCount(); ++column) {
            if (!Events->item(row, column)) Events->setItem(row, column, new QTableWidgetItem);
            QTableWidgetItem* item = Events->item(row, column);
            const QBrush mark = reading.event ? QBrush() : QBrush(QColor(255, 210, 210));
            if (item->background() != mark) item->setBackground(mark);
            const QString why = reasons.value(static_cast<int>(reading.code));
            if (item->toolTip() != why) item->setToolTip(why);
        }
    }
    m_reading = false;
    return events;
}

void PlanWindow::recalculate() {
    if (!m_main) return;
    const engine::LoanForm form = m_main->loanForm();
    const engine::LoanTerms terms = engine::readLoanForm(form);
    const QString method = (form.flatPayment ? text(strings::kGanri) : text(strings::kGankin)).trimmed();
    setWindowTitle(text(strings::kPlanTitle)
                       .arg(method, qs(form::principalForDisplay(form.principal)), qs(form::plainNumber(form.rate)),
                            qs(runtime::Str(terms.paymentCount))));
    const auto events = readEvents(terms.paymentCount);
    const engine::Calculation plan = engine::calculate(form, {}, events);
    const engine::Calculation base = engine::calculate(form);
    if (plan.refusal != engine::Refusal::None || base.refusal != engine::Refusal::None) return;
    m_payments = plan.payments;

    const int era = terms.dateLine.era;
    QStringList headings = strings::fields(strings::kHeader, '\t');
    headings.insert(table::kBalance, text(strings::kPrepaidHeading));
    m_era = era;
    m_payDay = terms.dateLine.payDay;
    m_schedule->setRows(headings, m_payments.size(),
                        [this](std::size_t row) { return table::planRowText(m_payments[row], m_era, m_payDay); });
    auto years = std::make_shared<std::vector<table::Cells>>(
        table::yearRowTexts(m_payments, era, m_payDay, MainWindow::payoffWords().eraNames));
    m_years->setRows(strings::fields(strings::kYearHeader, '\t'), years->size(),
                     [years](std::size_t row) { return (*years)[row]; });
    showFigures(plan.payments, base.payments, form.era);
    drawChart(plan.payments, base.payments);
}

void PlanWindow::showFigures(const std::vector<engine::Payment>& plan, const std::vector<engine::Payment>& base,
                             int era) {
    const auto amount = [](double value) { return qs(runtime::Format(value, table::kAmountMask)); };
    const calendar::PayoffWords words = m_main->payoffWords();
    const auto date = [&](const calendar::Date& d) { return qs(calendar::payoffText(d, era, words)); };
    const engine::PlanTotals totals = engine::planTotals(plan);
    const engine::PlanSavings savings = engine::planSavings(base, plan);
    const std::int64_t saved = savings.paymentsSaved;
    const QString breakEven =
        savings.breakEven ? QString::number(*savings.breakEven) + " (" + date(savings.breakEvenDate).trimmed() + ")"
                          : text(strings::kNone);
    const QString values[] = {QString::number(totals.payments),
                              amount(totals.paid),
                              amount(totals.interest),
                              amount(totals.prepaid),
                              amount(totals.fees),
                              date(totals.payoff),
                              amount(savings.interestSaved),
                              text(strings::kYearsMonths).arg(saved).arg(saved / 12).arg(saved % 12),
                              amount(savings.netSaving),
                              breakEven};
    for (std::size_t i = 0; i < Figures.size(); ++i) Figures[i]->setText(values[i]);
}

void PlanWindow::drawChart(const std::vector<engine::Payment>& plan, const std::vector<engine::Payment>& base) {
    const QStringList names = strings::fields(strings::kChartNames, '\t');
    auto* chart = new QChart;
    auto* dates = new QDateTimeAxis;
    dates->setFormat("yyyy");
    dates->setTitleText(names.value(4));
    auto* amounts = new QValueAxis;
    amounts->setLabelFormat("%.0f");
    amounts->setTitleText(names.value(5));
    chart->addAxis(dates, Qt::AlignBottom);
    chart->addAxis(amounts, Qt::AlignLeft);
    // No more points than the chart has pixels across; the last payment always.
    const int width = std::max(100, Chart->width());
    const auto add = [&](const std::vector<engine::Payment>& payments, bool interest, int name, Qt::PenStyle style) {
        auto* series = new QLineSeries;
        series->setName(names.value(name));
        series->setPen(QPen(QColor(name % 2 ? "#888888" : "#1f5fbf").darker(interest ? 130 : 100), 2, style));
        const auto pixels = static_cast<std::size_t>(width);
        const std::size_t step = std::max<std::size_t>(1, (payments.size() + pixels - 1) / pixels);
        double total = 0;
        for (std::size_t i = 0; i < payments.size(); ++i) {
            total += payments[i].interest;
            if (i % step == 0 || i + 1 == payments.size())
                series->append(static_cast<double>(dateTime(payments[i].date).toMSecsSinceEpoch()),
                               interest ? total : payments[i].balance);
        }
        chart->addSeries(series);
        series->attachAxis(dates);
        series->attachAxis(amounts);
        connect(series, &QLineSeries::hovered, this, [this, payments, names](QPointF point, bool inside) {
            if (!inside || payments.empty()) return;
            const QDate at = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(point.x())).date();
            const auto nearest =
                std::min_element(payments.begin(), payments.end(), [&at](const auto& a, const auto& b) {
                    return std::abs(dateTime(a.date).date().daysTo(at)) < std::abs(dateTime(b.date).date().daysTo(at));
                });
            QToolTip::showText(QCursor::pos(),
                               text(strings::kPointer)
                                   .arg(nearest->number)
                                   .arg(QLocale().toString(dateTime(nearest->date).date(), QLocale::ShortFormat))
                                   .arg(qs(runtime::Format(nearest->balance, table::kAmountMask))));
        });
    };
    add(plan, false, 0, Qt::SolidLine);
    add(base, false, 1, Qt::DashLine);
    add(plan, true, 2, Qt::DotLine);
    add(base, true, 3, Qt::DashDotLine);
    // Both loans whole: from the first payment to the later end, from 0 to the highest figure.
    if (!plan.empty() && !base.empty()) {
        const calendar::Date& last =
            plan.back().date.days() < base.back().date.days() ? base.back().date : plan.back().date;
        dates->setRange(dateTime(base.front().date), dateTime(last));
        double highest = 0;
        for (const auto* payments : {&plan, &base}) {
            double interest = 0;
            for (const engine::Payment& p : *payments) {
                interest += p.interest;
                highest = std::max({highest, p.balance + p.principal + p.prepaid, interest});
            }
        }
        amounts->setRange(0, highest);
        amounts->applyNiceNumbers();
    }
    QChart* old = Chart->chart();
    Chart->setChart(chart);
    delete old;
}

bool PlanWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != Schedule || event->type() != QEvent::KeyPress ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return QWidget::eventFilter(watched, event);
    std::vector<int> selected;
    for (const QModelIndex& index : Schedule->selectionModel()->selectedIndexes()) selected.push_back(index.row());
    std::sort(selected.begin(), selected.end());
    selected.erase(std::unique(selected.begin(), selected.end()), selected.end());
    std::vector<table::Cells> rows;
    for (const int row : selected)
        rows.push_back(table::planRowText(m_payments[static_cast<std::size_t>(row)], m_era, m_payDay));
    if (!rows.empty()) QGuiApplication::clipboard()->setText(qs(table::toTsv(rows)));
    return true;
}

void PlanWindow::addEvent() {
    const int row = Events->rowCount();
    m_reading = true;
    Events->insertRow(row);
    const QString cells[] = {"1", kKinds[0], "0", kModes[0], ""};
    for (int column = 0; column < 5; ++column) Events->setItem(row, column, new QTableWidgetItem(cells[column]));
    m_reading = false;
    Events->setCurrentCell(row, kPayment);
    recalculate();
}

void PlanWindow::removeEvents() {
    QList<int> rows;
    for (const QModelIndex& index : Events->selectionModel()->selectedIndexes()) rows.append(index.row());
    if (rows.isEmpty() && Events->currentRow() >= 0) rows.append(Events->currentRow());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    for (auto it = rows.rbegin(); it != rows.rend(); ++it) Events->removeRow(*it);
    recalculate();
}

void PlanWindow::copyEvents() const {
    QStringList lines;
    QList<int> rows;
    for (const QModelIndex& index : Events->selectionModel()->selectedIndexes())
        if (!rows.contains(index.row())) rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    for (const int row : rows) {
        QStringList words;
        for (const int column : {kKind, kPayment, kValue, kMode, kEvery}) {
            const QString cell = Events->item(row, column) ? Events->item(row, column)->text().trimmed() : QString();
            if (column >= kMode && (Events->item(row, kKind)->text() != "prepay" || cell.isEmpty())) continue;
            words << (column == kEvery ? "every " + cell : cell);
        }
        lines << words.join(' ');
    }
    QGuiApplication::clipboard()->setText(lines.join('\n') + (lines.isEmpty() ? "" : "\n"));
}

void PlanWindow::pasteEvents() {
    m_reading = true;
    for (const QString& line : QGuiApplication::clipboard()->text().split('\n')) {
        QStringList words = line.simplified().split(' ', Qt::SkipEmptyParts);
        if (words.isEmpty() || words.front().startsWith('#')) continue;
        QString cells[5] = {words.value(1), words.value(0), words.value(2), "", ""};
        for (int i = 3; i < words.size(); ++i) {
            if (words[i] == "every")
                cells[kEvery] = words.value(++i);
            else
                cells[kMode] = words[i];
        }
        const int row = Events->rowCount();
        Events->insertRow(row);
        for (int column = 0; column < 5; ++column) Events->setItem(row, column, new QTableWidgetItem(cells[column]));
    }
    m_reading = false;
    recalculate();
}

void PlanWindow::copySchedule() const {
    const std::vector<table::Cells> all = m_schedule->all();
    auto* mime = new QMimeData;
    mime->setText(qs(table::toTsv(all)));
    mime->setData("text/csv", QByteArray::fromStdString(table::toCsv(all)));
    mime->setHtml(qs(table::toHtml(all)));
    QGuiApplication::clipboard()->setMimeData(mime);
}

bool PlanWindow::saveCsv(const QString& path) const {
    QFile file(path);
    const QByteArray csv = QByteArray::fromStdString(table::toCsv(m_schedule->all()));
    return file.open(QIODevice::WriteOnly) && file.write(csv) == csv.size();
}

std::unique_ptr<QTextDocument> PlanWindow::document() const {
    auto document = std::make_unique<QTextDocument>();
    QString html = "<h2>" + windowTitle().toHtmlEscaped() + "</h2><p>";
    for (int row = 0; row < Events->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < Events->columnCount(); ++column)
            cells << (Events->item(row, column) ? Events->item(row, column)->text() : QString());
        html += cells.join(' ').toHtmlEscaped() + "<br>";
    }
    html += "</p><table cellpadding=2>";
    const QStringList names = strings::fields(strings::kTotalNames, '\t');
    for (std::size_t i = 0; i < Figures.size(); ++i)
        html += "<tr><td>" + names.value(static_cast<int>(i)).toHtmlEscaped() + "</td><td align=right>" +
                Figures[i]->text().toHtmlEscaped() + "</td></tr>";
    html += "</table><p><img src=\"chart.png\" width=600></p>";
    // The schedule, its headings repeated at the top of each page.
    const std::vector<table::Cells> all = m_schedule->all();
    html += "<table border=1 cellspacing=0 cellpadding=2><thead><tr>";
    for (const auto& heading : all.front()) html += "<th>" + qs(heading).toHtmlEscaped() + "</th>";
    html += "</tr></thead>";
    for (const auto& row : std::vector<table::Cells>(all.begin() + 1, all.end())) {
        html += "<tr>";
        for (std::size_t c = 0; c < row.size(); ++c)
            html += QString(c >= table::kAmount ? "<td align=right>" : "<td align=center>") + qs(row[c]) + "</td>";
        html += "</tr>";
    }
    html += "</table>";
    QPixmap chart(900, 500);
    chart.fill(Qt::white);
    QPainter painter(&chart);
    Chart->render(&painter);
    painter.end();
    document->addResource(QTextDocument::ImageResource, QUrl("chart.png"), chart.toImage());
    document->setHtml(html);
    return document;
}

bool PlanWindow::exportPdf(const QString& path) const {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    document()->print(&printer);
    return QFile::exists(path);
}

void PlanWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) document()->print(&printer);
}

} // namespace shell
