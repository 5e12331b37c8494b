// SPDX-License-Identifier: MIT
#include "shell/launch_at_login.h"

#include "model/bundle_info.h"
#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "platform/launcher_helper.h"
#include "platform/login_services.h"

namespace tarnwick {

namespace {

void reportAnswer(int attempt, bool enabled, bool result)
{
    const auto word = [](bool value) { return value ? u"true" : u"false"; };
    writeDiagnosticLine(QStringLiteral("%1. Set launch to %2, result: %3")
                            .arg(attempt)
                            .arg(word(enabled), word(result)));
}

} // namespace

LaunchAtLogin::LaunchAtLogin(LoginServices& services, PreferencesStore& store,
                             const BundleInfo& bundle, QString helperIdentifier)
    : m_services(services)
    , m_store(store)
    , m_bundle(bundle)
    , m_helperIdentifier(std::move(helperIdentifier))
{}

void LaunchAtLogin::startLaunchAtLogin()
{
    if (m_services.runningApplicationIdentifiers().contains(m_helperIdentifier))
        m_services.postNotification(launcher::killNotification,
                                    m_bundle.requiredText(QStringLiteral("CFBundleIdentifier")));

    const QString& key = preferences::launchOnStartup.key;
    if (!m_store.dictionaryRepresentation().contains(key))
        m_store.setValue(preferences::launchOnStartup.fallback, key);

    if (m_store.boolForKey(key) && !m_services.setLoginItemEnabled(m_helperIdentifier, true))
        (void)m_services.setLoginItemEnabled(m_helperIdentifier, true);
}

void LaunchAtLogin::setLaunchAtLogin(bool enabled)
{
    const bool result = m_services.setLoginItemEnabled(m_helperIdentifier, enabled);
    reportAnswer(1, enabled, result);
    if (result)
        return;
    (void)m_services.setLoginItemEnabled(m_helperIdentifier, enabled);
    // The first answer again, on purpose: the second changes nothing.
    reportAnswer(2, enabled, result);
}

} // namespace tarnwick
