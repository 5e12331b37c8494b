// SPDX-License-Identifier: MIT
#include "shell/status_item.h"

#include "model/diagnostics.h"
#include "platform/tray_host.h"
#include "shell/status_glyph.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include <chrono>

namespace tarnwick {

using namespace std::chrono_literals;

StatusItem::StatusItem(TrayHost& host, QObject* parent)
    : QObject(parent)
    , m_host(host)
{
    fillContextMenu();
    // A panel takes a moment to show the item, or to repaint itself after a change of theme.
    m_panelSettled.setSingleShot(true);
    m_panelSettled.setInterval(500ms);
    connect(&m_panelSettled, &QTimer::timeout, this, &StatusItem::matchPanel);
    connect(&m_host, &TrayHost::appeared, this, &StatusItem::place);
    qApp->installEventFilter(this);

    if (m_host.available()) {
        place();
        return;
    }
    QTimer::singleShot(5s, this, [this] {
        if (!m_icon)
            writeDiagnosticLine(QStringLiteral("No status bar found; waiting for one."));
    });
}

void StatusItem::fillContextMenu()
{
    connect(m_contextMenu.addAction(tr("Show repositories")), &QAction::triggered, this,
            [this] { Q_EMIT triggered(anchor()); });
    connect(m_contextMenu.addAction(tr("Refresh all")), &QAction::triggered, this,
            &StatusItem::refreshAllRequested);
    connect(m_contextMenu.addAction(tr("Settings")), &QAction::triggered, this,
            &StatusItem::settingsRequested);
    m_contextMenu.addSeparator();
    connect(m_contextMenu.addAction(tr("Quit")), &QAction::triggered, qApp,
            &QCoreApplication::quit);
}

void StatusItem::place()
{
    if (!m_icon) {
        m_icon = std::make_unique<QSystemTrayIcon>();
        m_icon->setToolTip(QStringLiteral("Tarnwick"));
        m_icon->setContextMenu(&m_contextMenu);
        connect(m_icon.get(), &QSystemTrayIcon::activated, this,
                [this](QSystemTrayIcon::ActivationReason reason) {
                    if (reason == QSystemTrayIcon::Context)
                        return;
                    matchPanel(); // nothing announces a panel that was given another colour
                    Q_EMIT triggered(anchor());
                });
        matchPanel();
        m_icon->show();
    }
    m_panelSettled.start();
}

void StatusItem::matchPanel()
{
    const QColor panel =
        m_host.panelColor(m_icon->geometry()).value_or(QGuiApplication::palette().window().color());
    const QColor ink = statusGlyphColor(panel);
    if (ink == m_ink)
        return;
    m_ink = ink;
    m_icon->setIcon(statusGlyphIcon(ink));
}

QRect StatusItem::anchor() const
{
    const QRect place = m_icon->geometry();
    return place.isEmpty() ? QRect(QCursor::pos(), QSize(0, 0)) : place;
}

bool StatusItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && m_icon)
        m_panelSettled.start();
    return QObject::eventFilter(watched, event);
}

} // namespace tarnwick
