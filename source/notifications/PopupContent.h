// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QPixmap>

#include <vector>

class QPainter;
class QWidget;

namespace PYXRuntime {

/** What a pop-up shows, laid out for the font, style and direction of a widget: a pixmap beside a text. */
class PopupContent final
{
public:
    /**
     * @param pixmap if null, the default one
     * @param available what all of it may take
     * @param widget is not kept
     */
    PopupContent(const QString &text, const QPixmap &pixmap, QSize available, const QWidget *widget);

    QSize size() const { return m_size; }
    /** The lines as they are shown, the last one elided where the text was too long. */
    QStringList lines() const;
    /** Paints all of it, with the border, in the palette of @p widget. */
    void paint(QPainter *painter, const QWidget *widget) const;
    /** The radius of the rounded corners. */
    int radius() const { return m_margin / 2; }

    /** The pixmap of a pop-up that was given none. */
    static QPixmap defaultPixmap(const QWidget *widget);

private:
    struct struLine
    {
        QString text;
        bool bRightToLeft = false;
    };

    void _breakLines(QString text, const QWidget *widget);
    /** @return false when there is no room for another line */
    bool _breakParagraph(const QString &paragraph, const QWidget *widget, bool isLast);
    void _append(const QString &text, const QWidget *widget);
    void _elideLastLine(const QString &rest, const QWidget *widget);
    void _fitPixmap(const QWidget *widget);

    std::vector<struLine> m_lines;
    QPixmap m_pixmap;
    QSize m_pixmapSize;
    QSize m_textSize;
    QSize m_size;
    int m_lineHeight;
    int m_margin;
    int m_maximumWidth;
    std::size_t m_maximumLines;
};

} // namespace PYXRuntime
