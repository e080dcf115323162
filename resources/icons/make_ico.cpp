// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// make_ico IN.svg OUT.ico: one icon file with PNG images of 16, 24, 32 and 48 pixels.
#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QSaveFile>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <array>
#include <cstdio>

namespace {

constexpr std::array<quint8, 4> Extents{16, 24, 32, 48};
constexpr quint32 HeaderBytes = 6;
constexpr quint32 EntryBytes = 16;
constexpr quint16 TypeIcon = 1;
constexpr quint16 Planes = 1;
constexpr quint16 BitsPerPixel = 32;

QByteArray pngImage(QSvgRenderer &renderer, int extent)
{
    QImage image(extent, extent, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    return png.data();
}

QByteArray iconFile(QSvgRenderer &renderer)
{
    QByteArray directory;
    QByteArray images;
    QDataStream stream(&directory, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << TypeIcon << quint16(Extents.size());
    const quint32 firstImage = HeaderBytes + quint32(Extents.size()) * EntryBytes;
    for (const quint8 extent : Extents) {
        const QByteArray png = pngImage(renderer, extent);
        stream << extent << extent << quint8(0) << quint8(0) << Planes << BitsPerPixel << quint32(png.size())
               << firstImage + quint32(images.size());
        images += png;
    }
    return directory + images;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: make_ico IN.svg OUT.ico\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    QSaveFile file(QString::fromLocal8Bit(argv[2]));
    if (!renderer.isValid() || !file.open(QIODevice::WriteOnly) || file.write(iconFile(renderer)) < 0 ||
        !file.commit()) {
        std::fprintf(stderr, "make_ico: %s cannot be made from %s\n", argv[2], argv[1]);
        return 1;
    }
    return 0;
}
