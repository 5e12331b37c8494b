// SPDX-License-Identifier: MIT
#include "model/git_quoting.h"
#include "model/git_status.h"
#include "support/test_registry.h"

#include <QRandomGenerator>
#include <QRegularExpression>

using namespace tarnwick::test;

class GitStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data()
    {
        // "~" stands for the no-break space.
        const auto row = table<QString, QString>("gitStatus", "expected");
        const QString header = u"## main\n"_s;
        row("nothing", {}, {});
        row("placeholder", u"1?"_s, {});
        row("clean", header, {});
        row("clean with upstream", u"## main...origin/main\n"_s, {});
        row("diverged and mixed",
            u"## main...origin/main [ahead 2, behind 1]\n M a.txt\nMM b.txt\n?? c.txt\n"_s,
            u"2~changes, 1~behind, 2~ahead, 1~untracked, 1~staged"_s);
        row("all eight",
            u"## m...o/m [ahead 12, behind 3]\nA  a\nD  b\nM  c\n M d\n D e\n?? f\n?? g\n"_s,
            u"1~change, 3~behind, 12~ahead, 1~added, 2~untracked, 1~staged, 1~removed, 1~deleted"_s);
        row("one change", header + u" M a.txt\n"_s, u"1~change"_s);
        row("staged has no plural", header + u"M  a\nM  b\nM  c\nM  d\n"_s, u"4~staged"_s);
        row("AM, RM and MD count nowhere", header + u"A  n\nAM o\nRM p -> q\nMD r\n"_s,
            u"1~added"_s);
        row("removed before deleted", header + u" D gone\nD  old\n"_s, u"1~removed, 1~deleted"_s);
        row("code within a name", header + u"?? x M y.txt\n"_s, u"1~change, 1~untracked"_s);
        row("code within the header", u"## No commits yet on M  x\n"_s, u"1~change, 1~staged"_s);
        row("DD is only removed half", header + u" DD\n"_s, u"1~removed"_s);
        row("more blanks after ahead", u"## m [ahead  2]\n"_s, u" 2~ahead"_s);
        row("gone upstream", u"## main...origin/main [gone]\n"_s, {});
        row("ahead in a name", header + u"?? behind 4 ahead 3 x\n"_s,
            u"4~behind, 3~ahead, 1~untracked"_s);
        row("conflict", header + u"UU a\nAA b\n"_s, {});
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
        row("header alone", u"## main\n"_s, {});
        row("both halves at the end", u"## main\nA  a\nMM b\n M c\n"_s,
            {u"A  a"_s, u" M c"_s, u"M  b"_s, u" M b"_s});
        row("several, in their order", u"## main\nMM b\nMM a\n?? x\n"_s,
            {u"?? x"_s, u"M  b"_s, u" M b"_s, u"M  a"_s, u" M a"_s});
        row("code in the name too", u"## main\nMM MM x\n"_s, {u"M  M  x"_s, u" M  M x"_s});
        row("last line without line feed is lost", u"## main\n M a\n M b"_s, {u" M a"_s});
    }

    void changedPaths()
    {
        QFETCH(QString, gitStatus);
        QTEST(changedFiles(gitStatus), "expected");
    }

    void unquotesPaths_data()
    {
        const auto row = table<QString, QString>("quoted", "path");
        row("plain", u"a b.txt"_s, u"a b.txt"_s);
        row("letters", u"\"\\a\\b\\t\\n\\v\\f\\r\\\"\\\\x\""_s, u"\a\b\t\n\v\f\r\"\\x"_s);
        row("octal", u"\"d \\303\\251/\\360\\237\\214\\277/\""_s, u"d \u00e9/\U0001f33f/"_s);
        row("core.quotePath off", u"\"\u00e9 \\\"\""_s, u"\u00e9 \""_s);
        row("Latin-1", u"\"\\351.txt\""_s, u"\ufffd.txt"_s);
        for (const auto* malformed : {u"\"a\" -> \"b\"", u"\"", u"\"a", u"a\"", u"\"\\\"",
                                      u"\"\\12\"", u"\"\\400\"", u"\"\\x\""})
            row(qPrintable(QString::fromUtf16(malformed)), QString::fromUtf16(malformed),
                QString::fromUtf16(malformed));
    }

    void unquotesPaths()
    {
        QFETCH(QString, quoted);
        QTEST(unquotedGitPath(quoted), "path");
    }

    /// In texts made of what is looked for.
    void onePassCountsLikeOneRuleAfterTheOther()
    {
        const QStringList pieces{u" "_s,   u"M"_s,      u"MM "_s,    u"\n"_s,    u"A  "_s,
                                 u"D  "_s, u"??"_s,     u"behind"_s, u"ahead"_s, u"12"_s,
                                 u"\t"_s,  u"\u00a0"_s, u"d"_s};
        QRandomGenerator random(1);
        for (int round = 0; round < 2000; ++round) {
            QString text;
            for (int i = random.bounded(40); i > 0; --i)
                text += pieces[random.bounded(pieces.size())];
            QCOMPARE(statusSummary(text).value_or(QString()), slowSummary(text));
            const QStringList files = changedFiles(text.prepend(u"## x\n"_s));
            QCOMPARE(changedFiles(text, 2), files.mid(0, 2));
            QCOMPARE(changedFileCount(text), files.size());
        }
    }

    void piecesAreTrimmedAndKept()
    {
        QCOMPARE(components2(u"-a \t- b\n+c-"_s, {u"-"_s, u"+"_s}),
                 (QStringList{{}, u"a"_s, u"b\n"_s, u"c"_s, {}}));
    }

private:
    static QString slowSummary(const QString& text)
    {
        const auto codes = [&](const QString& first) {
            return QString::number(components2(text, {first, u"MM "_s}).size() - 1);
        };
        const auto commits = [&](const QString& word) {
            const auto match = QRegularExpression(word + u"\\s+(\\d+)"_s).match(text);
            return match.captured().mid(word.size() + 1);
        };
        const auto lines = [&](const QString& pattern) {
            return QString::number(text.split(u'\n').filter(QRegularExpression(pattern)).size());
        };
        const QString changes = codes(u" M "_s);
        QStringList parts;
        for (const auto& [count, word] :
             {std::pair(changes, changes == u"1" ? u"change"_s : u"changes"_s),
              {commits(u"behind"_s), u"behind"_s},
              {commits(u"ahead"_s), u"ahead"_s},
              {lines(u"^A  "_s), u"added"_s},
              {lines(u"^\\?\\?"_s), u"untracked"_s},
              {codes(u"M  "_s), u"staged"_s},
              {lines(u"^ D"_s), u"removed"_s},
              {lines(u"^D  "_s), u"deleted"_s}}) {
            if (!count.isEmpty() && count != u"0")
                parts += count + QChar::Nbsp + word;
        }
        return parts.join(u", "_s);
    }
};

TARNWICK_TEST(GitStatusTest)

#include "git_status_test.moc"
