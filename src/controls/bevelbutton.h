// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A bevel button, either a toggle or a menu button.
// As a toggle, a press flips Value and then raises Action; writing Value raises nothing.
// As a menu button, choosing an item sets MenuValue and raises Action; the caption stays as it
// was until the handler changes it.

#include <QPushButton>

class QMenu;

namespace controls {

class BevelButton : public QPushButton {
    Q_OBJECT
public:
    enum class Style { Push, Toggle, Menu };
    explicit BevelButton(Style style, QWidget* parent = nullptr);

    bool Value() const { return isChecked(); }
    void setValue(bool value) { setChecked(value); }

    void AddRow(const QString& item);
    QString List(int index) const;
    int MenuValue() const { return m_menuValue; }
    void setMenuValue(int value) { m_menuValue = value; }

signals:
    void Action();

private:
    QMenu* m_menu = nullptr;
    int m_menuValue = -1;
};

} // namespace controls
