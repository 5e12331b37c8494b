// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application_folder.h"
#include "platform/freedesktop/desktop_entries.h"

#include <QHash>
#include <QObject>

namespace tarnwick {

/// The desktop entries of a place as if they were files of one folder. They are looked at once in a
/// turn of the event loop: a menu asks for hundreds of names at a time.
class FreedesktopApplicationFolder : public ApplicationFolder
{
public:
    explicit FreedesktopApplicationFolder(DesktopEntryPlace place)
        : m_place(place)
        , m_reader(place)
    {}

    [[nodiscard]] QString path() const override;
    [[nodiscard]] std::optional<QStringList> entries() const override;
    [[nodiscard]] bool contains(const QString& name) const override;
    [[nodiscard]] QIcon icon(const QString& name) const override;

private:
    struct Listing
    {
        bool succeeded;
        QHash<QString, QString> iconByName;
    };

    [[nodiscard]] const Listing& listing() const;

    DesktopEntryPlace m_place;
    mutable DesktopEntryReader m_reader;
    mutable std::optional<Listing> m_listing;
    mutable QObject m_resetContext;
};

/// Completes where QIcon looks for the icons of applications, for the whole program. They bring
/// their icons for the theme hicolor: Qt knows no theme at all on some platforms, and misses
/// hicolor where the theme in use and its fallback are both not installed.
void searchIconsOfApplications();

} // namespace tarnwick
