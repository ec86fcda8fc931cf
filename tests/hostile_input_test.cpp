// Any text in any field: the calculation answers or refuses, and never crashes or hangs.
#include "engine/calculation.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> hostileTexts() {
    return {"",
            " ",
            "-0",
            "1e999",
            "-1e999",
            "nan",
            "inf",
            "1e-999",
            std::string(10000, '9'),
            "-" + std::string(10000, '9'),
            "\xEF\xBC\x91\xEF\xBC\x92\xEF\xBC\x93",
            "1\t2\n3",
            "9223372036854775808",
            "-9223372036854775809",
            "0.5",
            "-12",
            "31",
            "13",
            "0",
            ",",
            "1,2,3",
            std::string("\0", 1)};
}

TEST(HostileInput, EveryFieldTakesAnyText) {
    const auto texts = hostileTexts();
    for (std::size_t field = 0; field < 7; ++field) {
        for (const auto& text : texts) {
            for (const bool flat : {false, true}) {
                engine::LoanForm form;
                form.date = {"2", "3", "15", "8"};
                form.isGanri = flat;
                std::string* const fields[] = {&form.principal,  &form.rate,     &form.times,      &form.date.year,
                                               &form.date.month, &form.date.day, &form.date.payDay};
                *fields[field] = text;
                const auto calc = engine::calculate(form);
                if (calc.refusal != engine::Refusal::None) continue;
                for (const auto& row : calc.rows)
                    for (const auto& cell : row) {
                        EXPECT_EQ(cell.find("inf"), std::string::npos) << "field " << field;
                        EXPECT_EQ(cell.find("nan"), std::string::npos) << "field " << field;
                    }
            }
        }
    }
}

TEST(HostileInput, ExtremeRangesOfTheDisplay) {
    engine::LoanForm form;
    form.times = "100000";
    for (const std::int64_t top :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{0}, std::numeric_limits<std::int64_t>::max()}) {
        for (const std::int64_t last : {std::int64_t{-1}, std::int64_t{0}, std::numeric_limits<std::int64_t>::max()}) {
            form.numTop = top;
            form.totalRows = last;
            EXPECT_EQ(engine::calculate(form).refusal, engine::Refusal::None);
        }
    }
}

} // namespace
