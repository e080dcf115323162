// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Units.h"

#include "SampleSource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <cmath>

namespace BandMonitor {
namespace {

struct UnitTexts
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::Units)
};

/** Decimals are those for kHz; the other units have three more or less. */
QString hertzText(double hertz, int decimals)
{
    const double size = std::round(std::abs(hertz)); // 999.9 Hz is shown as 1 kHz
    const QLocale locale;
    if (size >= 1e6)
        return locale.toString(hertz / 1e6, 'f', decimals + 3) + QLatin1String(" MHz");
    if (size >= 1e3)
        return locale.toString(hertz / 1e3, 'f', decimals) + QLatin1String(" kHz");
    return locale.toString(hertz, 'f', 0) + QLatin1String(" Hz");
}

} // namespace

QString frequencyText(double hertz)
{
    return hertzText(hertz, 3);
}

QString bandwidthText(double hertz)
{
    return hertzText(hertz, 2);
}

QString levelText(double dbfs)
{
    return QLocale().toString(dbfs, 'f', 1) + QLatin1String(" dBFS");
}

QString timeText(double seconds)
{
    const auto tenths = std::lround(seconds * 10);
    return QStringLiteral("%1:%2%3%4")
        .arg(QString::number(tenths / 600),
             QString::number(tenths / 10 % 60).rightJustified(2, QLatin1Char('0')), QLocale().decimalPoint(),
             QString::number(tenths % 10));
}

QString sourceText(const SampleSource &source)
{
    const QString rate = QLocale().toString(source.sampleRate() / 1000, 'g', 7) + QLatin1String(" kHz");
    return (source.isComplex() ? UnitTexts::tr("%1 I/Q, %2") : UnitTexts::tr("%1 real, %2"))
        .arg(rate, source.coding());
}

} // namespace BandMonitor
