// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace tarnwick::test {

inline bool showsColor(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

} // namespace tarnwick::test
