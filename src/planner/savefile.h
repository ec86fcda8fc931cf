// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Saving a file whole or not at all, and telling the user why a save failed.

#include <QByteArray>
#include <QString>

class QWidget;

namespace planner {

// The bytes saved whole or not at all (runtime::saveWhole); why it failed, or an empty text.
QString saveWhole(const QString& path, const QByteArray& bytes);

// A warning, shown without blocking the caller.
void warn(QWidget* parent, const QString& message);
// The warning of a failed save, naming the file and the reason.
void showSaveError(QWidget* parent, const QString& path, const QString& reason);

} // namespace planner
