// SPDX-License-Identifier: MIT
#include "opened_menu.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <chrono>

namespace tarnwick::bench {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds quietTime = 60ms;
constexpr QRect anchor(600, 0, 24, 24);

} // namespace

PaintWatch::PaintWatch(std::function<void(QWidget&)> painted)
    : m_painted(std::move(painted))
{
    qApp->installEventFilter(this);
}

PaintWatch::~PaintWatch()
{
    qApp->removeEventFilter(this);
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && watched->isWidgetType())
        m_painted(*static_cast<QWidget*>(watched));
    return false;
}

double timeUntilPainted(const std::function<void()>& show)
{
    bool isPainted = false;
    const PaintWatch watch([&](QWidget&) { isPainted = true; });
    qint64 lastPaint = 0;
    QElapsedTimer timer;
    timer.start();
    show();
    QElapsedTimer quiet;
    while (!quiet.isValid() || !quiet.hasExpired(quietTime.count())) {
        QCoreApplication::processEvents();
        if (std::exchange(isPainted, false)) {
            lastPaint = timer.nsecsElapsed();
            quiet.start();
        }
    }
    return static_cast<double>(lastPaint) * 1e-6;
}

double openMenu(StatusMenu& menu)
{
    return timeUntilPainted([&] { menu.popUpBeside(anchor, {}); });
}

void openPanel(StatusMenu& menu)
{
    HostedRow& row = *menu.column().rows().at(1); // the first has the controls
    timeUntilPainted([&] {
        QMetaObject::invokeMethod(
            &menu, [&] { menu.openSubmenuOf(row); }, Qt::QueuedConnection);
    });
}

} // namespace tarnwick::bench
