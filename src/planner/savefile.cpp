// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/savefile.h"

#include "runtime/files.h"
#include "strings/lookup.h"

#include <QDir>
#include <QMessageBox>

namespace planner {

QString saveWhole(const QString& path, const QByteArray& bytes) {
    return QString::fromStdString(runtime::saveWhole(
        path.toStdString(), std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
}

void warn(QWidget* parent, const QString& message) {
    auto* box =
        new QMessageBox(QMessageBox::Warning, strings::text(strings::kAppName), message, QMessageBox::Ok, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void showSaveError(QWidget* parent, const QString& path, const QString& reason) {
    warn(parent, strings::text(strings::kSaveFailed).arg(QDir::toNativeSeparators(path), reason));
}

} // namespace planner
