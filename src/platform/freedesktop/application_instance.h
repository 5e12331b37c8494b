// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application_instance.h"

#include <QStringList>
#include <QVariantMap>

#include <memory>

class QLockFile;

namespace tarnwick {

/// The owner of the application's name on the session bus, where it answers to
/// `org.freedesktop.Application` (Desktop Entry Specification, "D-Bus Activation"). Without a
/// session bus a lock file in the user's runtime folder keeps it to one copy, which nobody reaches.
class FreedesktopApplicationInstance : public ApplicationInstance
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit FreedesktopApplicationInstance(const QString& identifier);
    ~FreedesktopApplicationInstance() override;

    [[nodiscard]] bool becomeOnlyCopy() override;
    [[nodiscard]] bool isReachable() const override;

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    /// It has no documents: opening any is just wanting to see it.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& name, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    void activateOtherCopy() const;
    [[nodiscard]] bool lock();

    const QString m_identifier;
    const QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace tarnwick
