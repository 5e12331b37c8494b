// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusServiceWatcher>
#include <QObject>

namespace tarnwick {

/// Follows the session bus's register of status notifier items and the hosts that show them.
/// Without a session bus it answers NoWatcher. Never blocks, never starts the service.
class StatusNotifierWatcher : public QObject
{
    Q_OBJECT

public:
    enum class State { Unknown, NoWatcher, NoHost, HostRegistered };

    explicit StatusNotifierWatcher(QObject* parent = nullptr);

    State state() const { return m_state; }

Q_SIGNALS:
    void stateChanged();

private Q_SLOTS:
    void queryState();

private:
    void setState(State state);

    QDBusServiceWatcher m_owner;
    State m_state = State::Unknown;
};

} // namespace tarnwick
