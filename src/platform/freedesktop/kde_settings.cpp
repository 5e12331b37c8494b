// SPDX-License-Identifier: MIT
#include "platform/freedesktop/kde_settings.h"

#include <QDBusConnection>
#include <QSettings>
#include <QStandardPaths>

#include <array>

namespace tarnwick {

namespace {

struct Source
{
    QPalette::ColorRole role;
    const char* key;
};

constexpr std::array sources{
    Source{QPalette::Window, "Colors:Window/BackgroundNormal"},
    Source{QPalette::WindowText, "Colors:Window/ForegroundNormal"},
    Source{QPalette::Button, "Colors:Button/BackgroundNormal"},
    Source{QPalette::ButtonText, "Colors:Button/ForegroundNormal"},
    Source{QPalette::Base, "Colors:View/BackgroundNormal"},
    Source{QPalette::AlternateBase, "Colors:View/BackgroundAlternate"},
    Source{QPalette::Text, "Colors:View/ForegroundNormal"},
    Source{QPalette::Link, "Colors:View/ForegroundLink"},
    Source{QPalette::LinkVisited, "Colors:View/ForegroundVisited"},
    Source{QPalette::Highlight, "Colors:Selection/BackgroundNormal"},
    Source{QPalette::HighlightedText, "Colors:Selection/ForegroundNormal"},
    Source{QPalette::ToolTipBase, "Colors:Tooltip/BackgroundNormal"},
    Source{QPalette::ToolTipText, "Colors:Tooltip/ForegroundNormal"},
};

/// "red,green,blue", which QSettings takes for a list.
QColor color(const QSettings& settings, const char* key)
{
    const QStringList parts = settings.value(QLatin1String(key)).toStringList();
    return parts.size() == 3 ? QColor(parts[0].toInt(), parts[1].toInt(), parts[2].toInt())
                             : QColor();
}

/// Half way to what it stands on.
QColor faded(const QColor& text, const QColor& ground)
{
    return QColor((text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
                  (text.blue() + ground.blue()) / 2);
}

} // namespace

KdeSettings::KdeSettings(QObject* parent)
    : QObject(parent)
{
    QDBusConnection::sessionBus().connect(QString(), QStringLiteral("/KGlobalSettings"),
                                          QStringLiteral("org.kde.KGlobalSettings"),
                                          QStringLiteral("notifyChange"), this, SIGNAL(changed()));
}

std::optional<QPalette> KdeSettings::palette()
{
    const QSettings settings(
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QStringLiteral("kdeglobals")),
        QSettings::IniFormat);
    const QColor window = color(settings, "Colors:Window/BackgroundNormal");
    const QColor button = color(settings, "Colors:Button/BackgroundNormal");
    if (!window.isValid() || !button.isValid())
        return std::nullopt;
    QPalette palette(button, window); // derives the shades of frames, too
    for (const auto& [role, key] : sources) {
        if (const QColor chosen = color(settings, key); chosen.isValid())
            palette.setColor(role, chosen);
    }
    for (const auto& [text, ground] : {std::pair(QPalette::WindowText, QPalette::Window),
                                       std::pair(QPalette::ButtonText, QPalette::Button),
                                       std::pair(QPalette::Text, QPalette::Base)})
        palette.setColor(QPalette::Disabled, text,
                         faded(palette.color(text), palette.color(ground)));
    palette.setColor(QPalette::PlaceholderText,
                     faded(palette.color(QPalette::Text), palette.color(QPalette::Base)));
    return palette;
}

} // namespace tarnwick
