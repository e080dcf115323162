// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ContrastColor.h"

#include <algorithm>
#include <cmath>

namespace PYXRuntime {
namespace {

// Level AA of the guidelines for text of normal size, and a little for rounding to 8 bits.
constexpr double WantedContrast = 4.55;
constexpr int MediumLightness = 45; // percent

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

double relativeLuminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastRatio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor contrastColor(int hue, int saturation, const QColor &oneGround, const QColor &otherGround)
{
    QColor best;
    double bestContrast = 0;
    int bestDistance = 101;
    for (int lightness = 0; lightness <= 100; ++lightness) {
        const QColor tone = QColor::fromHslF(hue / 360.0, saturation / 100.0, lightness / 100.0);
        const double contrast =
            std::min({contrastRatio(tone, oneGround), contrastRatio(tone, otherGround), WantedContrast});
        const int distance = std::abs(lightness - MediumLightness);
        if (contrast > bestContrast || (contrast >= bestContrast && distance < bestDistance)) {
            best = tone;
            bestContrast = contrast;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace PYXRuntime
