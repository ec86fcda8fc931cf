// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A count or seed a test takes from the environment, to run longer or otherwise than in CI.

#include <cstdint>
#include <cstdlib>

inline std::uint64_t setting(const char* name, std::uint64_t fallback) {
    const char* value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : fallback;
}
