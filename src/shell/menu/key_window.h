// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// A window that can be told to take the keyboard.
class KeyWindow
{
public:
    virtual ~KeyWindow() = default;

    virtual void becomeKeyWindow() = 0;
};

} // namespace tarnwick
