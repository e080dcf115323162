// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ColourMap.h"

#include "Scale.h"

#include <algorithm>
#include <array>

namespace BandMonitor {
namespace {

constexpr double LowestLevel = -150;
constexpr double LevelStep = 0.6;

// Every tenth part of the map "inferno" by Nathaniel Smith and Stefan van der Walt (CC0), whose lightness
// rises evenly, also in grey and for the colour-blind.
constexpr std::array<QRgb, 11> Colours = {
    qRgb(0, 0, 4),      qRgb(22, 11, 57),   qRgb(66, 10, 104),   qRgb(106, 23, 110),
    qRgb(147, 38, 103), qRgb(188, 55, 84),  qRgb(221, 81, 58),   qRgb(243, 120, 25),
    qRgb(252, 165, 10), qRgb(246, 215, 70), qRgb(252, 255, 164),
};

} // namespace

QColor levelColour(double share)
{
    const double place = std::clamp(share, 0.0, 1.0) * double(Colours.size() - 1);
    const std::size_t index = std::min(std::size_t(place), Colours.size() - 2);
    return mixed(Colours[index], Colours[index + 1], place - double(index));
}

quint8 levelByte(double level)
{
    return quint8(std::clamp((level - LowestLevel) / LevelStep, 0.0, 255.0));
}

QVector<QRgb> colourTable(const struLevelRange &range)
{
    QVector<QRgb> table;
    for (int byte = 0; byte <= 255; ++byte)
        table += levelColour(range.share(LowestLevel + LevelStep * byte)).rgb();
    return table;
}

} // namespace BandMonitor
