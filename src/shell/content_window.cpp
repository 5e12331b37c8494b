// SPDX-License-Identifier: MIT
#include "shell/content_window.h"

#include <QWidget>

namespace tarnwick {

void showInWindow(std::unique_ptr<QWidget> content, const QString& title)
{
    QWidget* const window = content.release();
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace tarnwick
