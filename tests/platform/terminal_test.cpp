// SPDX-License-Identifier: MIT
#include "platform/freedesktop/terminal_command.h"
#include "platform/freedesktop/terminal_launcher.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class TerminalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data()
    {
        const auto row = table<QString, QString, QString>("installed", "desktops", "expected");
        const QString many = u"xterm x-terminal-emulator konsole gnome-terminal xfce4-terminal"_qs;
        row("none", {}, u"GNOME"_qs, {});
        row("chosen", many + u" xdg-terminal-exec"_qs, u"GNOME"_qs, u"xdg-terminal-exec|sh|cmd"_qs);
        row("GNOME", many, u"ubuntu:GNOME"_qs,
            u"gnome-terminal|--working-directory=/a %d b|--|sh|cmd"_qs);
        row("KDE", many, u"KDE"_qs, u"konsole|--workdir|/a %d b|-e|sh|cmd"_qs);
        row("XFCE", many, u"XFCE"_qs, u"xfce4-terminal|--working-directory=/a %d b|-x|sh|cmd"_qs);
        row("MATE", many, u"MATE"_qs, u"x-terminal-emulator|-e|sh|cmd"_qs);
        row("kitty", u"xterm kitty"_qs, {}, u"kitty|--directory=/a %d b|sh|cmd"_qs);
        row("xterm", u"xterm"_qs, {}, u"xterm|-e|sh|cmd"_qs);
    }

    void choice()
    {
        QFETCH(QString, installed);
        QFETCH(QString, desktops);
        const auto find = [&](const QString& name) {
            return installed.split(u' ').contains(name) ? name : QString();
        };
        const auto command = terminalCommand(u"/a %d b"_qs, {u"sh"_qs, u"cmd"_qs}, desktops, find)
                                 .value_or(TerminalCommand());
        QTEST((QStringList(command.program) + command.arguments).join(u'|'), "expected");
    }

    void session_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto& name :
             {u"two  words"_qs, u"it's"_qs, u"\"quoted\""_qs, u"line\nfeed"_qs, u"-P"_qs,
              u"$(touch proof)"_qs, u"`touch proof`"_qs, u"';touch proof;'"_qs,
              u"back\\slash\\n"_qs, u"*"_qs, u"\u00fc"_qs})
            QTest::newRow(qPrintable(name.simplified())) << name;
    }

    void session()
    {
        QFETCH(QString, name);
        const QString dir = m_root.filePath(name);
        QVERIFY(QDir().mkpath(dir));
        const QByteArray shell = "[shell in " + dir.toUtf8() + ']';
        QCOMPARE(shown(terminalSession(dir, {})), shell);
        // Neither the command's failure nor a Ctrl+C closes the window.
        for (const QString& end : {u"exit 3"_qs, u"kill -INT $PPID; kill -INT $$"_qs}) {
            const QString script = u"printf %s \"$PWD\" \"$1\"; "_qs + end;
            const QStringList command{u"sh"_qs, u"-c"_qs, script, u"sh"_qs,
                                      u" \"$(touch proof)"_qs};
            QCOMPARE(shown(terminalSession(dir, command)),
                     dir.toUtf8() + " \"$(touch proof)" + shell);
        }
        QVERIFY(!QFile::exists(m_root.filePath(u"proof"_qs)) && QDir(dir).isEmpty());
    }

    void sessionWithoutItsDirectory()
    {
        const QByteArray text = shown(terminalSession(u"/gone"_qs, {u"touch"_qs, u"proof"_qs}));
        QVERIFY(text.contains("/gone") &&
                text.endsWith("[shell in " + m_root.path().toUtf8() + ']'));
        QVERIFY(!QFile::exists(m_root.filePath(u"proof"_qs)));
    }

private:
    /// What a window would have shown, the user's shell being one that says where it is.
    QByteArray shown(const QStringList& argv) const
    {
        const QString shell = m_root.filePath(u"shell"_qs);
        writeFile(shell, "#!/bin/sh\nprintf '[shell in %s]' \"$PWD\"\n");
        QFile::setPermissions(shell, QFile::ReadOwner | QFile::ExeOwner);
        QProcess window;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SHELL"_qs, shell);
        window.setProcessEnvironment(environment);
        window.setWorkingDirectory(m_root.path());
        window.setProcessChannelMode(QProcess::MergedChannels);
        window.start(argv.first(), argv.mid(1));
        window.waitForFinished();
        return window.readAll();
    }

    QTemporaryDir m_root;
};

TARNWICK_TEST(TerminalTest)

#include "terminal_test.moc"
