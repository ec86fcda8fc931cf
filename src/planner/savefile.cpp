// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/savefile.h"

#include "strings/lookup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>

namespace planner {

namespace {

// Every byte written, again after a short write: a write that falls short flags no error, the
// next one tells why.
bool writeAll(QFileDevice& device, const QByteArray& bytes) {
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 more = device.write(bytes.constData() + written, bytes.size() - written);
        if (more <= 0) return false;
        written += more;
    }
    return device.flush();
}

} // namespace

QString saveWhole(const QString& path, const QByteArray& bytes) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir()) {
        QFile device(path);
        if (!device.open(QIODevice::WriteOnly) || !writeAll(device, bytes)) return device.errorString();
        return {};
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    // commit() would keep what its own flush could not write (a full disk): everything is
    // flushed before it.
    if (!writeAll(file, bytes)) {
        const QString error = file.errorString();
        file.cancelWriting();
        return error;
    }
    if (!file.commit()) return file.errorString();
    return {};
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
