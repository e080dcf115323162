// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNetworkEntryList.h"

#include "LocalNetwork.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QSet>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXNetworkEntryList";
constexpr int PositionDecimals = 6;
// Elements that a file may leave out, before what follows is taken for damage.
constexpr int MostMissingElements = 1000;

/** What is kept under a key; empty where the key is empty or absent. */
QString storedText(const QSettings &settings, const QString &key)
{
    return key.isEmpty() ? QString() : settings.value(key).toString();
}

quint16 storedPort(const QSettings &settings, const QString &key)
{
    if (key.isEmpty())
        return 0;
    bool bIsNumber = false;
    const qlonglong port = settings.value(key).toLongLong(&bIsNumber);
    if (!bIsNumber || port < 0)
        return 0;
    return static_cast<quint16>(std::min<qlonglong>(port, std::numeric_limits<quint16>::max()));
}

QUuid storedUuid(const QSettings &settings, const QString &key)
{
    const QString text = storedText(settings, key);
    const QUuid uuid(text);
    return uuid.toString().compare(text, Qt::CaseInsensitive) == 0 ? uuid : QUuid();
}

/** No number that would make an entry differ from itself. */
std::optional<double> storedNumber(const QSettings &settings, const QString &key)
{
    bool bIsNumber = false;
    const double number = storedText(settings, key).toDouble(&bIsNumber);
    if (!bIsNumber || !std::isfinite(number))
        return std::nullopt;
    return number;
}

void restorePosition(PYXNetworkEntry &entry, std::optional<double> latitude, std::optional<double> longitude,
                     std::optional<double> altitude)
{
    if (latitude || longitude || altitude)
        entry.setGeoPosition(latitude.value_or(0.0), longitude.value_or(0.0), altitude.value_or(0.0));
}

void restoreDirection(PYXNetworkEntry &entry, std::optional<bool> useDirection, std::optional<double> azimuth,
                      std::optional<double> beamWidth)
{
    if (useDirection || azimuth || beamWidth)
        entry.setDirection(useDirection.value_or(false), azimuth.value_or(0.0), beamWidth.value_or(0.0));
}

void saveText(QSettings &settings, const QString &key, const QString &text)
{
    if (!key.isEmpty())
        settings.setValue(key, text);
}

/** The numbers of the current group's children that are elements of an array, from 1. */
QSet<int> elementNumbers(const QSettings &settings)
{
    QSet<int> numbers;
    const QStringList children = settings.childGroups();
    for (const QString &child : children) {
        const int number = child.toInt();
        if (number > 0 && child == QString::number(number))
            numbers.insert(number);
    }
    return numbers;
}

/** Else an entry could inherit a position from the one that stood at its place before. */
void removeElements(QSettings &settings, const QString &group)
{
    settings.beginGroup(group);
    const QSet<int> numbers = elementNumbers(settings);
    for (const int number : numbers)
        settings.remove(QString::number(number));
    settings.endGroup();
}

template <typename Value, typename Getter>
QList<Value> projection(const QList<PYXNetworkEntry> &entries, Getter getter)
{
    QList<Value> values;
    values.reserve(entries.size());
    for (const PYXNetworkEntry &entry : entries)
        values += getter(entry);
    return values;
}

} // namespace

QString PYXNetworkEntryList::interfaceKeyName()
{
    return QStringLiteral("Interface");
}

QString PYXNetworkEntryList::defaultEntryNameKeyName()
{
    return QStringLiteral("DefaultEntryName");
}

QString PYXNetworkEntryList::latitudeKeyName()
{
    return QStringLiteral("Latitude");
}

QString PYXNetworkEntryList::longitudeKeyName()
{
    return QStringLiteral("Longitude");
}

QString PYXNetworkEntryList::altitudeKeyName()
{
    return QStringLiteral("Altitude");
}

QString PYXNetworkEntryList::useDirectionKeyName()
{
    return QStringLiteral("UseDirection");
}

QString PYXNetworkEntryList::azimuthKeyName()
{
    return QStringLiteral("Azimuth");
}

QString PYXNetworkEntryList::beamWidthKeyName()
{
    return QStringLiteral("BeamWidth");
}

PYXNetworkEntryList::PYXNetworkEntryList()
{
    setDefaultListItemKeys();
}

PYXNetworkEntryList::PYXNetworkEntryList(const QList<PYXNetworkEntry> &entries)
    : QList<PYXNetworkEntry>(entries)
{}

PYXNetworkEntryList &PYXNetworkEntryList::operator=(const QList<PYXNetworkEntry> &entries)
{
    QList<PYXNetworkEntry>::operator=(entries);
    return *this;
}

void PYXNetworkEntryList::setListItemKeys(const QString &group, const QString &name, const QString &ip,
                                          const QString &port, const QString &uuid)
{
    m_groupKey = group;
    m_nameKey = name;
    m_ipKey = ip;
    m_portKey = port;
    m_uuidKey = uuid;
}

void PYXNetworkEntryList::setDefaultListItemKeys()
{
    setListItemKeys(QStringLiteral("Group"), QStringLiteral("ItemName"), QStringLiteral("ItemIP"),
                    QStringLiteral("ItemPort"), QStringLiteral("ItemUuid"));
}

bool PYXNetworkEntryList::save(QSettings &settings) const
{
    if (m_groupKey.isEmpty()) {
        PYXTraceWrapper::staticTraceWarn(
            QStringLiteral("network entries are not saved: the list has no group key"), TraceFile, __LINE__);
        return true;
    }
    saveText(settings, m_interfaceKey, m_interfaceAddress.toString());
    saveText(settings, m_defaultEntryNameKey, m_defaultEntryName);
    removeElements(settings, m_groupKey);
    settings.beginWriteArray(m_groupKey);
    for (int i = 0; i < size(); ++i) {
        settings.setArrayIndex(i);
        _saveEntry(settings, at(i));
    }
    settings.endArray();
    return true;
}

