// SPDX-License-Identifier: MIT
#include "shell/status_glyph.h"
#include "support/test_registry.h"
#include "views/symbols.h"

#include <QFontMetrics>
#include <QRawFont>
#include <QTest>

#include <string_view>

using namespace tarnwick;
using namespace std::string_view_literals;

class StatusGlyphTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inkStandsOut_data();
    void inkStandsOut();
    void everySymbolIsInTheFont();
};

void StatusGlyphTest::inkStandsOut_data()
{
    QTest::addColumn<QColor>("panel");
    QTest::addColumn<bool>("isLightInk");
    QTest::newRow("white") << QColor(Qt::white) << false;
    QTest::newRow("light grey") << QColor(0xf6, 0xf5, 0xf4) << false;
    QTest::newRow("sky") << QColor(0x8a, 0xb4, 0xe8) << false;
    QTest::newRow("deep blue") << QColor(0x1d, 0x3a, 0x8a) << true;
    QTest::newRow("dark grey") << QColor(0x35, 0x35, 0x35) << true;
    QTest::newRow("black") << QColor(Qt::black) << true;
}

void StatusGlyphTest::inkStandsOut()
{
    QFETCH(QColor, panel);
    QTEST(statusGlyphColor(panel).lightness() > 128, "isLightInk");
}

void StatusGlyphTest::everySymbolIsInTheFont()
{
    const QRawFont font = QRawFont::fromFont(QFont(symbolFontFamily()));
    QCOMPARE(font.familyName(), symbolFontFamily());
    for (const char32_t codePoint :
         U"\U00100645\U001008CC\U00100148\U00100184\U00100144\U00100238\U00100212\U00100211"
         U"\U00100129\U00100128\U0010020A\U0010022C\U00100123"sv)
        QVERIFY2(font.supportsCharacter(codePoint), qPrintable(QString::number(codePoint, 16)));
    for (const NamedSymbol& symbol : namedSymbols) {
        const QString text = symbolNamed(QStringView(symbol.name));
        QVERIFY(font.supportsCharacter(symbol.codePoint) && !text.isEmpty());
    }
    QVERIFY(symbolNamed({}).isEmpty() && symbolNamed(u"no.such").isEmpty());
    // Letters stay those of the interface font.
    QCOMPARE(QFontMetrics(withSymbols(QFont())).horizontalAdvance(u"letters"_qs),
             QFontMetrics(QFont()).horizontalAdvance(u"letters"_qs));
}

TARNWICK_TEST(StatusGlyphTest)

#include "status_glyph_test.moc"
