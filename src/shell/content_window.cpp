// SPDX-License-Identifier: MIT
#include "shell/content_window.h"

#include <QLayout>
#include <QMainWindow>

namespace tarnwick {

void showInWindow(std::unique_ptr<QWidget> content, const QString& title)
{
    // A main window, because assistive technology takes a plain widget for a part of one.
    auto* const window = new QMainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    window->setCentralWidget(content.release());
    window->layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace tarnwick
