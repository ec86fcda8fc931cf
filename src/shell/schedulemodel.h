// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The table's rows, each its six texts, computed once by the engine and read by data().
// The amount columns can be typed over; what is typed stands until the next rebuild.

#include "table/rows.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace shell {

class ScheduleModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setHeadings(const QStringList& headings);
    void setRows(std::vector<table::Row> rows);
    const table::Row& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    std::vector<table::Row> m_rows;
    QStringList m_headings;
};

} // namespace shell
