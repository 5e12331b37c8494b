// SPDX-License-Identifier: MIT
#include "platform/freedesktop/terminal_command.h"
#include "platform/freedesktop/terminal_launcher.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick;
using namespace tarnwick::test;

class TerminalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data();
    void choice();
    void session_data();
    void session();
    void sessionWithoutItsDirectory();

private:
    struct Outcome
    {
        QByteArray output;
        QByteArray errors;
    };

    /// What a window would have shown. The user's shell says where it is.
    Outcome shown(const QStringList& argv) const
    {
        const QString shell = m_root.filePath(u"shell"_qs);
        writeFile(shell, "#!/bin/sh\nprintf '[shell in %s]' \"$PWD\"\n");
        QFile(shell).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        QProcess window;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SHELL"_qs, shell);
        window.setProcessEnvironment(environment);
        window.setWorkingDirectory(m_root.path());
        window.start(argv.first(), argv.mid(1));
        window.waitForFinished();
        return {window.readAllStandardOutput(), window.readAllStandardError()};
    }

    QTemporaryDir m_root;
};

void TerminalTest::choice_data()
{
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("desktops");
    QTest::addColumn<QString>("expected");
    const auto row = [](const QString& installed, const QString& desktops,
                        const QString& expected) {
        QTest::addRow("%s on %s", qPrintable(installed), qPrintable(desktops))
            << installed.split(u' ', Qt::SkipEmptyParts) << desktops << expected;
    };
    row({}, u"GNOME"_qs, {});
    row(u"xterm x-terminal-emulator gnome-terminal xdg-terminal-exec"_qs, u"GNOME"_qs,
        u"/bin/xdg-terminal-exec|sh|cmd"_qs);
    row(u"xterm x-terminal-emulator konsole gnome-terminal"_qs, u"ubuntu:GNOME"_qs,
        u"/bin/gnome-terminal|--working-directory=/a %1 b|--|sh|cmd"_qs);
    row(u"xterm x-terminal-emulator konsole gnome-terminal"_qs, u"KDE"_qs,
        u"/bin/konsole|--workdir|/a %1 b|-e|sh|cmd"_qs);
    row(u"x-terminal-emulator xfce4-terminal"_qs, u"XFCE"_qs,
        u"/bin/xfce4-terminal|--working-directory=/a %1 b|-x|sh|cmd"_qs);
    row(u"xterm x-terminal-emulator konsole"_qs, u"XFCE"_qs,
        u"/bin/x-terminal-emulator|-e|sh|cmd"_qs);
    row(u"x-terminal-emulator gnome-terminal"_qs, {}, u"/bin/x-terminal-emulator|-e|sh|cmd"_qs);
    row(u"xterm kitty"_qs, u"i3"_qs, u"/bin/kitty|--directory=/a %1 b|sh|cmd"_qs);
    row(u"xterm"_qs, {}, u"/bin/xterm|-e|sh|cmd"_qs);
}

void TerminalTest::choice()
{
    QFETCH(QStringList, installed);
    QFETCH(QString, desktops);
    const auto command =
        terminalCommand(u"/a %1 b"_qs, {u"sh"_qs, u"cmd"_qs}, desktops, [&](const QString& name) {
            return installed.contains(name) ? u"/bin/"_qs + name : QString();
        });
    const QStringList line =
        command ? QStringList(command->program) + command->arguments : QStringList();
    QTEST(line.join(u'|'), "expected");
}

void TerminalTest::session_data()
{
    QTest::addColumn<QString>("name");
    for (const auto* name :
         {u"plain", u"two  words", u"it's", u"\"quoted\"", u"line\nfeed", u"-P", u"$(touch proof)",
          u"`touch proof`", u"';touch proof;'", u"back\\slash\\n", u"*", u"~", u"\u00fc\U0001f33f"})
        QTest::newRow(qPrintable(QString::fromUtf16(name))) << QString::fromUtf16(name);
}

void TerminalTest::session()
{
    QFETCH(QString, name);
    const QString dir = m_root.filePath(name);
    QVERIFY(QDir().mkpath(dir));
    const QByteArray shell = "[shell in " + dir.toUtf8() + ']';
    QCOMPARE(shown(terminalSession(dir, {})).output, shell);
    // Neither the command's failure nor a Ctrl+C closes the window.
    for (const QString& end : {u"exit 3"_qs, u"kill -INT $PPID; kill -INT $$"_qs}) {
        const QString script = u"printf %s \"$PWD\" \"$1\"; "_qs + end;
        const auto outcome = shown(
            terminalSession(dir, {u"sh"_qs, u"-c"_qs, script, u"sh"_qs, u" \"$(touch proof)"_qs}));
        QCOMPARE(outcome.output, dir.toUtf8() + " \"$(touch proof)" + shell);
    }
    QVERIFY(!QFile::exists(m_root.filePath(u"proof"_qs)));
    QVERIFY(!QFile::exists(dir + u"/proof"_qs));
}

void TerminalTest::sessionWithoutItsDirectory()
{
    const auto outcome =
        shown(terminalSession(m_root.filePath(u"gone"_qs), {u"touch"_qs, u"proof"_qs}));
    QVERIFY(outcome.errors.contains("gone"));
    QCOMPARE(outcome.output, "[shell in " + m_root.path().toUtf8() + ']');
    QVERIFY(!QFile::exists(m_root.filePath(u"proof"_qs)));
}

TARNWICK_TEST(TerminalTest)

#include "terminal_test.moc"
