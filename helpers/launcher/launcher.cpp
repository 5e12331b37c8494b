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

constexpr auto timeout = 60s; // start-up is slow right after login

} // namespace

Launcher::Launcher(const QDBusConnection& bus, QString application, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_application(std::move(application))
    , m_watcher(m_application, bus, QDBusServiceWatcher::WatchForUnregistration)
{
    m_bus.connect(QString(), notificationSignal::path, notificationSignal::interface,
                  notificationSignal::member, {launcher::killNotification, m_application},
                  QString(), this, SLOT(finish()));
    m_bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                  this, SLOT(finish()));
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail("Tarnwick ended early"); });
    QTimer::singleShot(timeout, this, [this] { fail("Tarnwick did not come up"); });
}

bool Launcher::isApplicationRunning() const
{
    return m_bus.interface()->isServiceRegistered(m_application);
}

void Launcher::finish()
{
    QCoreApplication::quit();
}

void Launcher::fail(const char* reason)
{
    std::fprintf(stderr, "tarnwick-launcher: %s\n", reason);
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace tarnwick
