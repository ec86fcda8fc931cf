// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/listbox.h"

#include "shell/schedulemodel.h"
#include "table/export.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyle>

namespace shell {
namespace {

bool isTableCommand(const QKeyEvent* key) {
    return key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll);
}

QByteArray bytes(const std::string& text) { return QByteArray::fromStdString(text); }

} // namespace

ListBox::ListBox(QWidget* parent) : QTableView(parent), m_model(new ScheduleModel(this)) {
    setModel(m_model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setTabKeyNavigation(false); // one tab stop: Tab leaves the table, the arrows move in it
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionsMovable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    viewport()->installEventFilter(this);
    horizontalHeader()->viewport()->installEventFilter(this);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListBox::selectionWasChanged);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { m_selectedRows.reset(); });
}

void ListBox::setHeadings(const QStringList& headings) { m_model->setHeadings(headings); }

void ListBox::setColumnWidths(const std::vector<std::optional<int>>& percentages, const QStringList& samples) {
    m_columnPercentages = percentages;
    m_samples = samples;
    applyColumnWidths();
}

int ListBox::minimumColumnWidth(int column) const {
    // A cell's text stands inside a margin of the focus frame's and one pixel on each side.
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + 1;
    const int sample = column < m_samples.size() ? fontMetrics().horizontalAdvance(m_samples.at(column)) : 0;
    return std::max(sample + margin, horizontalHeader()->sectionSizeHint(column));
}

int ListBox::minimumTableWidth() const {
    int width = 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    for (int column = 0; column < static_cast<int>(m_columnPercentages.size()); ++column)
        width += minimumColumnWidth(column);
    return width;
}

const std::string& ListBox::Cell(int row, int column) const {
    return m_model->row(row)[static_cast<std::size_t>(column)];
}

const table::Row& ListBox::RowCells(int row) const { return m_model->row(row); }

int ListBox::ListCount() const { return m_model->rowCount(); }

void ListBox::DeleteAllRows() {
    const bool hadSelection = SelCount() > 0;
    m_model->setRows({});
    if (hadSelection) emit Change();
}

void ListBox::setRows(std::vector<table::Row> rows) { m_model->setRows(std::move(rows)); }

int ListBox::ListIndex() const {
    const auto& rows = SelectedRows();
    return rows.empty() ? -1 : rows.front();
}

void ListBox::setListIndex(int row) {
    if (row < 0 || row >= ListCount()) {
        clearSelection();
        return;
    }
    const QModelIndex index = m_model->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

int ListBox::SelCount() const { return static_cast<int>(SelectedRows().size()); }

const std::vector<int>& ListBox::SelectedRows() const {
    if (!m_selectedRows) {
        // Ranges of a selection may overlap: mark each row once, then list them in order.
        std::vector<char> marked(static_cast<std::size_t>(ListCount()), 0);
        for (const QItemSelectionRange& range : selectionModel()->selection())
            for (int r = range.top(); r <= range.bottom(); ++r) marked[static_cast<std::size_t>(r)] = 1;
        m_selectedRows.emplace();
        for (std::size_t r = 0; r < marked.size(); ++r)
            if (marked[r]) m_selectedRows->push_back(static_cast<int>(r));
    }
    return *m_selectedRows;
}

void ListBox::selectAllRows() {
    if (ListCount() == 0) return;
    const QItemSelection all(m_model->index(0, 0), m_model->index(ListCount() - 1, m_model->columnCount() - 1));
    selectionModel()->select(all, QItemSelectionModel::Select);
}

void ListBox::copySelection() const {
    std::vector<table::Row> rows;
    for (const int r : SelectedRows()) rows.push_back(m_model->row(r));
    if (rows.empty()) return;
    auto* mime = new QMimeData;
    mime->setText(QString::fromStdString(table::toTsv(rows)));
    mime->setData("text/csv", bytes(table::toCsv(rows)));
    mime->setHtml(QString::fromStdString(table::toHtml(rows)));
    QGuiApplication::clipboard()->setMimeData(mime);
}

bool ListBox::event(QEvent* event) {
    // Claim Copy and Select All before the window's shortcuts do, so the table answers them.
    if (event->type() == QEvent::ShortcutOverride && isTableCommand(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copySelection();
    } else if (event->matches(QKeySequence::SelectAll)) {
        emit SelectAllRequested();
    } else {
        QTableView::keyPressEvent(event);
    }
}

bool ListBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return QTableView::eventFilter(watched, event);
    auto* widget = static_cast<QWidget*>(watched);
    const QPoint local = static_cast<QMouseEvent*>(event)->position().toPoint();
    const QPoint onControl = widget->mapTo(this, local);
    if (MouseDown && MouseDown(onControl.x(), onControl.y())) return true;
    if (widget == horizontalHeader()->viewport() && HeaderPressed &&
        HeaderPressed(horizontalHeader()->logicalIndexAt(local)))
        return true;
    return QTableView::eventFilter(watched, event);
}

void ListBox::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    applyColumnWidths();
}

void ListBox::applyColumnWidths() {
    const int columns = static_cast<int>(m_columnPercentages.size());
    if (columns == 0) return;
    const int total = viewport()->width();
    // The widths the percentages ask for: the columns without one share what is left equally.
    std::vector<double> wanted(static_cast<std::size_t>(columns));
    int fixed = 0;
    int shared = 0;
    for (const auto& percentage : m_columnPercentages) percentage ? fixed += total * *percentage / 100 : ++shared;
    for (int c = 0; c < columns; ++c) {
        const auto& percentage = m_columnPercentages[static_cast<std::size_t>(c)];
        wanted[static_cast<std::size_t>(c)] =
            percentage ? total * *percentage / 100 : (shared > 0 ? (total - fixed) / shared : 0);
    }
    // A column that would be narrower than its minimum gets the minimum; the others share the
    // rest in the proportions asked for.
    std::vector<bool> atMinimum(static_cast<std::size_t>(columns), false);
    for (bool settled = false; !settled;) {
        settled = true;
        double rest = total;
        double wantedRest = 0;
        for (int c = 0; c < columns; ++c)
            atMinimum[static_cast<std::size_t>(c)] ? rest -= minimumColumnWidth(c)
                                                   : wantedRest += wanted[static_cast<std::size_t>(c)];
        for (int c = 0; c < columns; ++c) {
            const auto i = static_cast<std::size_t>(c);
            if (atMinimum[i]) continue;
            const double width = wantedRest > 0 ? wanted[i] * rest / wantedRest : 0;
            if (width < minimumColumnWidth(c)) {
                atMinimum[i] = true;
                settled = false;
            }
        }
        if (!settled) continue;
        for (int c = 0; c < columns; ++c) {
            const auto i = static_cast<std::size_t>(c);
            setColumnWidth(c, atMinimum[i] ? minimumColumnWidth(c)
                                           : static_cast<int>(wantedRest > 0 ? wanted[i] * rest / wantedRest : 0));
        }
    }
}

void ListBox::selectionWasChanged() {
    m_selectedRows.reset();
    emit Change();
}

} // namespace shell
