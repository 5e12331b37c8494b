// SPDX-License-Identifier: MIT
#include "shell/status_glyph.h"
#include "support/test_registry.h"
#include "views/symbols.h"

#include <QFontMetrics>
#include <QIcon>
#include <QImage>
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
    void iconIsDrawnInInk_data();
    void iconIsDrawnInInk();
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

void StatusGlyphTest::iconIsDrawnInInk_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {16, 22, 48})
        QTest::addRow("%d", size) << size;
}

void StatusGlyphTest::iconIsDrawnInInk()
{
    QFETCH(int, size);
    const QColor ink(10, 200, 30);
    const QImage image = statusGlyphIcon(ink).pixmap(size, size).toImage();
    QCOMPARE(image.size(), QSize(size, size));
    int inked = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 200)
                continue;
            ++inked;
            QVERIFY(std::abs(pixel.hue() - ink.hue()) < 5);
        }
    }
    QVERIFY(inked > size * size / 10 && inked < size * size / 2);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
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
