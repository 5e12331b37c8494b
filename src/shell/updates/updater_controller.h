// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/updater.h"

namespace tarnwick {

/// Makes an updater and owns it. It may go at any time: the window of a check that it began stays
/// until the user closes it.
class StandardUpdaterController
{
public:
    explicit StandardUpdaterController(UpdateSettings settings, bool startingUpdater)
        : m_updater(std::move(settings))
    {
        if (startingUpdater)
            m_updater.start();
    }

    [[nodiscard]] Updater& updater() { return m_updater; }

private:
    Updater m_updater;
};

} // namespace tarnwick
