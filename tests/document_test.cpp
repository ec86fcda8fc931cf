// SPDX-License-Identifier: GPL-3.0-or-later
// Plan documents: written and read back the same. What a damaged one is refused for is in
// tests/tool/documents.t.
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

} // namespace
