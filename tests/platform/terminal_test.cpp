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
        const QString many = u"xterm x-terminal-emulator konsole gnome-terminal xfce4-terminal"_s;
        row("none", {}, u"GNOME"_s, {});
        row("chosen", many + u" xdg-terminal-exec"_s, u"GNOME"_s, u"xdg-terminal-exec|sh|cmd"_s);
        row("GNOME", many, u"ubuntu:GNOME"_s,
            u"gnome-terminal|--working-directory=/a %d b|--|sh|cmd"_s);
        row("KDE", many, u"KDE"_s, u"konsole|--workdir|/a %d b|-e|sh|cmd"_s);
        row("XFCE", many, u"XFCE"_s, u"xfce4-terminal|--working-directory=/a %d b|-x|sh|cmd"_s);
        row("MATE", many, u"MATE"_s, u"x-terminal-emulator|-e|sh|cmd"_s);
        row("kitty", u"xterm kitty"_s, {}, u"kitty|--directory=/a %d b|sh|cmd"_s);
        row("xterm", u"xterm"_s, {}, u"xterm|-e|sh|cmd"_s);
    }

    void choice()
    {
        QFETCH(QString, installed);
        QFETCH(QString, desktops);
        const auto find = [&](const QString& name) {
            return installed.split(u' ').contains(name) ? name : QString();
        };
        const auto command = terminalCommand(u"/a %d b"_s, {u"sh"_s, u"cmd"_s}, desktops, find)
                                 .value_or(TerminalCommand());
        QTEST((QStringList(command.program) + command.arguments).join(u'|'), "expected");
    }

    void session_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto& name : {u"two  words"_s, u"it's"_s, u"\"quoted\""_s, u"line\nfeed"_s,
                                 u"-P"_s, u"$(touch proof)"_s, u"`touch proof`"_s,
                                 u"';touch proof;'"_s, u"back\\slash\\n"_s, u"*"_s, u"\u00fc"_s})
            QTest::newRow(qPrintable(name.simplified())) << name;
    }

    void session()
    {
        QFETCH(QString, name);
        const QString dir = m_root.filePath(name);
        QVERIFY(QDir().mkpath(dir));
        const QByteArray shell = "[shell in " + dir.toUtf8() + ']';
        qputenv("SHELL", m_root.filePath(u"shell"_s).toUtf8());
        QCOMPARE(shown(terminalSession(dir, {})), shell);
        // Neither the command's failure nor a Ctrl+C closes the window.
        for (const QString& end : {u"exit 3"_s, u"kill -INT $PPID; kill -INT $$"_s}) {
            const QString script = u"printf %s \"$PWD\" \"$1\"; "_s + end;
            const QStringList command{u"sh"_s, u"-c"_s, script, u"sh"_s, u" \"$(touch proof)"_s};
            QCOMPARE(shown(terminalSession(dir, command)),
                     dir.toUtf8() + " \"$(touch proof)" + shell);
        }
        QVERIFY(!QFile::exists(m_root.filePath(u"proof"_s)) && QDir(dir).isEmpty());
    }

private:
    /// What a window would have shown, the user's shell being one that says where it is.
    QByteArray shown(const QStringList& argv) const
    {
        const QString shell = m_root.filePath(u"shell"_s);
        writeFile(shell, "#!/bin/sh\nprintf '[shell in %s]' \"$PWD\"\n");
        QFile::setPermissions(shell, QFile::ReadOwner | QFile::ExeOwner);
        QProcess window;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SHELL"_s, u"/bin/false"_s); // foot overwrites it
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
