// SPDX-License-Identifier: MIT
#include "platform/menu_backdrop.h"

namespace tarnwick {

std::unique_ptr<MenuBackdrop> makeMenuBackdrop()
{
    return nullptr;
}

} // namespace tarnwick
