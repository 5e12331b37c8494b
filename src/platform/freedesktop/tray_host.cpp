// SPDX-License-Identifier: MIT
#include "platform/freedesktop/tray_host.h"

#include "platform/freedesktop/panel_color.h"
#include "platform/freedesktop/panel_rects.h"

#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <utility>

namespace tarnwick {

using namespace std::chrono_literals;

FreedesktopTrayHost::FreedesktopTrayHost(QObject* parent)
    : TrayHost(parent)
{
    m_trayTimer.setSingleShot(true);
    connect(&m_trayTimer, &QTimer::timeout, this, [this] {
        if (m_tray.isPresent())
            acceptHost();
        else
            Q_EMIT missed();
    });
    connect(&m_notifier, &StatusNotifierWatcher::stateChanged, this,
            &FreedesktopTrayHost::reevaluate);
    connect(&m_docks, &DockWindows::changed, this, &TrayHost::panelsChanged);
    connect(&m_kde, &KdeSettings::changed, this, &TrayHost::panelsChanged);
    connect(&m_tray, &X11Tray::appeared, this, &FreedesktopTrayHost::reevaluate);
    reevaluate();
}

void FreedesktopTrayHost::reevaluate()
{
    switch (m_notifier.state()) {
    case StatusNotifierWatcher::State::Unknown:
        return; // the answer is on its way
    case StatusNotifierWatcher::State::HostRegistered:
        return acceptHost();
    case StatusNotifierWatcher::State::NoHost: // at log-in the panel may be seconds behind
        return acceptTrayAfter(4s);
    case StatusNotifierWatcher::State::NoWatcher:
        return acceptTrayAfter(1s);
    }
}

void FreedesktopTrayHost::acceptTrayAfter(std::chrono::milliseconds timeout)
{
    if (m_tray.isPresent())
        m_trayTimer.start(timeout);
    else if (!m_available)
        Q_EMIT missed();
}

bool FreedesktopTrayHost::isUndecided() const
{
    return !m_available &&
           (m_notifier.state() == StatusNotifierWatcher::State::Unknown || m_trayTimer.isActive());
}

void FreedesktopTrayHost::acceptHost()
{
    m_trayTimer.stop();
    if (!m_available)
        m_exportsMenu = m_notifier.state() == StatusNotifierWatcher::State::HostRegistered;
    m_available = true;
    Q_EMIT appeared();
}

QString FreedesktopTrayHost::literalMenuText(QString text) const
{
    if (!m_exportsMenu)
        return TrayHost::literalMenuText(std::move(text));
    // An exported text marks its access key by an underscore, and a literal one by two; but GNOME's
    // extension takes away the first single one and leaves the others alone.
    const bool isGnome =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QStringLiteral("GNOME"));
    const qsizetype underscore = text.indexOf(u'_');
    const qsizetype ampersand = text.indexOf(u'&');
    if (!isGnome)
        text.replace(u'_', QStringLiteral("__"));
    // Qt makes an underscore of the first ampersand alone. GTK 3 reads a text with an access key
    // twice, and takes "__" for another one the second time.
    if (!isGnome && underscore >= 0 && underscore < ampersand)
        text[underscore] = u'&';
    else if (isGnome || ampersand >= 0)
        text.prepend(u'&');
    return text;
}

QList<QRect> FreedesktopTrayHost::panelRects() const
{
    QList<Monitor> monitors;
    for (const QScreen* screen : QGuiApplication::screens())
        monitors.append(
            {screen->geometry(), screen->availableGeometry(), screen->devicePixelRatio()});
    return tarnwick::panelRects(m_docks.find(), monitors);
}

std::optional<QColor> FreedesktopTrayHost::panelColor(const QRect& item) const
{
    return tarnwick::panelColor(areaBehind(item, panelRects()));
}

QString FreedesktopTrayHost::tintedIconName() const
{
    return tarnwick::tintedIconName();
}

} // namespace tarnwick
