// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QMargins>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <array>

class QPalette;

namespace PYXRuntime {

/**
 * What the widgets of the family ask of style beyond QStyle and QPalette, answered for the current style,
 * palette and font. Initialising the library creates it. Main thread only.
 *
 * Without a QApplication, as in a program without windows, the answers are those for a white ground.
 */
class PYXRUNTIME_EXPORT PYXStyleHints final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXStyleHints)
public:
    enum eColor { ekColor_Error, ekColor_Warning, ekColor_Success, ekColor_Information };
    Q_ENUM(eColor)

    enum eIconSize {
        ekIconSize_Small,   ///< in menus, buttons and lists
        ekIconSize_ToolBar, ///< in tool bars
        ekIconSize_Large    ///< in message boxes and lists of large icons
    };
    Q_ENUM(eIconSize)

    ~PYXStyleHints() override;

    static PYXStyleHints *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** Whether text is lighter than what it stands on. */
    bool isDark() const { return m_bDark; }
    /**
     * A colour for texts and lines with that meaning. It stands out by 4.5 to 1 at least from the palette's
     * window and base colours, so that it can be read on both; where they are so different that no colour
     * does, it is the best there is.
     */
    QColor color(eColor meaning) const;
    /** In device-independent pixels. */
    QSize iconSize(eIconSize size) const;
    /** Around the contents of a window. */
    QMargins windowMargins() const;
    /** Between widgets that stand beside or below each other. */
    int spacing() const;
    /** The system's font of fixed pitch, as large as the application's font. */
    QFont monospaceFont() const;

    static bool staticIsDark() { return getInstance()->isDark(); }
    static QColor staticColor(eColor meaning) { return getInstance()->color(meaning); }
    static QSize staticIconSize(eIconSize size) { return getInstance()->iconSize(size); }
    static QMargins staticWindowMargins() { return getInstance()->windowMargins(); }
    static int staticSpacing() { return getInstance()->spacing(); }
    static QFont staticMonospaceFont() { return getInstance()->monospaceFont(); }

Q_SIGNALS:
    /** Palette or font of the application have changed: ask again. */
    void si_styleHintsChanged();

private Q_SLOTS:
    void _sl_qapp_paletteChanged();

private:
    PYXStyleHints();
    void _takePalette(const QPalette &palette);
    void _takeGrounds(const QColor &window, const QColor &base);

    bool m_bDark = false;
    std::array<QColor, ekColor_Information + 1> m_colors;
};

} // namespace PYXRuntime
