// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Saving a file whole or not at all, and telling the user why a save failed.

#include <QString>

#include <functional>

class QIODevice;
class QWidget;

namespace planner {

struct SaveResult {
    bool saved = false;
    QString error; // why it failed; empty where it was saved or the writer cancelled it
};

// Writes through a temporary file beside the target, renamed over it only when everything is
// written, so that a failure (a full disk, a read-only folder) or a cancel leaves no partial file
// and an existing one as it was. A target that is not a regular file (a device, a pipe) can't be
// renamed over and is written to directly. `write` returns false to cancel.
SaveResult saveWhole(const QString& path, const std::function<bool(QIODevice&)>& write);

// A warning, shown without blocking the caller.
void warn(QWidget* parent, const QString& message);
// The warning of a failed save, naming the file and the reason.
void showSaveError(QWidget* parent, const QString& path, const QString& reason);

} // namespace planner
