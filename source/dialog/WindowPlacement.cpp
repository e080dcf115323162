// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WindowPlacement.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace PYXRuntime::WindowPlacement {
namespace {

QRect availableAround(const QPoint &centre)
{
    const QScreen *screen = QGuiApplication::screenAt(centre);
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->availableGeometry() : QRect();
}

} // namespace

void clampToScreen(QWidget &window)
{
    const QRect available = availableAround(window.geometry().center());
    if (available.isEmpty() || window.isMaximized() || window.isFullScreen())
        return;
    const QSize frame = window.frameGeometry().size() - window.size();
    window.resize(window.size().boundedTo(available.size() - frame));
    const QRect outer = window.frameGeometry();
    const int x = qBound(available.left(), outer.left(), available.right() + 1 - outer.width());
    const int y = qBound(available.top(), outer.top(), available.bottom() + 1 - outer.height());
    if (outer.topLeft() != QPoint(x, y))
        window.move(x, y);
}

void centre(QWidget &window)
{
    const QWidget *const parent =
        window.parentWidget() != nullptr ? window.parentWidget()->window() : nullptr;
    const QRect ground = parent != nullptr ? parent->frameGeometry() : availableAround(window.pos());
    QRect outer(QPoint(), window.frameGeometry().size());
    outer.moveCenter(ground.center());
    window.move(outer.topLeft());
    clampToScreen(window);
}

} // namespace PYXRuntime::WindowPlacement
