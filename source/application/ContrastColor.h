// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtGui/QColor>

namespace PYXRuntime {

/** Where black and white stand out equally: (L + 0.05)^2 = 1.05 * 0.05. */
constexpr double MiddleLuminance = 0.179;

/** 0 for black to 1 for white, as the Web Content Accessibility Guidelines 2.1 define it. */
double relativeLuminance(const QColor &color);

/** 1 for the same colour to 21 for black on white, as the same guidelines define it. */
double contrastRatio(const QColor &one, const QColor &other);

/**
 * The tone that stands out from both grounds by 4.5 at least, and is the nearest to a strong colour of medium
 * lightness; else the one that stands out most.
 * @param hue in degrees
 * @param saturation in percent
 */
QColor contrastColor(int hue, int saturation, const QColor &oneGround, const QColor &otherGround);

} // namespace PYXRuntime
