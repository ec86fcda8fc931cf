// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/textfield.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace controls {
namespace {

// Focus that only follows the window's activation or a popup is no visit of the field.
bool isPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
    // A text wider than the field shows its head, not its tail, while the field is not edited.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!hasFocus()) setCursorPosition(0);
    });
}

bool TextField::event(QEvent* event) {
    // The field claims the Copy key only with text to copy; otherwise the window's Copy acts.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy) &&
        !hasSelectedText()) {
        event->ignore();
        return true;
    }
    return QLineEdit::event(event);
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (m_hasFocus || isPassing(event->reason())) return;
    m_hasFocus = true;
    emit GotFocus();
}

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (!m_hasFocus || isPassing(event->reason())) return;
    setCursorPosition(0);
    m_hasFocus = false;
    ++s_fieldsBeingLeft;
    emit LostFocus();
    --s_fieldsBeingLeft;
}

} // namespace controls
