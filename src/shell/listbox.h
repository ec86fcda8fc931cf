// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The schedule table: rows of six texts, several of which can be selected. Change is raised
// for every change of the selection, by the user or by code, and when clearing the rows drops
// a selection. The table answers Copy with the selected rows for a spreadsheet, and Select All
// by asking its window.

#include "table/rows.h"

#include <QTableView>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace shell {

class ScheduleModel;

class ListBox : public QTableView {
    Q_OBJECT
public:
    explicit ListBox(QWidget* parent = nullptr);

    void setHeadings(const QStringList& headings);
    // Column widths as percentages of the table's width; columns without one share the rest.
    // No column is made narrower than its heading or its sample text (the widest it shows).
    void setColumnWidths(const std::vector<std::optional<int>>& percentages, const QStringList& samples);
    // The width at which every column shows its heading and sample whole.
    int minimumTableWidth() const;

    const std::string& Cell(int row, int column) const;
    const table::Row& RowCells(int row) const;
    int ListCount() const;
    void DeleteAllRows();
    void setRows(std::vector<table::Row> rows);

    // The first selected row, -1 without one. Setting it selects that row alone.
    int ListIndex() const;
    void setListIndex(int row);
    int SelCount() const;
    const std::vector<int>& SelectedRows() const;
    // Every row selected in one operation: one Change.
    void selectAllRows();
    void copySelection() const;

    // Asked at every mouse press on the control, with the press relative to the control: true
    // consumes it. And at a press on a heading: true keeps the table from acting on it.
    std::function<bool(int x, int y)> MouseDown;
    std::function<bool(int column)> HeaderPressed;

signals:
    void Change();
    void SelectAllRequested();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyColumnWidths();
    void selectionWasChanged();

    ScheduleModel* m_model;
    int minimumColumnWidth(int column) const;

    std::vector<std::optional<int>> m_columnPercentages;
    QStringList m_samples;
    mutable std::optional<std::vector<int>> m_selectedRows; // until the selection changes
};

} // namespace shell
