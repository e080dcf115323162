// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "struCompositeIconLayer.h"

#include <QtGui/QIconEngine>

#include <optional>

namespace PYXRuntime {

/**
 * Base of icon engines that draw some modes and states themselves: derives the other ones as QIcon does, and
 * keeps what is drawn. Sizes are device pixels.
 */
class ModeStateIconEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    /** That of QIcon's own engine, whose stream form this writes. */
    QString key() const override;
    bool write(QDataStream &out) const override;
    void virtual_hook(int id, void *data) override;

protected:
    ModeStateIconEngine();
    /** A copy keeps what it draws apart. */
    ModeStateIconEngine(const ModeStateIconEngine &other);
    ModeStateIconEngine &operator=(const ModeStateIconEngine &) = delete;

    virtual bool draws(const struModeState &modeState) const = 0;
    /** The size drawn for one asked for, which it may fall short of, but never exceeds. */
    virtual QSize drawnSize(const QSize &size, const struModeState &modeState) const = 0;
    /** Whether drawing this takes no time. */
    virtual bool holds(const QSize &size, const struModeState &modeState) const = 0;
    virtual QPixmap draw(const QSize &size, const struModeState &modeState) const = 0;
    virtual QList<QSize> sizes(const struModeState &modeState) const = 0;

    /** To be called when drawings change. */
    void forgetDrawings();

private:
    std::optional<struModeState> _match(QIcon::Mode mode, QIcon::State state) const;
    QString _cacheKey(const QSize &size, QIcon::Mode mode, QIcon::State state) const;

    quint64 m_serial;
};

} // namespace PYXRuntime
