// SPDX-License-Identifier: MIT
#include "shell/content_window.h"

#include "platform/window_activation.h"

#include <QMainWindow>

namespace tarnwick {

void showWindow(std::unique_ptr<QWidget> window, const QString& title)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    window->show();
    bringToFront(*window.release());
}

void showInWindow(std::unique_ptr<QWidget> content, const QString& title)
{
    // A main window, because assistive technology takes a plain widget for a part of one.
    auto window = std::make_unique<QMainWindow>();
    // It takes over the minimum size of its content, but not the maximum size.
    window->setMaximumSize(content->maximumSize());
    window->setWindowFlag(Qt::WindowMaximizeButtonHint,
                          content->maximumSize() == QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    window->setCentralWidget(content.release());
    showWindow(std::move(window), title);
}

} // namespace tarnwick
