#include "uitest.h"

#include "strings/lookup.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

namespace {

using uitest::Japanese;

void expectStructure(const char* language) {
    EXPECT_EQ(strings::fields(strings::kHeader, '\t').size(), 6) << language;
    const QStringList eras = strings::fields(strings::kRekiCombination, ',');
    ASSERT_EQ(eras.size(), 5) << language;
    EXPECT_EQ(eras[0], strings::text(strings::kRekiXst)) << language;
    EXPECT_EQ(eras[1], strings::text(strings::kRekiS)) << language;
    EXPECT_EQ(eras[2], strings::text(strings::kRekiH)) << language;
    EXPECT_EQ(eras[3], strings::text(strings::kRekiR)) << language;
    EXPECT_TRUE(strings::text(strings::kGankin).endsWith(' ')) << language;
    EXPECT_TRUE(strings::text(strings::kGanri).endsWith(' ')) << language;
    EXPECT_EQ(strings::text(strings::kHelpText).count('\n'), 9) << language;
}

TEST(Strings, DefaultTextsWithoutATranslation) {
    EXPECT_EQ(strings::text(strings::kHeader), "No.\tRepayment\tAmount\tPrincipal\tInterest\tBalance");
    EXPECT_EQ(strings::text(strings::kDay), "");
    EXPECT_EQ(strings::text(strings::kRekiCombination), "XstCal,Showa,Heisei,Reiwa,XC<->JC");
    expectStructure("English");
}

TEST(Strings, EveryConstantHasAJapaneseText) {
    Japanese japanese;
    ASSERT_TRUE(japanese.loaded());
    for (const auto& constant : strings::kAllConstants)
        EXPECT_FALSE(japanese.raw(constant).isEmpty()) << constant.context << "." << constant.name;
    EXPECT_EQ(strings::text(strings::kRekiR), QStringLiteral("令和"));
    EXPECT_EQ(strings::text(strings::kYear), QStringLiteral("年"));
    expectStructure("Japanese");
}

} // namespace
