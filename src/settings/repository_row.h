// SPDX-License-Identifier: MIT
#pragma once

#include "settings/reorderable_row.h"

namespace tarnwick {

/// A watched repository in the list of the settings: its name over its directory, a handle before
/// them and a button to remove it after them.
class RepositoryRow : public ReorderableRow
{
    Q_OBJECT

public:
    RepositoryRow(const QString& name, const QString& dir, QWidget* parent = nullptr);

    void setDragged(bool isDragged) override;

Q_SIGNALS:
    void removalRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isDragged = false;
};

} // namespace tarnwick
