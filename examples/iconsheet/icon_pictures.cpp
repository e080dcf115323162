// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause

// Draws what the composing operations make: icon_pictures FILE.png. The picture is part of docs/icons.md.

#include <PYXRuntime.h>
#include <PYXStandardIcons.h>

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace PYXRuntime;

namespace {

using Icons = PYXStandardIcons;
using Regions = QIconHelpers;

constexpr int LargeSide = 96;
constexpr int CellWidth = 190;
constexpr int CellHeight = 132;
constexpr int Columns = 4;

struct struPicture
{
    QString caption;
    QIcon icon;
    QIcon::State state = QIcon::Off;
};

QIcon composite()
{
    struCompositeIconLayer folder = Icons::staticComposeIconLayer(Icons::ekIcon_Network_Folder);
    struCompositeIconLayer plus =
        Icons::staticComposeIconLayer(Icons::ekIcon_Add, 0.4, Regions::ekOverlayRegion_TopLeft);
    struCompositeIconLayer led = Icons::staticComposeIconLayer(Icons::ekIcon_LED_Round_Green, 0.4,
                                                               Regions::ekOverlayRegion_BottomRight);
    plus.clearance = led.clearance = 1.0 / 24;
    return Icons::staticCompositeIcon({folder, plus, led});
}

QList<struPicture> pictures()
{
    const uint document = Icons::ekIcon_Document;
    const uint plus = Icons::ekIcon_Add;
    const uint eye = Icons::ekIcon_Overlay_Eye_Interleaved;
    return {
        {"the icon", Icons::staticRegisteredIcon(document)},
        {"overlaid", Icons::staticRegisteredIconOverlaid(document, Icons::ekIcon_Overlay_Saved)},
        {"overlaid, alpha 96", Icons::staticRegisteredIconOverlaidTransparent(document, plus, 96)},
        {"as overlay, 0.5",
         Icons::staticRegisteredIconAsOverlay(plus, 0.5, Regions::ekOverlayRegion_TopRight)},
        {"auto overlaid, 0.5",
         Icons::staticRegisteredIconAutoOverlaid(document, plus, 0.5, Regions::ekOverlayRegion_Corners)},
        {"the same, alpha 128", Icons::staticRegisteredIconAutoOverlaidTransparent(
                                    document, plus, 128, 0.5, Regions::ekOverlayRegion_Corners)},
        {"composite", composite()},
        {"disabled only", Icons::staticInterleavedIcon({{document, QIcon::Disabled, QIcon::Off}})},
        {"interleaved, on", Icons::staticRegisteredIcon(eye), QIcon::On},
        {"interleaved, off", Icons::staticRegisteredIcon(eye)},
        {"not found", Icons::staticIconNotFoundIcon()},
        {"not registered", Icons::staticIconNotRegisteredIcon()},
    };
}

void draw(QPainter &painter, const QRect &cell, const struPicture &picture)
{
    int x = cell.left() + 8;
    for (const int side : {LargeSide, 24, 16}) {
        picture.icon.paint(&painter, QRect(x, cell.top() + 8, side, side), Qt::AlignBottom, QIcon::Normal,
                           picture.state);
        x += side + 12;
    }
    painter.drawText(cell.adjusted(8, 0, 0, -6), Qt::AlignLeft | Qt::AlignBottom, picture.caption);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName("icon_pictures");
    initialize_PYXRuntime();
    Icons::getInstance()->setSizesForSVGIcons({{LargeSide, LargeSide}, {24, 24}, {16, 16}});
    const QList<struPicture> all = pictures();
    const int rows = (all.size() + Columns - 1) / Columns;
    QImage image(Columns * CellWidth, rows * CellHeight, QImage::Format_RGB32);
    image.fill(QColor("#f0f0f0"));
    QPainter painter(&image);
    for (int i = 0; i < all.size(); ++i)
        draw(painter, {i % Columns * CellWidth, i / Columns * CellHeight, CellWidth, CellHeight}, all[i]);
    painter.end();
    const bool bSaved = argc == 2 && image.save(QString::fromLocal8Bit(argv[1]));
    if (!bSaved)
        std::fputs("usage: icon_pictures FILE.png\n", stderr);
    uninitialize_PYXRuntime();
    return bSaved ? 0 : 1;
}
