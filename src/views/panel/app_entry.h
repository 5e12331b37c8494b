// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QList>
#include <QString>

namespace tarnwick {

class ApplicationFolder;
class PreferencesStore;

/// An application that the user has chosen to open repositories in.
struct AppEntry
{
    /// 24 by 24; null if the application brings none.
    QIcon image;
    QString title;
    /// Its file name, which `RepoViewModel::openInApp()` takes.
    QString name;

    friend bool operator==(const AppEntry& a, const AppEntry& b)
    {
        return a.image.cacheKey() == b.image.cacheKey() && a.title == b.title && a.name == b.name;
    }
    friend std::size_t qHash(const AppEntry& entry, std::size_t seed = 0)
    {
        return qHashMulti(seed, entry.image.cacheKey(), entry.title, entry.name);
    }
};

/// The chosen applications that are installed, in the order of the preferences.
[[nodiscard]] QList<AppEntry> loadAppEntries(const PreferencesStore& store,
                                             const ApplicationFolder& system,
                                             const ApplicationFolder& user);

} // namespace tarnwick
