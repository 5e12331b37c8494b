// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace tarnwick {

/// Asks whether a repository is to be removed, in front of one window and without waiting for the
/// answer. Closing it keeps the repository. Deletes itself when it is answered.
class RemovalAlert : public QMessageBox
{
    Q_OBJECT

public:
    explicit RemovalAlert(QWidget* parent);

Q_SIGNALS:
    void removed();
    void kept();
};

} // namespace tarnwick
