// SPDX-License-Identifier: GPL-3.0-or-later
// The Plan window: opened from its main window, events typed, marked, pasted, copied and removed,
// the schedule, totals and chart that follow, and the schedule as the tool prints it.
#include "uitest.h"

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
        watchModels(plan);
    }
    void paste(const char* lines) {
        QGuiApplication::clipboard()->setText(lines);
        plan->Events->setFocus();
        QTest::keyClick(plan->Events, Qt::Key_V, Qt::ControlModifier);
    }
    QString figure(int i) const { return plan->Figures.at(static_cast<std::size_t>(i))->text(); }
    // A row of a table, a blank between its cells.
    std::string row(int r, const QTableView* view = nullptr) const {
        const QAbstractItemModel* model = (view ? view : plan->Schedule)->model();
        QStringList cells;
        for (int c = 0; c < model->columnCount(); ++c) cells << model->index(r, c).data().toString();
        return cells.join(' ').toStdString();
    }
    // What kestrune-schedule prints for the same loan and events, as TSV.
    static std::string tool(const std::string& events) {
        return commandOutput(KESTRUNE_SCHEDULE " --era western --year 2020 --month 3 --day 15 --principal 30,000,000"
                                               " --rate 1.5 --times 420 --method flat --format tsv " +
                             events);
    }
    static std::string scenarioLines(const engine::Scenario& s) {
        std::string all;
        for (const auto& line : s.terms) all += line + "|";
        for (const auto& line : s.events) all += line + "|";
        return all.substr(0, all.empty() ? 0 : all.size() - 1);
    }
    // The payment after today of the loan (the first on 8 April 2020, then monthly): where Add puts
    // an event.
    static std::string nextPayment() {
        const QDate today = QDate::currentDate();
        return std::to_string((today.year() - 2020) * 12 + today.month() - 4 + 1 + (today.day() >= 8));
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

TEST_F(PlanTest, ClosedByKeysItKeepsItsTermsAndEvents) {
    EXPECT_TRUE(plan->EventsHint->isVisible()) << "what to do, while the list is empty";
    EXPECT_EQ(plan->EventsHint->window(), plan) << "in the list, not a window of its own";
    EXPECT_TRUE(plan->Events->verticalHeader()->isHidden()) << "no row numbers beside the events";
    EXPECT_EQ(plan->eventRows()->headerData(4, Qt::Horizontal, Qt::ToolTipRole),
              "For a prepayment: again every so many payments; empty for once");
    paste("rounding down\nfee 1 10\n");
    EXPECT_FALSE(plan->EventsHint->isVisible());
    QTest::keyClick(plan->Events, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(plan->isVisible()) << "Ctrl+W";
    showActive(w);
    QTest::keyClick(w, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(plan->isVisible());
    showActive(plan);
    EXPECT_TRUE(plan->Terms->RoundDown->isChecked());
    EXPECT_EQ(plan->eventRows()->rowCount(), 1);
    EXPECT_EQ(figure(4), "10") << "the fees";
    // Escape ends an edit first; then it closes the window.
    plan->Events->setCurrentIndex(plan->eventRows()->index(0, 2));
    QTest::keyClick(plan->Events, Qt::Key_F2);
    ASSERT_NE(plan->Events->indexWidget(plan->Events->currentIndex()), nullptr) << "an editor open";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(plan->isVisible());
    QTest::keyClick(plan->Events, Qt::Key_Escape);
    EXPECT_FALSE(plan->isVisible());
}

TEST_F(PlanTest, EventsTypedPastedMarkedCopiedAndRemoved) {
    QTest::keyClick(plan->Events, Qt::Key_Insert);
    QTest::keyClick(plan->Events, Qt::Key_Insert);
    ASSERT_EQ(plan->eventRows()->rowCount(), 2);
    EXPECT_EQ(std::pair(plan->Events->currentIndex().row(), plan->Events->currentIndex().column()), std::pair(1, 2))
        << "its amount";
    EXPECT_EQ(eventCell(plan, 1, 0).toStdString(), nextPayment());
    EXPECT_EQ(eventCell(plan, 1, 2, Qt::BackgroundRole), "#ffd2d2") << "marked until typed";
    plan->eventRows()->removeRow(1);
    // Typed into the cells: F2 edits, Return ends the edit.
    for (const auto& [column, typed] : {std::pair{0, "60"}, {2, "1000000"}, {4, "60"}}) {
        plan->Events->setCurrentIndex(plan->eventRows()->index(0, column));
        QTest::keyClick(plan->Events, Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents(); // the edit is committed once the editor has closed
    }
    EXPECT_EQ(figure(0), "350") << "a shorter term";
    EXPECT_EQ(eventCell(plan, 0, 2), "1,000,000") << "an amount typed shows its separators";
    plan->Events->setCurrentIndex(plan->eventRows()->index(0, 0));
    QTest::keyClick(plan->Events, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), plan->AddButton)
        << "Tab leaves the list rather than moving through its cells";
    paste("rate 61 0.9\nfee\t61\t330000\nprepay 500 5\n# a comment\n");
    ASSERT_EQ(plan->eventRows()->rowCount(), 4);
    EXPECT_EQ(eventCell(plan, 3, 0, Qt::ToolTipRole), "The payment is outside the loan");
    EXPECT_EQ(eventCell(plan, 1, 0, Qt::ToolTipRole), "");
    EXPECT_EQ(eventCell(plan, 3, 0, Qt::BackgroundRole), "#ffd2d2");
    plan->eventRows()->removeRow(3);
    // The schedule copied is the tool's for the same events, cell for cell.
    QTest::keyClick(plan, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().toStdString() ==
                tool("--prepay 60:1,000,000:every=60 --rate-change 61:0.9 --fee 61:330000"));
    // Payment 60, then payment 2 added to the selection: copied once each, in the schedule's order.
    QString copied;
    for (const int row : {59, 1}) {
        const QModelIndex payment = plan->Schedule->model()->index(row, 0);
        plan->Schedule->scrollTo(payment);
        QTest::mouseClick(plan->Schedule->viewport(), Qt::LeftButton, row == 1 ? Qt::ControlModifier : Qt::NoModifier,
                          plan->Schedule->visualRect(payment).center());
        QStringList cells;
        for (int c = 0; c < plan->Schedule->model()->columnCount(); ++c)
            cells << payment.siblingAtColumn(c).data().toString();
        copied = row == 1 ? cells.join('\t') + "\n" + copied : cells.join('\t') + "\n";
    }
    QTest::keyClick(plan->Schedule, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), copied);
    // The figures the tool prints for the same plan, but for the principal.
    EXPECT_EQ(joined(std::span(plan->Figures).first(10), [](const QLabel* figure) { return figure->text(); }),
              "350|35,354,252|5,024,252|5,000,000|330,000|2049 / 5 / 8 |3,541,886|70 (5 years 10 months)|3,211,886|"
              "84 (2027 / 3 / 8)");
    auto* tabs = plan->findChild<QTabWidget*>();
    EXPECT_EQ(joined(std::views::iota(0, tabs->count()), [tabs](int i) { return tabs->tabText(i); }),
              "Schedule|Years|Chart|Compare");
    // The chart's texts: the axes, the dates' title, the amounts with separators, the legend.
    EXPECT_EQ(plan->Chart->chart()->axes().size(), 2) << "the dates and the amounts";
    tabs->setCurrentWidget(plan->Chart);
    QCoreApplication::processEvents();
    QStringList labels;
    for (const QGraphicsItem* item : plan->Chart->scene()->items(Qt::AscendingOrder))
        if (const auto* label = qgraphicsitem_cast<const QGraphicsTextItem*>(item); label && label->isVisible())
            labels << label->toPlainText();
    EXPECT_EQ(labels.join('|'), "|Date||2020|2028|2037|2046|2055|0|10,000,000|20,000,000|30,000,000|Balance|"
                                "Balance without events|Interest paid|Interest paid without events");
    const QAbstractItemModel* rows = plan->Schedule->model();
    EXPECT_EQ(QString::number(static_cast<QLineSeries*>(plan->Chart->chart()->series().front())->at(0).y(), 'f', 0),
              rows->index(0, rows->columnCount() - 1).data().toString().remove(','))
        << "the balance after the first payment";
    EXPECT_GT(static_cast<QLineSeries*>(plan->Chart->chart()->series().at(1))->count(), 0) << "without events";
    // A point's tooltip: its series, payment and date, and the series' own figure there.
    auto* interest = static_cast<QLineSeries*>(plan->Chart->chart()->series().at(2));
    emit interest->hovered(interest->at(0), true);
    emit interest->hovered(interest->at(1), false); // the pointer leaves: no other point's tooltip
    EXPECT_EQ(QToolTip::text(), "Interest paid — payment 1, 2020 / 4 / 8 : " + rows->index(0, 4).data().toString());
    EXPECT_LE(static_cast<QLineSeries*>(plan->Chart->chart()->series().front())->count(), plan->Chart->width() + 1);
}

// Each change undone and redone in turn, by its keys and from the Edit menu: a paste of terms and
// events is one change, and so are a row added, a cell edited and a row removed.
TEST_F(PlanTest, ChangesAreUndoneAndRedone) {
    paste("rounding down\nfee 1 10\n");
    QTest::keyClick(plan->Events, Qt::Key_Insert);
    plan->eventRows()->setData(plan->eventRows()->index(1, 2), "5");
    plan->Events->setCurrentIndex(plan->eventRows()->index(0, 0));
    QTest::keyClick(plan->Events, Qt::Key_Delete);
    const auto lines = [this] { return scenarioLines(plan->scenario()); };
    const std::string added = "prepay " + nextPayment();
    const std::string steps[] = {"rounding down|" + added + " 5 shorten",
                                 "rounding down|fee 1 10|" + added + " 5 shorten",
                                 "rounding down|fee 1 10|" + added + " shorten", "rounding down|fee 1 10", ""};
    for (const std::string& step : steps) {
        EXPECT_EQ(lines(), step);
        QTest::keyClick(plan->Events, Qt::Key_Z, Qt::ControlModifier);
    }
    QMenu* edit = plan->findChild<QMenuBar*>()->actions().at(0)->menu();
    EXPECT_EQ(edit->actions().at(0)->isEnabled(), false) << "nothing left to undo";
    for (int redo = 0; redo < 3; ++redo)
        QTest::keyClick(plan->Events, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    edit->actions().at(1)->trigger();
    EXPECT_EQ(lines(), steps[0]);
    EXPECT_EQ(figure(4), "0") << "the plan of the events redone";
}

// In Japanese the list shows kinds and modes in Japanese, reads pasted lines in either language
// and copies the tool's words, so that they paste into an events file.
TEST_F(PlanTest, TheListSpeaksTheUsersLanguageAndCopiesTheToolsWords) {
    Japanese japanese;
    paste("繰上返済 12 1,000,000 返済額軽減\nfee 1 10\n");
    QTest::keyClick(plan->Events, Qt::Key_Insert);
    EXPECT_EQ(joined(std::array{0, 1, 2},
                     [this](int row) { return eventCell(plan, row, 1) + " " + eventCell(plan, row, 3); }),
              "繰上返済 返済額軽減|手数料 |繰上返済 期間短縮");
    plan->Events->selectAll();
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              "prepay 12 1,000,000 reduce\nfee 1 10\nprepay " + nextPayment() + " shorten\n");
    EXPECT_EQ(figure(4), "10");
    plan->eventRows()->setData(plan->eventRows()->index(0, 1), "手数料");
    EXPECT_EQ(figure(4), "1,000,010") << "a prepayment made a fee, its mode left behind";
}

TEST_F(PlanTest, CopyAndRemoveTakeTheSelectedRowsOrTheCurrentOne) {
    paste("fee 1 10\nprepay 2 1\nprepay 3 1,000 reduce every 12\nfee 4 40\n");
    const auto click = [this](int row, Qt::KeyboardModifiers keys) {
        const QRect cell = plan->Events->visualRect(plan->eventRows()->index(row, 0));
        QTest::mouseClick(plan->Events->viewport(), Qt::LeftButton, keys, cell.center());
    };
    click(1, {});
    click(2, Qt::ControlModifier);
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "prepay 2 1\nprepay 3 1,000 reduce every 12\n");
    QTest::keyClick(plan->Events, Qt::Key_Delete);
    ASSERT_EQ(plan->eventRows()->rowCount(), 2);
    EXPECT_EQ(eventCell(plan, 1, 2), "40");
    EXPECT_EQ(figure(4), "50") << "the fees of the rows left";
    // With nothing selected, Remove takes the row of the current cell, and Copy copies nothing.
    click(1, {});
    click(1, Qt::ControlModifier);
    ASSERT_TRUE(plan->Events->selectionModel()->selectedIndexes().isEmpty());
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
    QTest::mouseClick(plan->RemoveButton, Qt::LeftButton);
    ASSERT_EQ(plan->eventRows()->rowCount(), 1);
    EXPECT_EQ(eventCell(plan, 0, 2), "10");
}

TEST_F(PlanTest, TheDeductionPastedShownAndCopied) {
    paste("deduction 0.7 13 30,000,000\nprepay 12 25,000,000\n");
    EXPECT_TRUE(plan->Deduction->isChecked());
    EXPECT_EQ(plan->Deduction->Note->text(), "No deduction from 2021: the term is now shorter than ten years");
    // The figures the tool prints for the same plan: deduction, net cost, deduction lost.
    EXPECT_EQ((QStringList{figure(11), figure(12), figure(13)}), (QStringList{"206,500", "366,044", "2,094,000"}));
    EXPECT_EQ(figure(8), "5,899,594") << "the net saving of the net costs";
    EXPECT_EQ(plan->Years->model()->headerData(8, Qt::Horizontal).toString(), "Deduction");
    EXPECT_EQ(plan->Years->model()->index(0, 8).data().toString(), "206,500") << "2020";
    const auto total = [this](int column) {
        return plan->Years->model()->index(plan->Years->model()->rowCount() - 1, column).data().toString();
    };
    EXPECT_EQ((QStringList{total(0), total(2), total(8), total(9)}), (QStringList{"Total", figure(0), figure(11), ""}));
    // The first year copied from its tab and its context menu, as the user clicks them.
    const QTabBar* tabs = plan->findChild<QTabBar*>();
    QTest::mouseClick(const_cast<QTabBar*>(tabs), Qt::LeftButton, {}, tabs->tabRect(1).center());
    contextMenu(plan->Years, 0, "&Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QString::fromStdString(row(0, plan->Years)).replace(' ', '\t') + "\n");
    plan->eventRows()->setData(plan->eventRows()->index(0, 2), "1,000,000");
    EXPECT_EQ(figure(0), "402") << "a cell edited after a paste";
    plan->Deduction->Limit->setText("100,000");
    emit plan->Deduction->Limit->editingFinished();
    EXPECT_EQ(plan->Years->model()->index(0, 8).data().toString(), "100,000") << "the limit";
    showActive(plan);
    plan->Events->setFocus();
    plan->Events->selectAll();
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "deduction 0.7 13 30000000 limit 100000\nprepay 12 1,000,000\n");
    plan->Deduction->Rate->setText("x");
    emit plan->Deduction->Rate->editingFinished();
    EXPECT_EQ(plan->Deduction->Note->text(), "The deduction's rate, cap or limit can't be read");
    EXPECT_EQ(figure(0), "") << "no figures of another plan";
    plan->Deduction->Years->setValue(999);
    EXPECT_EQ(plan->Deduction->Years->value(), 100) << "no more years than a deduction line takes";
    plan->Deduction->setChecked(false);
    EXPECT_TRUE(plan->Figures[11]->isHidden());
    EXPECT_EQ(plan->Years->model()->columnCount(), 9);
    EXPECT_EQ(figure(0), "402") << "the plan without the deduction";
}

TEST_F(PlanTest, TheReportSaysTheLoanItsTermsEventsTotalsAndEveryPayment) {
    paste("interest monthly\nrounding down\nbonus 3,000,000\nreview\nprepay 12 500000 reduce every 12\nfee 13 1,000\n"
          "deduction 0.7 13 30000000 from 2020\nprepay 30 25,000,000\n");
    QTemporaryDir dir;
    // Saved and exported through their buttons and the file dialogs.
    answer(dir.filePath("plan.csv"));
    QTest::mouseClick(plan->CsvButton, Qt::LeftButton);
    const std::string options = "--interest monthly --rounding down --bonus 3000000 --review --prepay 12:500000:reduce:"
                                "every=12 --fee 13:1000 --prepay 30:25,000,000 --format csv ";
    EXPECT_TRUE(fileText(dir.filePath("plan.csv")) == tool(options));
    // The table shown is saved: the years, then their totals.
    plan->findChild<QTabWidget*>()->setCurrentWidget(plan->Years);
    answer(dir.filePath("years.csv"));
    QTest::mouseClick(plan->CsvButton, Qt::LeftButton);
    const std::string years = tool(options + "--by-year --deduction 0.7:13:30000000:2020");
    EXPECT_EQ(fileText(dir.filePath("years.csv")).substr(0, years.size()), years);
    EXPECT_EQ(fileText(dir.filePath("years.csv")).substr(years.size()),
              "Total,,57,\"4,092,701\",\"3,000,000\",\"" + figure(2).toStdString() + "\",\"27,000,000\",\"1,000\",\"" +
                  figure(11).toStdString() + "\",\r\n");
    answer(dir.filePath("plan.pdf"));
    QTest::mouseClick(plan->PdfButton, Qt::LeftButton);
    EXPECT_EQ(messages(plan), "");
    const QStringList image =
        QString::fromStdString(commandOutput("pdfimages -list " + dir.filePath("plan.pdf").toStdString()))
            .split('\n')
            .value(2)
            .simplified()
            .split(' ');
    EXPECT_EQ((image.mid(0, 5) + image.mid(12, 2)).join(' '), "1 0 image 1200 700 150 150")
        << "the chart on page 1, its pixels and the room they take";
    // Its lines joined, as the terms may wrap.
    std::string text = " " + pdfText(dir.filePath("plan.pdf"));
    std::replace(text.begin(), text.end(), '\n', ' ');
    const std::string expected[] = {
        " Plan: Flat payment, 30,000,000 at 1.5 %, 420 payments Borrowed on 2020 / 3 / 15 , paid on day 8 of each "
        "month ",
        " Lender terms: by months, as lenders count it; Round amounts down to the yen; Bonus part: 3,000,000 (6, 12); "
        "Five-year and 125 % rules No deduction from 2022: the term is now shorter than ten years ",
        " Payment Kind Value Mode Every 12 prepay 500,000 reduce 12 13 fee 1,000 30 prepay 25,000,000 ",
        " Total interest " + figure(2).toStdString() + " ",
        " Deduction " + figure(11).toStdString() + " ",
        " Year Era year Payments Amount Principal Interest Prepaid Fees Deduction Balance " + row(0, plan->Years) +
            " " + row(1, plan->Years) + " ",
        " Unpaid interest paid " + plan->Figures[10]->text().toStdString() + " ",
        " Break-even payment " + figure(9).toStdString() + " ",
        " No. Repayment Amount Principal Interest Bonus Prepaid Unpaid interest Balance " + row(0) + " ",
        " " + row(plan->Schedule->model()->rowCount() - 1) + " ",
    };
    for (const std::string& part : expected) EXPECT_NE(text.find(part), std::string::npos) << part << "\nin\n" << text;
    // Printed, the same report.
    answer(dir.filePath("printed.pdf"));
    QTest::mouseClick(plan->PrintButton, Qt::LeftButton);
    EXPECT_EQ(messages(plan), "");
    EXPECT_EQ(pdfText(dir.filePath("printed.pdf")), pdfText(dir.filePath("plan.pdf")));
}

TEST_F(PlanTest, LenderTermsSetPastedCopiedAndRefused) {
    planner::TermsBox* terms = plan->Terms;
    paste("interest monthly\nrounding down\nbonus 3,000,000 7 1\nreview\nfee 1 0\n");
    EXPECT_EQ(terms->Interest->currentText(), "by months, as lenders count it");
    EXPECT_TRUE(terms->RoundDown->isChecked() && terms->Bonus->isChecked() && terms->Review->isChecked());
    EXPECT_EQ(terms->BonusAmount->text(), "3,000,000");
    EXPECT_EQ(plan->eventRows()->rowCount(), 1);
    QTest::keyClick(plan, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().toStdString() ==
                tool("--interest monthly --rounding down --bonus 3000000:7,1 --review --fee 1:0"));
    EXPECT_FALSE(plan->Figures[10]->isHidden()) << "the unpaid interest paid";
    plan->Events->selectAll();
    QTest::keyClick(plan->Events, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "interest monthly\nrounding down\nbonus 3000000 7 1\nreview\nfee 1 0\n");
    // Each refusal is named under the terms and marked on its control; the plan shows no rows.
    QTest::mouseClick(terms->BonusAmount, Qt::LeftButton);
    terms->BonusAmount->selectAll();
    QTest::keyClicks(terms->BonusAmount, "15,000,001");
    QTest::keyClick(terms->BonusAmount, Qt::Key_Return);
    EXPECT_EQ(terms->Problem->text(), "The bonus part is more than half the principal");
    EXPECT_EQ(terms->BonusAmount->toolTip(), terms->Problem->text());
    EXPECT_EQ(plan->Schedule->model()->rowCount(), 0);
    terms->BonusAmount->setText("x");
    terms->BonusMonth2->setValue(7);
    EXPECT_EQ(terms->Problem->text(), "The bonus part takes an amount above 0 and two different months");
    QTest::mouseClick(terms->Bonus, Qt::LeftButton);
    w->KindPopup->setListIndex(1); // equal principal
    EXPECT_EQ(terms->Problem->text(), "The five-year and 125 % rules are for a flat payment only");
    EXPECT_EQ(terms->Review->toolTip(), terms->Problem->text());
    QTest::mouseClick(terms->Review, Qt::LeftButton);
    EXPECT_TRUE(terms->Problem->isHidden());
    EXPECT_TRUE(plan->Figures[10]->isHidden()) << "no reviews, no unpaid interest";
    paste("review\nbonus 1 2\n");
    EXPECT_EQ(messages(plan), "The pasted text was not added: line 2 sets a lender term wrongly: bonus 1 2");
    EXPECT_FALSE(terms->Review->isChecked());
}

// A small file system of its own, full after a few kilobytes, or read-only, with a device that is
// always full; skipped where this process may not mount one.
class SmallDisk {
public:
    explicit SmallDisk(const char* options) : m_path(m_dir.path()) {
        m_mounted =
            std::system(("mount -t tmpfs -o size=16k tmpfs " + m_path.toStdString() + " 2>/dev/null").c_str()) == 0;
        // A device of its own that is always full, as /dev/full, which a fault must never replace.
        if (m_mounted) m_mounted = std::system(("mknod " + m_path.toStdString() + "/full c 1 7").c_str()) == 0;
        if (m_mounted && std::string(options) == "ro") {
            std::ofstream(m_path.toStdString() + "/plan.csv") << "old";
            std::ofstream(m_path.toStdString() + "/plan.pdf") << "old";
            m_mounted = std::system(("mount -o remount,ro " + m_path.toStdString()).c_str()) == 0;
        }
    }
    ~SmallDisk() {
        if (m_mounted) std::system(("umount " + m_path.toStdString()).c_str());
    }
    bool mounted() const { return m_mounted; }
    QString file(const char* name) const { return m_path + "/" + name; }
    QStringList entries() const { return QDir(m_path).entryList(QDir::Files | QDir::Hidden); }

private:
    QTemporaryDir m_dir;
    QString m_path;
    bool m_mounted = false;
};

TEST_F(PlanTest, AFailedSaveIsToldAndLeavesNoPartOfAFile) {
    paste("prepay 12 500000 reduce every 12\n");
    const SmallDisk full("rw"), readOnly("ro");
    if (!full.mounted() || !readOnly.mounted()) GTEST_SKIP() << "no file system of our own can be mounted here";
    struct Case {
        QString path;
        bool pdf;
        QString reason;
        QStringList left; // the files of its folder afterwards
    };
    const Case cases[] = {
        {full.file("plan.csv"), false, "No space left on device", {}},
        {full.file("plan.pdf"), true, "No space left on device", {}},
        {readOnly.file("plan.csv"), false, "Read-only file system", {"plan.csv", "plan.pdf"}},
        {readOnly.file("plan.pdf"), true, "Read-only file system", {"plan.csv", "plan.pdf"}},
        {full.file("full"), false, "No space left on device", {}},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(c.pdf ? plan->exportPdf(c.path) : plan->saveCsv(c.path)) << c.path.toStdString();
        const QString said = messages(plan);
        EXPECT_TRUE(said.startsWith("\"" + c.path + "\" could not be saved: ")) << said.toStdString();
        EXPECT_TRUE(said.contains(c.reason, Qt::CaseInsensitive)) << said.toStdString();
        EXPECT_EQ((c.left.isEmpty() ? full : readOnly).entries(), c.left) << c.path.toStdString();
    }
    EXPECT_EQ(fileText(readOnly.file("plan.csv")), "old");
    // A plan document saved where it can't be stays marked as changed, under the name it had.
    QTemporaryDir dir;
    ASSERT_TRUE(w->document()->saveTo(dir.filePath("plan.kestrune")));
    paste("fee 1 10\n");
    EXPECT_FALSE(w->document()->saveTo(readOnly.file("plan.kestrune")));
    EXPECT_EQ(messages(w), "\"" + readOnly.file("plan.kestrune") + "\" could not be saved: Read-only file system");
    EXPECT_EQ(w->windowTitle(), "plan.kestrune[*] — Flat payment Culc");
    EXPECT_TRUE(w->isWindowModified());
    EXPECT_EQ(readOnly.entries(), (QStringList{"plan.csv", "plan.pdf"}));
}

TEST_F(PlanTest, ALongReportShowsItsProgressAndCancelLeavesNoFile) {
    engine::LoanForm form = w->loanForm();
    form.times = "100000";
    form.flatPayment = false; // a flat payment over so many months is beyond a double
    setForm(form);
    ASSERT_EQ(plan->Schedule->model()->rowCount(), 100000);
    QTemporaryDir dir;
    QTimer::singleShot(1000, plan, [this] {
        auto* progress = plan->findChild<QProgressDialog*>();
        ASSERT_NE(progress, nullptr);
        EXPECT_EQ(progress->maximum(), 100000) << "the rows of the schedule";
        progress->cancel();
    });
    EXPECT_FALSE(plan->exportPdf(dir.filePath("plan.pdf")));
    EXPECT_FALSE(QFile::exists(dir.filePath("plan.pdf")));
    EXPECT_EQ(messages(plan), "");
}

TEST_F(PlanTest, ARefusedPlanMarksItsEventAndShowsNoFigures) {
    paste("prepay 12 500000\nrate 2 1e300\n");
    const QString why = "With this event the plan's amounts go beyond 9,007,199,254,740,992";
    EXPECT_EQ(eventCell(plan, 1, 2, Qt::ToolTipRole), why);
    EXPECT_EQ(eventCell(plan, 1, 0, Qt::BackgroundRole), "#ffd2d2");
    EXPECT_EQ(eventCell(plan, 0, 0, Qt::ToolTipRole), "");
    EXPECT_EQ(eventCell(plan, 0, 0, Qt::BackgroundRole), "");
    EXPECT_EQ(plan->Schedule->model()->rowCount(), 0);
    EXPECT_EQ(figure(0), "");
    for (QAbstractSeries* series : plan->Chart->chart()->series())
        EXPECT_EQ(static_cast<QLineSeries*>(series)->count(), 0) << "no chart of another plan";
    plan->eventRows()->setData(plan->eventRows()->index(1, 2), "2");
    EXPECT_EQ(eventCell(plan, 1, 2, Qt::ToolTipRole), "");
    EXPECT_EQ(figure(0), "411");
    EXPECT_EQ(figure(9), "no fees") << "the break-even payment";
    // Refused by its total paid, though every row holds: still no rows.
    paste("fee 1 5,000,000,000,000,000\nfee 2 5,000,000,000,000,000\n");
    EXPECT_EQ(eventCell(plan, 3, 0, Qt::ToolTipRole), why);
    EXPECT_EQ(plan->Schedule->model()->rowCount(), 0);
}

TEST_F(PlanTest, AnOversizedPasteIsRefusedWithItsReason) {
    const std::pair<QString, QString> cases[] = {
        {QString("prepay 1 1\n").repeated(100'001), "it has more than 100,000 lines."},
        {"fee 1 1\n" + QString(1001, 'x'), "line 2 is longer than 1000 characters."},
    };
    for (const auto& [text, why] : cases) {
        paste(text.toUtf8().constData());
        EXPECT_EQ(messages(plan), "The pasted text was not added: " + why);
        EXPECT_EQ(plan->eventRows()->rowCount(), 0);
    }
}

} // namespace
