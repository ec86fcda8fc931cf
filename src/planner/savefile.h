// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Saving a file whole or not at all, and telling the user why a save failed.

#include <QByteArray>
#include <QString>

class QWidget;

namespace planner {

// Writes the bytes through a temporary file beside the target, renamed over it only when every
// byte is written, so that a failure (a full disk, a read-only folder) leaves no partial file and
// an existing one as it was. A target that is not a regular file (a device, a pipe) can't be
// renamed over and is written to directly. Why it failed, or an empty text.
QString saveWhole(const QString& path, const QByteArray& bytes);

// A warning, shown without blocking the caller.
void warn(QWidget* parent, const QString& message);
// The warning of a failed save, naming the file and the reason.
void showSaveError(QWidget* parent, const QString& path, const QString& reason);

} // namespace planner
