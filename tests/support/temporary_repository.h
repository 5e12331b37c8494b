// SPDX-License-Identifier: MIT
#pragma once

#include "support/table.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace tarnwick::test {

inline void writeFile(const QString& path, const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// Real git in a real folder, with the user's and the system's configuration switched off.
class TemporaryRepository
{
public:
    /// A repository on branch "main" with the committed files a, b, c and d.
    explicit TemporaryRepository(const QString& folder = QStringLiteral("repo"))
        : m_dir(m_root.filePath(folder))
    {
        QDir().mkpath(m_dir);
        run({u"git init -q -b main; for file in a b c d; do echo first > $file; done"_s,
             u"git add -A; git commit -q -m work"_s});
    }

    [[nodiscard]] const QString& dir() const { return m_dir; }
    /// A path beside the repository.
    [[nodiscard]] QString beside(const QString& name) const { return m_root.filePath(name); }

    void write(const QString& path, const QByteArray& content) const
    {
        writeFile(m_dir + u'/' + path, content);
    }

    /// Runs each line as a shell command in the repository; all must succeed.
    void run(const QStringList& lines) const
    {
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"GIT_CONFIG_GLOBAL"_s, u"/dev/null"_s);
        environment.insert(u"GIT_CONFIG_NOSYSTEM"_s, u"1"_s);
        for (const auto* who : {u"AUTHOR", u"COMMITTER"}) {
            const QString prefix = u"GIT_"_s + QString::fromUtf16(who);
            environment.insert(prefix + u"_NAME"_s, u"Test"_s);
            environment.insert(prefix + u"_EMAIL"_s, u"test@localhost"_s);
        }
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(m_dir);
        shell.setProcessChannelMode(QProcess::MergedChannels);
        shell.start(u"/bin/sh"_s, {u"-ec"_s, lines.join(u'\n')});
        QVERIFY(shell.waitForFinished());
        QVERIFY2(shell.exitCode() == 0, shell.readAll().constData());
    }

    void git(const QStringList& commands) const
    {
        QStringList lines;
        for (const QString& command : commands)
            lines += u"git "_s + command;
        run(lines);
    }

private:
    QTemporaryDir m_root;
    QString m_dir;
};

} // namespace tarnwick::test
