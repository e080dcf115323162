// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SoakWorker.h"

#include <PYXBroker.h>
#include <PYXBrokerRegistration.h>
#include <PYXMemoryPool.h>
#include <PYXNotification.h>
#include <PYXPopupNotification.h>
#include <PYXRuntimeCenter.h>
#include <PYXSettings.h>
#include <PYXTraceWrapper.h>

#include <QtCore/QSharedPointer>

using namespace PYXRuntime;

namespace {

constexpr int Rounds = 50;
constexpr unsigned long Pause = 100; // in ms

const char TraceSource[] = "soak\\SoakWorker";

} // namespace

void SoakWorker::run()
{
    PYXMemoryPool pool{QSharedPointer<Interfaces::IPYXMemoryAllocator>()};
    for (int round = 0; round < Rounds; ++round) {
        QVector<QSharedPointer<PYXMemoryBlock>> blocks;
        for (int i = 1; i <= 4; ++i)
            blocks += pool.acquire(quint64(i) * 65536);
        _work(round);
        msleep(Pause);
    }
    PYXPopupNotification::queueQuickNotification(QStringLiteral("A thread has ended"));
}

void SoakWorker::_work(int round) const
{
    PYXTraceWrapper::staticTraceInfo(QStringLiteral("round %1").arg(round), TraceSource, __LINE__);
    if (round == Rounds / 2)
        PYXTraceWrapper::staticTraceError(QStringLiteral("half of the rounds"), TraceSource, __LINE__);
    const uint scope = PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("SoakWorker"),
                                                              QStringLiteral("Rounds of the soak's threads"));
    PYX_DEBUG(scope, QStringLiteral("round %1").arg(round));
    QObject object;
    const PYXBrokerRegistration registration(QUuid::createUuid(), uint(round), &object);
    PYXSettings settings(m_directory + QStringLiteral("/worker.PYXXml"));
    settings.setValue(QStringLiteral("Round"), round);
    PYXNotification::willShowMessage(QStringLiteral("Soak"), QString::number(round));
}
