// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

namespace tarnwick {

/// What a row of a list makes of a drag of plain text. Each delegate is for one row and one event
/// after another; the defaults let every drag pass without a trace.
class DropDelegate
{
public:
    virtual ~DropDelegate() = default;

    [[nodiscard]] virtual bool validateDrop() { return true; }
    /// The drag was released over the row; false if it is not taken.
    virtual bool performDrop() = 0;
    virtual void dropEntered() {}
    /// What a release would do, while the drag is over the row.
    [[nodiscard]] virtual Qt::DropAction dropUpdated() { return Qt::CopyAction; }
    virtual void dropExited() {}
};

} // namespace tarnwick
