// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PopupPlace.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace PYXRuntime {
namespace {

bool canHost(const QWidget *window)
{
    const Qt::WindowType type = window->windowType();
    return window->isVisible() && !window->isMinimized() && (type == Qt::Window || type == Qt::Dialog);
}

} // namespace

bool canPlaceAndFadeWindows()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QRect popupReference(const QWidget *parent)
{
    if (parent == nullptr)
        parent = QApplication::activeWindow();
    if (parent == nullptr) {
        const QScreen *const screen = QGuiApplication::primaryScreen();
        return screen == nullptr ? QRect() : screen->availableGeometry();
    }
    if (parent->isWindow())
        return parent->frameGeometry();
    return QRect(parent->mapToGlobal(QPoint()), parent->size());
}

QWidget *popupHost(QWidget *parent)
{
    if (parent != nullptr && canHost(parent->window()))
        return parent->window();
    if (QWidget *const active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.cbegin(), windows.cend(), canHost);
    return found == windows.cend() ? nullptr : *found;
}

QRect centred(QSize size, const QRect &reference)
{
    QRect rectangle(QPoint(), size);
    rectangle.moveCenter(reference.center());
    return rectangle;
}

} // namespace PYXRuntime
