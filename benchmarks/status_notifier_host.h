// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

namespace tarnwick::bench {

/// A panel's side of the status notifier protocol on the session bus, which is to have no other.
/// Knows one item at a time.
class StatusNotifierHost : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    StatusNotifierHost();

    [[nodiscard]] bool isRegistered() const { return true; }
    [[nodiscard]] int protocolVersion() const { return 0; }
    [[nodiscard]] QStringList items() const { return {m_item}; }

    /// Clicks the item.
    void activate();

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service);

Q_SIGNALS:
    /// The item has sent its picture.
    void itemShown();

private:
    QString m_item;
};

} // namespace tarnwick::bench
