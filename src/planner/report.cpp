// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/report.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace planner {
namespace {

// Paints from the top of a page down, starting a new page where the next thing doesn't fit.
class PageFlow {
public:
    PageFlow(QPagedPaintDevice& device, const std::function<bool(std::size_t, std::size_t)>& progress, std::size_t rows)
        : m_device(device), m_progress(progress), m_rows(rows),
          m_page(device.pageLayout().paintRectPixels(device.logicalDpiX())), m_y(0) {
        m_page.moveTo(0, 0); // the painter's origin is the paint rectangle's corner
    }

    const QRect& page() const { return m_page; }
    int y() const { return m_y; }
    void advance(int height) { m_y += height; }
    // Room for `height` more, on a new page where this one has none; false where cancelled.
    bool room(int height) { return m_y == 0 || m_y + height <= m_page.height() || newPage(); }
    bool newPage() {
        if (!m_progress(m_rowsDone, m_rows)) return false;
        m_failed = !m_device.newPage();
        m_y = 0;
        return !m_failed;
    }
    void rowsDone(std::size_t rows) { m_rowsDone = rows; }
    bool failed() const { return m_failed; }

private:
    QPagedPaintDevice& m_device;
    const std::function<bool(std::size_t, std::size_t)>& m_progress;
    std::size_t m_rows, m_rowsDone = 0;
    QRect m_page;
    int m_y;
    bool m_failed = false;
};

// Column widths from the headings (in bold, as they are painted) and the widest texts of the first
// and last hundred rows, which hold the widest: amounts fall or keep their digits, dates keep their width.
std::vector<int> columnWidths(const ReportTable& table, const QFontMetrics& metrics, const QFontMetrics& bold,
                              int pageWidth) {
    const int gap = metrics.horizontalAdvance(QStringLiteral("00"));
    std::vector<int> widths;
    for (const QString& heading : table.headings) widths.push_back(bold.horizontalAdvance(heading) + gap);
    for (std::size_t r = 0; r < table.rowCount; r = r == 99 && table.rowCount > 200 ? table.rowCount - 100 : r + 1) {
        const table::Cells cells = table.row(r);
        for (std::size_t c = 0; c < std::min(cells.size(), widths.size()); ++c)
            widths[c] = std::max(widths[c], metrics.horizontalAdvance(QString::fromStdString(cells[c])) + gap);
    }
    // Narrower in proportion where the page is narrower than the table.
    const int total = std::accumulate(widths.begin(), widths.end(), 0);
    if (total > pageWidth)
        for (int& w : widths) w = w * pageWidth / total;
    return widths;
}

// A table through the flow, its headings again on each page it continues on.
bool paintTable(PageFlow& flow, QPainter& painter, const ReportTable& table, bool countsRows) {
    if (table.headings.isEmpty()) return true;
    const QFontMetrics metrics = painter.fontMetrics();
    QFont boldFont = painter.font();
    boldFont.setBold(true);
    const int rowHeight = metrics.height() * 5 / 4;
    const std::vector<int> widths =
        columnWidths(table, metrics, QFontMetrics(boldFont, painter.device()), flow.page().width());
    const auto paintRow = [&](const auto& cellAt, bool heading) {
        int x = 0;
        QFont font = painter.font();
        font.setBold(heading);
        painter.setFont(font);
        for (std::size_t c = 0; c < widths.size(); ++c) {
            const Qt::Alignment align = c >= table.firstAmount && !heading ? Qt::AlignRight : Qt::AlignHCenter;
            const QRect cell(x, flow.y(), widths[c], rowHeight);
            painter.drawText(cell.adjusted(metrics.averageCharWidth() / 2, 0, -metrics.averageCharWidth() / 2, 0),
                             align | Qt::AlignVCenter, cellAt(c));
            x += widths[c];
        }
        if (heading) painter.drawLine(0, flow.y() + rowHeight, x, flow.y() + rowHeight);
        flow.advance(rowHeight);
    };
    const auto headings = [&] {
        paintRow([&](std::size_t c) { return table.headings.value(static_cast<int>(c)); }, true);
    };
    if (!flow.room(rowHeight * 2)) return false;
    headings();
    for (std::size_t r = 0; r < table.rowCount; ++r) {
        if (flow.y() + rowHeight > flow.page().height()) {
            if (countsRows) flow.rowsDone(r);
            if (!flow.newPage()) return false;
            headings();
        }
        const table::Cells cells = table.row(r);
        paintRow([&](std::size_t c) { return c < cells.size() ? QString::fromStdString(cells[c]) : QString(); }, false);
    }
    if (countsRows) flow.rowsDone(table.rowCount);
    return true;
}

} // namespace

Painted paintReport(QPagedPaintDevice& device, const ReportContent& content,
                    const std::function<bool(std::size_t done, std::size_t all)>& progress) {
    QPainter painter;
    if (!painter.begin(&device)) return Painted::Failed;
    QFont font = painter.font();
    font.setPointSizeF(9);
    painter.setFont(font);
    PageFlow flow(device, progress, content.schedule.rowCount);
    const auto paint = [&]() {
        QFont title = font;
        title.setPointSizeF(14);
        title.setBold(true);
        painter.setFont(title);
        const int titleHeight = painter.fontMetrics().height() * 3 / 2;
        painter.drawText(QRect(0, 0, flow.page().width(), titleHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         content.title);
        flow.advance(titleHeight);
        painter.setFont(font);
        if (!content.terms.isEmpty()) {
            const QRect room(0, flow.y(), flow.page().width(), flow.page().height() / 4);
            const QRect used = painter.boundingRect(room, Qt::TextWordWrap, content.terms);
            painter.drawText(room, Qt::TextWordWrap, content.terms);
            flow.advance(used.height() + painter.fontMetrics().height() / 2);
        }
        if (!paintTable(flow, painter, content.events, false)) return false;
        const int line = painter.fontMetrics().height() * 5 / 4;
        flow.advance(line);
        const int nameWidth = flow.page().width() / 3;
        for (const auto& [name, value] : content.figures) {
            if (!flow.room(line)) return false;
            painter.drawText(QRect(0, flow.y(), nameWidth, line), Qt::AlignLeft | Qt::AlignVCenter, name);
            painter.drawText(QRect(nameWidth, flow.y(), nameWidth, line), Qt::AlignRight | Qt::AlignVCenter, value);
            flow.advance(line);
        }
        if (!content.chart.isNull()) {
            const int width = flow.page().width();
            const int height = width * content.chart.height() / std::max(1, content.chart.width());
            flow.advance(line);
            if (!flow.room(height)) return false;
            painter.drawImage(QRect(0, flow.y(), width, height), content.chart);
            flow.advance(height);
        }
        for (const ReportTable* table : {&content.years, &content.comparison}) {
            flow.advance(line);
            if (!paintTable(flow, painter, *table, false)) return false;
        }
        return flow.newPage() && paintTable(flow, painter, content.schedule, true);
    };
    const bool done = paint();
    painter.end();
    return done ? Painted::Done : flow.failed() ? Painted::Failed : Painted::Cancelled;
}

} // namespace planner