void PYXNetworkEntryList::_saveEntry(QSettings &settings, const PYXNetworkEntry &entry) const
{
    saveText(settings, m_nameKey, entry.name());
    saveText(settings, m_ipKey, entry.address().toString());
    if (!m_portKey.isEmpty())
        settings.setValue(m_portKey, uint(entry.port()));
    saveText(settings, m_uuidKey, entry.uuid().toString());
    if (!entry.hasGeoPosition())
        return;
    saveText(settings, m_latitudeKey, QString::number(entry.latitude(), 'f', PositionDecimals));
    saveText(settings, m_longitudeKey, QString::number(entry.longitude(), 'f', PositionDecimals));
    saveText(settings, m_altitudeKey, QString::number(entry.altitude(), 'f', PositionDecimals));
}

bool PYXNetworkEntryList::save(const QString &fileName) const
{
    return save(fileName, QSettings::defaultFormat());
}

bool PYXNetworkEntryList::save(const QString &fileName, QSettings::Format format) const
{
    QSettings settings(fileName, format);
    const bool bSaved = save(settings);
    settings.sync();
    return bSaved && settings.status() == QSettings::NoError;
}

bool PYXNetworkEntryList::restore(QSettings &settings)
{
    clear();
    m_interfaceAddress = QHostAddress(storedText(settings, m_interfaceKey));
    m_defaultEntryName = storedText(settings, m_defaultEntryNameKey);
    if (m_groupKey.isEmpty())
        return true;
    const int claimed = settings.beginReadArray(m_groupKey);
    QSet<int> present = elementNumbers(settings);
    int missing = 0;
    for (int i = 0; i < claimed && !present.isEmpty(); ++i) {
        if (!present.remove(i + 1) && ++missing > MostMissingElements)
            break;
        settings.setArrayIndex(i);
        append(_restoredEntry(settings));
    }
    settings.endArray();
    return true;
}

PYXNetworkEntry PYXNetworkEntryList::_restoredEntry(const QSettings &settings) const
{
    PYXNetworkEntry entry(storedText(settings, m_nameKey), QHostAddress(storedText(settings, m_ipKey)),
                          storedPort(settings, m_portKey), storedUuid(settings, m_uuidKey));
    restorePosition(entry, storedNumber(settings, m_latitudeKey), storedNumber(settings, m_longitudeKey),
                    storedNumber(settings, m_altitudeKey));
    std::optional<bool> useDirection;
    if (!m_useDirectionKey.isEmpty() && settings.contains(m_useDirectionKey))
        useDirection = settings.value(m_useDirectionKey).toBool();
    restoreDirection(entry, useDirection, storedNumber(settings, m_azimuthKey),
                     storedNumber(settings, m_beamWidthKey));
    return entry;
}

bool PYXNetworkEntryList::restore(const QString &fileName)
{
    return restore(fileName, QSettings::defaultFormat());
}

bool PYXNetworkEntryList::restore(const QString &fileName, QSettings::Format format)
{
    QSettings settings(fileName, format);
    return restore(settings);
}

QStringList PYXNetworkEntryList::names() const
{
    return projection<QString>(*this, [](const PYXNetworkEntry &entry) { return entry.name(); });
}

QList<QHostAddress> PYXNetworkEntryList::ipAddresses() const
{
    return projection<QHostAddress>(*this, [](const PYXNetworkEntry &entry) { return entry.address(); });
}

QStringList PYXNetworkEntryList::ipAddressesAsStrings() const
{
    return projection<QString>(*this,
                               [](const PYXNetworkEntry &entry) { return entry.address().toString(); });
}

QList<quint16> PYXNetworkEntryList::ports() const
{
    return projection<quint16>(*this, [](const PYXNetworkEntry &entry) { return entry.port(); });
}

QList<QUuid> PYXNetworkEntryList::uuids() const
{
    return projection<QUuid>(*this, [](const PYXNetworkEntry &entry) { return entry.uuid(); });
}

const PYXNetworkEntry *PYXNetworkEntryList::_findDefaultEntry() const
{
    const auto found = std::find_if(cbegin(), cend(), [this](const PYXNetworkEntry &entry) {
        return entry.name() == m_defaultEntryName;
    });
    return m_defaultEntryName.isEmpty() || found == cend() ? nullptr : &*found;
}

bool PYXNetworkEntryList::containsDefaultEntry() const
{
    return _findDefaultEntry() != nullptr;
}

const PYXNetworkEntry &PYXNetworkEntryList::defaultEntry() const
{
    const PYXNetworkEntry *const found = _findDefaultEntry();
    return found != nullptr ? *found : m_nullEntry;
}

bool PYXNetworkEntryList::containsMatchingEntry(const PYXNetworkEntry &entry) const
{
    return std::any_of(cbegin(), cend(), [&entry](const PYXNetworkEntry &own) { return own.matches(entry); });
}

bool PYXNetworkEntryList::matches(const PYXNetworkEntryList &other) const
{
    return std::equal(
        cbegin(), cend(), other.cbegin(), other.cend(),
        [](const PYXNetworkEntry &left, const PYXNetworkEntry &right) { return left.matches(right); });
}

PYXNetworkEntry PYXNetworkEntryList::decidePeerAddress() const
{
    const QList<QHostAddress> addresses = ipAddresses();
    int index = addresses.indexOf(QHostAddress(QHostAddress::LocalHost));
    if (index < 0)
        index = readLocalNetwork().indexInLocalSubnet(addresses);
    return index < 0 ? PYXNetworkEntry() : at(index);
}

} // namespace PYXRuntime
