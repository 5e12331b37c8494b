// SPDX-License-Identifier: MIT
#include "platform/program_environment.h"

#include <array>
#include <unistd.h>

extern char** environ; // macOS has no header that declares it

namespace tarnwick {

namespace {

constexpr std::array activationTokens{"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"};

} // namespace

Environment inheritedEnvironment()
{
    Environment environment;
    for (const char* const* at = environ; at && *at; ++at) {
        const QByteArray entry(*at);
        const auto nameSize = entry.indexOf('=');
        if (nameSize > 0)
            environment.insert(entry.first(nameSize), entry.sliced(nameSize + 1));
    }
    for (const char* const name : activationTokens)
        environment.remove(name);
    return environment;
}

QProcessEnvironment programEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : activationTokens)
        environment.remove(QLatin1String(name));
    return environment;
}

QList<QByteArray> entriesOf(const Environment& environment)
{
    QList<QByteArray> entries;
    for (const auto& [name, value] : environment.asKeyValueRange())
        entries += name + '=' + value;
    return entries;
}

} // namespace tarnwick
