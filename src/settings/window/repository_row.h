// SPDX-License-Identifier: MIT
#pragma once

#include "settings/reorder/reorderable_row.h"

namespace tarnwick {

/// A repository in the list: a drag handle, name above directory, and a button to remove it.
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
