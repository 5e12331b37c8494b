// SPDX-License-Identifier: MIT
#include "model/repository_logo.h"

#include "platform/regular_file.h"

#include <QBuffer>
#include <QImageReader>

namespace tarnwick {

namespace {

constexpr qint64 maxFileSize = qint64{16} * 1024 * 1024;
constexpr QSize maxSize(64, 64);
constexpr qint64 maxUndividedPixels = qint64{2048} * 2048;

/// Whether Qt reduces the picture row by row while it decodes it.
bool isReducedByRows(const QByteArray& png, const QImageReader& reader)
{
    constexpr qsizetype interlaceMethod = 28; // in the header chunk (PNG specification, "IHDR")
    const auto format = reader.imageFormat();
    return png.size() > interlaceMethod && png[interlaceMethod] == 0 &&
           (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32);
}

} // namespace

std::optional<QImage> readRepositoryLogo(const QString& path)
{
    FileContent file = readRegularFile(path, maxFileSize);
    if (!file.bytes)
        return {};
    QBuffer buffer(&*file.bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!isReducedByRows(*file.bytes, reader) &&
        qint64{size.width()} * size.height() > maxUndividedPixels)
        return {};
    reader.setScaledSize(size.boundedTo(maxSize));
    QImage logo = reader.read();
    return logo.isNull() ? std::nullopt : std::optional(std::move(logo));
}

} // namespace tarnwick
