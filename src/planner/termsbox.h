// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The lender terms of a plan, as controls above its events: interest by days or by months,
// amounts rounded down, a bonus part and the five-year and 125 % rules.

#include "engine/lender.h"

#include <QGroupBox>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace planner {

class TermsBox : public QGroupBox {
    Q_OBJECT
public:
    explicit TermsBox(QWidget* parent);

    // The terms the controls set; none where the bonus part's amount or months can't be read.
    std::optional<engine::LenderTerms> terms() const;
    void setTerms(const engine::LenderTerms& terms);
    // Why the terms are refused, by the engine's reason (none: they fit), marked on its control.
    void showFit(engine::TermsFit fit);
    void showUnreadableBonus();
    // The terms in words, for the report; empty where they are the defaults.
    QString described() const;

    QComboBox* Interest;
    QCheckBox *RoundDown, *Bonus, *Review;
    QLineEdit* BonusAmount;
    QSpinBox *BonusMonth1, *BonusMonth2;
    QLabel* Problem;

signals:
    void changed();

private:
    void mark(QWidget* control, const QString& why);
};

} // namespace planner
