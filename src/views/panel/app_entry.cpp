// SPDX-License-Identifier: MIT
#include "views/panel/app_entry.h"

#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "platform/application_folder.h"
#include "views/app_icon.h"

namespace tarnwick {

namespace {

AppEntry appEntryForKey(const QString& key, const PreferencesStore& store,
                        const ApplicationFolder& system, const ApplicationFolder& user)
{
    if (!store.boolForKey(key))
        return {};
    const QString name = QString(key).remove(preferences::showInAppsPrefix);
    if (!system.contains(name) && !user.contains(name))
        return {};
    return {appIcon(name, system, user), QString(name).remove(QStringLiteral(".app")), name};
}

} // namespace

QList<AppEntry> loadAppEntries(const PreferencesStore& store, const ApplicationFolder& system,
                               const ApplicationFolder& user)
{
    QList<AppEntry> entries;
    const QStringList keys = store.dictionaryRepresentation().keys();
    for (const QString& key : keys) {
        if (!key.startsWith(preferences::showInAppsPrefix))
            continue;
        AppEntry entry = appEntryForKey(key, store, system, user);
        if (!entry.title.isEmpty())
            entries.append(std::move(entry));
    }
    return entries;
}

} // namespace tarnwick
