// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace tarnwick {

/// A named symbol as an icon of any size, always in the label colour of the palette that the
/// program has when the icon is painted.
[[nodiscard]] QIcon symbolIcon(QStringView name);

} // namespace tarnwick
