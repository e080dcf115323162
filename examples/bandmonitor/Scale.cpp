// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Scale.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace BandMonitor {

double niceStep(double span, int maximumParts)
{
    const double least = span / std::max(maximumParts, 1);
    if (!(least > 0) || !std::isfinite(least))
        return 1;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least * (1 - 1e-9))
            return factor * decade;
    }
    return 10 * decade;
}

std::vector<double> ticks(double low, double high, double step)
{
    std::vector<double> values;
    const double first = std::ceil(low / step - 1e-6);
    const int count = int(std::floor(high / step + 1e-6) - first) + 1;
    values.reserve(std::size_t(std::max(count, 0)));
    for (int i = 0; i < count; ++i)
        values.push_back((first + i) * step + 0.0); // -0 becomes 0
    return values;
}

QColor mixed(const QColor &first, const QColor &second, double share)
{
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

QFont smallerFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * 0.9);
    return font;
}

double sharp(const QPainter &painter, double coordinate)
{
    const double ratio = painter.device()->devicePixelRatioF();
    return (std::floor(coordinate * ratio) + 0.5) / ratio;
}

} // namespace BandMonitor
