#include "tools/schedulecommand.h"

#include <ctime>
#include <iostream>

int main(int argc, char** argv) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const calendar::Date today(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    return tools::runScheduleCommand({argv + 1, argv + argc}, today, std::cout, std::cerr);
}
