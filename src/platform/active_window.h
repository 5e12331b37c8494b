// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tarnwick {

/// Follows which window of the desktop has the keyboard, whichever program it belongs to.
class ActiveWindow : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// Another window than the last one has been activated. A popup is not activated, and a desktop
    /// on which programs are not told emits nothing.
    void changed();
};

} // namespace tarnwick
