// SPDX-License-Identifier: MIT
#include "model/git_status.h"
#include "model/repo_manager.h"
#include "support/stops_process.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QThread>

#include <chrono>
#include <csignal>
#include <optional>
#include <semaphore>

using namespace tarnwick::test;

namespace {

/// What reached the completion, and on which thread.
struct Delivery
{
    QString output;
    QThread* thread = nullptr;
    int count = 0;
};

CommandRunner::Completion into(Delivery& delivery)
{
    return [&delivery](const QString& output, RepoViewModel&) {
        delivery = {output, QThread::currentThread(), delivery.count + 1};
    };
}

} // namespace

class CommandRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliversOnTheMainThread_data()
    {
        const auto row = table<QString, QString>("script", "expected");
        row("whole, line feed included", u"echo one; echo two; exit 3"_s, u"one\ntwo\n"_s);
        row("failure is empty", u"echo fatal >&2; exit 128"_s, {});
        row("letters", u"printf '\\303\\251\\360\\237\\214\\277'"_s, u"\u00e9\U0001f33f"_s);
        row("byte order mark stays", u"printf '\\357\\273\\277x'"_s, u"\ufeffx"_s);
        row("more than a pipe holds on both channels",
            u"head -c 300000 /dev/zero | tr '\\0' e >&2; head -c 300000 /dev/zero | tr '\\0' o"_s,
            QString(300000, u'o'));
        row("environment",
            u"echo $LC_ALL $GIT_TERMINAL_PROMPT [$GIT_ASKPASS$SSH_ASKPASS] $SSH_ASKPASS_REQUIRE;"
            "printf '%s ' $GIT_CONFIG_COUNT $GIT_CONFIG_KEY_0 $GIT_CONFIG_VALUE_0 $GIT_CONFIG_KEY_3"_s,
            u"C 0 [] force\n4 alias.mine log credential.interactive "_s);
        row("default signals",
            u"grep -q '^SigIgn:.*[13579bdf]...$' /proc/self/status || echo SIGPIPE kills"_s,
            u"SIGPIPE kills\n"_s);
        row("background process keeps the channels", u"sleep 6 & echo done"_s, u"done\n"_s);
        row("died of a signal", u"echo so far; kill -KILL $$"_s, u"so far\n"_s);
    }

    void deliversOnTheMainThread()
    {
        QFETCH(QString, script);
        qputenv("GIT_CONFIG_COUNT", "1");
        qputenv("GIT_CONFIG_KEY_0", "alias.mine");
        qputenv("GIT_CONFIG_VALUE_0", "log");
        std::signal(SIGPIPE, SIG_IGN);
        const CommandRunner shell({.git = u"/bin/sh"_s});
        Delivery delivery;
        m_bench.queue.post([&] { shell.runGit({u"-c"_s, script}, m_record, into(delivery)); });
        QTRY_COMPARE(delivery.count, 1);
        QCOMPARE(delivery.thread, QThread::currentThread());
        QTEST(delivery.output, "expected");
        qunsetenv("GIT_CONFIG_COUNT");
    }

    void undecodableOutputCompletesOnTheCallingThread()
    {
        Delivery delivery;
        std::binary_semaphore done(0); // Qt's is not known to the thread sanitizer
        m_bench.queue.post([&] {
            m_shell.runGit({u"-c"_s, u"printf 'ok\\377'; echo why >&2"_s}, m_record,
                           into(delivery));
            done.release();
        });
        // No event loop turns here: only the calling thread can have delivered.
        QVERIFY(done.try_acquire_for(std::chrono::seconds(10)));
        QCOMPARE(delivery.output, u"1?"_s);
        QVERIFY(delivery.thread != QThread::currentThread());
    }

    void keepsTheRecordUntilItsCompletion()
    {
        auto record = m_bench.record(u"/nonexistent"_s);
        const std::weak_ptr<RepoViewModel> watched = record;
        std::optional<bool> wasAlive;
        m_shell.runGit({u"-c"_s, u"true"_s}, std::exchange(record, nullptr),
                       [&](const QString&, RepoViewModel&) { wasAlive = !watched.expired(); });
        QTRY_VERIFY(wasAlive);
        QVERIFY(*wasAlive);
        QVERIFY(watched.expired());
    }

    void waitsForOpen()
    {
        const QTemporaryDir dir;
        const QString proof = dir.filePath(u"it's \"$(done)\""_s);
        m_shell.runOpen({u"-c"_s, u"sleep 0.1; echo \"$1\" > \"$1\""_s, u"open"_s, proof});
        QVERIFY(QFile::exists(proof));
        CommandRunner({.open = u"/nonexistent/open"_s}).runOpen({u"-a"_s, u"x"_s});
    }

    void hangingJobsDoNotBlockOthers()
    {
        const auto hung = std::make_shared<QSemaphore>(); // a worker may still be in it at the end
        const int threads = QThread::idealThreadCount();
        for (int i = 0; i < threads; ++i)
            m_bench.queue.post([hung] { hung->acquire(); }, this);
        std::atomic_int ran = 0;
        m_bench.queue.post([&ran] { ran = 1; });
        QTRY_COMPARE_WITH_TIMEOUT(ran, 1, 15000);
        // One of the same owner waits for the end of all, and only the last one.
        for (const int number : {2, 3})
            m_bench.queue.post([&ran, number] { ran += number; }, this);
        hung->release(threads - 1);
        m_bench.queue.post([&ran] { ran += 10; });
        QTRY_COMPARE(ran, 11);
        hung->release();
        QTRY_COMPARE(ran, 14);
    }

    void hangingJobsDoNotBlockTheEnd()
    {
        const auto hung = std::make_shared<QSemaphore>();
        QSemaphore started;
        auto queue = std::make_unique<BackgroundQueue>();
        queue->post([hung, &started] {
            started.release();
            static_cast<void>(hung->tryAcquire(1, 20000));
        });
        started.acquire();
        QElapsedTimer timer;
        timer.start();
        queue.reset();
        QVERIFY(timer.elapsed() < 10000);
        hung->release();
    }

    void endsGitAndWhatItStarted()
    {
        const QTemporaryDir dir;
        const QString proof = dir.filePath(u"started"_s);
        CommandRunner runner({.git = u"/bin/sh"_s});
        Delivery delivery;
        m_bench.queue.post([&] {
            const QString script = u"trap '' TERM; sleep 1000 & echo $! > \"$0\"; wait"_s;
            runner.runGit({u"-c"_s, script, proof}, m_record, into(delivery));
            runner.runGit({u"-c"_s, u"true"_s}, m_record, into(delivery));
            delivery.count += 100;
        });
        QTRY_VERIFY(QFileInfo(proof).size() > 0);
        runner.endGit();
        QTRY_COMPARE(delivery.count, 100);
        const QString ended = u"! grep -q 'State:.[RST]' /proc/$(cat \"$0\")/status"_s;
        QTRY_COMPARE(QProcess::execute(u"/bin/sh"_s, {u"-c"_s, ended, proof}), 0);
    }

    void stops_data()
    {
        const auto row = table<std::function<void()>>("action");
        row("git that cannot be started",
            [this] { CommandRunner({.git = u"/nonexistent/git"_s}).runGit({}, m_record, {}); });
        row("empty status", [] { static_cast<void>(changedFiles({})); });
        row("status without a line feed", [] { static_cast<void>(changedFiles(u"1?"_s)); });
        row("list without a delegate", [this] {
            m_bench.store.setObject(u"/a"_s, u"repos"_s);
            const RepoManager list(m_bench.store, m_bench.services(), [] { return nullptr; });
        });
    }

    void stops()
    {
        QFETCH(std::function<void()>, action);
        QVERIFY(stopsProcess(action));
    }

private:
    const CommandRunner m_shell{{.git = u"/bin/sh"_s, .open = u"/bin/sh"_s}};
    Workbench m_bench;
    const std::shared_ptr<RepoViewModel> m_record = m_bench.record(u"/nonexistent"_s);
};

TARNWICK_TEST(CommandRunnerTest)

#include "command_runner_test.moc"
