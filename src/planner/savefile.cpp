// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/savefile.h"

#include "strings/lookup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>

namespace planner {

SaveResult saveWhole(const QString& path, const std::function<bool(QIODevice&)>& write) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        QFile device(path);
        if (!device.open(QIODevice::WriteOnly)) return {false, device.errorString()};
        if (!write(device)) return {};
        if (!device.flush() || device.error() != QFileDevice::NoError) return {false, device.errorString()};
        return {true, {}};
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return {false, file.errorString()};
    if (!write(file)) {
        file.cancelWriting();
        return {};
    }
    if (!file.commit()) return {false, file.errorString()};
    return {true, {}};
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
