// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StatusHashStream.h"

#include "PYXTraceWrapper.h"
#include "VariantStreamChecker.h"

#include <QtCore/QIODevice>

#include <limits>
#include <new>

namespace PYXRuntime::StatusHashStream {
namespace {

constexpr const char *TraceFile = "source\\PYXStatusHash";
constexpr qint64 FirstLook = 4096;
constexpr qint64 LargestLook = std::numeric_limits<int>::max() / 2;
// Types of the application that read hashes which hold such types are looked through by loading them.
constexpr int MaximumLooks = 8;

thread_local const QIODevice *t_checkedDevice = nullptr;
thread_local int t_looks = 0;

/** Sets a variable for as long as it lives. */
template <typename T>
class Scoped final
{
public:
    Scoped(T &variable, T value)
        : m_variable(variable)
        , m_previous(variable)
    {
        m_variable = value;
    }
    ~Scoped() { m_variable = m_previous; }
    Scoped(const Scoped &) = delete;
    Scoped &operator=(const Scoped &) = delete;

private:
    T &m_variable;
    const T m_previous;
};

void reserve(QVariantHash &entries, quint32 count)
{
    entries.clear();
    entries.reserve(int(qMin(count, quint32(std::numeric_limits<int>::max() / 2))));
}

void read(QDataStream &stream, QVariantHash &entries)
{
    quint32 count = 0;
    stream >> count;
    reserve(entries, stream.status() == QDataStream::Ok ? count : 0);
    QString key;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QVariant value;
        stream >> key >> value;
        entries.insert(key, value);
    }
}

} // namespace

void write(QDataStream &stream, quint32 magicNumber, const QVariantHash &entries)
{
    stream << magicNumber << FormatVersion << entries;
}

QVariantHash restorable(const QVariantHash &entries, QDataStream::Version version)
{
    QVariantHash kept;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(version);
        write(stream, 0, {{entry.key(), entry.value()}});
        if (isIntact(bytes, version))
            kept.insert(entry.key(), entry.value());
        else
            PYXTraceWrapper::staticTraceWarn(
                QStringLiteral("PYXStatusHash: the value of '%1' (%2) could not be restored and is not saved")
                    .arg(entry.key(), QString::fromLatin1(entry.value().typeName())),
                TraceFile, __LINE__);
    }
    return kept;
}

bool isIntact(const QByteArray &bytes, QDataStream::Version version)
{
    return VariantStreamChecker(version).hashLength(bytes, HeaderSize) >= 0;
}

bool loadEntries(QDataStream &stream, QVariantHash &entries)
{
    const Scoped<const QIODevice *> checked(t_checkedDevice, stream.device());
    try {
        read(stream, entries);
    } catch (const std::bad_alloc &) {
        stream.setStatus(QDataStream::ReadCorruptData); // asked for by a type of the application
    }
    if (stream.status() == QDataStream::Ok)
        return true;
    entries.clear();
    return false;
}

bool isIntactAhead(const QDataStream &stream)
{
    QIODevice *const device = stream.device();
    if (device == nullptr || t_looks >= MaximumLooks)
        return false;
    if (device == t_checkedDevice)
        return true;
    const Scoped<int> looks(t_looks, t_looks + 1);
    // More and more, so that a small hash in front of much else costs little.
    for (qint64 size = FirstLook; size <= LargestLook; size *= 4) {
        const QByteArray bytes = device->peek(size);
        if (isIntact(bytes, QDataStream::Version(stream.version())))
            return true;
        if (bytes.size() < size)
            return false;
    }
    return false;
}

} // namespace PYXRuntime::StatusHashStream
