// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStatusHash.h"

#include "DomElementCursor.h"
#include "PYXRuntimeCenter.h"
#include "PYXTraceWrapper.h"
#include "StatusHashStream.h"
#include "StatusHashXmlReader.h"
#include "StatusHashXmlWriter.h"
#include "StreamCursor.h"
#include "StreamElementCursor.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QXmlStreamWriter>

namespace PYXRuntime {
namespace {

constexpr const char *TypeName = "PYXRuntime::PYXStatusHash";
constexpr const char *TraceFile = "source\\PYXStatusHash";
constexpr int AddressDigits = 8;
const QLatin1String UnknownVersion("restoreFrom: unknown version [");
const QLatin1String DamagedEntries("restoreFrom: the entries are damaged");
const QLatin1String MissingRoot("Error parsing PYXStatusHash XML : root tag missing");

const uint s_runtimeScope =
    PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("PYXRuntime"), QStringLiteral("PYXRuntime"));

/** The "%3" is part of the text that log filters know. */
void warn(const PYXStatusHash *hash, const QString &message)
{
    const QString address =
        QString::number(quintptr(hash), 16).rightJustified(AddressDigits, QLatin1Char('0'));
    PYXRuntimeCenter::pyxWarning(s_runtimeScope, QLatin1String(TypeName) + QLatin1String("[0x") + address +
                                                     QLatin1String("]: %3: ") + message);
}

void traceXmlError(const QString &text)
{
    PYXTraceWrapper::staticTraceX_Error(
        QCoreApplication::translate("PYXRuntime::PYXStatusHash", "Invalid Xml"), text, TraceFile, __LINE__);
}

/** Streams hashes in one form, whatever a stream is set to. */
class StandardForm final
{
public:
    explicit StandardForm(QDataStream &stream)
        : m_stream(stream)
        , m_order(stream.byteOrder())
        , m_precision(stream.floatingPointPrecision())
    {
        m_stream.setByteOrder(QDataStream::BigEndian);
        m_stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    }
    ~StandardForm()
    {
        m_stream.setByteOrder(m_order);
        m_stream.setFloatingPointPrecision(m_precision);
    }
    StandardForm(const StandardForm &) = delete;
    StandardForm &operator=(const StandardForm &) = delete;

private:
    QDataStream &m_stream;
    const QDataStream::ByteOrder m_order;
    const QDataStream::FloatingPointPrecision m_precision;
};

} // namespace

PYXStatusHash::PYXStatusHash()
    : PYXStatusHash(DefaultVersion)
{}

PYXStatusHash::PYXStatusHash(QDataStream::Version version)
    : m_streamVersion(version)
{
    registerMetaType();
}

PYXStatusHash::PYXStatusHash(quint32 magicNumber, QDataStream::Version version)
    : PYXStatusHash(version)
{
    m_magicNumber = magicNumber;
    m_bMagicFixed = true;
}

PYXStatusHash::~PYXStatusHash() = default;

void PYXStatusHash::insert(const QString &key, const QVariant &value)
{
    m_entries.insert(key, value);
    m_bDirty = true;
}

void PYXStatusHash::insert(const QString &key, const PYXStatusHash &value)
{
    insert(key, QVariant::fromValue(value));
}

void PYXStatusHash::remove(const QString &key)
{
    if (m_entries.remove(key) > 0)
        m_bDirty = true;
}

void PYXStatusHash::clear()
{
    m_entries.clear();
    m_bDirty = true;
}

bool PYXStatusHash::contains(const QString &key) const
{
    return m_entries.contains(key);
}

bool PYXStatusHash::isEmpty() const
{
    return m_entries.isEmpty();
}

QStringList PYXStatusHash::keys() const
{
    return m_entries.keys();
}

const QVariant &PYXStatusHash::value(const QString &key) const
{
    static const QVariant invalid;
    const auto entry = m_entries.constFind(key);
    return entry != m_entries.cend() ? *entry : invalid;
}

bool PYXStatusHash::value(const QString &key, PYXStatusHash &out) const
{
    const QVariant &found = value(key);
    if (found.userType() != qMetaTypeId<PYXStatusHash>())
        return false;
    out = found.value<PYXStatusHash>();
    return true;
}

bool PYXStatusHash::hasSameContentsAs(const PYXStatusHash &other) const
{
    return m_entries == other.m_entries;
}

QByteArray PYXStatusHash::serialize() const
{
    if (!m_bDirty)
        return m_cache;
    const auto serialized = [this](const QVariantHash &entries) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(m_streamVersion);
        StatusHashStream::write(stream, m_magicNumber, entries);
        return bytes;
    };
    m_cache = serialized(m_entries);
    if (!StatusHashStream::isIntact(m_cache, m_streamVersion))
        m_cache = serialized(StatusHashStream::restorable(m_entries, m_streamVersion));
    m_bDirty = false;
    return m_cache;
}

