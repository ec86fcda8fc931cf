// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A popup menu whose Change is raised whenever ListIndex takes a new value, by the user or code.

#include <QComboBox>

namespace controls {

class PopupMenu : public QComboBox {
    Q_OBJECT
public:
    explicit PopupMenu(QWidget* parent = nullptr);

    int ListIndex() const { return currentIndex(); }
    void setListIndex(int index) { setCurrentIndex(index); }

signals:
    void Change();
};

} // namespace controls
