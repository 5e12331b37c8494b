// SPDX-License-Identifier: MIT
#include "model/git_status.h"
#include "model/repo_manager.h"
#include "support/stops_process.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QSemaphore>
#include <QThread>

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
        row("whole, line feed included", u"echo one; echo two; exit 3"_qs, u"one\ntwo\n"_qs);
        row("failure is empty", u"echo fatal >&2; exit 128"_qs, {});
        row("letters", u"printf '\\303\\251\\360\\237\\214\\277'"_qs, u"\u00e9\U0001f33f"_qs);
        row("byte order mark stays", u"printf '\\357\\273\\277x'"_qs, u"\ufeffx"_qs);
        row("more than a pipe holds on both channels",
            u"head -c 300000 /dev/zero | tr '\\0' e >&2; head -c 300000 /dev/zero | tr '\\0' o"_qs,
            QString(300000, u'o'));
        row("died of a signal", u"echo so far; kill -KILL $$"_qs, u"so far\n"_qs);
    }

    void deliversOnTheMainThread()
    {
        QFETCH(QString, script);
        Delivery delivery;
        m_bench.queue.post([&] { m_shell.runGit({u"-c"_qs, script}, m_record, into(delivery)); });
        QTRY_COMPARE(delivery.count, 1);
        QCOMPARE(delivery.thread, QThread::currentThread());
        QTEST(delivery.output, "expected");
    }

    void undecodableOutputAnswersAtOnce()
    {
        Delivery delivery;
        QSemaphore done;
        m_bench.queue.post([&] {
            m_shell.runGit({u"-c"_qs, u"printf 'ok\\377'; echo why >&2"_qs}, m_record,
                           into(delivery));
            done.release();
        });
        // No event loop turns here: only the calling thread can have delivered.
        QVERIFY(done.tryAcquire(1, 10000));
        QCOMPARE(delivery.output, u"1?"_qs);
        QVERIFY(delivery.thread != QThread::currentThread());
    }

    void nothingDecodableAnswersNever()
    {
        Delivery delivery;
        m_shell.runGit({u"-c"_qs, u"printf '\\302'; printf '\\377' >&2"_qs}, m_record,
                       into(delivery));
        Delivery later;
        m_shell.runGit({u"-c"_qs, u"true"_qs}, m_record, into(later));
        QTRY_COMPARE(later.count, 1);
        QCOMPARE(delivery.count, 0);
    }

    void openIsAwaited()
    {
        const QTemporaryDir dir;
        const QString proof = dir.filePath(u"it's \"$(done)\""_qs);
        m_shell.runOpen({u"-c"_qs, u"sleep 0.1; echo \"$1\" > \"$1\""_qs, u"open"_qs, proof});
        QVERIFY(QFile::exists(proof));
        CommandRunner({.open = u"/nonexistent/open"_qs}).runOpen({u"-a"_qs, u"x"_qs});
    }

    void hangingJobsGiveUpTheirPlace()
    {
        QSemaphore hung;
        const int places = QThread::idealThreadCount();
        for (int i = 0; i < places; ++i)
            m_bench.queue.post([&hung] { hung.acquire(); });
        std::atomic_bool ran = false;
        m_bench.queue.post([&ran] { ran = true; });
        QTRY_VERIFY_WITH_TIMEOUT(ran, 15000);
        hung.release(places);
    }

    void stops_data()
    {
        const auto row = table<std::function<void()>>("action");
        row("git that cannot be started",
            [this] { CommandRunner({.git = u"/nonexistent/git"_qs}).runGit({}, m_record, {}); });
        row("empty status", [] { static_cast<void>(changedFiles({})); });
        row("status without a line feed", [] { static_cast<void>(changedFiles(u"1?"_qs)); });
        row("list without a delegate", [this] {
            m_bench.store.setObject(u"/a"_qs, u"repos"_qs);
            const RepoManager list(m_bench.store, m_bench.services(), [] { return nullptr; });
        });
    }

    void stops()
    {
        QFETCH(std::function<void()>, action);
        QVERIFY(stopsProcess(action));
    }

private:
    const CommandRunner m_shell{{.git = u"/bin/sh"_qs, .open = u"/bin/sh"_qs}};
    Workbench m_bench;
    const std::shared_ptr<RepoViewModel> m_record = m_bench.record(u"/nonexistent"_qs);
};

TARNWICK_TEST(CommandRunnerTest)

#include "command_runner_test.moc"
