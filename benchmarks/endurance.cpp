// SPDX-License-Identifier: MIT
// endurance PERCENT DIR...: refreshes those repositories, rebuilds the menu and opens settings, a
// percentage of thousands of times, and writes to standard error what the program holds after the
// first tenth and at the end. Fails if it has grown, or if a child process was left over.
#include "model/background_queue.h"
#include "model/bundle_info.h"
#include "model/command_runner.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "platform/platform.h"
#include "platform/terminal_launcher.h"
#include "shell/app_delegate.h"
#include "shell/application_menu.h"
#include "waiting.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <malloc.h>
#include <sys/wait.h>

namespace {

using namespace tarnwick;
using namespace std::chrono_literals;

struct Holdings
{
    double heapKilobytes;
    double residentKilobytes;
    qsizetype descriptors;
    qsizetype threads;
    bool hasChild;
};

qsizetype entryCount(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

double residentKilobytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The memory cannot be read.");
    return file.readAll().split(' ').value(1).toDouble() * 4;
}

/// After that rest.
Holdings holdings(std::chrono::seconds rest)
{
    bench::waitFor(rest);
    ::malloc_trim(0);
    siginfo_t info{};
    // Any child at all, running or a zombie, keeps this from failing.
    const int children = ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT);
    return {.heapKilobytes = static_cast<double>(::mallinfo2().uordblks) / 1024,
            .residentKilobytes = residentKilobytes(),
            .descriptors = entryCount(QStringLiteral("/proc/self/fd")),
            .threads = entryCount(QStringLiteral("/proc/self/task")),
            .hasChild = children == 0 || errno != ECHILD};
}

/// Does it so often, ten times at least; whether all is at the end as it was after the first tenth.
bool endures(const char* name, int count, const std::function<void()>& action)
{
    Holdings first{};
    Holdings last{};
    bool hadChild = false;
    const int tenthPart = std::max(count / 10, 1);
    for (int tenth = 1; tenth <= 10; ++tenth) {
        for (int i = 0; i < tenthPart; ++i)
            action();
        // The thread pool keeps threads, with a descriptor each, for 30 idle seconds.
        last = holdings(tenth == 1 || tenth == 10 ? 31s : 1s);
        hadChild = hadChild || last.hasChild;
        if (tenth == 1)
            first = last;
    }
    const bool isSteady = !hadChild && last.heapKilobytes < first.heapKilobytes * 1.02 &&
                          last.residentKilobytes < first.residentKilobytes * 1.05 &&
                          last.descriptors <= first.descriptors && last.threads <= first.threads;
    std::fprintf(
        stderr,
        "%-10s %6d  heap %6.0f %6.0f kB  resident %6.0f %6.0f kB  descriptors %2lld %2lld  "
        "threads %2lld %2lld  children %s  %s\n",
        name, count, first.heapKilobytes, last.heapKilobytes, first.residentKilobytes,
        last.residentKilobytes, static_cast<long long>(first.descriptors),
        static_cast<long long>(last.descriptors), static_cast<long long>(first.threads),
        static_cast<long long>(last.threads), hadChild ? "left over" : "none",
        isSteady ? "steady" : "GROWN");
    return isSteady;
}

void closeWindows()
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window))
            window->close();
    }
    // In the program, its event loop does that.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    const int percent = arguments.value(1).toInt();

    const QTemporaryDir folder;
    PreferencesStore store(folder.filePath(QStringLiteral("preferences.json")));
    store.setObject(arguments.mid(2).join(u'\n'), preferences::repos);
    Platform platform = systemPlatform();
    const BundleInfo bundle(platform.bundleInfo);
    CommandRunner runner({.open = platform.openProgram});
    BackgroundQueue queue;
    AppDelegate delegate(platform, bundle, store, {runner, queue, *platform.terminal, store});
    delegate.applicationDidFinishLaunching();

    bool isSteady = endures("refreshes", 100 * percent, [&] {
        bench::Published published(delegate.appMenu().models());
        delegate.performAction(QStringLiteral("refresh"));
        published.wait();
    });
    isSteady &= endures("rebuilds", 20 * percent, [&] {
        delegate.rebuildMenu();
        bench::waitFor(0ms);
    });
    isSteady &= endures("settings", 5 * percent, [&] {
        delegate.performAction(QStringLiteral("settings"));
        bench::waitFor(20ms);
        closeWindows();
        bench::waitFor(0ms);
    });
    return isSteady ? 0 : 1;
}
