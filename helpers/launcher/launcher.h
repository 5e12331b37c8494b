// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace tarnwick {

/// Waits for an application to come up: ends the event loop when the application has sent the
/// notification that says so, when it or the session bus has gone, or when it has had time enough.
class Launcher : public QObject
{
    Q_OBJECT

public:
    /// Listens from here on, so the application may be started at once. `bus` is connected.
    Launcher(const QDBusConnection& bus, QString application, QObject* parent = nullptr);

    [[nodiscard]] bool applicationRuns() const;

private Q_SLOTS:
    void finish();

private:
    void giveUp(const char* reason);

    QDBusConnection m_bus;
    const QString m_application;
    QDBusServiceWatcher m_end;
};

} // namespace tarnwick
