// SPDX-License-Identifier: MIT
#include "platform/input_grab.h"

namespace tarnwick {

bool popupsHoldInput()
{
    // Qt gives popups the pointer, but a panel of AppKit's, which they are, gets no key unless
    // another window of the program has the keyboard.
    return false;
}

bool windowsCanBePlaced()
{
    return true;
}

bool inputIsFree()
{
    return true;
}

} // namespace tarnwick
