// SPDX-License-Identifier: GPL-3.0-or-later
// The window: start-up to the first full table, recalculation to the repainted table, memory,
// and selecting every row of a long table.
#include "controls/bevelbutton.h"
#include "controls/pushbutton.h"
#include "controls/textfield.h"
#include "planner/eventsmodel.h"
#include "planner/planwindow.h"
#include "shell/app.h"
#include "shell/listbox.h"
#include "shell/mainwindow.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <QLocale>

#include <chrono>
#include <fstream>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

std::string g_probe; // the start-up probe beside this benchmark

double residentMegabytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

void StartupToFirstTable(benchmark::State& state) {
    for (auto _ : state) {
        pid_t pid = 0;
        char* argv[] = {g_probe.data(), nullptr};
        if (posix_spawn(&pid, g_probe.c_str(), nullptr, nullptr, argv, environ) != 0) {
            state.SkipWithError("cannot start the probe");
            return;
        }
        int status = 0;
        waitpid(pid, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) state.SkipWithError("the probe found no table");
    }
}
BENCHMARK(StartupToFirstTable)->Unit(benchmark::kMillisecond)->UseRealTime();

// A window shown with a loan of that many payments at 0.5 %, calculated.
shell::MainWindow* windowWithPayments(std::int64_t payments) {
    auto* window = new shell::MainWindow;
    window->show();
    window->Kaisu->setText(QString::number(payments));
    window->Nenriritsu->setText("0.5");
    window->CulcButton->Push();
    return window;
}

void RecalculateAndRepaint(benchmark::State& state) {
    auto* window = windowWithPayments(state.range(0));
    for (auto _ : state) {
        window->CulcButton->Push();
        window->ListBox1->viewport()->repaint();
    }
    if (window->ListBox1->ListCount() != state.range(0)) state.SkipWithError("unexpected row count");
    state.counters["resident_MB"] = residentMegabytes();
    delete window;
}
BENCHMARK(RecalculateAndRepaint)->Arg(144)->Arg(100'000)->Unit(benchmark::kMillisecond);

void SelectAllRows(benchmark::State& state) {
    auto* window = windowWithPayments(state.range(0));
    for (auto _ : state) {
        window->SelectAllButton->click(); // all rows, with the interest total
        state.PauseTiming();
        window->SelectAllButton->click(); // and none again
        state.ResumeTiming();
    }
    delete window;
}
BENCHMARK(SelectAllRows)->Arg(100'000)->Unit(benchmark::kMillisecond);

// An event edited in the Plan window to the repainted plan: schedule, totals, years and chart.
void PlanEventEdit(benchmark::State& state) {
    auto* window = new shell::MainWindow;
    window->show();
    window->GankinField->setText("900,000,000,000");
    window->Kaisu->setText(QString::number(state.range(0)));
    window->Nenriritsu->setText("0.5");
    window->CulcButton->Push();
    window->showPlan();
    auto* plan = window->findChild<planner::PlanWindow*>();
    QString lines;
    for (int i = 0; i < state.range(1); ++i)
        lines += QString("prepay %1 1000 reduce\n")
                     .arg(1 + i * (state.range(0) / std::max<std::int64_t>(state.range(1), 1)));
    QGuiApplication::clipboard()->setText(lines);
    plan->pasteEvents();
    int value = 1000;
    for (auto _ : state) {
        plan->eventRows()->setData(plan->eventRows()->index(0, 2), QString::number(++value)); // recalculates
        plan->repaint();
    }
    state.counters["resident_MB"] = residentMegabytes();
    delete window;
}
BENCHMARK(PlanEventEdit)->Args({144, 1})->Args({100'000, 1'000})->Unit(benchmark::kMillisecond);

// The Plan window's report of a loan of that many payments exported as PDF: its time, the
// file's size and the process's peak memory.
void ExportPdf(benchmark::State& state) {
    auto* window = windowWithPayments(state.range(0));
    window->showPlan();
    auto* plan = window->findChild<planner::PlanWindow*>();
    const QString path = QDir::temp().filePath("kestrune-bench.pdf");
    for (auto _ : state)
        if (!plan->exportPdf(path)) state.SkipWithError("the PDF was not written");
    state.counters["file_MB"] = static_cast<double>(QFileInfo(path).size()) / 1e6;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_MB"] = static_cast<double>(usage.ru_maxrss) / 1e3;
    QFile::remove(path);
    delete window;
}
BENCHMARK(ExportPdf)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string self = argv[0];
    g_probe = self.substr(0, self.find_last_of('/') + 1) + "startup_probe";
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    shell::App app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
