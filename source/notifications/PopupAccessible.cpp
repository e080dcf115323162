// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PopupAccessible.h"

#include "PopupInset.h"
#include "PYXPopupNotificationWidget.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

namespace PYXRuntime {
namespace {

QAccessibleInterface *createInterface(const QString & /*className*/, QObject *object)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    if (qobject_cast<PYXPopupNotificationWidget *>(widget) == nullptr &&
        qobject_cast<PopupInset *>(widget) == nullptr)
        return nullptr;
    return new QAccessibleWidget(widget, QAccessible::AlertMessage);
}

} // namespace

void installPopupAccessibility()
{
    QAccessible::installFactory(&createInterface); // the same one again is ignored
}

void announcePopup(QWidget *widget)
{
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace PYXRuntime
