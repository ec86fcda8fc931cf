// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A push button whose Push runs its Action at once, as a click would.

#include <QPushButton>

namespace controls {

class PushButton : public QPushButton {
    Q_OBJECT
public:
    explicit PushButton(QWidget* parent = nullptr);
    void Push() { emit Action(); }

signals:
    void Action();
};

} // namespace controls
