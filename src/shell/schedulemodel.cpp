// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/schedulemodel.h"

namespace shell {
namespace {

bool isAmountColumn(int column) { return column >= static_cast<int>(table::kAmount); }

} // namespace

void ScheduleModel::setHeadings(const QStringList& headings) {
    m_headings = headings;
    emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(table::kColumnCount) - 1);
}

void ScheduleModel::setRows(std::vector<table::Row> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int ScheduleModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ScheduleModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table::kColumnCount);
}

QVariant ScheduleModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return QString::fromStdString(row(index.row())[static_cast<std::size_t>(index.column())]);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (isAmountColumn(index.column()) ? Qt::AlignRight : Qt::AlignHCenter));
    return {};
}

bool ScheduleModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole || !isAmountColumn(index.column())) return false;
    m_rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())] =
        value.toString().toStdString();
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

QVariant ScheduleModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_headings.size())
        return m_headings.at(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags ScheduleModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && isAmountColumn(index.column())) flags |= Qt::ItemIsEditable;
    return flags;
}

} // namespace shell
