// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

namespace PYXRuntime {

class PYXPopupNotificationWidget;

/**
 * Short texts that are shown one after another in a PYXPopupNotificationWidget.
 *
 * Texts may be queued from any thread; the widget is made and shown in the GUI thread, from its event loop.
 * A @p parent is handed over in the GUI thread; it may go before its text is shown, which then comes up as
 * one without a parent. Times are in milliseconds; one of zero or less is replaced by 500 (fade in),
 * 1000 (show) and 500 (fade out).
 *
 * Without a QApplication there is nothing to show a text on: it is traced instead. What is still queued
 * when the QApplication goes, or when the library is shut down, is dropped.
 */
class PYXRUNTIME_EXPORT PYXPopupNotification final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXPopupNotification)
public:
    ~PYXPopupNotification() override;

    /** Any thread. Does nothing without a QApplication. */
    static void makeSureInitialized();
    static bool hasInstance();
    /** Drops the queue, and what is being shown. The connections of connect_queueEmpty() go with it. */
    static void destroyInstance();

    static void queueNotification(const QString &text, int fadeInMs, int showMs, int fadeOutMs,
                                  QWidget *parent);
    static void queueNotification(const QString &text, int showMs, QWidget *parent);
    static void queueNotification(const QString &text, QWidget *parent);
    static void queueNotification(const QString &text);

    /** With half the fading times, and half the default time in between. */
    static void queueQuickNotification(const QString &text);
    static void queueQuickNotification(const QString &text, int showMs, QWidget *parent);
    static void queueQuickNotification(const QString &text, QWidget *parent);

    /**
     * Connects si_queueEmpty() to a signal or slot of @p receiver, as SIGNAL() or SLOT() names it.
     * @return false if that is not possible, or without a QApplication.
     */
    static bool connect_queueEmpty(QObject *receiver, const char *member);
    static bool disconnect_queueEmpty(QObject *receiver, const char *member);

Q_SIGNALS:
    /** The last text has faded out. */
    void si_queueEmpty();

private Q_SLOTS:
    void _popupNewMessage();

private:
    struct struEntry
    {
        QString text;
        int fadeInMs = 0;
        int showMs = 0;
        int fadeOutMs = 0;
        QPointer<QWidget> parent;
    };

    PYXPopupNotification();
    static PYXPopupNotification *_lockedInstance();
    static bool _isConnectable(const QObject *receiver, const char *member);
    bool _takeEntry(struEntry *entry);
    void _scheduleNext();

    QList<struEntry> m_queue;
    QPointer<PYXPopupNotificationWidget> m_widget;
};

} // namespace PYXRuntime
