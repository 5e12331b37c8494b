// SPDX-License-Identifier: MIT
#include "tray_program.h"

#include "waiting.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>
#include <QTimer>

namespace tarnwick::bench {

namespace {

using namespace std::chrono_literals;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The numbers behind a name in a file of /proc.
double sumOf(const QString& name, const QByteArray& content)
{
    const QRegularExpression entry(u'^' + name + QStringLiteral(":\\s+(\\d+)"),
                                   QRegularExpression::MultilineOption);
    double sum = 0;
    for (const auto& match : entry.globalMatch(QString::fromUtf8(content)))
        sum += match.captured(1).toDouble();
    return sum;
}

} // namespace

TrayProgram::TrayProgram(StatusNotifierHost& host, const QString& program,
                         const QStringList& arguments)
    : m_host(host)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    QEventLoop loop;
    QObject::connect(&m_host, &StatusNotifierHost::itemShown, &loop, &QEventLoop::quit);
    QTimer::singleShot(30s, &loop, [] { qFatal("The program shows no item."); });
    m_startTime = duration([&] {
        m_process.start(program, arguments);
        loop.exec();
    });
}

TrayProgram::~TrayProgram()
{
    m_process.terminate();
    m_process.waitForFinished();
}

void TrayProgram::click()
{
    m_host.activate();
    waitFor(1s);
}

double TrayProgram::proportionalSetSize() const
{
    const QString path = QStringLiteral("/proc/%1/smaps_rollup").arg(m_process.processId());
    return sumOf(QStringLiteral("Pss"), contentOf(path));
}

double TrayProgram::contextSwitches() const
{
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(m_process.processId()));
    double switches = 0;
    for (const QString& thread : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        switches += sumOf(QStringLiteral("(?:non)?voluntary_ctxt_switches"),
                          contentOf(tasks.filePath(thread + QStringLiteral("/status"))));
    return switches;
}

} // namespace tarnwick::bench
