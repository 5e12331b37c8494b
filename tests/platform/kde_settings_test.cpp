// SPDX-License-Identifier: MIT
#include "platform/freedesktop/kde_settings.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class KdeSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void palette_data()
    {
        const auto row = table<QByteArray, QColor, QColor>("colors", "window", "disabledText");
        row("dark",
            "[Colors:Button]\nBackgroundNormal=49,54,59\n[Colors:Window]\n"
            "BackgroundNormal=42,46,50\nForegroundNormal=252,252,252\n",
            QColor(42, 46, 50), QColor(147, 149, 151));
        row("none chosen", "[General]\nColorScheme=BreezeDark\n", {}, {});
        row("damaged", "[Colors:Window]\nBackgroundNormal=42,46\n", {}, {});
    }

    void palette()
    {
        QFETCH(QByteArray, colors);
        const QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        writeFile(config.filePath(u"kdeglobals"_s), colors);
        const auto palette = KdeSettings::palette();
        QTEST(palette ? palette->color(QPalette::Window) : QColor(), "window");
        QTEST(palette ? palette->color(QPalette::Disabled, QPalette::WindowText) : QColor(),
              "disabledText");
    }
};

TARNWICK_TEST(KdeSettingsTest)

#include "kde_settings_test.moc"
