// SPDX-License-Identifier: MIT
#include "support/test_registry.h"
#include "views/colors.h"
#include "views/status_summary.h"

#include <QTest>

using namespace tarnwick;

class StatusSummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hexadecimalColors_data();
    void hexadecimalColors();
    void parts_data();
    void parts();
    void wholeSummary();
};

void StatusSummaryTest::hexadecimalColors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");
    const auto row = [](const QString& text, const QColor& expected) {
        QTest::newRow(qPrintable(u'"' + text + u'"')) << text << expected;
    };
    const QColor fallback(1, 1, 0, 1);
    row(u"FFB300"_qs, {255, 179, 0});
    row(u"#ffb300 "_qs, {255, 179, 0});
    row(u"FB0"_qs, {255, 187, 0});
    row(u"80FFB300"_qs, {255, 179, 0, 128});
    row(u"FFB30"_qs, fallback);
    row(u""_qs, fallback);
    row(u"#-#"_qs, fallback);
    row(u"12G456"_qs, {0, 0, 0x12});
    row(u"zzz"_qs, {0, 0, 0});
    row(u"0xFFFF"_qs, {0, 255, 255});
    row(u"\u00e9FFB3\u00e9"_qs, {0, 0, 0});
    row(u"F F"_qs, {0, 0, 255});
}

void StatusSummaryTest::hexadecimalColors()
{
    QFETCH(QString, text);
    QTEST(colorFromHex(text), "expected");
}

void StatusSummaryTest::parts_data()
{
    QTest::addColumn<QString>("part");
    // "~" stands for the no-break space.
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("onlyIcons");
    QTest::addColumn<QString>("dark");
    QTest::addColumn<QString>("light");

    const auto row = [](const QString& word, char32_t glyph, const char* dark, const char* light) {
        const QString start = QString::fromUcs4(&glyph, 1) + u'~';
        QTest::newRow(qPrintable(word))
            << u"3~"_qs + word << start + u"3~"_qs + word + u"   "_qs << start + u"3   "_qs
            << QString::fromLatin1(dark) << QString::fromLatin1(light);
    };
    row(u"added"_qs, 0x100238, "green", "#009900");
    row(u"deleted"_qs, 0x100212, "red", "red");
    row(u"removed"_qs, 0x100211, "indigo", "indigo");
    row(u"behind"_qs, 0x100129, "purple", "purple");
    row(u"ahead"_qs, 0x100128, "blue", "blue");
    row(u"changes"_qs, 0x10020A, "orange", "#ffb300");
    row(u"change"_qs, 0x10020A, "orange", "#ffb300");
    row(u"staged"_qs, 0x10022C, "teal", "teal");
    row(u"untracked"_qs, 0x100123, "yellow", "yellow");
    QTest::newRow("unknown") << u"3~moved"_qs << u"3~moved"_qs << u"3~moved"_qs << u"white"_qs
                             << u"white"_qs;
}

void StatusSummaryTest::parts()
{
    QFETCH(QString, part);
    part.replace(u'~', QChar::Nbsp);
    for (const auto appearance : {Appearance::Light, Appearance::Dark}) {
        for (const auto style : {SummaryStyle::Words, SummaryStyle::OnlyIcons}) {
            const TextSegment segment = statusPartText(part, style, appearance);
            QFETCH(QString, words);
            QFETCH(QString, onlyIcons);
            const QString expected = style == SummaryStyle::Words ? words : onlyIcons;
            QCOMPARE(QString(segment.text).replace(QChar::Nbsp, u'~'), expected);

            QFETCH(QString, dark);
            QFETCH(QString, light);
            const QString name = appearance == Appearance::Dark ? dark : light;
            if (name.startsWith(u'#') || name == u"white") {
                QCOMPARE(segment.color, QColor(name));
                continue;
            }
            // A named colour may have any shade of its hue.
            static const QMap<QString, int> hues{
                {u"green"_qs, 130}, {u"red"_qs, 3},     {u"indigo"_qs, 241}, {u"purple"_qs, 280},
                {u"blue"_qs, 212},  {u"orange"_qs, 36}, {u"teal"_qs, 188},   {u"yellow"_qs, 48}};
            QVERIFY2(std::abs(segment.color.hslHue() - hues.value(name)) < 12,
                     qPrintable(name + u' ' + segment.color.name()));
        }
    }
}

void StatusSummaryTest::wholeSummary()
{
    const auto segments =
        statusText(u"2\u00a0changes, 1\u00a0behind"_qs, SummaryStyle::OnlyIcons, Appearance::Light);
    QCOMPARE(segments.size(), 2);
    QCOMPARE(segments.at(0).color, QColor(0xff, 0xb3, 0x00));
    QCOMPARE(segments.at(1).text, u"\U00100129\u00a01   "_qs);
}

TARNWICK_TEST(StatusSummaryTest)

#include "status_summary_test.moc"
