// SPDX-License-Identifier: MIT
#include "settings/list_navigation.h"

#include <Qt>

#include <algorithm>

namespace tarnwick {

std::optional<int> rowAfterKey(int key, int row, int count, int pageSize)
{
    const int last = count - 1;
    const int page = std::max(1, pageSize);
    switch (key) {
    case Qt::Key_Up:
        return std::max(0, row - 1);
    case Qt::Key_Down:
        return std::min(last, row + 1);
    case Qt::Key_PageUp:
        return std::max(0, row - page);
    case Qt::Key_PageDown:
        return std::min(last, row + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return {};
    }
}

} // namespace tarnwick
