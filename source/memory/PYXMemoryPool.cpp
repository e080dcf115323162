// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMemoryPool.h"

#include "MemoryPoolCore.h"
#include "PYXMessageOutput.h"
#include "PYXStdMemoryAllocator.h"

#include <QtCore/QTimer>

namespace PYXRuntime {
namespace {

constexpr int DefaultPurgeIntervalMs = 60'000;
constexpr int DefaultPurgeAgeSeconds = 30;
constexpr int AddressDigits = 16;

/** The way back into the pool. It has no state: the block knows where it belongs. */
struct GiveBack
{
    void operator()(PooledBlock *block) const { MemoryPoolCore::giveBack(block); }
};

QSharedPointer<Interfaces::IPYXMemoryAllocator>
orStandard(const QSharedPointer<Interfaces::IPYXMemoryAllocator> &allocator)
{
    return allocator != nullptr ? allocator : QSharedPointer<PYXStdMemoryAllocator>::create();
}

void report(const MemoryPoolBooks::Areas &acquired)
{
    pyx_message_output(
        QStringLiteral("PYXMemoryPool: there are still %1 block(s) acquired").arg(acquired.size()));
    pyx_message_output("PYXMemoryPool: the blocks will be deleted when the last reference goes out of scope");
    for (const MemoryPoolBooks::struArea &area : acquired) {
        pyx_message_output(QStringLiteral("\t %1 bytes at 0x%2")
                               .arg(area.byteSize)
                               .arg(quint64(quintptr(area.data)), AddressDigits, 16, QLatin1Char('0')));
    }
}

} // namespace

PYXMemoryPool::PYXMemoryPool(const QSharedPointer<Interfaces::IPYXMemoryAllocator> &allocator,
                             QObject *parent)
    : QObject(parent)
    , m_autoPurgeInterval(DefaultPurgeIntervalMs)
    , m_autoPurgeAge(DefaultPurgeAgeSeconds)
    , m_core(std::make_shared<MemoryPoolCore>(orStandard(allocator)))
{
    setAutoPurgeEnabled(true);
}

PYXMemoryPool::~PYXMemoryPool()
{
    MemoryPoolBooks::Blocks free;
    const MemoryPoolBooks::Areas acquired = m_core->close(free);
    if (!acquired.empty())
        report(acquired);
    m_core->destroy(free);
}

QSharedPointer<PYXMemoryBlock> PYXMemoryPool::acquire(quint64 byteSize, unsigned long timeoutMs)
{
    PooledBlock *const block = m_core->acquire(byteSize, timeoutMs);
    return block != nullptr ? QSharedPointer<PYXMemoryBlock>(block, GiveBack()) : nullptr;
}

unsigned int PYXMemoryPool::preallocate(quint64 byteSize, unsigned int count)
{
    return m_core->preallocate(byteSize, count);
}

void PYXMemoryPool::purgeNow(int ageSeconds)
{
    m_core->purge(ageSeconds);
}

void PYXMemoryPool::purgeNow()
{
    purgeNow(m_autoPurgeAge);
}

PYXMemoryPool::struStatistics PYXMemoryPool::statistics() const
{
    return m_core->statistics();
}

unsigned int PYXMemoryPool::maximumPoolSize() const
{
    return m_core->maximum();
}

void PYXMemoryPool::setAutoPurgeEnabled(bool enable)
{
    if (enable == isAutoPurgeEnabled())
        return;
    if (!enable) {
        delete m_autoPurgeTimer;
        m_autoPurgeTimer = nullptr;
        return;
    }
    m_autoPurgeTimer = new QTimer(this);
    connect(m_autoPurgeTimer, &QTimer::timeout, this, &PYXMemoryPool::_sl_autoPurgeTimer_timeout);
    m_autoPurgeTimer->start(m_autoPurgeInterval);
}

void PYXMemoryPool::setAutoPurgeInterval(int milliseconds)
{
    if (milliseconds == m_autoPurgeInterval)
        return;
    m_autoPurgeInterval = milliseconds;
    if (m_autoPurgeTimer != nullptr)
        m_autoPurgeTimer->setInterval(milliseconds);
}

void PYXMemoryPool::setAutoPurgeAge(int seconds)
{
    m_autoPurgeAge = seconds;
}

void PYXMemoryPool::setMaximumPoolSize(unsigned int maximum)
{
    m_core->setMaximum(maximum);
}

void PYXMemoryPool::_sl_autoPurgeTimer_timeout()
{
    purgeNow(m_autoPurgeAge);
}

} // namespace PYXRuntime
