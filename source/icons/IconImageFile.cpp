// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "IconImageFile.h"

#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <algorithm>

namespace PYXRuntime {
namespace {

// What a damaged or hostile file claims must not fill the memory.
constexpr int MaxImagesPerFile = 64;
constexpr int MaxImageSide = 2048;
constexpr qint64 MaxDrawingBytes = 4'194'304;

bool isReasonable(const QSize &size)
{
    return size.width() <= MaxImageSide && size.height() <= MaxImageSide;
}

QVector<QImage> readImages(const QString &path)
{
    QVector<QImage> images;
    QImageReader reader(path);
    const int count = std::clamp(reader.imageCount(), 1, MaxImagesPerFile);
    for (int i = 0; i < count; ++i) {
        reader.jumpToImage(i); // formats that hold one image refuse, and are read all the same
        if (!isReasonable(reader.size()))
            continue;
        const QImage image = reader.read();
        if (!image.isNull() && isReasonable(image.size()))
            images += image;
    }
    return images;
}

struIconImageFile readDrawing(const QString &path, const QList<QSize> &sizes)
{
    struIconImageFile file;
    if (QFileInfo(path).size() > MaxDrawingBytes)
        return file;
    const auto drawing = QSharedPointer<QSvgRenderer>::create();
    drawing->setFramesPerSecond(0); // an icon stands still: else an animated one would keep a timer running
    if (!drawing->load(path))
        return file;
    drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    for (const QSize &size : sizes) {
        const QImage image = renderIconDrawing(*drawing, size);
        if (!image.isNull())
            file.images += image;
    }
    if (!file.images.isEmpty())
        file.drawing = drawing;
    return file;
}

QGuiApplication *guiApplication()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

} // namespace

struIconImageFile readIconImageFile(const QString &path, const QList<QSize> &svgSizes)
{
    if (guiApplication() == nullptr)
        return {};
    if (QFileInfo(path).suffix().toLower() == QLatin1String("svg"))
        return readDrawing(path, svgSizes);
    return {readImages(path), {}};
}

qreal highestScreenRatio()
{
    const QGuiApplication *const application = guiApplication();
    return application == nullptr ? 1 : application->devicePixelRatio();
}

QImage renderIconDrawing(QSvgRenderer &drawing, const QSize &size)
{
    if (size.isEmpty() || !isReasonable(size))
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawing.render(&painter);
    return image;
}

} // namespace PYXRuntime
