// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The housing-loan tax deduction of a plan, as a group of controls that can be switched on: its
// rate, years, cap on the balance, first year and the limit of the taxes paid.

#include "engine/deduction.h"

#include <QGroupBox>

#include <optional>

class QLabel;
class QLineEdit;
class QSpinBox;

namespace planner {

class DeductionBox : public QGroupBox {
    Q_OBJECT
public:
    explicit DeductionBox(QWidget* parent);

    // The deduction set: none where the group is off; unreadable where a field can't be read.
    struct Reading {
        std::optional<engine::TaxDeduction> deduction;
        bool readable = true;
    };
    Reading deduction() const;
    void setDeduction(const std::optional<engine::TaxDeduction>& deduction);
    // What the plan says of the deduction: the ten-year rule, or a field that can't be read.
    void showNote(const QString& note);

    QLineEdit *Rate, *Cap, *Limit;
    QSpinBox *Years, *FromYear;
    QLabel* Note;

signals:
    void changed();
};

} // namespace planner
