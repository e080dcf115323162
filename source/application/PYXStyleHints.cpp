// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStyleHints.h"

#include "ContrastColor.h"
#include "SingletonHolder.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXStyleHints>;

// Degrees on the colour wheel and percent: the tones that traffic signs have made familiar.
constexpr int Saturation = 85;
constexpr int Hues[] = {0, 35, 130, 212};

QStyle *style()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr ? QApplication::style()
                                                                                 : nullptr;
}

int pixels(QStyle::PixelMetric metric, int withoutStyle)
{
    QStyle *const current = style();
    const int answer = current != nullptr ? current->pixelMetric(metric) : withoutStyle;
    return answer >= 0 ? answer : withoutStyle; // a style may leave layouts to the widgets
}

} // namespace

PYXStyleHints::PYXStyleHints()
{
    setObjectName(QStringLiteral("PYXRuntime::PYXStyleHints"));
    if (auto *const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::paletteChanged, this, &PYXStyleHints::_sl_qapp_paletteChanged);
        connect(application, &QGuiApplication::fontChanged, this, &PYXStyleHints::si_styleHintsChanged);
        _takePalette(QGuiApplication::palette());
    } else {
        _takeGrounds(Qt::white, Qt::white);
    }
}

PYXStyleHints::~PYXStyleHints() = default;

PYXStyleHints *PYXStyleHints::getInstance()
{
    return Holder::instance([] { return new PYXStyleHints; });
}

bool PYXStyleHints::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXStyleHints::makeSureInitialized()
{
    getInstance();
}

void PYXStyleHints::destroyInstance()
{
    delete Holder::take();
}

QColor PYXStyleHints::color(eColor meaning) const
{
    return m_colors.at(size_t(meaning));
}

QSize PYXStyleHints::iconSize(eIconSize size) const
{
    int side = 0;
    switch (size) {
    case ekIconSize_Small:
        side = pixels(QStyle::PM_SmallIconSize, 16);
        break;
    case ekIconSize_ToolBar:
        side = pixels(QStyle::PM_ToolBarIconSize, 24);
        break;
    case ekIconSize_Large:
        side = pixels(QStyle::PM_LargeIconSize, 32);
        break;
    }
    return {side, side};
}

QMargins PYXStyleHints::windowMargins() const
{
    constexpr int WithoutStyle = 9;
    return {pixels(QStyle::PM_LayoutLeftMargin, WithoutStyle),
            pixels(QStyle::PM_LayoutTopMargin, WithoutStyle),
            pixels(QStyle::PM_LayoutRightMargin, WithoutStyle),
            pixels(QStyle::PM_LayoutBottomMargin, WithoutStyle)};
}

int PYXStyleHints::spacing() const
{
    return pixels(QStyle::PM_LayoutVerticalSpacing, 6);
}

QFont PYXStyleHints::monospaceFont() const
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return {};
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) { // some platforms just give their general font
        font.setFamily(QStringLiteral("monospace"));
        font.setStyleHint(QFont::Monospace);
    }
    const QFont applications = QGuiApplication::font();
    if (applications.pointSizeF() > 0)
        font.setPointSizeF(applications.pointSizeF());
    else
        font.setPixelSize(applications.pixelSize());
    return font;
}

void PYXStyleHints::_sl_qapp_paletteChanged()
{
    _takePalette(QGuiApplication::palette());
    Q_EMIT si_styleHintsChanged();
}

void PYXStyleHints::_takePalette(const QPalette &palette)
{
    _takeGrounds(palette.color(QPalette::Window), palette.color(QPalette::Base));
}

void PYXStyleHints::_takeGrounds(const QColor &window, const QColor &base)
{
    m_bDark = relativeLuminance(window) < MiddleLuminance;
    for (size_t i = 0; i < m_colors.size(); ++i)
        m_colors[i] = contrastColor(Hues[i], Saturation, window, base);
}

} // namespace PYXRuntime
