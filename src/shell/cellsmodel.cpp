// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/cellsmodel.h"

namespace shell {

void CellsModel::setRows(QStringList headings, std::vector<table::Cells> rows) {
    beginResetModel();
    m_headings = std::move(headings);
    m_rows = std::move(rows);
    endResetModel();
}

table::Cells CellsModel::headings() const {
    table::Cells cells;
    for (const QString& heading : m_headings) cells.push_back(heading.toStdString());
    return cells;
}

int CellsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : static_cast<int>(m_rows.size()); }

int CellsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : static_cast<int>(m_headings.size()); }

QVariant CellsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole && static_cast<std::size_t>(index.column()) < row.size())
        return QString::fromStdString(row[static_cast<std::size_t>(index.column())]);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (index.column() >= m_firstAmount ? Qt::AlignRight : Qt::AlignHCenter));
    return {};
}

QVariant CellsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_headings.size()) return m_headings.at(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

} // namespace shell
