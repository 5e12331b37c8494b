// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

/// A boolean preference: the key it is stored under, and what a reader takes while it is absent.
struct BoolPreference
{
    QString key;
    bool fallback;
};

/// Every key of the preferences, in one place.
namespace preferences {

/// The watched directories in display order, joined by line feeds.
extern const QString repos;
/// Before an application's file name: whether the actions panels offer that application.
extern const QString showInAppsPrefix;

extern const BoolPreference launchOnStartup;
extern const BoolPreference refreshOnMenuOpen;
extern const BoolPreference showCleanRepoStatus;
/// Stored as "onyIcons": the misspelling is the key, and stays.
extern const BoolPreference onlyIcons;
extern const BoolPreference hasWrittenDefaultsOnce;

/// Where the links of a repository are kept. Formed from its name, not from its directory:
/// repositories of one name share their links.
[[nodiscard]] QString linksKey(const QString& repositoryName);

} // namespace preferences

class PreferencesStore;

/// Offers three well-known applications in the actions panels, once in a store's life: a later
/// choice of the user's stands.
void writeFirstRunDefaults(PreferencesStore& store);

} // namespace tarnwick
