// SPDX-License-Identifier: MIT
#include "support/test_registry.h"
#include "views/colors.h"
#include "views/status_summary.h"

using namespace tarnwick::test;

class StatusSummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hexadecimalColors_data()
    {
        const auto row = table<QColor>("expected");
        const QColor fallback(1, 1, 0, 1);
        row("FFB300", {255, 179, 0});
        row("#ffb300 ", {255, 179, 0});
        row("FB0", {255, 187, 0});
        row("80FFB300", {255, 179, 0, 128});
        row("FFB30", fallback);
        row("#-#", fallback);
        row("12G456", {0, 0, 0x12});
        row("\303\251FFB3\303\251", {0, 0, 0});
        row("F F", {0, 0, 255});
    }

    void hexadecimalColors()
    {
        QTEST(colorFromHex(QString::fromUtf8(QTest::currentDataTag())), "expected");
    }

    void colorsCanBeRead_data()
    {
        const auto row = table<Appearance, QColor>("appearance", "background");
        row("light", Appearance::Light, {0xff, 0xff, 0xff});
        row("light, highlighted", Appearance::Light, {0xe6, 0xf1, 0xf8});
        row("dark", Appearance::Dark, {0x35, 0x35, 0x35});
        row("dark, highlighted", Appearance::Dark, {0x34, 0x3f, 0x46});
    }

    void colorsCanBeRead()
    {
        QFETCH(Appearance, appearance);
        QFETCH(QColor, background);
        for (auto* const color : {colors::red, colors::indigo, colors::purple, colors::blue,
                                  colors::teal, colors::yellow})
            QVERIFY(contrast(color(appearance), background) >= 4.5);
    }

    void parts_data()
    {
        const auto row = table<QString, QColor, QColor>("glyph", "dark", "light");
        const auto both = [&](const char* word, const QString& glyph, QColor (*color)(Appearance)) {
            row(word, glyph, color(Appearance::Dark), color(Appearance::Light));
        };
        row("added", u"\U00100238"_s, colors::green(Appearance::Dark), {0, 0x99, 0});
        both("deleted", u"\U00100212"_s, colors::red);
        both("removed", u"\U00100211"_s, colors::indigo);
        both("behind", u"\U00100129"_s, colors::purple);
        both("ahead", u"\U00100128"_s, colors::blue);
        row("changes", u"\U0010020A"_s, colors::orange(Appearance::Dark), {0xff, 0xb3, 0});
        row("change", u"\U0010020A"_s, colors::orange(Appearance::Dark), {0xff, 0xb3, 0});
        both("staged", u"\U0010022C"_s, colors::teal);
        both("untracked", u"\U00100123"_s, colors::yellow);
        row("moved", {}, Qt::white, Qt::white);
    }

    void parts()
    {
        const QString part = u"3\u00a0"_s + QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, glyph);
        QFETCH(QColor, dark);
        QFETCH(QColor, light);
        const QString start = glyph + QChar::Nbsp;
        const QString words = glyph.isEmpty() ? part : start + part + u"   "_s;
        const QString icons = glyph.isEmpty() ? part : start + u"3   "_s;
        using enum SummaryStyle;
        QCOMPARE(statusPartText(part, Words, Appearance::Dark), (TextSegment{words, dark}));
        QCOMPARE(statusPartText(part, OnlyIcons, Appearance::Light), (TextSegment{icons, light}));
    }
};

TARNWICK_TEST(StatusSummaryTest)

#include "status_summary_test.moc"
