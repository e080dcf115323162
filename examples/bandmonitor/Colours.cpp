// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Colours.h"

#include "Scale.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace BandMonitor {
namespace {

// So much of the highlight is behind the chosen entry of a menu: its icon has colours of its own.
constexpr double MenuHighlight = 0.25;

// Styles frame input fields in a darker shade of the window's colour, which has to be seen on dark ground.
constexpr QRgb FrameColour = qRgb(0x82, 0x84, 0x88);
constexpr const char *FramedClasses[] = {"QCheckBox",        "QRadioButton", "QLineEdit",
                                         "QAbstractSpinBox", "QTableView",   "QTreeView"};

/** Light text on dark ground, for rooms with little light. */
QPalette darkPalette()
{
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor base(0x1e, 0x1f, 0x22);
    const QColor text(0xdf, 0xe1, 0xe5);
    const QColor dimmed(0x7a, 0x7e, 0x85);
    QPalette palette(text, window, QColor(0x4a, 0x4d, 0x52), QColor(0x18, 0x19, 0x1b),
                     QColor(0x3c, 0x3f, 0x43), text, Qt::white, base, window);
    palette.setColor(QPalette::Button, QColor(0x36, 0x39, 0x3d));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x2a));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, dimmed);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb8, 0xf5));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dimmed);
    return palette;
}

QPalette menuPalette(QPalette palette)
{
    palette.setColor(QPalette::Highlight, mixed(palette.color(QPalette::Window),
                                                palette.color(QPalette::Highlight), MenuHighlight));
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::WindowText));
    return palette;
}

QPalette framedPalette(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::Window, QColor(FrameColour));
    return palette;
}

} // namespace

void setDarkColours(bool bDark)
{
    const QPalette palette = bDark ? darkPalette() : QApplication::style()->standardPalette();
    QApplication::setPalette(palette);
    QApplication::setPalette(menuPalette(palette), "QMenu");
    for (const char *const name : FramedClasses)
        QApplication::setPalette(bDark ? framedPalette(palette) : palette, name);
}

} // namespace BandMonitor
