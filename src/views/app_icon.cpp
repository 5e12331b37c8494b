// SPDX-License-Identifier: MIT
#include "views/app_icon.h"

#include "platform/application_folder.h"

namespace tarnwick {

QIcon appIcon(const QString& name, const ApplicationFolder& system, const ApplicationFolder& user)
{
    if (system.contains(name)) {
        if (QIcon icon = system.icon(name); !icon.isNull())
            return icon;
    }
    return user.icon(name);
}

} // namespace tarnwick
