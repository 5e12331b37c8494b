// SPDX-License-Identifier: MIT
#include "support/test_registry.h"
#include "views/symbols.h"

#include <QFontMetrics>
#include <QRawFont>

#include <string_view>

using namespace tarnwick::test;
using namespace std::string_view_literals;

class SymbolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySymbolIsInTheFont()
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
        QCOMPARE(QFontMetrics(withSymbols(QFont())).horizontalAdvance(u"letters"_s),
                 QFontMetrics(QFont()).horizontalAdvance(u"letters"_s));
    }
};

TARNWICK_TEST(SymbolsTest)

#include "symbols_test.moc"
