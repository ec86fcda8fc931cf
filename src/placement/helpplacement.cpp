// SPDX-License-Identifier: GPL-3.0-or-later
#include "placement/helpplacement.h"

namespace placement {

int helpWindowLeft(int mainLeft, int mainWidth, int helpWidth, int screenWidth) {
    if (mainLeft + mainWidth + helpWidth < screenWidth) return mainLeft + mainWidth;
    return mainLeft - helpWidth;
}

} // namespace placement
