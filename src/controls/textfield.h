// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A one-line text field with GotFocus and LostFocus, as the form's handlers expect them: the
// LostFocus of the field being left comes before the GotFocus of the next; writing the text from
// code raises neither; and switching to another window or opening a popup over the field is not
// a loss of focus, so it raises nothing. Copy with no text selected is left to the window.

#include <QLineEdit>

namespace controls {

class TextField : public QLineEdit {
    Q_OBJECT
public:
    explicit TextField(QWidget* parent = nullptr);

    // True while a field's LostFocus runs: the focus is already on its way to another control.
    static bool isBeingLeft() { return s_fieldsBeingLeft > 0; }

signals:
    void GotFocus();
    void LostFocus();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool m_hasFocus = false; // GotFocus raised and LostFocus not yet
    static inline int s_fieldsBeingLeft = 0;
};

} // namespace controls
