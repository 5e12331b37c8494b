// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

namespace tarnwick {

/// A check box as wide as it is given, with a text that is shown verbatim: a long one is elided in
/// the middle, and an ampersand makes no shortcut. The accessible name is the whole text.
class ElidedCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ElidedCheckBox(const QString& text, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    const QString m_text;
};

} // namespace tarnwick
