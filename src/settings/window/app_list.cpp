// SPDX-License-Identifier: MIT
#include "settings/window/app_list.h"

#include "model/diagnostics.h"
#include "platform/application_folder.h"

#include <algorithm>

namespace tarnwick {

namespace {

QStringList applicationsIn(const ApplicationFolder& folder)
{
    std::optional<QStringList> entries = folder.entries();
    if (!entries)
        return {QStringLiteral("Unable to read ") + folder.path() + QStringLiteral("*.app")};
    for (const QString& entry : *entries)
        writeDiagnosticLine(QStringLiteral("Found ") + entry);
    std::ranges::sort(*entries);
    entries->removeIf([](const QString& entry) { return !entry.endsWith(QStringLiteral(".app")); });
    return *entries;
}

} // namespace

AppList::AppList(const ApplicationFolder& system, const ApplicationFolder& user)
    : m_list(applicationsIn(system) + applicationsIn(user))
{}

} // namespace tarnwick
