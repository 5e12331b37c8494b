// SPDX-License-Identifier: MIT
#include "launcher.h"

#include "platform/freedesktop/notification_signal.h"
#include "platform/launcher_helper.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

/// A machine that has just been switched on is slow.
constexpr auto patience = 60s;

} // namespace

Launcher::Launcher(const QDBusConnection& bus, QString application, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_application(std::move(application))
    , m_end(m_application, bus, QDBusServiceWatcher::WatchForUnregistration)
{
    m_bus.connect(QString(), notificationSignal::path, notificationSignal::interface,
                  notificationSignal::member, {launcher::killNotification, m_application},
                  QString(), this, SLOT(finish()));
    m_bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                  this, SLOT(finish()));
    connect(&m_end, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { giveUp("Tarnwick ended early"); });
    QTimer::singleShot(patience, this, [this] { giveUp("Tarnwick did not come up"); });
}

bool Launcher::applicationRuns() const
{
    return m_bus.interface()->isServiceRegistered(m_application);
}

void Launcher::finish()
{
    QCoreApplication::quit();
}

void Launcher::giveUp(const char* reason)
{
    std::fprintf(stderr, "tarnwick-launcher: %s\n", reason);
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace tarnwick
