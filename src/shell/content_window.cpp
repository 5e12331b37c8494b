// SPDX-License-Identifier: MIT
#include "shell/content_window.h"

#include "platform/window_activation.h"

#include <QHBoxLayout>
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
    // A tiling window manager makes the window larger than it can be.
    auto* const area = new QWidget; // owned by the window
    auto* const layout = new QHBoxLayout(area);
    layout->setContentsMargins({});
    layout->addStretch();
    layout->addWidget(content.release(), 1);
    layout->addStretch();
    window->setCentralWidget(area);
    showWindow(std::move(window), title);
}

} // namespace tarnwick
