// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QMouseEvent;
class QWidget;

namespace tarnwick {

/// Forwards a mouse press that a popup received to the widget that is really under the pointer,
/// together with the release that ends it, wherever that happens. Lives from the press to the
/// release, as a child of the widget.
class ForwardedPress : public QObject
{
    Q_OBJECT

public:
    ForwardedPress(QWidget& target, const QMouseEvent& press);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void send(const QMouseEvent& event);

    QWidget& m_target;
};

} // namespace tarnwick
