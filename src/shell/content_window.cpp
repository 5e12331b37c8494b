// SPDX-License-Identifier: MIT
#include "shell/content_window.h"

#include <QLayout>
#include <QMainWindow>

namespace tarnwick {

void showWindow(std::unique_ptr<QWidget> window, const QString& title)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    window->show();
    window->raise();
    window.release()->activateWindow();
}

void showInWindow(std::unique_ptr<QWidget> content, const QString& title)
{
    // A main window, because assistive technology takes a plain widget for a part of one.
    auto window = std::make_unique<QMainWindow>();
    window->setCentralWidget(content.release());
    window->layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
    showWindow(std::move(window), title);
}

} // namespace tarnwick
