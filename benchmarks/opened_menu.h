// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace tarnwick {
class StatusMenu;
}

namespace tarnwick::bench {

/// Sees every paint event of the program while it lives.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(std::function<void(QWidget& widget)> painted);
    ~PaintWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(QWidget&)> m_painted;
};

/// Shows a window and returns the milliseconds until it has been painted for the last time: until
/// none was painted for a while after that.
double timeUntilPainted(const std::function<void()>& show);

/// As a click on the status item does; returns when all is painted.
double openMenu(StatusMenu& menu);
/// The panel of the first repository, in an open menu.
void openPanel(StatusMenu& menu);

} // namespace tarnwick::bench
