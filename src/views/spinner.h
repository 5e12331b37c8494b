// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace tarnwick {

/// The small wheel that turns while something of unknown length goes on. Costs nothing while it is
/// not visible.
class Spinner : public QWidget
{
    Q_OBJECT

public:
    explicit Spinner(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    int m_phase = 0;
};

} // namespace tarnwick
