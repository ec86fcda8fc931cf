// SPDX-License-Identifier: GPL-3.0-or-later
// The Plan window: opened from its main window, events typed, marked, pasted, copied and removed,
// the schedule, totals and chart that follow, and the schedule as the tool prints it.
#include "uitest.h"

#include "planner/planwindow.h"

#include <QChartView>
#include <QClipboard>
#include <QLabel>
#include <QLineSeries>
#include <QPointer>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>

namespace {

using namespace uitest;

class PlanTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        engine::LoanForm form = loan2020();
        form.principal = "30,000,000";
        form.rate = "1.5";
        form.times = "420";
        form.flatPayment = true;
        setForm(form);
        QTest::keyClick(w, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        plan = w->findChild<planner::PlanWindow*>();
        ASSERT_NE(plan, nullptr);
        QTest::qWait(10);
        showActive(plan);
        plan->Events->setFocus();
    }
    void paste(const char* lines) {
        QGuiApplication::clipboard()->setText(lines);
        plan->Events->setFocus();
        QTest::keyClick(plan->Events, Qt::Key_V, Qt::ControlModifier);
    }
    QString figure(int i) const { return plan->Figures.at(static_cast<std::size_t>(i))->text(); }
    // What kestrune-schedule prints for the same loan and events, as TSV.
    static std::string tool(const std::string& events) {
        const std::string command = std::string(KESTRUNE_SCHEDULE) +
                                    " --era western --year 2020 --month 3 --day 15 --principal 30,000,000 --rate 1.5"
                                    " --times 420 --method flat --format tsv " +
                                    events;
        std::string out;
        FILE* pipe = popen(command.c_str(), "r");
        for (int c; (c = std::fgetc(pipe)) != EOF;) out += static_cast<char>(c);
        pclose(pipe);
        return out;
    }
    planner::PlanWindow* plan = nullptr;
};

TEST_F(PlanTest, OpensOnItsLoanAndFollowsTheForm) {
    EXPECT_EQ(plan->windowTitle(), "Plan: Flat payment, 30,000,000 at 1.5 %, 420 payments");
    EXPECT_EQ(plan->focusWidget(), plan->Events);
    EXPECT_EQ(figure(0), "420");
    QTest::keyClick(w, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(w->findChildren<planner::PlanWindow*>().size(), 1) << "raised, not opened again";
    engine::LoanForm form = w->loanForm();
    form.times = "360";
    setForm(form);
    EXPECT_EQ(plan->windowTitle(), "Plan: Flat payment, 30,000,000 at 1.5 %, 360 payments");
    EXPECT_EQ(figure(0), "360");
    QPointer<planner::PlanWindow> open = plan;
    w->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(open.isNull()) << "closed with its window";
}

TEST_F(PlanTest, EventsTypedPastedMarkedCopiedAndRemoved) {
    QTest::keyClick(plan->Events, Qt::Key_Insert);
    ASSERT_EQ(plan->Events->rowCount(), 1);
    // Typed into the cells: F2 edits, Return ends the edit.
    for (const auto& [column, typed] : {std::pair{0, "60"}, {2, "1,000,000"}, {4, "60"}}) {
        plan->Events->setCurrentCell(0, column);
        QTest::keyClick(plan->Events, Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents(); // the edit is committed once the editor has closed
    }
    EXPECT_EQ(figure(0), "350") << "a shorter term";
    paste("rate 61 0.9\nfee\t61\t330000\nprepay 500 5\n# a comment\n");
    ASSERT_EQ(plan->Events->rowCount(), 4);
    EXPECT_EQ(plan->Events->item(3, 0)->toolTip(), "The payment is outside the loan");
    EXPECT_EQ(plan->Events->item(1, 0)->toolTip(), "");
    EXPECT_EQ(figure(4), "330,000") << "fees";
    plan->Events->selectRow(0);
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "prepay 60 1,000,000 shorten every 60\n");
    plan->Events->clearSelection();
    plan->Events->selectRow(3);
    QTest::keyClick(plan->Events, Qt::Key_Delete);
    EXPECT_EQ(plan->Events->rowCount(), 3);
    // The schedule copied is the tool's for the same events, cell for cell.
    QTest::keyClick(plan, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().toStdString() ==
                tool("--prepay 60:1,000,000:every=60 --rate-change 61:0.9 --fee 61:330000"));
    const QModelIndex payment60 = plan->Schedule->model()->index(59, 0);
    plan->Schedule->scrollTo(payment60);
    QTest::mouseClick(plan->Schedule->viewport(), Qt::LeftButton, {}, plan->Schedule->visualRect(payment60).center());
    QTest::keyClick(plan->Schedule, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("060\t")) << "the selected row";
    const std::string totals =
        tool("--prepay 60:1,000,000:every=60 --rate-change 61:0.9 --fee 61:330000 --totals --format table");
    EXPECT_NE(totals.find("Break-even payment: " + figure(9).section(' ', 0, 0).toStdString() + " ("),
              std::string::npos);
    EXPECT_NE(totals.find("Interest saved: " + figure(6).toStdString() + "\n"), std::string::npos);
    EXPECT_EQ(plan->Chart->chart()->series().size(), 4);
    EXPECT_LE(static_cast<QLineSeries*>(plan->Chart->chart()->series().front())->count(), plan->Chart->width() + 1);
}

TEST_F(PlanTest, TheScheduleIsTheToolsForEitherMethod) {
    engine::LoanForm form = w->loanForm();
    form.flatPayment = false;
    setForm(form);
    paste("prepay 12 500000 reduce every 12\nrate 100 3\n");
    QTest::keyClick(plan, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    std::string expected = tool("--prepay 12:500000:reduce:every=12 --rate-change 100:3 --method equal");
    EXPECT_TRUE(QGuiApplication::clipboard()->text().toStdString() == expected);
}

TEST_F(PlanTest, SavesCsvAndExportsAPaginatedPdf) {
    paste("prepay 12 500000 reduce every 12\n");
    QTemporaryDir dir;
    ASSERT_TRUE(plan->saveCsv(dir.filePath("plan.csv")));
    std::ifstream csv(dir.filePath("plan.csv").toStdString());
    std::string heading;
    std::getline(csv, heading);
    EXPECT_EQ(heading, "No.,Repayment,Amount,Principal,Interest,Prepaid,Balance\r");
    ASSERT_TRUE(plan->exportPdf(dir.filePath("plan.pdf")));
    std::ifstream pdf(dir.filePath("plan.pdf").toStdString(), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(pdf)), {});
    std::size_t pages = 0;
    for (auto at = bytes.find("/Type /Page\n"); at != std::string::npos; at = bytes.find("/Type /Page\n", at + 1))
        ++pages;
    EXPECT_GT(pages, 1u);
}

} // namespace
