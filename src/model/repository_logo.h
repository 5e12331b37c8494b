// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <optional>

namespace tarnwick {

/// Reads a PNG file that may come from anybody: a regular file, or a link to one, of at most 16
/// MiB. The picture is reduced to at most 64 pixels each way, an icon of 16 on a screen of scale 4,
/// and need not keep its proportions. Only the reduced picture takes memory, except for a picture
/// that has to be decoded as a whole (interlaced, grey, indexed or with 16 bits a channel); one of
/// these with more than 2048 by 2048 pixels is refused. Blocks for milliseconds; for 0.4 s where a
/// file holds as much as Qt decodes, 33 million pixels.
[[nodiscard]] std::optional<QImage> readRepositoryLogo(const QString& path);

} // namespace tarnwick
