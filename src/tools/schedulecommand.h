// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// kestrune-schedule: the calculate action on a form given as the texts a user would type,
// printing the table. Exit status 0, 1 when the calculation is refused, 2 on a bad option.

#include "calendar/date.h"

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace tools {

int runScheduleCommand(const std::vector<std::string>& args, const calendar::Date& today, std::istream& in,
                       std::ostream& out, std::ostream& err);

} // namespace tools
