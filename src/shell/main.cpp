// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/app.h"
#include "shell/mainwindow.h"

int main(int argc, char** argv) {
    shell::App app(argc, argv);
    (new shell::MainWindow)->show();
    return app.exec();
}
