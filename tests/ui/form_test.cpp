// SPDX-License-Identifier: GPL-3.0-or-later
// Each field of the form: what leaving it makes of the text typed, and the table that follows.
#include "uitest.h"

#include "engine/calculation.h"

namespace {

using namespace uitest;

class FormTest : public WindowTest {
protected:
    controls::TextField* field(const char* name) const { return w->findChild<controls::TextField*>(name); }
    // The table the window shows is the table of the form it shows.
    void expectTheTableOfTheForm(const std::vector<table::Row>& before, const std::string& what) {
        const engine::Calculation calc = engine::calculate(w->loanForm(), {w->numTop, w->totalRows});
        const auto expected = calc.refusal == engine::Refusal::None
                                  ? table::rowTexts(calc.payments, calc.terms.dateLine.era, calc.terms.dateLine.payDay)
                                  : before;
        EXPECT_TRUE(table() == expected) << what;
    }
};

struct FieldCase {
    const char* field;
    const char* typed;
    const char* shown; // as the field shows it once left
    int calculations;
    int rows;
    int column;
    const char* firstCell; // the first row's cell in that column
};

// From the default loan of 2020-03-15 (equal principal, 100,000,000 at 2.0 % over 144 payments).
TEST_F(FormTest, EachFieldCorrectsItsTextAndRecalculatesWhenItChanged) {
    const FieldCase cases[] = {
        {"Nenriritsu", "3.50", "3.5", 1, 144, table::kInterest, "229,984"}, // 24 days at 3.5 % a year
        {"Nenriritsu", "2", "2", 1, 144, table::kInterest, "131,420"},      // "2.0" read anew as "2"
        {"Nenriritsu", "3.", "3", 1, 144, table::kInterest, "197,129"},     // a number that ends in a point
        {"GankinField", "1,000,000", "1,000,000", 1, 144, table::kPrincipal, "6,944"},
        {"GankinField", "12345.6", "12,346", 1, 144, table::kPrincipal, "86"},
        {"Kaisu", "0144", "144", 0, 144, table::kNumber, "001"},
        {"Kaisu", "12", "12", 1, 12, table::kPrincipal, "8,333,333"},
        {"Kaisu", "250000", "100000", 1, 100000, table::kPrincipal, "1,000"},
        {"Shokai", "10", "10", 1, 135, table::kNumber, "010"},
        {"Shokai", "2.9", "2.9", 1, 143, table::kNumber, "002"},
        {"Shokai", "144", "144", 1, 1, table::kNumber, "144"},
        {"Shokai", "145", "1", 1, 144, table::kNumber, "001"}, // outside the count: back to 1
        {"Shokai", "0", "1", 1, 144, table::kNumber, "001"},
        {"StartM", "13", "12", 1, 144, table::kDate, "21.01.08"},
        {"StartM", "x", "1", 1, 144, table::kDate, "20.02.08"},
        {"StartD", "45", "31", 1, 144, table::kDate, "20.04.08"},
        {"StartD", "0", "1", 1, 144, table::kDate, "20.03.08"}, // a day below 1: the first
        {"StartDX", "45", "31", 1, 144, table::kDate, "20.03.31"},
        {"StartDX", "8.9", "8", 0, 144, table::kDate, "20.04.08"},
        {"StartDX", "-3", "1", 1, 144, table::kDate, "20.04.01"},
    };
    for (const auto& c : cases) {
        setForm(loan2020());
        typeAndLeave(field(c.field), c.typed);
        SCOPED_TRACE(std::string(c.field) + " \"" + c.typed + "\"");
        EXPECT_EQ(field(c.field)->text(), c.shown);
        EXPECT_EQ(calculations(), c.calculations);
        ASSERT_EQ(rows(), c.rows);
        EXPECT_EQ(cell(0, c.column), c.firstCell);
    }
}

struct EraCase {
    int era;
    const char *year, *month, *day;
    const char* field; // left after typing `typed`; "" where a menu item is chosen
    const char* typed;
    const char* caption;
    const char* shownYear;
    const char* shownDay;
    const char* firstDate;
};

TEST_F(FormTest, TheDateLineKeepsEachYearInItsEra) {
    const EraCase cases[] = {
        {calendar::kShowa, "64", "1", "7", "StartD", "7", "Showa", "64", "7", "01.01.08"},
        {calendar::kShowa, "64", "1", "7", "StartD", "8", "Heisei", "1", "8", "01.02.08"},
        {calendar::kHeisei, "31", "4", "30", "StartM", "5", "Reiwa", "1", "30", "01.06.08"},
        {calendar::kReiwa, "6", "2", "29", "StartD", "29", "Reiwa", "6", "29", "06.03.08"}, // 2024 has a 29 February
        {calendar::kReiwa, "5", "2", "29", "StartD", "29", "Reiwa", "5", "28", "05.03.08"},
        {calendar::kReiwa, "70", "6", "1", "", "", "Heisei", "7", "1", "07.06.08"}, // Showa chosen
        {calendar::kReiwa, "5", "6", "1", "XC<->JC", "", "XstCal", "2023", "1", "23.06.08"},
        {calendar::kShowa, "64", "6", "1", "XC<->JC", "", "XstCal", "1989", "1", "89.06.08"},
    };
    for (const auto& c : cases) {
        engine::LoanForm form = loan2020();
        form.era = c.era;
        form.date = {c.year, c.month, c.day, "8"};
        setForm(form);
        SCOPED_TRACE(std::string(c.caption) + " " + c.shownYear);
        if (std::string(c.field) == "XC<->JC")
            chooseMenuItem(w->RekiKind, 4);
        else if (*c.field)
            typeAndLeave(field(c.field), c.typed);
        else
            chooseMenuItem(w->RekiKind, calendar::kShowa);
        EXPECT_EQ(w->RekiKind->text(), c.caption);
        EXPECT_EQ(w->StartY->text(), c.shownYear);
        EXPECT_EQ(w->StartD->text(), c.shownDay);
        EXPECT_EQ(cell(0, table::kDate), c.firstDate);
    }
    chooseMenuItem(w->RekiKind, 4); // and back: 1989 in June is Heisei 1
    EXPECT_EQ(w->RekiKind->text(), "Heisei");
    EXPECT_EQ(w->StartY->text(), "1");
}

TEST_F(FormTest, TheMethodKeepsTheCutAndTheFirstRowAndNamesTheWindow) {
    setForm(loan2020());
    typeAndLeave(w->Shokai, "3");
    clickRow(9); // payment 012
    w->BevelDelBelow->click();
    w->KindPopup->setListIndex(0);
    EXPECT_EQ(w->windowTitle(), "Flat payment Culc");
    ASSERT_EQ(rows(), 10);
    EXPECT_EQ(cell(9, table::kNumber), "012");
    EXPECT_EQ(cell(0, table::kAmount), "781,684");
    chooseMenuItem(w->DelayPop, calendar::kThreeAfter);
    EXPECT_EQ(w->DelayPop->text(), "3After");
    EXPECT_EQ(cell(0, table::kDate), "20.08.08") << "payment 3 of those from June";
}

TEST_F(FormTest, ReturnCorrectsTheFieldBeforeTheTableIsBuilt) {
    setForm(loan2020());
    QTest::mouseClick(w->StartM, Qt::LeftButton);
    w->StartM->selectAll();
    QTest::keyClicks(w->StartM, "13");
    QTest::keyClick(w->StartM, Qt::Key_Return);
    EXPECT_EQ(w->StartM->text(), "12");
    EXPECT_EQ(cell(0, table::kDate), "21.01.08") << "the table of month 12, not of month 13";
}

TEST_F(FormTest, SwitchingWindowsDoesNotLeaveTheField) {
    QTest::mouseClick(w->Nenriritsu, Qt::LeftButton);
    showActive(new MainWindow);
    showActive(w);
    EXPECT_EQ(w->Nenriritsu->text(), "2.0");
}

// Any text in any field: the field corrects it, and the table is the table of the form shown,
// or the one before where that form is refused.
TEST_F(FormTest, AnyTextInAnyFieldLeavesTheTableOfTheFormShown) {
    const QString hostile[] = {"",       "-0",   "1e999",  "-1e999", "nan", QString(400, '9'),
                               "１２３", "1\t2", "9.9e15", "0.5"};
    for (const char* name : {"GankinField", "Nenriritsu", "Kaisu", "Shokai", "StartY", "StartM", "StartD", "StartDX"}) {
        setForm(loan2020());
        for (const QString& text : hostile) {
            const auto before = table();
            QTest::mouseClick(field(name), Qt::LeftButton);
            field(name)->selectAll();
            field(name)->insert(text);
            QTest::keyClick(field(name), Qt::Key_Tab);
            expectTheTableOfTheForm(before, std::string(name) + " \"" + text.left(12).toStdString() + "\"");
        }
    }
}

} // namespace
