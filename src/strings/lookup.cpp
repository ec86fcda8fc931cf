// SPDX-License-Identifier: GPL-3.0-or-later
#include "strings/lookup.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace strings {

QString text(const Constant& constant) {
    // The key is the context and the name; the translations carry the English default beside the
    // name as lupdate found it.
    const std::string context(constant.context);
    const std::string name(constant.name);
    const std::string defaultText(constant.defaultText);
    const QString translated = QCoreApplication::translate(context.c_str(), name.c_str(), defaultText.c_str());
    if (translated != QLatin1String(name.c_str())) return translated;
    return QString::fromUtf8(constant.defaultText.data(), static_cast<qsizetype>(constant.defaultText.size()));
}

QString withoutMnemonic(const Constant& constant) {
    QString plain = text(constant);
    plain.remove(QRegularExpression(QStringLiteral("\\(&[^)]\\)"))); // Japanese: "保存(&S)..."
    // One '&' marks the mnemonic, "&&" is an ampersand.
    return plain.replace(QStringLiteral("&&"), QStringLiteral("\x01")).remove('&').replace('\x01', '&');
}

QStringList fields(const Constant& constant, QChar separator) { return text(constant).split(separator); }

} // namespace strings
