// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The events of a plan, a row each: its cells hold the words of the event's line as the engine
// reads it (kind, payment, value, mode, every), and show them in the user's language, amounts in
// whole yen with their separators. Words typed in either language are kept as the engine's. A row
// the plan can't use carries the reason, shown as a mark and a tooltip on each of its cells.

#include <QAbstractTableModel>
#include <QStringList>

#include <array>
#include <string>
#include <vector>

namespace planner {

class EventsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { kPayment, kKind, kValue, kMode, kEvery, kColumns };

    using QAbstractTableModel::QAbstractTableModel;

    // Rows from event lines, added at the end.
    void appendLines(const std::vector<std::string>& lines);
    // A prepayment with that payment, its amount left to type.
    void appendPrepayment(int payment);
    // The line of a row, as the engine reads it and the schedule tool writes it.
    std::string line(int row) const;
    // A row's cells as the user sees them.
    QStringList shownRow(int row) const;
    // Why the plan can't use a row; empty where it can.
    void setProblem(int row, const QString& why);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

private:
    struct Row {
        std::array<QString, kColumns> words; // as the engine reads them
        QString problem;
    };
    QString shown(const Row& row, int column) const;
    std::vector<Row> m_rows;
};

} // namespace planner
