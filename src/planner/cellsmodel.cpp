// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/cellsmodel.h"

#include <QFont>

namespace planner {

void CellsModel::setRows(QStringList headings, std::size_t count, RowTexts rowTexts) {
    beginResetModel();
    m_headings = std::move(headings);
    m_count = count;
    m_rowTexts = std::move(rowTexts);
    endResetModel();
}

void CellsModel::setMarked(std::set<std::pair<int, int>> cells) {
    m_marked = std::move(cells);
    if (m_count > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::FontRole});
}

std::vector<table::Cells> CellsModel::all() const {
    std::vector<table::Cells> rows(1);
    for (const QString& heading : m_headings) rows.front().push_back(heading.toStdString());
    for (std::size_t row = 0; row < m_count; ++row) rows.push_back(m_rowTexts(row));
    return rows;
}

int CellsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : static_cast<int>(m_count); }

int CellsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_headings.size());
}

QVariant CellsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) {
        const table::Cells row = m_rowTexts(static_cast<std::size_t>(index.row()));
        if (static_cast<std::size_t>(index.column()) < row.size())
            return QString::fromStdString(row[static_cast<std::size_t>(index.column())]);
    }
    if (role == Qt::FontRole && m_marked.contains({index.row(), index.column()})) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() >= m_firstAmount ? Qt::AlignRight : Qt::AlignHCenter));
    return {};
}

QVariant CellsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_headings.size())
        return m_headings.at(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

} // namespace planner
