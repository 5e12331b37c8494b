// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>

namespace tarnwick {

/// A tool tip that shows the text literally: markup in it is not interpreted.
[[nodiscard]] QString plainTextToolTip(const QString& text);

/// One line of plain text, elided in the middle if it is too long, in a colour of the widget's
/// current palette.
class ElidedText : public QLabel
{
    Q_OBJECT

public:
    enum class Color { Label, SecondaryLabel };

    ElidedText(const QString& text, Color color, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Color m_color;
};

/// A check box of any width that shows its text literally, without mnemonics, and elided in the
/// middle if it is too long. The accessible name is the whole text.
class ElidedCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ElidedCheckBox(QString text, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    const QString m_text;
};

} // namespace tarnwick
