// What a busy driver log and an "EventsLog.xml" left by months of running cost the
// console: its start (construction, first refresh, first event poll) with a full
// 65536-entry log and a 100,000-entry file against a start with an empty log and no
// file, and one refresh with the full log against one with an empty log. Each pair is
// measured in the same iteration, so the ratio holds on a shared, noisy machine.
//
//   QT_QPA_PLATFORM=offscreen bench/bench_events

#include "app/app.h"
#include "support/emulated_host.h"
#include "support/widget_helpers.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr quint32 kFullLog = 65536;
constexpr int kFileEntries = 100000;

sk_emu::Model hostWithLog(quint32 entries)
{
    sk_emu::Model m = sk_emu::defaultScenario();
    m.events.clear();
    m.eventCapacity = kFullLog;
    m.nextEventNumber = 3;
    for (quint32 i = 0; i < entries; ++i)
        m.logEvent(static_cast<std::uint16_t>(1012 + i % 30));
    return m;
}

QString eventsLogPath()
{
    return SK_AppLog::folderFor(QCoreApplication::applicationDirPath(),
                                QCoreApplication::applicationName()) +
           QStringLiteral("/EventsLog.xml");
}

// A file as months of running leave it: every entry of the log had a time.
void writeEventsLog(int entries)
{
    SK_EventsLogFile file(eventsLogPath());
    QFile::remove(file.path());
    std::vector<SK_EventRecord> records;
    records.reserve(static_cast<std::size_t>(entries));
    for (int i = 0; i < entries; ++i) {
        SK_EventRecord r;
        r.number = static_cast<quint32>(3 + i);
        r.code = 1012 + i % 30;
        r.time = QStringLiteral("11/24/2026 3:45:00 AM  ");
        r.text = QStringLiteral("- Core rescan command received.");
        records.push_back(r);
    }
    file.append(records);
}

bool waitForRefresh(SK_MainWindow &window)
{
    QSignalSpy handedBack(&window, &SK_MainWindow::refreshed);
    return handedBack.wait(60000);
}

// Seconds from construction to the first refresh handed back.
double start(const sk_emu::Model &model)
{
    EmulatedHostScope host(model);
    QElapsedTimer clock;
    clock.start();
    SK_MainWindow window;
    waitForRefresh(window);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    for (QTimer *timer : window.findChildren<QTimer *>())
        timer->stop();
    return seconds;
}

void BM_StartBusyAgainstEmpty(benchmark::State &state)
{
    const sk_emu::Model empty = hostWithLog(0);
    const sk_emu::Model busy = hostWithLog(kFullLog);
    double emptySum = 0, busySum = 0;
    for (auto _ : state) {
        QFile::remove(eventsLogPath());
        emptySum += start(empty);
        writeEventsLog(kFileEntries);
        const double seconds = start(busy);
        busySum += seconds;
        state.SetIterationTime(seconds);
    }
    const double n = double(state.iterations());
    state.counters["empty_s"] = emptySum / n;
    state.counters["busy_s"] = busySum / n;
    state.counters["ratio"] = busySum / emptySum;
}
BENCHMARK(BM_StartBusyAgainstEmpty)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

double refreshSeconds(SK_MainWindow &window)
{
    QElapsedTimer clock;
    clock.start();
    window.menu_refresh();
    waitForRefresh(window);
    return double(clock.nsecsElapsed()) / 1e9;
}

void BM_RefreshFullLogAgainstEmpty(benchmark::State &state)
{
    QFile::remove(eventsLogPath());
    auto emptyHost = std::make_unique<EmulatedHostScope>(hostWithLog(0));
    SK_MainWindow emptyWindow;
    waitForRefresh(emptyWindow);
    emptyHost.reset();
    auto fullHost = std::make_unique<EmulatedHostScope>(hostWithLog(kFullLog));
    SK_MainWindow fullWindow;
    waitForRefresh(fullWindow);
    for (SK_MainWindow *window : {&emptyWindow, &fullWindow}) {
        for (QTimer *timer : window->findChildren<QTimer *>())
            timer->stop();
    }
    double emptySum = 0, fullSum = 0;
    for (auto _ : state) {
        // Each window against its own host: the platform is switched between them.
        fullHost.reset();
        emptyHost = std::make_unique<EmulatedHostScope>(hostWithLog(0));
        emptySum += refreshSeconds(emptyWindow);
        emptyHost.reset();
        fullHost = std::make_unique<EmulatedHostScope>(hostWithLog(kFullLog));
        const double seconds = refreshSeconds(fullWindow);
        fullSum += seconds;
        state.SetIterationTime(seconds);
    }
    const double n = double(state.iterations());
    state.counters["empty_ms"] = 1000 * emptySum / n;
    state.counters["full_ms"] = 1000 * fullSum / n;
    state.counters["ratio"] = fullSum / emptySum;
}
BENCHMARK(BM_RefreshFullLogAgainstEmpty)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

// The parts of a busy start: the journal's first poll alone (the driver reads, the
// file and the application log) ...
void BM_JournalFirstPoll(benchmark::State &state)
{
    const sk_emu::Model busy = hostWithLog(kFullLog);
    writeEventsLog(kFileEntries);
    for (auto _ : state) {
        EmulatedHostScope host(busy);
        SK_RaidApi api;
        SK_EventJournal journal(api, &eventsLogPath, QString());
        benchmark::DoNotOptimize(journal.poll(0).added.size());
    }
}
BENCHMARK(BM_JournalFirstPoll)->Unit(benchmark::kMillisecond)->Iterations(3);

// ... and the driver reads alone: each event is one request through a fresh core.
void BM_DriverLogReads(benchmark::State &state)
{
    EmulatedHostScope host(hostWithLog(kFullLog));
    SK_RaidApi api;
    for (auto _ : state) {
        quint32 next = 3;
        for (;;) {
            const SK_EventMessage message = api.GetEventMessage(next, 0);
            if (message.status != 53)
                break;
            next = message.number + 1;
        }
        benchmark::DoNotOptimize(next);
    }
}
BENCHMARK(BM_DriverLogReads)->Unit(benchmark::kMillisecond)->Iterations(3);

// The floor of the pane: the same rows made in a bare tree and sorted the same way.
void BM_BareEventRows(benchmark::State &state)
{
    for (auto _ : state) {
        QTreeWidget tree;
        tree.setColumnCount(5);
        QList<QTreeWidgetItem *> rows;
        for (quint32 n = 3; n < 3 + kFullLog; ++n) {
            auto *row = new QTreeWidgetItem;
            row->setData(0, Qt::DisplayRole, n);
            row->setText(1, QStringLiteral("11/24/2026 3:45:00 AM  "));
            row->setText(2, QString::number(1012 + n % 30));
            row->setText(3, QStringLiteral("Informational"));
            row->setText(4, QStringLiteral("- Core rescan command received."));
            rows.append(row);
        }
        tree.addTopLevelItems(rows);
        tree.setSortingEnabled(true);
        tree.sortByColumn(0, Qt::DescendingOrder);
        benchmark::DoNotOptimize(tree.topLevelItemCount());
    }
}
BENCHMARK(BM_BareEventRows)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Q_INIT_RESOURCE(resources);
    QApplication app(argc, argv);
    QTemporaryDir scratch;
    keepConsoleFilesIn(scratch.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
