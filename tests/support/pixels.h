// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace tarnwick::test {

/// The smallest area around all pixels of the color.
inline QRect areaOf(const QColor& color, const QImage& image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

inline bool showsColor(const QImage& image, const QColor& color)
{
    return !areaOf(color, image).isEmpty();
}

} // namespace tarnwick::test