bool PYXStatusHash::restoreFrom(const QByteArray &bytes)
{
    // May be a reference to what clear() empties.
    const QByteArray input = bytes; // NOLINT(performance-unnecessary-copy-initialization)
    m_cache.clear();
    m_entries.clear();
    m_bDirty = false;
    if (input.isEmpty())
        return true;
    StreamCursor header(input, 0);
    const auto magicNumber = header.number<quint32>();
    const auto version = header.number<quint32>();
    if (!_accepts(magicNumber))
        return false;
    m_magicNumber = magicNumber;
    if (version != StatusHashStream::FormatVersion) {
        warn(this, UnknownVersion + QString::number(version) + QLatin1Char(']'));
        return false;
    }
    QDataStream stream(input);
    stream.setVersion(m_streamVersion);
    stream.skipRawData(StatusHashStream::HeaderSize);
    if (!StatusHashStream::isIntact(input, m_streamVersion) ||
        !StatusHashStream::loadEntries(stream, m_entries)) {
        warn(this, DamagedEntries);
        return false;
    }
    m_cache = input;
    return true;
}

PYXStatusHash PYXStatusHash::fromSerialized(const QByteArray &bytes)
{
    PYXStatusHash hash;
    hash.restoreFrom(bytes);
    return hash;
}

QByteArray PYXStatusHash::toXml() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QXmlStreamWriter writer(&buffer);
    writer.setCodec("UTF-8");
    writer.setAutoFormatting(true);
    toXmlStream(writer);
    return buffer.data();
}

void PYXStatusHash::toXmlStream(QXmlStreamWriter &writer) const
{
    StatusHashXmlWriter(writer).write(*this);
}

bool PYXStatusHash::restoreFromXml(const QByteArray &xml)
{
    if (xml.isEmpty())
        return true;
    StreamElementCursor cursor(xml);
    StatusHashXmlReader reader(cursor);
    PYXStatusHash restored(*this);
    const bool bRoot = cursor.enterChild() && cursor.tag() == StatusHashXmlReader::RootTag;
    const bool bRestored = bRoot && reader.read(restored);
    if (!cursor.finish()) {
        const QXmlStreamReader &parser = cursor.reader();
        traceXmlError(QStringLiteral("Error reading PYXStatusHash XML: %1 [%2:%3]")
                          .arg(parser.errorString(), QString::number(parser.lineNumber()),
                               QString::number(parser.columnNumber())));
        return false;
    }
    if (!bRoot || !reader.problem().isEmpty())
        traceXmlError(bRoot ? reader.problem() : QString(MissingRoot));
    if (bRestored)
        *this = restored;
    return bRestored;
}

bool PYXStatusHash::restoreFromXml(QDomElement &element)
{
    if (element.tagName() != StatusHashXmlReader::RootTag)
        return false;
    DomElementCursor cursor(element);
    StatusHashXmlReader reader(cursor);
    const bool bRestored = reader.read(*this);
    if (!reader.problem().isEmpty())
        traceXmlError(reader.problem());
    return bRestored;
}

PYXStatusHash PYXStatusHash::fromXml(const QByteArray &xml)
{
    PYXStatusHash hash;
    hash.restoreFromXml(xml);
    return hash;
}

void PYXStatusHash::registerMetaType()
{
    static const bool bRegistered = [] {
        qRegisterMetaType<PYXStatusHash>();
        qRegisterMetaTypeStreamOperators<PYXStatusHash>();
        return QMetaType::registerEqualsComparator<PYXStatusHash>();
    }();
    Q_UNUSED(bRegistered)
}

bool PYXStatusHash::_accepts(quint32 magicNumber) const
{
    return !m_bMagicFixed || magicNumber == m_magicNumber;
}

bool operator==(const PYXStatusHash &left, const PYXStatusHash &right)
{
    return left.magicNumber() == right.magicNumber() && left.hasSameContentsAs(right);
}

QDataStream &operator<<(QDataStream &stream, const PYXStatusHash &hash)
{
    const StandardForm form(stream);
    StatusHashStream::write(stream, hash.m_magicNumber, hash.m_entries);
    return stream;
}

QDataStream &operator>>(QDataStream &stream, PYXStatusHash &hash)
{
    const StandardForm form(stream);
    hash.clear();
    hash.m_streamVersion = QDataStream::Version(stream.version());
    quint32 magicNumber = 0;
    quint32 version = 0;
    if (StatusHashStream::isIntactAhead(stream))
        stream >> magicNumber >> version;
    if (version != StatusHashStream::FormatVersion || !hash._accepts(magicNumber) ||
        !StatusHashStream::loadEntries(stream, hash.m_entries)) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return stream;
    }
    hash.m_magicNumber = magicNumber;
    return stream;
}

} // namespace PYXRuntime
