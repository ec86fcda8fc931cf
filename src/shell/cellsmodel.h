// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A read-only table of texts computed once: the plan's schedule and its years. Columns from
// `firstAmount` on are amounts, aligned right like the main table's.

#include "table/rows.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace shell {

class CellsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    CellsModel(int firstAmount, QObject* parent) : QAbstractTableModel(parent), m_firstAmount(firstAmount) {}

    void setRows(QStringList headings, std::vector<table::Cells> rows);
    const std::vector<table::Cells>& rows() const { return m_rows; }
    table::Cells headings() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_firstAmount;
    QStringList m_headings;
    std::vector<table::Cells> m_rows;
};

} // namespace shell
