// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the program as a user would and quits once the first window has painted its table.
#include "shell/app.h"
#include "shell/listbox.h"
#include "shell/mainwindow.h"

#include <QTimer>

int main(int argc, char** argv) {
    shell::App app(argc, argv);
    auto* window = new shell::MainWindow;
    window->show();
    QTimer::singleShot(0, &app, [window] {
        window->ListBox1->viewport()->repaint();
        QCoreApplication::exit(window->ListBox1->ListCount() == 144 ? 0 : 1);
    });
    return app.exec();
}
