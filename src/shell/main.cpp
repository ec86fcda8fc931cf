// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/document.h"
#include "shell/app.h"
#include "shell/mainwindow.h"

int main(int argc, char** argv) {
    shell::App app(argc, argv);
    // Each plan document named opens in a window; without one, or where none opens, a new window.
    const QStringList files = QCoreApplication::arguments().mid(1);
    planner::Document::open(files, nullptr);
    if (app.mainWindows().isEmpty()) (new shell::MainWindow)->show();
    return app.exec();
}
