// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>
#include <QtCore/QRectF>

#include <vector>

class QPainter;

namespace BandMonitor {

/** The frequencies that the views show: a band, or the part of it that the user has zoomed to. */
class FrequencyAxis final : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /** Shows the whole of a band, in Hz. The same band again leaves the zoom as it is. */
    void setBand(double low, double high);
    double low() const { return m_low; }
    double high() const { return m_high; }

    /** Shows a part that is so many times as wide; @p frequency stays where it is. */
    void zoom(double factor, double frequency);
    void move(double distance);
    void showBand();

    double position(double frequency, const QRectF &plot) const;
    double frequencyAt(double position, const QRectF &plot) const;

    /** Draws the lines of the grid into the plot, and their labels in the margin below it. */
    void paint(QPainter &painter, const QRectF &plot, const QColor &gridColour,
               const QColor &textColour) const;

Q_SIGNALS:
    void si_changed();

private:
    void _show(double low, double high);

    double m_bandLow = 0;
    double m_bandHigh = 1;
    double m_low = 0;
    double m_high = 1;
};

} // namespace BandMonitor
