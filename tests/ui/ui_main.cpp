// SPDX-License-Identifier: GPL-3.0-or-later
// The widget tests run offscreen unless told otherwise, in the default (English) texts.
#include "shell/app.h"

#include <QLocale>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    // Settings (the recent files) of their own, not the user's.
    QStandardPaths::setTestModeEnabled(true);
    ::testing::InitGoogleTest(&argc, argv);
    shell::App app(argc, argv);
    return RUN_ALL_TESTS();
}
