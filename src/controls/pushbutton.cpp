// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/pushbutton.h"

namespace controls {

PushButton::PushButton(QWidget* parent) : QPushButton(parent) {
    connect(this, &QPushButton::clicked, this, &PushButton::Action);
}

} // namespace controls
