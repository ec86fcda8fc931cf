// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A constant's text in the user's language: looked up by its key in the translations loaded at
// start, the default text where there is none.

#include "strings/constants.h"

#include <QString>
#include <QStringList>

namespace strings {

QString text(const Constant& constant);
// The text of a menu item or button without its mnemonic, "(&S)" or "&", for a dialog's title.
QString withoutMnemonic(const Constant& constant);
// The text's fields, split at the separator (the headings, the era menu).
QStringList fields(const Constant& constant, QChar separator);

} // namespace strings
