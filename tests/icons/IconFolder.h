// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtGui/QImage>

/** A square of one colour. */
inline QImage square(int side, const QColor &colour)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

inline QColor colourAt(const QIcon &icon, int side, const QPoint &at, QIcon::Mode mode = QIcon::Normal,
                       QIcon::State state = QIcon::Off)
{
    return icon.pixmap(side, mode, state).toImage().pixelColor(at);
}

/** A folder of image files, which goes with it. */
class IconFolder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qUtf8Printable(name));
    }

    /** As the suffix says: an image of that side, an SVG or an ICO of images of 16 and 32 pixels. */
    void draw(const QString &name, const QColor &colour = Qt::red, int side = 16) const
    {
        if (name.endsWith(".svg", Qt::CaseInsensitive))
            write(name, svg(colour));
        else
            write(name, name.endsWith(".ico") ? ico({16, 32}, colour) : png(side, colour));
    }

    /** A disc on nothing: at each size, other pixels are half covered. */
    static QByteArray svg(const QColor &colour)
    {
        return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><circle cx='12' cy='12' r='11' "
               "fill='" +
               colour.name().toLatin1() + "'/></svg>";
    }

    static QByteArray png(int side, const QColor &colour)
    {
        QBuffer buffer;
        square(side, colour).save(&buffer, "PNG");
        return buffer.data();
    }

    static QByteArray ico(const QList<int> &sides, const QColor &colour)
    {
        QByteArray head;
        QByteArray images;
        QDataStream out(&head, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << quint16(0) << quint16(1) << quint16(sides.size());
        for (const int side : sides) {
            const QByteArray image = png(side, colour);
            out << quint8(side) << quint8(side) << quint16(0) << quint16(1) << quint16(32)
                << quint32(image.size()) << quint32(6 + 16 * sides.size() + images.size());
            images += image;
        }
        return head + images;
    }

private:
    QTemporaryDir m_folder;
};
