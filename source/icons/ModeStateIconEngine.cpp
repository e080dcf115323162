// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ModeStateIconEngine.h"

#include "IconFileNames.h"

#include <QtCore/QDataStream>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

namespace PYXRuntime {
namespace {

struct struSubstitute
{
    QIcon::Mode mode;
    bool bSameState;
};

constexpr int ModeCount = 4;
constexpr int SubstituteCount = 8;

/** By mode asked for: what stands in for it, the best first. */
constexpr struSubstitute Substitutes[ModeCount][SubstituteCount] = {{{QIcon::Normal, true},
                                                                     {QIcon::Active, true},
                                                                     {QIcon::Normal, false},
                                                                     {QIcon::Active, false},
                                                                     {QIcon::Disabled, true},
                                                                     {QIcon::Selected, true},
                                                                     {QIcon::Disabled, false},
                                                                     {QIcon::Selected, false}},
                                                                    {{QIcon::Disabled, true},
                                                                     {QIcon::Normal, true},
                                                                     {QIcon::Active, true},
                                                                     {QIcon::Disabled, false},
                                                                     {QIcon::Normal, false},
                                                                     {QIcon::Active, false},
                                                                     {QIcon::Selected, true},
                                                                     {QIcon::Selected, false}},
                                                                    {{QIcon::Active, true},
                                                                     {QIcon::Normal, true},
                                                                     {QIcon::Active, false},
                                                                     {QIcon::Normal, false},
                                                                     {QIcon::Disabled, true},
                                                                     {QIcon::Selected, true},
                                                                     {QIcon::Disabled, false},
                                                                     {QIcon::Selected, false}},
                                                                    {{QIcon::Selected, true},
                                                                     {QIcon::Normal, true},
                                                                     {QIcon::Active, true},
                                                                     {QIcon::Selected, false},
                                                                     {QIcon::Normal, false},
                                                                     {QIcon::Active, false},
                                                                     {QIcon::Disabled, true},
                                                                     {QIcon::Disabled, false}}};

quint64 nextSerial()
{
    static quint64 serial = 0;
    return ++serial;
}

QPixmap styled(const QPixmap &pixmap, QIcon::Mode mode)
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr)
        return pixmap;
    QStyleOption option(0);
    option.palette = QGuiApplication::palette();
    const QPixmap generated = QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    return generated.isNull() ? pixmap : generated;
}

} // namespace

ModeStateIconEngine::ModeStateIconEngine()
    : m_serial(nextSerial())
{}

ModeStateIconEngine::ModeStateIconEngine(const ModeStateIconEngine &other)
    : QIconEngine(other)
    , m_serial(nextSerial())
{}

void ModeStateIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const QPaintDevice *const device = painter->device();
    const qreal ratio = device == nullptr ? 1 : device->devicePixelRatioF();
    const QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
    if (drawn.isNull())
        return;
    QRectF target(QPointF(), QSizeF(drawn.size()).scaled(rect.size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(rect).center());
    painter->drawPixmap(target, drawn, drawn.rect());
}

QPixmap ModeStateIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const std::optional<struModeState> match = _match(mode, state);
    if (!match || size.isEmpty())
        return {};
    const bool bStyled = match->mode != mode && mode != QIcon::Normal;
    if (!bStyled && holds(size, *match))
        return draw(size, *match);
    const QString key = _cacheKey(size, mode, state);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = draw(size, *match);
    if (bStyled && !pixmap.isNull())
        pixmap = styled(pixmap, mode);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QSize ModeStateIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const std::optional<struModeState> match = _match(mode, state);
    return match && !size.isEmpty() ? drawnSize(size, *match) : QSize();
}

QList<QSize> ModeStateIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    const struModeState asked{mode, state};
    return draws(asked) ? sizes(asked) : QList<QSize>();
}

QString ModeStateIconEngine::key() const
{
    return QStringLiteral("QPixmapIconEngine");
}

bool ModeStateIconEngine::write(QDataStream &out) const
{
    QList<struModeState> modeStates;
    QList<QPixmap> pixmaps;
    for (const struIconFileTag &tag : iconFileTags()) {
        for (const QSize &size : draws(tag.modeState) ? sizes(tag.modeState) : QList<QSize>()) {
            modeStates += tag.modeState;
            pixmaps += draw(size, tag.modeState);
        }
    }
    out << int(pixmaps.size());
    for (int i = 0; i < pixmaps.size(); ++i) {
        const QPixmap &pixmap = pixmaps.at(i);
        out << pixmap << QString() << pixmap.size() << uint(modeStates.at(i).mode)
            << uint(modeStates.at(i).state);
    }
    return true;
}

void ModeStateIconEngine::virtual_hook(int id, void *data)
{
    if (id == IsNullHook)
        *static_cast<bool *>(data) = !_match(QIcon::Normal, QIcon::Off);
    else
        QIconEngine::virtual_hook(id, data);
}

void ModeStateIconEngine::forgetDrawings()
{
    m_serial = nextSerial();
}

std::optional<struModeState> ModeStateIconEngine::_match(QIcon::Mode mode, QIcon::State state) const
{
    const QIcon::State otherState = state == QIcon::On ? QIcon::Off : QIcon::On;
    const int number = mode;
    const bool bKnown = number >= 0 && number < ModeCount;
    for (const struSubstitute &substitute : Substitutes[bKnown ? number : int(QIcon::Normal)]) {
        const struModeState candidate{substitute.mode, substitute.bSameState ? state : otherState};
        if (draws(candidate))
            return candidate;
    }
    return {};
}

QString ModeStateIconEngine::_cacheKey(const QSize &size, QIcon::Mode mode, QIcon::State state) const
{
    return QStringLiteral("PYXRuntime icon %1 %2x%3 %4 %5 %6")
        .arg(m_serial)
        .arg(size.width())
        .arg(size.height())
        .arg(int(mode))
        .arg(int(state))
        .arg(QGuiApplication::palette().cacheKey());
}

} // namespace PYXRuntime
