// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The plan as a printed report: its title, its dates and terms, the events, the figures, the chart, the
// years and the scenarios compared, then the schedule, laid out page by page as it is painted,
// the headings of a table at the top of every page it continues on. Nothing holds more than the
// page being painted, so that a schedule of 100,000 payments prints in seconds and little memory.

#include "table/rows.h"

#include <QImage>
#include <QStringList>

#include <functional>

class QPagedPaintDevice;

namespace planner {

// A table of the report: its headings and its rows, made when they are painted.
struct ReportTable {
    QStringList headings;
    std::size_t rowCount = 0;
    std::function<table::Cells(std::size_t row)> row;
    std::size_t firstAmount = 0; // columns from here on are amounts, aligned right
};

struct ReportContent {
    QString title;
    QString terms; // under the title: the loan's dates, the lender terms in words, the deduction's note
    ReportTable events;
    std::vector<std::pair<QString, QString>> figures; // name and value
    QImage chart;
    ReportTable years;
    ReportTable comparison; // of the scenarios, where there are several
    ReportTable schedule;
};

enum class Painted { Done, Cancelled, Failed };

// Paints the report on the device. `progress` is told the schedule rows painted so far of all,
// before each new page; it returns false to cancel.
Painted paintReport(QPagedPaintDevice& device, const ReportContent& content,
                    const std::function<bool(std::size_t done, std::size_t all)>& progress);

} // namespace planner
