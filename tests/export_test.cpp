#include "table/export.h"

#include <gtest/gtest.h>

using namespace table;

namespace {

const std::vector<engine::Row> kTwoRows{
    {"001", "20.04.08", "781,684", "650,264", "131,420", "99,349,736"},
    {"002", "20.05.08", "781,684", "618,478", "163,206", "98,731,258"},
};

TEST(Export, TabSeparatedForSpreadsheets) {
    EXPECT_EQ(toTsv(kTwoRows), "001\t20.04.08\t781,684\t650,264\t131,420\t99,349,736\n"
                               "002\t20.05.08\t781,684\t618,478\t163,206\t98,731,258\n");
}

TEST(Export, CsvQuotesFieldsWithCommasAndQuotes) {
    EXPECT_EQ(toCsv({kTwoRows[0]}), "001,20.04.08,\"781,684\",\"650,264\",\"131,420\",\"99,349,736\"\r\n");
    EXPECT_EQ(toCsv({{"a\"b", "x\ny", "", "", "", ""}}), "\"a\"\"b\",\"x\ny\",,,,\r\n");
}

TEST(Export, HtmlTableEscapesText) {
    EXPECT_EQ(toHtml({{"<1>", "&", "", "", "", ""}}),
              "<table><tr><td>&lt;1&gt;</td><td>&amp;</td><td></td><td></td><td></td><td></td></tr></table>");
}

} // namespace
