// SPDX-License-Identifier: MIT
#pragma once

#include "platform/active_window.h"

namespace tarnwick {

/// Knows of other programs only that one of them has been activated in place of ours.
class MacActiveWindow : public ActiveWindow
{
public:
    explicit MacActiveWindow(QObject* parent = nullptr);
};

} // namespace tarnwick
