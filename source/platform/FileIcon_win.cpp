// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileIcon.h"

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <algorithm>
#include <memory>
#include <windows.h>
// After windows.h, whose types it needs.
#include <shellapi.h>

namespace PYXRuntime::Platform {
namespace {

struct struDeleteBitmap
{
    using pointer = HBITMAP;
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<HBITMAP, struDeleteBitmap>;

struct struDeleteContext
{
    using pointer = HDC;
    void operator()(HDC context) const { DeleteDC(context); }
};
using Context = std::unique_ptr<HDC, struDeleteContext>;

QSize sizeOf(HICON icon)
{
    ICONINFO info = {};
    if (GetIconInfo(icon, &info) == FALSE)
        return {};
    const Bitmap colour(info.hbmColor);
    const Bitmap mask(info.hbmMask);
    BITMAP bitmap = {};
    if (GetObjectW(colour ? colour.get() : mask.get(), sizeof bitmap, &bitmap) == 0)
        return {};
    // Without colours, the mask holds two bitmaps, one above the other.
    return {int(bitmap.bmWidth), int(colour ? bitmap.bmHeight : bitmap.bmHeight / 2)};
}

/** What the icon looks like on a ground of this colour. */
QImage drawnOn(QRgb ground, HICON icon, const QSize &size)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width();
    info.bmiHeader.biHeight = -size.height(); // top down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void *bits = nullptr;
    const Context context(CreateCompatibleDC(nullptr));
    const Bitmap bitmap(CreateDIBSection(context.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!context || !bitmap || bits == nullptr)
        return {};
    QImage screen(static_cast<uchar *>(bits), size.width(), size.height(), QImage::Format_RGB32);
    screen.fill(ground);
    const HGDIOBJ previous = SelectObject(context.get(), bitmap.get());
    const bool bDrawn =
        DrawIconEx(context.get(), 0, 0, icon, size.width(), size.height(), 0, nullptr, DI_NORMAL) != FALSE;
    GdiFlush();
    SelectObject(context.get(), previous);
    return bDrawn ? screen.copy() : QImage();
}

/**
 * The difference between black and white ground tells how much of the ground shines through, whether the
 * icon has an alpha channel or a mask.
 */
QImage imageOf(HICON icon)
{
    const QSize size = sizeOf(icon);
    if (size.isEmpty())
        return {};
    const QImage onBlack = drawnOn(qRgb(0, 0, 0), icon, size);
    const QImage onWhite = drawnOn(qRgb(255, 255, 255), icon, size);
    if (onBlack.isNull() || onWhite.isNull())
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        const auto *black = reinterpret_cast<const QRgb *>(onBlack.constScanLine(y));
        const auto *white = reinterpret_cast<const QRgb *>(onWhite.constScanLine(y));
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int alpha = std::clamp(255 - (qGreen(white[x]) - qGreen(black[x])), 0, 255);
            pixels[x] = qRgba(std::min(qRed(black[x]), alpha), std::min(qGreen(black[x]), alpha),
                              std::min(qBlue(black[x]), alpha), alpha);
        }
    }
    return image;
}

} // namespace

QIcon fileIcon(const QString &path, int index)
{
    // The function may write the path of another program into the buffer, of whatever length it is.
    wchar_t buffer[MAX_PATH] = {};
    const QString native = QDir::toNativeSeparators(path);
    if (native.size() >= MAX_PATH)
        return {};
    native.toWCharArray(buffer);
    WORD which = WORD(std::clamp(index, 0, 0xFFFF));
    // The module is where some systems look for the icon of files that have none.
    const HICON icon = ExtractAssociatedIconW(GetModuleHandleW(L"shell32"), buffer, &which);
    if (icon == nullptr)
        return {};
    const QImage image = imageOf(icon);
    DestroyIcon(icon);
    return image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image));
}

} // namespace PYXRuntime::Platform
