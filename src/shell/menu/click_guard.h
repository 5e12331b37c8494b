// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

#include <chrono>
#include <optional>

namespace tarnwick {

/// Makes one decision of the several events that a click on the status item can cause.
///
/// An open menu holds the pointer, so the click that is meant to close it arrives as a press
/// outside, and for some panels as a trigger after that. The second click of a double click arrives
/// either way too. Events count as the same click when they are close in time and place.
class ClickGuard
{
public:
    using Time = std::chrono::milliseconds;
    enum class Verdict { open, close, ignore };

    /// What to do about a trigger of the status item.
    [[nodiscard]] Verdict onTrigger(bool menuIsOpen, QPoint pointer, Time now) const;
    /// Whether a press outside an open menu is the second one of the click that opened it.
    [[nodiscard]] bool repeatsOpening(QPoint pointer, Time now) const;

    void opened(QPoint pointer, Time now) { m_opening = {pointer, now}; }
    void closedByPress(QPoint pointer, Time now) { m_closing = {pointer, now}; }

private:
    struct Click
    {
        QPoint pointer;
        Time time;
    };
    [[nodiscard]] static bool isSame(const std::optional<Click>& click, QPoint pointer, Time now);

    std::optional<Click> m_opening;
    std::optional<Click> m_closing;
};

} // namespace tarnwick
