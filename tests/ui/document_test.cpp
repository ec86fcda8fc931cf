// SPDX-License-Identifier: GPL-3.0-or-later
// Plan documents through the File menu: saved, opened again in a window of their own, marked as
// changed, asked about on closing; a damaged file told and nothing else done.
#include "uitest.h"

namespace {

using namespace uitest;

TEST_F(WindowTest, APlanSavedOpenedAgainAndAskedAboutOnClosing) {
    engine::LoanForm form = loan2020();
    form.delay = calendar::kTwoAfter;
    setForm(form);
    w->showPlan();
    QGuiApplication::clipboard()->setText("rounding down\ndeduction\nfee 1 10\n");
    w->findChild<planner::PlanWindow*>()->pasteEvents();
    QTemporaryDir dir;
    QStringList older;
    for (int i = 1; i <= 8; ++i) older << QString("/older/%1.kestrune").arg(i);
    QSettings().setValue("recentFiles", older);
    showActive(w);
    answer(dir.filePath("plan.kestrune"));
    QTest::keyClick(w, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(w->windowTitle(), "plan.kestrune[*] — Equal principal Culc");
    const auto text = [](const QAction* item) { return item->text(); };
    EXPECT_EQ(joined(w->menuBar()->findChild<QMenu*>("FileMenu")->actions(), text),
              "&New|&Open...|Open &Recent||&Save|Save &As...||&Quit");
    QMenu* recent = w->menuBar()->findChild<QMenu*>("FileOpenRecent");
    for (int opened = 0; opened < 2; ++opened) emit recent->aboutToShow(); // twice, each file once
    EXPECT_EQ(joined(recent->actions(), text), (QStringList(dir.filePath("plan.kestrune")) + older.mid(0, 7)).join('|'))
        << "the newest first, eight at most";
    EXPECT_FALSE(w->isWindowModified());
    // Opened again: the same form, terms and events in a window of its own.
    showActive(w);
    answer(dir.filePath("plan.kestrune"));
    QTest::keyClick(w, Qt::Key_O, Qt::ControlModifier);
    MainWindow* opened = newestWindow();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->loanForm(), w->loanForm());
    opened->showPlan();
    EXPECT_TRUE(
        (opened->document()->scenarios() ==
         std::vector<engine::Scenario>{{"Plan", {"rounding down"}, "deduction 0.7 13 30000000", {"fee 1 10"}}}));
    EXPECT_FALSE(opened->isWindowModified());
    // An event edited in its Plan window marks it; undone, it is as saved again.
    auto* openedPlan = opened->findChild<planner::PlanWindow*>();
    openedPlan->eventRows()->setData(openedPlan->eventRows()->index(0, 2), "5");
    EXPECT_TRUE(opened->isWindowModified());
    showActive(openedPlan);
    QTest::keyClick(openedPlan, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(opened->isWindowModified());
    opened->close();
    showActive(w);
    // A change marks it, and undoing the change unmarks it.
    typeAndLeave(w->Kaisu, "120");
    EXPECT_TRUE(w->isWindowModified());
    typeAndLeave(w->Kaisu, "144");
    EXPECT_FALSE(w->isWindowModified());
    typeAndLeave(w->Kaisu, "12");
    answer({}, QMessageBox::Cancel);
    EXPECT_FALSE(w->close()) << "Cancel keeps the window";
    answer({}, QMessageBox::Save);
    EXPECT_TRUE(w->close());
    EXPECT_NE(fileText(dir.filePath("plan.kestrune")).find("\"times\": \"12\""), std::string::npos);
}

TEST_F(WindowTest, ScenariosAddedDuplicatedRenamedAndDeletedEachWithItsOwnEvents) {
    setForm(loan2020());
    w->showPlan();
    auto* plan = w->findChild<planner::PlanWindow*>();
    watchModels(plan);
    showActive(plan);
    const auto paste = [plan](const char* lines) {
        QGuiApplication::clipboard()->setText(lines);
        plan->pasteEvents();
    };
    paste("fee 1 10\n");
    QTest::mouseClick(plan->NewScenarioButton, Qt::LeftButton);
    EXPECT_EQ(plan->Scenarios->currentText(), "Scenario 2");
    EXPECT_EQ(plan->eventRows()->rowCount(), 0);
    paste("fee 2 20\n");
    QTest::mouseClick(plan->DuplicateButton, Qt::LeftButton);
    answer("Later");
    QTest::mouseClick(plan->RenameButton, Qt::LeftButton);
    QTest::keyClick(plan->Scenarios, Qt::Key_Home);
    EXPECT_EQ(eventCell(plan, 0, 2), "10") << "the first scenario's events back";
    EXPECT_TRUE((w->document()->scenarios() == std::vector<engine::Scenario>{{"Plan", {}, {}, {"fee 1 10"}},
                                                                             {"Scenario 2", {}, {}, {"fee 2 20"}},
                                                                             {"Later", {}, {}, {"fee 2 20"}}}));
    // Compared, as the tool compares the saved document: the same figures, the best in bold where it stars them.
    QTemporaryDir dir;
    ASSERT_TRUE(w->document()->saveTo(dir.filePath("plan.kestrune")));
    plan->findChild<QTabWidget*>()->setCurrentWidget(plan->Comparison);
    const std::string printed = commandOutput(KESTRUNE_SCHEDULE " --compare --format tsv --plan " +
                                              dir.filePath("plan.kestrune").toStdString());
    const QAbstractItemModel* compared = plan->Comparison->model();
    QString shown = "Measure\tPlan\tScenario 2\tLater\tWithout events\n";
    for (int r = 1; r < compared->rowCount(); ++r) {
        shown += compared->index(r, 0).data().toString().replace("Total p", "P").replace("Total i", "I");
        for (int c = 1; c < compared->columnCount(); ++c)
            shown += "\t" + compared->index(r, c).data().toString() +
                     (compared->index(r, c).data(Qt::FontRole).value<QFont>().bold() ? " *" : "");
        shown += "\n";
    }
    QString tool = QString::fromStdString(printed).replace(" )", ")");
    tool.remove(tool.indexOf("\nPayments"), tool.indexOf("\nPayoff") - tool.indexOf("\nPayments")); // row 0 below
    tool.replace("Payoff", "Pay off");
    EXPECT_EQ(shown, tool);
    EXPECT_EQ(compared->index(0, 1).data().toString(), "144");
    // Saved as CSV, it is what Copy gives, below its headings.
    ASSERT_TRUE(plan->saveCsv(dir.filePath("compared.csv")));
    plan->Comparison->selectAll();
    QTest::keyClick(plan->Comparison, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(fileText(dir.filePath("compared.csv")),
              "Measure,Plan,Scenario 2,Later,Without events\r\n" +
                  QGuiApplication::clipboard()->mimeData()->data("text/csv").toStdString());
    // The chart: every scenario's balance and interest in a colour of its own, beside the loan's.
    EXPECT_EQ(joined(plan->Chart->chart()->series(),
                     [](const QAbstractSeries* series) {
                         const QPen pen = static_cast<const QLineSeries*>(series)->pen();
                         return series->name() + " " + pen.color().name() + " " + QString::number(pen.style());
                     }),
              "Plan: Balance #1f5fbf 1|Scenario 2: Balance #d9480f 1|Later: Balance #2b8a3e 1|"
              "Balance without events #888888 2|Plan: Interest paid #184993 3|"
              "Scenario 2: Interest paid #a7370c 3|Later: Interest paid #216a30 3|"
              "Interest paid without events #696969 4");
    // The report carries the comparison.
    ASSERT_TRUE(plan->exportPdf(dir.filePath("plan.pdf")));
    const QString report = QString::fromStdString(pdfText(dir.filePath("plan.pdf")));
    for (const char* row : {"Measure Plan Scenario 2 Later Without events", "Net saving -10 -20 -20 0"})
        EXPECT_TRUE(report.simplified().contains(row)) << row;
    QTest::keyClick(plan->Scenarios, Qt::Key_End);
    QTest::mouseClick(plan->DeleteScenarioButton, Qt::LeftButton);
    QStringList names;
    for (int i = 0; i < plan->Scenarios->count(); ++i) names << plan->Scenarios->itemText(i);
    EXPECT_EQ(names, (QStringList{"Plan", "Scenario 2"}));
    EXPECT_EQ(plan->Chart->chart()->series().size(), 6) << "two scenarios' lines and the loan's";
    EXPECT_EQ(plan->Scenarios->currentText(), "Scenario 2");
    EXPECT_EQ(eventCell(plan, 0, 2), "20");
}

TEST_F(WindowTest, ADamagedDocumentIsToldAndOpensNothing) {
    QTemporaryDir dir;
    std::ofstream(dir.filePath("damaged.kestrune").toStdString())
        << "{\"format\": \"kestrune-plan\",\n  \"version\": x";
    planner::Document::open({dir.filePath("damaged.kestrune"), dir.filePath("none.kestrune")}, w);
    EXPECT_EQ(messages(w), "\"" + dir.filePath("damaged.kestrune") +
                               "\" could not be opened: not JSON: an error at line 2, column 14\n\n\"" +
                               dir.filePath("none.kestrune") + "\" could not be opened: No such file or directory");
    EXPECT_EQ(shell::App::instance()->mainWindows().size(), 1);
    // A document written elsewhere, its lines short and its amounts plain: looking at its plan
    // changes nothing.
    std::ofstream(dir.filePath("short.kestrune").toStdString()) << R"({"format": "kestrune-plan", "version": 1,
            "scenarios": [{"deduction": "deduction", "events": ["prepay 12 5000000"]}]})";
    planner::Document::open({dir.filePath("short.kestrune")}, w);
    newestWindow()->showPlan();
    EXPECT_FALSE(newestWindow()->isWindowModified());
}

} // namespace
