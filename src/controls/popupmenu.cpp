// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/popupmenu.h"

namespace controls {

PopupMenu::PopupMenu(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::currentIndexChanged, this, &PopupMenu::Change);
}

} // namespace controls
