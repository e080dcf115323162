// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IconImageFile.h"
#include "ModeStateIconEngine.h"

#include <QtGui/QPixmap>

namespace PYXRuntime {

/**
 * An icon of image files. Where there is no image of the size asked for, a drawing is rendered at this size,
 * up to the largest one that it was loaded for times the highest ratio of all screens; else the next larger
 * image is scaled down.
 */
class ImageIconEngine final : public ModeStateIconEngine
{
public:
    ImageIconEngine() = default;

    /** @param largestDrawing in logical pixels */
    void add(const struIconImageFile &file, const struModeState &modeState, const QSize &largestDrawing);

    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override;
    void addFile(const QString &fileName, const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

protected:
    bool draws(const struModeState &modeState) const override;
    QSize drawnSize(const QSize &size, const struModeState &modeState) const override;
    bool holds(const QSize &size, const struModeState &modeState) const override;
    QPixmap draw(const QSize &size, const struModeState &modeState) const override;
    QList<QSize> sizes(const struModeState &modeState) const override;

private:
    struct struImage
    {
        struModeState modeState;
        QPixmap pixmap;
    };
    struct struDrawing
    {
        struModeState modeState;
        QSharedPointer<QSvgRenderer> renderer;
        QSize largest;
    };

    ImageIconEngine(const ImageIconEngine &) = default;
    void _add(const QPixmap &pixmap, const struModeState &modeState);
    const struImage *_image(const QSize &size, const struModeState &modeState) const;
    const struImage *_nextLargerImage(const QSize &size, const struModeState &modeState) const;
    QSize _sizeOfDrawing(const QSize &size, const struModeState &modeState) const;
    const struDrawing *_drawing(const struModeState &modeState) const;

    QVector<struImage> m_images;
    QVector<struDrawing> m_drawings;
};

} // namespace PYXRuntime
