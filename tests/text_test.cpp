#include "runtime/text.h"

#include <gtest/gtest.h>

using namespace runtime;

TEST(TextOperations, SplitJoinAndFields) {
    EXPECT_EQ(Split("a,b,,c", ","), (std::vector<std::string>{"a", "b", "", "c"}));
    EXPECT_EQ(Join({"1", "000", "000"}, ""), "1000000");
    EXPECT_EQ(withoutCommas("100,000,000"), "100000000");
    EXPECT_EQ(CountFields("XstCal,Showa,Heisei,Reiwa,XC<->JC", ","), 5u);
    EXPECT_EQ(NthField("XstCal,Showa,Heisei,Reiwa,XC<->JC", ",", 5), "XC<->JC");
    EXPECT_EQ(NthField("a,b", ",", 0), "");
    EXPECT_EQ(NthField("a,b", ",", 3), "");
    EXPECT_EQ(Split("26.03.08", "."), (std::vector<std::string>{"26", "03", "08"}));
}
