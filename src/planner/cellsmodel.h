// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A read-only table of texts: the plan's schedule, its years and the comparison. Each row's texts are made when the
// view asks for them, from numbers computed once. Columns from `firstAmount` on are amounts,
// aligned right like the main table's.

#include "table/rows.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <set>

namespace planner {

class CellsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    CellsModel(int firstAmount, QObject* parent) : QAbstractTableModel(parent), m_firstAmount(firstAmount) {}

    using RowTexts = std::function<table::Cells(std::size_t row)>;
    void setRows(QStringList headings, std::size_t count, RowTexts rowTexts);
    // Every row, headings first: what is copied and saved.
    std::vector<table::Cells> all() const;
    table::Cells row(std::size_t row) const { return m_rowTexts(row); }
    const QStringList& headings() const { return m_headings; }
    // Cells (row, column) shown in bold.
    void setMarked(std::set<std::pair<int, int>> cells);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_firstAmount;
    QStringList m_headings;
    std::size_t m_count = 0;
    RowTexts m_rowTexts;
    std::set<std::pair<int, int>> m_marked;
};

} // namespace planner
