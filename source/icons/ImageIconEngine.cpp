// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ImageIconEngine.h"

#include "PYXIconLoader.h"

#include <QtSvg/QSvgRenderer>

#include <algorithm>

namespace PYXRuntime {
namespace {

bool exceeds(const QSize &size, const QSize &bound)
{
    return size.width() > bound.width() || size.height() > bound.height();
}

QSize shrunkInto(const QSize &size, const QSize &bound)
{
    return exceeds(size, bound) ? size.scaled(bound, Qt::KeepAspectRatio) : size;
}

qint64 areaOf(const QSize &size)
{
    return qint64(size.width()) * size.height();
}

} // namespace

void ImageIconEngine::add(const struIconImageFile &file, const struModeState &modeState,
                          const QSize &largestDrawing)
{
    for (const QImage &image : file.images)
        _add(QPixmap::fromImage(image), modeState);
    if (!file.drawing.isNull())
        m_drawings += {modeState, file.drawing, largestDrawing};
    forgetDrawings();
}

void ImageIconEngine::addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state)
{
    _add(pixmap, {mode, state});
    forgetDrawings();
}

void ImageIconEngine::addFile(const QString &fileName, const QSize &size, QIcon::Mode mode,
                              QIcon::State state)
{
    const QList<QSize> sizes = size.isEmpty() ? PYXIconLoader::defaultSizesForSVGIcons() : QList<QSize>{size};
    add(readIconImageFile(fileName, sizes), {mode, state}, sizes.first());
}

QIconEngine *ImageIconEngine::clone() const
{
    return new ImageIconEngine(*this);
}

bool ImageIconEngine::draws(const struModeState &modeState) const
{
    return std::any_of(m_images.cbegin(), m_images.cend(),
                       [&](const struImage &image) { return image.modeState == modeState; });
}

QSize ImageIconEngine::drawnSize(const QSize &size, const struModeState &modeState) const
{
    if (_image(size, modeState) != nullptr)
        return size;
    const struImage *const image = _nextLargerImage(size, modeState);
    const QSize ofImage = image == nullptr ? QSize(0, 0) : shrunkInto(image->pixmap.size(), size);
    const QSize ofDrawing = _sizeOfDrawing(size, modeState);
    return areaOf(ofDrawing) >= areaOf(ofImage) ? ofDrawing : ofImage;
}

bool ImageIconEngine::holds(const QSize &size, const struModeState &modeState) const
{
    return _image(size, modeState) != nullptr;
}

QPixmap ImageIconEngine::draw(const QSize &size, const struModeState &modeState) const
{
    const QSize drawn = drawnSize(size, modeState);
    if (const struImage *const image = _image(drawn, modeState))
        return image->pixmap;
    if (!drawn.isEmpty() && drawn == _sizeOfDrawing(size, modeState))
        return QPixmap::fromImage(renderIconDrawing(*_drawing(modeState)->renderer, drawn));
    const struImage *const image = _nextLargerImage(size, modeState);
    if (image == nullptr || drawn.isEmpty())
        return {};
    return image->pixmap.scaled(drawn, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QList<QSize> ImageIconEngine::sizes(const struModeState &modeState) const
{
    QList<QSize> sizes;
    for (const struImage &image : m_images) {
        if (image.modeState == modeState)
            sizes += image.pixmap.size();
    }
    return sizes;
}

/** An image takes the place of one of the same size: of a drawing and a picture drawn for that size, the
 * latter. */
void ImageIconEngine::_add(const QPixmap &pixmap, const struModeState &modeState)
{
    if (pixmap.isNull())
        return;
    for (struImage &image : m_images) {
        if (image.modeState == modeState && image.pixmap.size() == pixmap.size()) {
            image.pixmap = pixmap;
            return;
        }
    }
    m_images += {modeState, pixmap};
}

const ImageIconEngine::struImage *ImageIconEngine::_image(const QSize &size,
                                                          const struModeState &modeState) const
{
    const auto found = std::find_if(m_images.cbegin(), m_images.cend(), [&](const struImage &image) {
        return image.modeState == modeState && image.pixmap.size() == size;
    });
    return found == m_images.cend() ? nullptr : &*found;
}

/** The smallest image that is as large as that, else the largest. */
const ImageIconEngine::struImage *ImageIconEngine::_nextLargerImage(const QSize &size,
                                                                    const struModeState &modeState) const
{
    const struImage *best = nullptr;
    for (const struImage &image : m_images) {
        if (!(image.modeState == modeState))
            continue;
        if (best == nullptr) {
            best = &image;
            continue;
        }
        const bool bSuffices = !exceeds(size, image.pixmap.size());
        const bool bBestSuffices = !exceeds(size, best->pixmap.size());
        const bool bSmaller = areaOf(image.pixmap.size()) < areaOf(best->pixmap.size());
        if (bSuffices == bBestSuffices ? bSmaller == bSuffices : bSuffices)
            best = &image;
    }
    return best;
}

QSize ImageIconEngine::_sizeOfDrawing(const QSize &size, const struModeState &modeState) const
{
    const struDrawing *const drawing = _drawing(modeState);
    if (drawing == nullptr)
        return {0, 0};
    return shrunkInto(drawing->largest * highestScreenRatio(), size);
}

const ImageIconEngine::struDrawing *ImageIconEngine::_drawing(const struModeState &modeState) const
{
    const auto found = std::find_if(m_drawings.cbegin(), m_drawings.cend(), [&](const struDrawing &drawing) {
        return drawing.modeState == modeState;
    });
    return found == m_drawings.cend() ? nullptr : &*found;
}

} // namespace PYXRuntime
