// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/bevelbutton.h"

#include <QMenu>

namespace controls {

BevelButton::BevelButton(Style style, QWidget* parent) : QPushButton(parent) {
    setCheckable(style == Style::Toggle);
    if (style == Style::Menu) {
        m_menu = new QMenu(this);
        setMenu(m_menu);
        connect(m_menu, &QMenu::triggered, this, [this](QAction* item) {
            m_menuValue = static_cast<int>(m_menu->actions().indexOf(item));
            emit Action();
        });
    } else {
        connect(this, &QPushButton::clicked, this, &BevelButton::Action);
    }
}

void BevelButton::AddRow(const QString& item) {
    if (m_menu) m_menu->addAction(item);
}

QString BevelButton::List(int index) const {
    if (!m_menu || index < 0 || index >= m_menu->actions().size()) return {};
    return m_menu->actions().at(index)->text();
}

} // namespace controls
