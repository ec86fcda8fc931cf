// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/termsbox.h"

#include "runtime/numbers.h"
#include "strings/lookup.h"
#include "table/rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace planner {

using strings::text;

TermsBox::TermsBox(QWidget* parent) : QGroupBox(text(strings::kTermsTitle), parent) {
    setObjectName("Terms");
    Interest = new QComboBox(this);
    Interest->addItems(strings::fields(strings::kInterestRules, '\t'));
    auto* interestLabel = new QLabel(text(strings::kInterestLabel), this);
    interestLabel->setBuddy(Interest);
    RoundDown = new QCheckBox(text(strings::kRoundDown), this);
    Bonus = new QCheckBox(text(strings::kBonusPart), this);
    BonusAmount = new QLineEdit(this);
    BonusAmount->setAccessibleName(strings::withoutMnemonic(strings::kBonusPart));
    BonusAmount->setAlignment(Qt::AlignRight);
    BonusAmount->setPlaceholderText("9,000,000");
    BonusAmount->setMinimumWidth(BonusAmount->fontMetrics().horizontalAdvance("9,999,999,999") + 16);
    const QString months = text(strings::kBonusMonths);
    const auto month = [this, &months](int value, int which) {
        auto* box = new QSpinBox(this);
        box->setRange(1, 12);
        box->setValue(value);
        box->setAccessibleName(months + " " + QString::number(which));
        return box;
    };
    BonusMonth1 = month(6, 1);
    BonusMonth2 = month(12, 2);
    Review = new QCheckBox(text(strings::kReview), this);
    Problem = new QLabel(this);
    Problem->setObjectName("TermsProblem");
    Problem->setWordWrap(true);
    Problem->setStyleSheet("color: #b00000");
    Problem->hide();

    auto* bonusLine = new QHBoxLayout;
    bonusLine->addWidget(Bonus);
    bonusLine->addWidget(BonusAmount, 1);
    bonusLine->addWidget(new QLabel(months + ":", this));
    bonusLine->addWidget(BonusMonth1);
    bonusLine->addWidget(BonusMonth2);
    auto* grid = new QGridLayout(this);
    grid->addWidget(interestLabel, 0, 0);
    grid->addWidget(Interest, 0, 1);
    grid->addWidget(RoundDown, 0, 2);
    grid->addLayout(bonusLine, 1, 0, 1, 2);
    grid->addWidget(Review, 1, 2);
    grid->addWidget(Problem, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);

    connect(Interest, &QComboBox::currentIndexChanged, this, &TermsBox::changed);
    for (QCheckBox* box : {RoundDown, Bonus, Review}) connect(box, &QCheckBox::toggled, this, &TermsBox::changed);
    connect(BonusAmount, &QLineEdit::editingFinished, this, [this] {
        if (Bonus->isChecked()) emit changed();
    });
    for (QSpinBox* box : {BonusMonth1, BonusMonth2})
        connect(box, &QSpinBox::valueChanged, this, [this] {
            if (Bonus->isChecked()) emit changed();
        });
}

std::optional<engine::LenderTerms> TermsBox::terms() const {
    engine::LenderTerms terms;
    terms.interest = Interest->currentIndex() == 1 ? engine::InterestRule::Monthly : engine::InterestRule::Daily;
    terms.rounding = RoundDown->isChecked() ? engine::Rounding::Down : engine::Rounding::Nearest;
    terms.review = Review->isChecked();
    if (!Bonus->isChecked()) return terms;
    // Read as the same line an events text would hold, so that both take the same amounts.
    const QString line = QString("bonus %1 %2 %3")
                             .arg(BonusAmount->text().simplified().remove(' '), QString::number(BonusMonth1->value()),
                                  QString::number(BonusMonth2->value()));
    if (!engine::readTerm(line.toStdString(), terms).error.empty()) return std::nullopt;
    return terms;
}

void TermsBox::setTerms(const engine::LenderTerms& terms) {
    const QSignalBlocker blockers[] = {
        QSignalBlocker(Interest),    QSignalBlocker(RoundDown),   QSignalBlocker(Bonus),      QSignalBlocker(Review),
        QSignalBlocker(BonusAmount), QSignalBlocker(BonusMonth1), QSignalBlocker(BonusMonth2)};
    Interest->setCurrentIndex(terms.interest == engine::InterestRule::Monthly ? 1 : 0);
    RoundDown->setChecked(terms.rounding == engine::Rounding::Down);
    Review->setChecked(terms.review);
    Bonus->setChecked(terms.bonus.has_value());
    if (terms.bonus) {
        BonusAmount->setText(QString::fromStdString(runtime::Format(terms.bonus->amount, table::kAmountMask)));
        BonusMonth1->setValue(static_cast<int>(terms.bonus->months[0]));
        BonusMonth2->setValue(static_cast<int>(terms.bonus->months[1]));
    }
}

void TermsBox::mark(QWidget* control, const QString& why) {
    for (QWidget* each : std::initializer_list<QWidget*>{BonusAmount, Review}) {
        each->setStyleSheet(each == control ? "background: #ffd2d2" : "");
        each->setToolTip(each == control ? why : QString());
    }
    Problem->setText(why);
    Problem->setVisible(!why.isEmpty());
}

void TermsBox::showFit(engine::TermsFit fit) {
    const QString why = strings::fields(strings::kTermErrors, '\t').value(static_cast<int>(fit));
    mark(fit == engine::TermsFit::ReviewNeedsFlat ? static_cast<QWidget*>(Review) : BonusAmount, why);
    if (fit == engine::TermsFit::Fits) mark(nullptr, QString());
}

void TermsBox::showUnreadableBonus() { mark(BonusAmount, strings::fields(strings::kTermErrors, '\t').last()); }

QString TermsBox::described() const {
    QStringList words;
    if (Interest->currentIndex() == 1) words << Interest->currentText();
    if (RoundDown->isChecked()) words << strings::withoutMnemonic(strings::kRoundDown);
    if (Bonus->isChecked())
        words << QString("%1 %2 (%3, %4)")
                     .arg(strings::withoutMnemonic(strings::kBonusPart), BonusAmount->text())
                     .arg(BonusMonth1->value())
                     .arg(BonusMonth2->value());
    if (Review->isChecked()) words << strings::withoutMnemonic(strings::kReview);
    return words.join("; ");
}

} // namespace planner
