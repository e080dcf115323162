// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXPopupNotification.h"

#include "DataMutex.h"
#include "PYXPopupNotificationWidget.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QThread>
#include <QtWidgets/QApplication>

#include <mutex>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXPopupNotification";
constexpr int DefaultFadeMs = 500;
constexpr int DefaultShowMs = 1000;
constexpr int QuickFadeMs = 250;
constexpr int QuickShowMs = 500;

/** The singleton and its queue are reached under one lock, so that it cannot go while a text is queued. */
struct struGuarded
{
    DataMutex mutex;
    PYXPopupNotification *instance = nullptr;
};

struGuarded &guarded()
{
    static auto *const holder = new struGuarded;
    return *holder;
}

using Lock = std::lock_guard<DataMutex>;

bool hasWidgetApplication()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr &&
           !QCoreApplication::closingDown();
}

} // namespace

PYXPopupNotification::PYXPopupNotification() = default;

PYXPopupNotification::~PYXPopupNotification()
{
    delete m_widget;
}

PYXPopupNotification *PYXPopupNotification::_lockedInstance()
{
    struGuarded &holder = guarded();
    if (holder.instance == nullptr && hasWidgetApplication()) {
        holder.instance = new PYXPopupNotification;
        holder.instance->moveToThread(QCoreApplication::instance()->thread());
        // Widgets go before the application does.
        qAddPostRoutine(&PYXPopupNotification::destroyInstance);
    }
    return holder.instance;
}

void PYXPopupNotification::makeSureInitialized()
{
    const Lock lock(guarded().mutex);
    _lockedInstance();
}

bool PYXPopupNotification::hasInstance()
{
    const Lock lock(guarded().mutex);
    return guarded().instance != nullptr;
}

void PYXPopupNotification::destroyInstance()
{
    PYXPopupNotification *instance = nullptr;
    {
        const Lock lock(guarded().mutex);
        std::swap(instance, guarded().instance);
    }
    if (instance == nullptr)
        return;
    qRemovePostRoutine(&PYXPopupNotification::destroyInstance);
    if (instance->thread() == QThread::currentThread())
        delete instance;
    else
        instance->deleteLater();
}

void PYXPopupNotification::queueNotification(const QString &text, int fadeInMs, int showMs, int fadeOutMs,
                                             QWidget *parent)
{
    {
        const Lock lock(guarded().mutex);
        if (PYXPopupNotification *const instance = _lockedInstance()) {
            instance->m_queue.append({text, fadeInMs, showMs, fadeOutMs, parent});
            instance->_scheduleNext();
            return;
        }
    }
    // A tracer may want to show what it gets, which would come back to here.
    thread_local bool bTracing = false;
    if (bTracing)
        return;
    bTracing = true;
    PYXTraceWrapper::staticTraceInfo(text, TraceFile, __LINE__);
    bTracing = false;
}

void PYXPopupNotification::queueNotification(const QString &text, int showMs, QWidget *parent)
{
    queueNotification(text, DefaultFadeMs, showMs, DefaultFadeMs, parent);
}

void PYXPopupNotification::queueNotification(const QString &text, QWidget *parent)
{
    queueNotification(text, DefaultShowMs, parent);
}

void PYXPopupNotification::queueNotification(const QString &text)
{
    queueNotification(text, nullptr);
}

void PYXPopupNotification::queueQuickNotification(const QString &text)
{
    queueQuickNotification(text, nullptr);
}

void PYXPopupNotification::queueQuickNotification(const QString &text, int showMs, QWidget *parent)
{
    queueNotification(text, QuickFadeMs, showMs, QuickFadeMs, parent);
}

void PYXPopupNotification::queueQuickNotification(const QString &text, QWidget *parent)
{
    queueQuickNotification(text, QuickShowMs, parent);
}

/** Also warns where it is not. To be called unlocked: whoever handles the warning may queue a text. */
bool PYXPopupNotification::_isConnectable(const QObject *receiver, const char *member)
{
    const PYXPopupNotification probe;
    return receiver != nullptr && member != nullptr &&
           connect(&probe, SIGNAL(si_queueEmpty()), receiver, member);
}

bool PYXPopupNotification::connect_queueEmpty(QObject *receiver, const char *member)
{
    if (!_isConnectable(receiver, member))
        return false;
    const Lock lock(guarded().mutex);
    const PYXPopupNotification *const instance = _lockedInstance();
    return instance != nullptr && connect(instance, SIGNAL(si_queueEmpty()), receiver, member);
}

bool PYXPopupNotification::disconnect_queueEmpty(QObject *receiver, const char *member)
{
    if (receiver == nullptr || (member != nullptr && !_isConnectable(receiver, member)))
        return false;
    const Lock lock(guarded().mutex);
    const PYXPopupNotification *const instance = guarded().instance;
    return instance != nullptr && QObject::disconnect(instance, SIGNAL(si_queueEmpty()), receiver, member);
}

void PYXPopupNotification::_scheduleNext()
{
    QMetaObject::invokeMethod(this, "_popupNewMessage", Qt::QueuedConnection);
}

bool PYXPopupNotification::_takeEntry(struEntry *entry)
{
    const Lock lock(guarded().mutex);
    if (!m_widget.isNull() && !m_widget->isFinished())
        return false;
    if (m_queue.isEmpty()) {
        QMetaObject::invokeMethod(this, "si_queueEmpty", Qt::QueuedConnection);
        return false;
    }
    *entry = m_queue.takeFirst();
    return true;
}

void PYXPopupNotification::_popupNewMessage()
{
    struEntry entry;
    if (!_takeEntry(&entry))
        return;
    if (m_widget.isNull()) {
        m_widget = new PYXPopupNotificationWidget;
        connect(m_widget.data(), &PYXPopupNotificationWidget::finished, this,
                &PYXPopupNotification::_popupNewMessage, Qt::QueuedConnection);
    }
    m_widget->setText(entry.text);
    m_widget->popup(entry.fadeInMs, entry.showMs, entry.fadeOutMs, entry.parent);
}

} // namespace PYXRuntime
