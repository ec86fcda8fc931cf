#include "controls/locks.h"

namespace controls {

LockedLayoutWidget::LockedLayoutWidget(QSize designSize, QWidget* parent) : QWidget(parent), m_designSize(designSize) {}

void LockedLayoutWidget::place(QWidget* control, QRect designRect, Locks locks) {
    m_placed.push_back({control, designRect, locks});
    control->setGeometry(rectFor(m_placed.back()));
}

QRect LockedLayoutWidget::rectFor(const Placed& placed) const {
    const int grownWidth = width() - m_designSize.width();
    const int grownHeight = height() - m_designSize.height();
    QRect r = placed.designRect;
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

} // namespace controls
