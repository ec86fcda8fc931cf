// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the help window stands beside a main window: flush right where the screen has room,
// else flush left (whether or not that is on the screen).

namespace placement {

int helpWindowLeft(int mainLeft, int mainWidth, int helpWidth, int screenWidth);

} // namespace placement
