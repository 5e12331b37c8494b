// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tarnwick {

/// Plain text in the secondary label colour of whatever palette the desktop has.
class SecondaryText : public QLabel
{
    Q_OBJECT

public:
    explicit SecondaryText(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeColor();
};

} // namespace tarnwick
