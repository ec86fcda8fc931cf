// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/schedulecommand.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace {

// Writes the whole text to the file descriptor; false with errno set where a write fails.
bool writeAll(int fd, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(fd, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const calendar::Date today(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);

    std::ostringstream out;
    const int status = tools::runScheduleCommand({argv + 1, argv + argc}, today, std::cin, out, std::cerr);
    if (!writeAll(STDOUT_FILENO, out.view())) {
        // A reader that stopped reading (head) wants no more and no complaint.
        if (errno != EPIPE) std::cerr << "kestrune-schedule: cannot write output: " << std::strerror(errno) << '\n';
        return 1;
    }
    return status;
}
