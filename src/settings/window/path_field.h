// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace tarnwick {

/// A line edit for the path of a folder that offers completions. It never changes the text by
/// itself. A placeholder that is too long is shown in a smaller font.
class PathField : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathField(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarnwick
