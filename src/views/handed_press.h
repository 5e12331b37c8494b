// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QMouseEvent;
class QWidget;

namespace tarnwick {

/// A mouse press taken from the popup it was delivered to and given to the widget that is really
/// under the pointer, together with the release that ends it, wherever that happens. Lives from the
/// press to the release, as a child of the widget.
class HandedPress : public QObject
{
    Q_OBJECT

public:
    HandedPress(QWidget& target, const QMouseEvent& press);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void give(const QMouseEvent& event);

    QWidget& m_target;
};

} // namespace tarnwick
