// SPDX-License-Identifier: MIT
#include "model/preference_keys.h"

#include "model/preferences_store.h"

namespace tarnwick {

namespace preferences {

const QString repos = QStringLiteral("repos");
const QString showInAppsPrefix = QStringLiteral("showinapps___");

const BoolPreference launchOnStartup{QStringLiteral("launchOnStartup"), true};
const BoolPreference refreshOnMenuOpen{QStringLiteral("refreshOnMenuOpen"), false};
const BoolPreference showCleanRepoStatus{QStringLiteral("showCleanRepoStatus"), true};
const BoolPreference onlyIcons{QStringLiteral("onyIcons"), false};
const BoolPreference hasWrittenDefaultsOnce{QStringLiteral("hasWrittenDefaultsOnce"), false};

QString linksKey(const QString& repositoryName)
{
    return repositoryName + QStringLiteral("-urls");
}

} // namespace preferences

void writeFirstRunDefaults(PreferencesStore& store)
{
    if (store.boolForKey(preferences::hasWrittenDefaultsOnce.key))
        return;
    for (const auto* application : {u"Sourcetree.app", u"Atom.app", u"Sublime Text.app"})
        store.setBool(true, preferences::showInAppsPrefix + QString::fromUtf16(application));
    store.setBool(true, preferences::hasWrittenDefaultsOnce.key);
}

} // namespace tarnwick
