// SPDX-License-Identifier: MIT
#include "shell/menu/click_guard.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace tarnwick {

ClickGuard::Verdict ClickGuard::onTrigger(bool menuIsOpen, QPoint pointer, Time now) const
{
    if (menuIsOpen)
        return repeatsOpening(pointer, now) ? Verdict::ignore : Verdict::close;
    return isSame(m_closing, pointer, now) ? Verdict::ignore : Verdict::open;
}

bool ClickGuard::repeatsOpening(QPoint pointer, Time now) const
{
    return isSame(m_opening, pointer, now);
}

bool ClickGuard::isSame(const std::optional<Click>& click, QPoint pointer, Time now)
{
    const QStyleHints& hints = *QGuiApplication::styleHints();
    return click && now - click->time <= Time(hints.mouseDoubleClickInterval()) &&
           (pointer - click->pointer).manhattanLength() <= hints.startDragDistance();
}

} // namespace tarnwick
