// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/eventsmodel.h"

#include "runtime/numbers.h"
#include "strings/lookup.h"
#include "table/rows.h"

#include <QColor>
#include <QRegularExpression>

namespace planner {
namespace {

const QStringList kKinds{"prepay", "rate", "fee"};
const QStringList kModes{"shorten", "reduce"};

// A kind or mode as the engine reads it, from the words of either language; any other word as it is.
QString engineWord(const QString& word) {
    for (const auto& [engine, shown] : {std::pair{kKinds, strings::fields(strings::kEventKinds, '\t')},
                                        std::pair{kModes, strings::fields(strings::kPrepayModes, '\t')}})
        if (const auto i = shown.indexOf(word); i >= 0) return engine.at(i);
    return word;
}

// A kind or mode of the engine's in the user's language; any other word as it is.
QString shownWord(const QString& word) {
    if (const auto i = kKinds.indexOf(word); i >= 0) return strings::fields(strings::kEventKinds, '\t').value(i);
    if (const auto i = kModes.indexOf(word); i >= 0) return strings::fields(strings::kPrepayModes, '\t').value(i);
    return word;
}

// An amount of a prepayment or fee in whole yen with its thousands separators, as every amount
// shows; any other value as it is.
QString amountShown(const QString& kind, const QString& value) {
    static const QRegularExpression whole("^[0-9]{1,15}$");
    const QString digits = QString(value).remove(',');
    if (kind == kKinds[1] || !whole.match(digits).hasMatch()) return value;
    return QString::fromStdString(runtime::Format(runtime::Val(digits.toStdString()), table::kAmountMask));
}

} // namespace

void EventsModel::appendLines(const std::vector<std::string>& lines) {
    if (lines.empty()) return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(lines.size()) - 1);
    for (const std::string& line : lines) {
        QStringList words = QString::fromStdString(line).simplified().split(' ', Qt::SkipEmptyParts);
        // A prepayment whose amount is still to be typed has its mode third.
        if (words.size() > 2 && (kModes.contains(engineWord(words[2])) || words[2] == "every")) words.insert(2, "");
        Row& row = m_rows.emplace_back();
        row.words[kKind] = engineWord(words.value(0));
        row.words[kPayment] = words.value(1);
        row.words[kValue] = amountShown(row.words[kKind], words.value(2));
        for (int i = 3; i < words.size(); ++i) {
            if (words[i] == "every")
                row.words[kEvery] = words.value(++i);
            else
                row.words[kMode] = engineWord(words[i]);
        }
    }
    endInsertRows();
}

void EventsModel::appendPrepayment(int payment) {
    appendLines({kKinds[0].toStdString() + " " + std::to_string(payment) + " " + kModes[0].toStdString()});
}

std::string EventsModel::line(int row) const {
    const auto& words = m_rows.at(static_cast<std::size_t>(row)).words;
    QStringList line;
    for (const int column : {kKind, kPayment, kValue, kMode, kEvery}) {
        const QString word = words[static_cast<std::size_t>(column)].trimmed();
        // Only a prepayment has a mode and a period.
        if (word.isEmpty() || (column >= kMode && words[kKind] != kKinds[0])) continue;
        line << (column == kEvery ? "every " + word : word);
    }
    return line.join(' ').toStdString();
}

QStringList EventsModel::shownRow(int row) const {
    QStringList cells;
    for (int column = 0; column < kColumns; ++column) cells << shown(m_rows.at(static_cast<std::size_t>(row)), column);
    return cells;
}

void EventsModel::setProblem(int row, const QString& why) {
    Row& r = m_rows.at(static_cast<std::size_t>(row));
    if (r.problem == why) return;
    r.problem = why;
    emit dataChanged(index(row, 0), index(row, kColumns - 1), {Qt::BackgroundRole, Qt::ToolTipRole});
}

int EventsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int EventsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumns; }

QString EventsModel::shown(const Row& row, int column) const {
    const QString& word = row.words[static_cast<std::size_t>(column)];
    return column == kKind || column == kMode ? shownWord(word) : word;
}

QVariant EventsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return shown(row, index.column());
    case Qt::BackgroundRole: return row.problem.isEmpty() ? QVariant() : QVariant(QColor(255, 210, 210));
    case Qt::ToolTipRole: return row.problem.isEmpty() ? QVariant() : QVariant(row.problem);
    default: return {};
    }
}

bool EventsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) return false;
    auto& words = m_rows.at(static_cast<std::size_t>(index.row())).words;
    const QString typed = engineWord(value.toString().trimmed());
    if (words[static_cast<std::size_t>(index.column())] == typed) return false;
    words[static_cast<std::size_t>(index.column())] = typed;
    words[kValue] = amountShown(words[kKind], words[kValue]);
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), kColumns - 1));
    return true;
}

Qt::ItemFlags EventsModel::flags(const QModelIndex& index) const {
    return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsEditable : Qt::NoItemFlags;
}

QVariant EventsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return strings::fields(strings::kEventHeader, '\t').value(section);
    if (role == Qt::ToolTipRole) return strings::fields(strings::kEventTips, '\t').value(section);
    return {};
}

bool EventsModel::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount()) return false;
    beginRemoveRows({}, row, row + count - 1);
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
    endRemoveRows();
    return true;
}

} // namespace planner
