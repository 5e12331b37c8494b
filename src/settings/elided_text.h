// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// A text as a tool tip that shows it as it stands: nothing in it is markup.
[[nodiscard]] QString verbatimToolTip(const QString& text);

/// One line of plain text, elided in the middle where it does not fit, in the colour that the
/// palette of the widget gives it at the time.
class ElidedText : public QWidget
{
    Q_OBJECT

public:
    enum class Shade { Primary, Secondary };

    ElidedText(QString text, Shade shade, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QString m_text;
    const Shade m_shade;
};

} // namespace tarnwick
