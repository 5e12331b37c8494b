// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>
#include <QWidget>

namespace tarnwick {

/// A symbol of ours by its name, or else an icon; nothing where both are empty.
struct Picture
{
    QString symbol = {};
    QIcon icon = {};

    friend bool operator==(const Picture& a, const Picture& b)
    {
        return a.symbol == b.symbol && a.icon.cacheKey() == b.icon.cacheKey();
    }
};

/// Fills the largest square in its middle with a picture, stretched if it is not square.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Only a symbol takes the colour.
    void setPicture(const Picture& picture, const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
    QColor m_color;
};

} // namespace tarnwick
