// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace tarnwick {

/// A field for the path of a folder, which offers the names of the folders there are as the user
/// types. Nothing is added to the text that was not typed or chosen.
class PathField : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathField(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};

} // namespace tarnwick
