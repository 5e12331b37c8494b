// SPDX-License-Identifier: MIT
#include "shell/status_item.h"

#include "model/diagnostics.h"
#include "model/repo_overview.h"
#include "platform/tray_host.h"
#include "views/colors.h"
#include "views/symbols.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>

#include <chrono>

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

constexpr QRgb light = 0xfff5f5f5;
constexpr QRgb dark = 0xff202020;

/// Whichever stands out more against the panel.
QColor colorOn(const QColor& panel)
{
    return contrast(panel, light) >= contrast(panel, dark) ? light : dark;
}

QIcon templateIcon()
{
    QIcon icon = symbolIcon(glyphText(glyph::statusItem), Qt::black);
    icon.setIsMask(true);
    return icon;
}

} // namespace

StatusItem::StatusItem(TrayHost& host, const RepoOverview& overview, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_overview(overview)
    , m_contextMenu(host)
{
    connectMenu();
    // A panel takes a moment to show the item, or to repaint itself after a change of theme.
    m_panelTimer.setSingleShot(true);
    m_panelTimer.setInterval(500ms);
    connect(&m_panelTimer, &QTimer::timeout, this, &StatusItem::updateColor);
    connect(&m_host, &TrayHost::appeared, this, &StatusItem::showIcon);
    connect(&m_host, &TrayHost::panelsChanged, this, [this] {
        m_color = {}; // Plasma gives an icon another colour only when it is sent again
        m_panelTimer.start();
    });
    qApp->installEventFilter(this);

    if (m_host.available()) {
        showIcon();
        return;
    }
    QTimer::singleShot(5s, this, [this] {
        if (!m_icon)
            writeDiagnosticLine(QStringLiteral("No status bar found; waiting for one."));
    });
}

void StatusItem::connectMenu()
{
    connect(&m_contextMenu, &ItemMenu::menuRequested, this, [this] { Q_EMIT triggered(anchor()); });
    connect(&m_contextMenu, &ItemMenu::panelRequested, this, &StatusItem::panelRequested);
    connect(&m_contextMenu, &ItemMenu::refreshAllRequested, this, &StatusItem::refreshAllRequested);
    connect(&m_contextMenu, &ItemMenu::fetchAllRequested, this, &StatusItem::fetchAllRequested);
    connect(&m_contextMenu, &ItemMenu::settingsRequested, this, &StatusItem::settingsRequested);
    connect(&m_overview, &RepoOverview::changed, this, &StatusItem::showTexts);
}

void StatusItem::showTexts()
{
    QStringList texts;
    for (const auto& record : m_overview.models())
        texts += briefText(*record);
    m_contextMenu.setRepositories(texts);
    const QString toolTip = tr("Tarnwick: %1").arg(m_overview.text());
    if (m_icon && m_icon->toolTip() != toolTip) // Qt tells the host even of the same
        m_icon->setToolTip(toolTip);
}

void StatusItem::showIcon()
{
    if (!m_icon) {
        m_icon = std::make_unique<QSystemTrayIcon>();
        showTexts();
        if (m_host.itemStyle() == ItemStyle::Template)
            m_icon->setIcon(templateIcon());
        else
            m_icon->setContextMenu(&m_contextMenu);
        connect(m_icon.get(), &QSystemTrayIcon::activated, this, &StatusItem::onActivated);
        updateColor();
        m_icon->show();
    }
    m_panelTimer.start();
}

void StatusItem::onActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Context) {
        if (!m_icon->contextMenu())
            m_contextMenu.popup(anchor().bottomLeft());
        return;
    }
    m_anchor = anchor();
    updateColor(); // nothing announces a panel that was given another colour
    Q_EMIT triggered(m_anchor);
}

void StatusItem::updateColor()
{
    if (!m_icon || m_host.itemStyle() == ItemStyle::Template)
        return;
    const QRect place = m_icon->geometry();
    const auto panel = m_host.panelColor(place.isEmpty() ? m_anchor : place);
    if (!panel && m_hasSeenPanel)
        return; // it is hidden
    m_hasSeenPanel = panel.has_value();
    // Where the panel is not known, one of two colours stands out.
    const QColor color = panel ? colorOn(*panel) : light;
    const QColor edge = panel ? QColor() : dark;
    if (color == m_color && edge == m_edge)
        return;
    m_color = color;
    m_edge = edge;
    m_icon->setIcon(symbolIcon(glyphText(glyph::statusItem), color, m_host.tintedIconName(), edge));
}

QRect StatusItem::anchor() const
{
    const QRect place = m_icon->geometry();
    return place.isEmpty() ? QRect(QCursor::pos(), QSize(0, 0)) : place;
}

bool StatusItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        m_panelTimer.start();
    return QObject::eventFilter(watched, event);
}

} // namespace tarnwick
