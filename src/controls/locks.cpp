// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/locks.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cmath>

namespace controls {
namespace {

bool sameLine(const QRect& a, const QRect& b) { return a.top() <= b.bottom() && b.top() <= a.bottom(); }
int end(const QRect& r) { return r.x() + r.width(); }

} // namespace

LockedLayoutWidget::LockedLayoutWidget(QSize designSize, QWidget* parent)
    : QWidget(parent), m_designSize(designSize), m_fittedSize(designSize) {}

void LockedLayoutWidget::place(QWidget* control, QRect designRect, Locks locks) {
    m_placed.push_back({control, designRect, locks, 0, designRect});
    control->setGeometry(rectFor(m_placed.back()));
}

void LockedLayoutWidget::setNeededWidth(QWidget* control, int width) {
    for (auto& placed : m_placed)
        if (placed.control == control) placed.neededWidth = width;
}

void LockedLayoutWidget::fit(double verticalScale) {
    // Left to right: each control as wide as it needs, and no nearer to a control before it on
    // its line than the design has it.
    std::vector<Placed*> order;
    for (auto& placed : m_placed) order.push_back(&placed);
    std::stable_sort(order.begin(), order.end(),
                     [](const Placed* a, const Placed* b) { return a->designRect.x() < b->designRect.x(); });
    int width = m_designSize.width();
    int designEnd = 0;
    for (const auto& placed : m_placed) designEnd = std::max(designEnd, end(placed.designRect));
    const int margin = m_designSize.width() - designEnd;
    for (std::size_t i = 0; i < order.size(); ++i) {
        Placed& c = *order[i];
        int left = c.designRect.x();
        for (std::size_t j = 0; j < i; ++j) {
            const Placed& p = *order[j];
            if (p.designRect.center().x() < c.designRect.x() && sameLine(p.designRect, c.designRect))
                left = std::max(left, end(p.fittedRect) + c.designRect.x() - end(p.designRect));
        }
        const auto scaled = [verticalScale](int y) { return static_cast<int>(std::lround(y * verticalScale)); };
        c.fittedRect = QRect(left, scaled(c.designRect.y()), std::max(c.designRect.width(), c.neededWidth),
                             scaled(c.designRect.y() + c.designRect.height()) - scaled(c.designRect.y()));
        const int rightDistance = c.locks & Lock::Right ? m_designSize.width() - end(c.designRect) : margin;
        width = std::max(width, end(c.fittedRect) + std::max(rightDistance, 0));
    }
    // Controls locked right keep their distance to the right edge of the wider design.
    for (auto& c : m_placed) {
        if (!(c.locks & Lock::Right)) continue;
        const int right = width - (m_designSize.width() - end(c.designRect));
        if (c.locks & Lock::Left)
            c.fittedRect.setRight(right - 1);
        else
            c.fittedRect.moveRight(right - 1);
    }
    m_fittedSize = {width, static_cast<int>(std::lround(m_designSize.height() * verticalScale))};
    for (const auto& placed : m_placed) placed.control->setGeometry(rectFor(placed));
}

QRect LockedLayoutWidget::rectFor(const Placed& placed) const {
    const int grownWidth = this->width() - m_fittedSize.width();
    const int grownHeight = height() - m_fittedSize.height();
    QRect r = placed.fittedRect;
    if (placed.locks & Lock::Right) {
        if (placed.locks & Lock::Left)
            r.setWidth(r.width() + grownWidth);
        else
            r.translate(grownWidth, 0);
    }
    if (placed.locks & Lock::Bottom) {
        if (placed.locks & Lock::Top)
            r.setHeight(r.height() + grownHeight);
        else
            r.translate(0, grownHeight);
    }
    return r;
}

void LockedLayoutWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (const auto& placed : m_placed) placed.control->setGeometry(rectFor(placed));
}

int widthForText(const QLineEdit* edit, const QString& text) {
    // What QLineEdit gives its text: the frame's contents, less its text margins, less a fixed
    // margin of 2 on each side and the cursor.
    const QMargins textMargins = edit->textMargins();
    const int contents =
        edit->fontMetrics().horizontalAdvance(text) + 2 * 2 + 1 + textMargins.left() + textMargins.right();
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit);
    const int frame = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width();
    return contents + (option.rect.width() - frame);
}

int widthForCaptions(QWidget* buttonOrLabel, const QStringList& captions) {
    // The control's own size hint for each caption in turn.
    auto* button = qobject_cast<QAbstractButton*>(buttonOrLabel);
    auto* label = qobject_cast<QLabel*>(buttonOrLabel);
    const QString shown = button ? button->text() : label ? label->text() : QString();
    int width = 0;
    for (const QString& caption : captions) {
        button ? button->setText(caption) : label->setText(caption);
        width = std::max(width, buttonOrLabel->sizeHint().width());
    }
    button ? button->setText(shown) : label->setText(shown);
    return width;
}

void resizeWithinScreen(QWidget* window, QSize wanted) {
    const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window);
    const int frame = window->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, window);
    const QSize room = window->screen()->availableSize() - QSize(2 * frame, title + 2 * frame);
    window->resize(wanted.boundedTo(room).expandedTo(window->minimumSize()));
}

} // namespace controls
