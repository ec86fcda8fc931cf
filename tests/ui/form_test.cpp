#include "uitest.h"

namespace {

using namespace uitest;

using FormTest = WindowTest;

// --- Amount fields ------------------------------------------------------------------------------

TEST_F(FormTest, RateFirstVisitWritesItPlainlyAndRecalculatesOnce) {
    setDate(calendar::kWestern, "2020", "3", "15");
    visit(w->Nenriritsu);
    EXPECT_EQ(w->Nenriritsu->Text(), "2");
    EXPECT_EQ(calculations(), 1);
    visit(w->Nenriritsu);
    EXPECT_EQ(calculations(), 1);
    typeAndLeave(w->Nenriritsu, "3.50");
    EXPECT_EQ(w->Nenriritsu->Text(), "3.5");
    EXPECT_EQ(calculations(), 2);
    EXPECT_EQ(cell(0, engine::kInterest), "229,984"); // 24 days at 3.5 % a year of 365.2422 days
}

TEST_F(FormTest, PrincipalShowsPlainDigitsInsideAndCommasOutside) {
    w->Nenriritsu->setText("2"); // Tab lands there: a plain rate recalculates nothing on leaving
    setDate(calendar::kWestern, "2020", "3", "15");
    QTest::mouseClick(w->GankinField, Qt::LeftButton);
    EXPECT_EQ(w->GankinField->Text(), "100000000");
    QTest::keyClick(w->GankinField, Qt::Key_Tab);
    EXPECT_EQ(w->GankinField->Text(), "100,000,000");
    EXPECT_EQ(calculations(), 0);

    typeAndLeave(w->GankinField, "1,000,000");
    EXPECT_EQ(w->GankinField->Text(), "1,000,000");
    EXPECT_EQ(calculations(), 1);
    EXPECT_EQ(cell(143, engine::kPrincipal), "7,008"); // a million over 144 payments, not 1

    typeAndLeave(w->GankinField, "12345.6");
    EXPECT_EQ(w->GankinField->Text(), "12,346");
    EXPECT_EQ(cell(0, engine::kPrincipal), "86"); // 12346 / 144
}

TEST_F(FormTest, CountIsWrittenPlainlyAndCapped) {
    typeAndLeave(w->Kaisu, "0144");
    EXPECT_EQ(w->Kaisu->Text(), "144");
    EXPECT_EQ(calculations(), 0);
    typeAndLeave(w->Kaisu, "12");
    EXPECT_EQ(rows(), 12);
    typeAndLeave(w->Kaisu, "250000");
    EXPECT_EQ(w->Kaisu->Text(), "100000");
    EXPECT_EQ(rows(), 100000);
}

struct FirstRowCase {
    const char* typed;
    const char* shown;
    int rows;
    const char* first;
};

TEST_F(FormTest, FirstRowOutsideTheCountFallsBackToOne) {
    const FirstRowCase cases[] = {
        {"10", "10", 135, "010"}, {"0", "1", 144, "001"},   {"-3", "1", 144, "001"},  {"20", "20", 125, "020"},
        {"abc", "1", 144, "001"}, {"145", "1", 144, "001"}, {"144", "144", 1, "144"}, {"2.9", "2.9", 143, "002"},
    };
    for (const auto& c : cases) {
        typeAndLeave(w->Shokai, c.typed);
        EXPECT_EQ(w->Shokai->Text(), c.shown) << c.typed;
        ASSERT_EQ(rows(), c.rows) << c.typed;
        EXPECT_EQ(cell(0, 0), c.first) << c.typed;
    }
}

TEST_F(FormTest, CountBelowTheFirstRowLeavesAnEmptyTableAndTheFirstRowStillWorks) {
    typeAndLeave(w->Shokai, "50");
    typeAndLeave(w->Kaisu, "40");
    EXPECT_EQ(rows(), 0);
    typeAndLeave(w->Shokai, "3");
    EXPECT_EQ(rows(), 38);
}

// --- Date line ----------------------------------------------------------------------------------

TEST_F(FormTest, MonthIsBroughtIntoRange) {
    setDate(calendar::kWestern, "2023", "6", "15");
    typeAndLeave(w->StartM, "13");
    EXPECT_EQ(w->StartM->Text(), "12");
    EXPECT_EQ(cell(0, engine::kDate), "24.01.08");
    typeAndLeave(w->StartM, "0");
    EXPECT_EQ(w->StartM->Text(), "1");
    typeAndLeave(w->StartM, "x");
    EXPECT_EQ(w->StartM->Text(), "1");
}

TEST_F(FormTest, DayFollowsTheMonthAndStaysReduced) {
    setDate(calendar::kWestern, "2023", "5", "31");
    typeAndLeave(w->StartM, "4");
    EXPECT_EQ(w->StartD->Text(), "30");
    typeAndLeave(w->StartM, "5");
    EXPECT_EQ(w->StartD->Text(), "30");
    typeAndLeave(w->StartD, "45");
    EXPECT_EQ(w->StartD->Text(), "31");
    typeAndLeave(w->StartD, "0");
    EXPECT_EQ(w->StartD->Text(), "1");
    typeAndLeave(w->StartM, "2");
    typeAndLeave(w->StartD, "30");
    EXPECT_EQ(w->StartD->Text(), "28");
}

TEST_F(FormTest, PayDayIsBroughtIntoOneTo31) {
    typeAndLeave(w->StartDX, "45");
    EXPECT_EQ(w->StartDX->Text(), "31");
    typeAndLeave(w->StartDX, "8.9");
    EXPECT_EQ(w->StartDX->Text(), "8");
    EXPECT_EQ(cell(0, engine::kDate).substr(6), "08");
    typeAndLeave(w->StartDX, "0");
    EXPECT_EQ(w->StartDX->Text(), "1");
}

TEST_F(FormTest, ShowaEndsOnTheSeventhOfJanuary1989) {
    setDate(calendar::kShowa, "64", "1", "7");
    visit(w->StartD);
    EXPECT_EQ(w->RekiKind->Caption(), "Showa");
    EXPECT_EQ(w->StartY->Text(), "64");
    EXPECT_EQ(calculations(), 0);
    typeAndLeave(w->StartD, "8");
    EXPECT_EQ(w->RekiKind->Caption(), "Heisei");
    EXPECT_EQ(w->RekiKind->MenuValue(), calendar::kHeisei);
    EXPECT_EQ(w->StartY->Text(), "1");
    EXPECT_EQ(calculations(), 1);
    EXPECT_EQ(cell(0, engine::kDate), "01.02.08");
}

TEST_F(FormTest, HeiseiEndsWithApril2019) {
    setDate(calendar::kHeisei, "31", "4", "30");
    typeAndLeave(w->StartM, "5");
    EXPECT_EQ(w->RekiKind->Caption(), "Reiwa");
    EXPECT_EQ(w->StartY->Text(), "1");
    EXPECT_EQ(cell(0, engine::kDate), "01.06.08");
}

TEST_F(FormTest, ChoosingAnEraMovesAYearThatDoesNotFit) {
    setDate(calendar::kReiwa, "70", "6", "1");
    chooseMenuItem(w->RekiKind, calendar::kShowa);
    EXPECT_EQ(w->RekiKind->Caption(), "Heisei");
    EXPECT_EQ(w->StartY->Text(), "7");
    EXPECT_EQ(calculations(), 1);
    EXPECT_EQ(cell(0, engine::kDate), "07.06.08");
}

struct ConversionCase {
    int era;
    const char* year;
    const char* month;
    const char* caption;
    const char* shown;
};

TEST_F(FormTest, ConversionBetweenTheCalendarsRoundTrips) {
    const ConversionCase trips[][2] = {
        {{calendar::kReiwa, "5", "6", "XstCal", "2023"}, {0, "", "", "Reiwa", "5"}},
        {{calendar::kShowa, "64", "6", "XstCal", "1989"}, {0, "", "", "Heisei", "1"}},
    };
    for (const auto& trip : trips) {
        setDate(trip[0].era, trip[0].year, trip[0].month, "15");
        for (const auto& step : trip) {
            chooseMenuItem(w->RekiKind, 4);
            EXPECT_EQ(w->RekiKind->Caption(), step.caption);
            EXPECT_EQ(w->StartY->Text(), step.shown);
            EXPECT_NE(w->RekiKind->MenuValue(), 4);
        }
    }
}

TEST_F(FormTest, ChoosingTheSameDelayAgainDoesNothing) {
    chooseMenuItem(w->DelayPop, calendar::kThreeAfter);
    EXPECT_EQ(w->DelayPop->Caption(), "3After");
    EXPECT_EQ(calculations(), 1);
    chooseMenuItem(w->DelayPop, calendar::kThreeAfter);
    EXPECT_EQ(calculations(), 1);
}

// --- Method, refusals, nesting ------------------------------------------------------------------

TEST_F(FormTest, MethodSwitchKeepsTheCutAndTheFirstRow) {
    typeAndLeave(w->Shokai, "3");
    w->ListBox1->setListIndex(9); // payment 012
    w->BevelDelBelow_Action();
    ASSERT_EQ(rows(), 10);
    w->KindPopup->setListIndex(0);
    EXPECT_EQ(w->windowTitle(), "Flat payment Culc");
    EXPECT_EQ(rows(), 10);
    EXPECT_EQ(cell(0, 0), "003");
    EXPECT_EQ(cell(9, 0), "012");
    EXPECT_EQ(cell(0, engine::kAmount), cell(1, engine::kAmount));
    w->KindPopup->setListIndex(1);
    EXPECT_EQ(w->windowTitle(), "Equal principal Culc");
    EXPECT_EQ(cell(0, engine::kPrincipal), cell(1, engine::kPrincipal));
}

TEST_F(FormTest, ZeroRateKeepsTheTable) {
    const auto before = table();
    typeAndLeave(w->Nenriritsu, "0");
    EXPECT_EQ(w->Nenriritsu->Text(), "0");
    EXPECT_EQ(table(), before);
    typeAndLeave(w->GankinField, "");
    EXPECT_EQ(w->GankinField->Text(), "0");
    EXPECT_EQ(table(), before);
}

TEST_F(FormTest, ReturnInAFieldCorrectsItBeforeTheTableIsBuilt) {
    setDate(calendar::kWestern, "2023", "6", "15");
    QTest::mouseClick(w->StartM, Qt::LeftButton);
    w->StartM->selectAll();
    QTest::keyClicks(w->StartM, "13");
    QTest::keyClick(w->StartM, Qt::Key_Return);
    EXPECT_EQ(w->StartM->Text(), "12");
    EXPECT_EQ(cell(0, engine::kDate), "24.01.08") << "the table of month 12, not of month 13";
    EXPECT_EQ(QApplication::focusWidget(), w->ListBox1);
}

TEST_F(FormTest, SwitchingWindowsDoesNotLeaveTheField) {
    QTest::mouseClick(w->Nenriritsu, Qt::LeftButton);
    auto* other = new MainWindow;
    showActive(other);
    showActive(w);
    EXPECT_EQ(calculations(), 0);
    EXPECT_EQ(w->Nenriritsu->Text(), "2.0");
}

// --- Any text ------------------------------------------------------------------------------------

TEST_F(FormTest, AnyTextInAnyFieldLeavesAConsistentTable) {
    const QString hostile[] = {"",
                               "   ",
                               "-0",
                               "1e999",
                               "nan",
                               QString(10000, '9'),
                               "１２３",
                               "1\t2\n3",
                               "-1e999",
                               "9223372036854775808",
                               QString(2000, 'x'),
                               "0.5",
                               "-12"};
    controls::TextField* const fields[] = {w->GankinField, w->Nenriritsu, w->Kaisu,  w->Shokai,
                                           w->StartY,      w->StartM,     w->StartD, w->StartDX};
    for (controls::TextField* field : fields) {
        for (const QString& text : hostile) {
            QTest::mouseClick(field, Qt::LeftButton);
            field->selectAll();
            field->insert(text);
            QTest::keyClick(field, Qt::Key_Tab);
            // Whatever stands in the form, the table is either rebuilt from it or kept whole.
            ASSERT_TRUE(rows() == 0 || cell(0, 0).size() >= 3) << field->objectName().toStdString();
            for (int r = 0; r < std::min(rows(), 3); ++r)
                for (const auto& c : w->ListBox1->RowCells(r)) {
                    EXPECT_EQ(c.find("inf"), std::string::npos);
                    EXPECT_EQ(c.find("nan"), std::string::npos);
                }
        }
        w->GankinField->setText("100,000,000");
        w->Nenriritsu->setText("2");
        w->Kaisu->setText("144");
        w->StartY->setText("5");
        w->StartM->setText("6");
        w->StartD->setText("1");
        w->StartDX->setText("8");
        typeAndLeave(w->Shokai, "1");
    }
    w->CulcButton->Push();
    EXPECT_EQ(rows(), 144);
}

} // namespace
