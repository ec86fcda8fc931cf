// SPDX-License-Identifier: GPL-3.0-or-later
// Plan documents: written and read back the same, and what a damaged one is refused for.
#include "engine/document.h"

#include <gtest/gtest.h>

using namespace engine;

namespace {

TEST(Document, WrittenAndReadBackTheSame) {
    PlanDocument document{
        {"30,000,000", "1.5", "420", "3", calendar::kHeisei, {"30", "11", "20", "27"}, calendar::kTwoAfter, true},
        {{"Prepay", {"interest monthly", "bonus 3000000 7 1"}, "deduction 0.7 13 30000000", {}},
         {"資金 \"A\"", {}, std::nullopt, {"prepay 12 1000000 shorten every 12", "fee 1 x"}}}};
    const std::string text = documentText(document);
    const DocumentReading read = readDocument(text);
    ASSERT_TRUE(read.document) << read.error;
    EXPECT_TRUE(*read.document == document);
    EXPECT_EQ(documentText(*read.document), text);
}

TEST(Document, ADamagedDocumentIsRefusedWithItsReason) {
    const std::string head = R"({"format": "kestrune-plan", "version": 1, )";
    const std::pair<std::string, std::string> cases[] = {
        {"", "not JSON: an error at line 1, column 1"},
        {head + "\n  \"form\": {,}", "not JSON: an error at line 2, column 12"},
        {"[1]", "not a plan document"},
        {R"({"format": "kestrune-plan", "version": -1e400})", "not JSON: a number too large to read"},
        {R"({"format": "kestrune-plan"})", "a plan document without a version it can read"},
        {R"({"format": "kestrune-plan", "version": 2})",
         "made by a newer Kestrune (format version 2; this one reads 1)"},
        {head + R"("form": {"rate": 2}})", "form.rate is not a text"},
        {head + R"("form": {"era": "meiji"}})", "form.era is none of the words it takes"},
        {head + R"("form": {"principal": "1\n2"}})",
         "form.principal holds more than 1,000 characters or a control character"},
        {head + R"("scenarios": []})", "scenarios is not a list of at least one"},
        {head + R"("scenarios": [{"events": [1]}]})", "scenarios[1].events[1] is not a text"},
        {head + R"("scenarios": [{}, {"terms": ["rounding up"]}]})",
         "scenarios[2].terms[1]: rounding takes nearest or down: rounding up"},
        {head + R"("scenarios": [{"terms": ["fee 1 1"]}]})", "scenarios[1].terms[1]: not a lender term"},
        {head + R"("scenarios": [{"deduction": "deduction -1"}]})",
         "scenarios[1].deduction: deduction takes a rate, a count of years, a cap, \"from\" a year and \"limit\" an "
         "amount, all at least 0: deduction -1"},
        {head + R"("scenarios": [{"name": "A", "colour": 3}], "saved by": "a newer one"})", ""},
    };
    for (const auto& [text, error] : cases) EXPECT_EQ(readDocument(text).error, error) << text;
}

} // namespace
