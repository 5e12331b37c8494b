// SPDX-License-Identifier: MIT
#include "model/git_status.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class GitStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data()
    {
        // "~" stands for the no-break space.
        const auto row = table<QString, QString>("gitStatus", "expected");
        const QString header = u"## main\n"_qs;
        row("nothing", {}, {});
        row("placeholder", u"1?"_qs, {});
        row("clean", header, {});
        row("clean with upstream", u"## main...origin/main\n"_qs, {});
        row("diverged and mixed",
            u"## main...origin/main [ahead 2, behind 1]\n M a.txt\nMM b.txt\n?? c.txt\n"_qs,
            u"2~changes, 1~behind, 2~ahead, 1~untracked, 1~staged"_qs);
        row("all eight",
            u"## m...o/m [ahead 12, behind 3]\nA  a\nD  b\nM  c\n M d\n D e\n?? f\n?? g\n"_qs,
            u"1~change, 3~behind, 12~ahead, 1~added, 2~untracked, 1~staged, 1~removed, 1~deleted"_qs);
        row("one change", header + u" M a.txt\n"_qs, u"1~change"_qs);
        row("staged has no plural", header + u"M  a\nM  b\nM  c\nM  d\n"_qs, u"4~staged"_qs);
        row("AM, RM and MD count nowhere", header + u"A  n\nAM o\nRM p -> q\nMD r\n"_qs,
            u"1~added"_qs);
        row("removed before deleted", header + u" D gone\nD  old\n"_qs, u"1~removed, 1~deleted"_qs);
        row("code within a name", header + u"?? x M y.txt\n"_qs, u"1~change, 1~untracked"_qs);
        row("code within the header", u"## No commits yet on M  x\n"_qs, u"1~change, 1~staged"_qs);
        row("DD is only removed half", header + u" DD\n"_qs, u"1~removed"_qs);
        row("more blanks after ahead", u"## m [ahead  2]\n"_qs, u" 2~ahead"_qs);
        row("gone upstream", u"## main...origin/main [gone]\n"_qs, {});
        row("conflict", header + u"UU a\nAA b\n"_qs, {});
    }

    void summary()
    {
        QFETCH(QString, gitStatus);
        QFETCH(QString, expected);
        QCOMPARE(statusSummary(gitStatus).value_or(QString()), expected.replace(u'~', QChar::Nbsp));
    }

    void changedPaths_data()
    {
        const auto row = table<QString, QStringList>("gitStatus", "expected");
        row("header alone", u"## main\n"_qs, {});
        row("both halves at the end", u"## main\nA  a\nMM b\n M c\n"_qs,
            {u"A  a"_qs, u" M c"_qs, u"M  b"_qs, u" M b"_qs});
        row("several, in their order", u"## main\nMM b\nMM a\n?? x\n"_qs,
            {u"?? x"_qs, u"M  b"_qs, u" M b"_qs, u"M  a"_qs, u" M a"_qs});
        row("code in the name too", u"## main\nMM MM x\n"_qs, {u"M  M  x"_qs, u" M  M x"_qs});
        row("last line without line feed is lost", u"## main\n M a\n M b"_qs, {u" M a"_qs});
    }

    void changedPaths()
    {
        QFETCH(QString, gitStatus);
        QTEST(changedFiles(gitStatus), "expected");
    }

    void piecesAreTrimmedAndKept()
    {
        QCOMPARE(components2(u"-a \t- b\n+c-"_qs, {u"-"_qs, u"+"_qs}),
                 (QStringList{{}, u"a"_qs, u"b\n"_qs, u"c"_qs, {}}));
    }
};

TARNWICK_TEST(GitStatusTest)

#include "git_status_test.moc"
