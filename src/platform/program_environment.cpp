// SPDX-License-Identifier: MIT
#include "platform/program_environment.h"

namespace tarnwick {

QProcessEnvironment programEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
    environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
    return environment;
}

} // namespace tarnwick
