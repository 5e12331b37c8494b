// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace tarnwick {

/// Waits for an application to start: ends the event loop when the application has posted the kill
/// notification, when it or the session bus has gone, or after 60 seconds.
class Launcher : public QObject
{
    Q_OBJECT

public:
    /// Listens from here on, so the application may be started at once. `bus` is connected.
    Launcher(const QDBusConnection& bus, QString application, QObject* parent = nullptr);

    [[nodiscard]] bool isApplicationRunning() const;

private Q_SLOTS:
    void finish();

private:
    void fail(const char* reason);

    QDBusConnection m_bus;
    const QString m_application;
    QDBusServiceWatcher m_watcher;
};

} // namespace tarnwick
