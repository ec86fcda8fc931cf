// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The menu bar: File (New, Quit) and Edit (Undo, Redo, Cut, Copy, Paste, Delete, Select All,
// About). Quit and About carry the roles that put them on the application menu of macOS.
// Each item's object name is its name (FileNew, EditCopy, ...).

class QMenuBar;

namespace shell {

class MainWindow;

// `window` receives the Edit commands and About; without one (macOS, no window open) only
// New and Quit act.
void buildMenuBar(QMenuBar* bar, MainWindow* window);

} // namespace shell
