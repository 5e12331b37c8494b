// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

namespace tarnwick::test {

/// What the program reaches on its desktop, taking note of it: the default browser and an
/// application with desktop entries, the user's terminal, which then really opens an xterm, and the
/// file manager on the session bus.
class OutsideWorld : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    OutsideWorld();
    ~OutsideWorld() override;

    /// What the program must be started with to meet this world.
    [[nodiscard]] QMap<QString, QString> variables() const;
    [[nodiscard]] QString path(const QString& name) const { return m_root.filePath(name); }

    /// Each program that was started, as "<name><argument><argument>...".
    [[nodiscard]] QStringList started() const;
    /// The files that were to be shown.
    [[nodiscard]] const QStringList& revealed() const { return m_revealed; }
    /// How many of the terminals that were opened are still open.
    [[nodiscard]] qsizetype openTerminals() const;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString& startupId);

private:
    [[nodiscard]] QList<int> terminals() const;

    QTemporaryDir m_root;
    QStringList m_revealed;
    QDBusConnection m_bus = QDBusConnection::sessionBus();
};

} // namespace tarnwick::test
