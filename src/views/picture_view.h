// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>
#include <QWidget>

namespace tarnwick {

/// The picture of an entry: a symbol of ours by its name, or an application's icon.
struct EntryImage
{
    QString symbol = {};
    QIcon icon = {};

    friend bool operator==(const EntryImage& a, const EntryImage& b)
    {
        return a.symbol == b.symbol && a.icon.cacheKey() == b.icon.cacheKey();
    }
};

/// A square of the given side filled by the picture; a symbol takes the colour. Empty where the
/// image is.
class EntryImageView : public QWidget
{
    Q_OBJECT

public:
    EntryImageView(EntryImage image, int side, const QColor& color, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const EntryImage m_image;
    const QColor m_color;
};

} // namespace tarnwick
