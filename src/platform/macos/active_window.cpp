// SPDX-License-Identifier: MIT
#include "platform/macos/active_window.h"

#include <QGuiApplication>

namespace tarnwick {

MacActiveWindow::MacActiveWindow(QObject* parent)
    : ActiveWindow(parent)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state != Qt::ApplicationActive)
                    Q_EMIT changed();
            });
}

} // namespace tarnwick
