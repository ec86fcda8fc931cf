// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/deductionbox.h"

#include "runtime/numbers.h"
#include "strings/lookup.h"
#include "table/rows.h"

#include <QDate>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace planner {

using strings::text;

DeductionBox::DeductionBox(QWidget* parent) : QGroupBox(text(strings::kDeductionTitle), parent) {
    setObjectName("Deduction");
    setCheckable(true);
    setChecked(false);
    const engine::TaxDeduction defaults;
    const QStringList names = strings::fields(strings::kDeductionFields, '\t');
    const auto field = [this](const QString& shown, const QString& name) {
        auto* edit = new QLineEdit(shown, this);
        edit->setAlignment(Qt::AlignRight);
        edit->setAccessibleName(name);
        connect(edit, &QLineEdit::editingFinished, this, &DeductionBox::changed);
        return edit;
    };
    const auto spin = [this](int from, int to, int value, const QString& name) {
        auto* box = new QSpinBox(this);
        box->setRange(from, to);
        box->setValue(value);
        box->setAccessibleName(name);
        connect(box, &QSpinBox::valueChanged, this, &DeductionBox::changed);
        return box;
    };
    Rate = field(QString::fromStdString(runtime::Str(defaults.ratePercent)), names.value(0));
    Years = spin(1, 100, static_cast<int>(defaults.years), names.value(1));
    Cap = field(QString::fromStdString(runtime::Format(defaults.cap, table::kAmountMask)), names.value(2));
    FromYear = spin(1, 9999, QDate::currentDate().year(), names.value(3));
    FromYear->setSpecialValueText(names.value(5)); // its minimum: the borrowing year
    FromYear->setValue(FromYear->minimum());
    Limit = field(QString(), names.value(4));
    // Room for the amounts they hold; a rate takes little.
    for (QLineEdit* amount : {Cap, Limit})
        amount->setMinimumWidth(amount->fontMetrics().horizontalAdvance("999,999,999") + 16);
    Rate->setMaximumWidth(Rate->fontMetrics().horizontalAdvance("0.000") + 24);
    Limit->setPlaceholderText(names.value(6));
    Note = new QLabel(this);
    Note->setObjectName("DeductionNote");
    Note->setWordWrap(true);
    Note->setStyleSheet("color: #b00000");
    Note->hide();
    auto* grid = new QFormLayout;
    auto* line1 = new QHBoxLayout;
    line1->addWidget(Rate);
    line1->addWidget(new QLabel("%", this));
    line1->addWidget(new QLabel(names.value(1) + ":", this));
    line1->addWidget(Years);
    grid->addRow(names.value(0) + ":", line1);
    auto* line2 = new QHBoxLayout;
    line2->addWidget(Cap, 1);
    line2->addWidget(new QLabel(names.value(3) + ":", this));
    line2->addWidget(FromYear);
    grid->addRow(names.value(2) + ":", line2);
    grid->addRow(names.value(4) + ":", Limit);
    grid->addRow(Note);
    setLayout(grid);
    connect(this, &QGroupBox::toggled, this, &DeductionBox::changed);
}

DeductionBox::Reading DeductionBox::deduction() const {
    if (!isChecked()) return {};
    // Read as the line an events text would hold, so that both take the same numbers.
    QString line = QString("deduction %1 %2 %3")
                       .arg(Rate->text().remove(' '), QString::number(Years->value()), Cap->text().remove(' '));
    if (FromYear->value() != FromYear->minimum()) line += " from " + QString::number(FromYear->value());
    if (!Limit->text().trimmed().isEmpty()) line += " limit " + Limit->text().remove(' ');
    Reading reading;
    reading.readable = engine::readDeduction(line.toStdString(), reading.deduction).error.empty();
    return reading;
}

void DeductionBox::setDeduction(const std::optional<engine::TaxDeduction>& deduction) {
    const QSignalBlocker blockers[] = {QSignalBlocker(this), QSignalBlocker(Years), QSignalBlocker(FromYear)};
    setChecked(deduction.has_value());
    if (!deduction) return;
    Rate->setText(QString::fromStdString(runtime::Str(deduction->ratePercent)));
    Years->setValue(static_cast<int>(deduction->years));
    Cap->setText(QString::fromStdString(runtime::Format(deduction->cap, table::kAmountMask)));
    FromYear->setValue(deduction->fromYear ? static_cast<int>(*deduction->fromYear) : FromYear->minimum());
    Limit->setText(deduction->limit ? QString::fromStdString(runtime::Format(*deduction->limit, table::kAmountMask))
                                    : QString());
}

void DeductionBox::showNote(const QString& note) {
    Note->setText(note);
    Note->setVisible(!note.isEmpty());
}

} // namespace planner
