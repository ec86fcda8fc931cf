// SPDX-License-Identifier: GPL-3.0-or-later
// The line that sets the housing-loan tax deduction. Its yearly figures are checked by the
// reference model, and worked by hand in the tool's tests.
#include "engine/deduction.h"

#include <gtest/gtest.h>

using namespace engine;

namespace {

TEST(Deduction, LinesReadAndWrittenBack) {
    const std::pair<const char*, const char*> cases[] = {
        {"deduction", "deduction 0.7 13 30000000"},
        {"deduction 1 100", "deduction 1 100 30000000"},
        {"deduction 0.7 13 30,000,000 from 2025 limit 250,000", "deduction 0.7 13 30000000 from 2025 limit 250000"},
        {"deduction limit 1", "deduction 0.7 13 30000000 limit 1"},
        {"deduction 0.7 13.5", ""},
        {"deduction 1 101", ""},
        {"deduction -1", ""},
        {"deduction from", ""},
        {"deduction 1 2 3 4", ""},
    };
    for (const auto& [line, written] : cases) {
        std::optional<TaxDeduction> read;
        const TermReading reading = readDeduction(line, read);
        EXPECT_TRUE(reading.isTerm) << line;
        EXPECT_EQ(read ? deductionLine(*read) : "", written) << line;
        EXPECT_EQ(reading.error.empty(), *written != '\0') << line;
    }
}

} // namespace
