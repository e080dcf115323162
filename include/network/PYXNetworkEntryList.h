// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXNetworkEntry.h"

#include <QtCore/QList>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

namespace PYXRuntime {

/**
 * A list of peers that is kept in settings as an array, with the own interface and the default entry.
 *
 * The keys say under which names the values are kept; a value whose key is empty is neither saved nor
 * restored. Directions are restored, never saved.
 *
 * A value: different objects may be used in different threads, each with settings of its own thread.
 */
class PYXRUNTIME_EXPORT PYXNetworkEntryList : public QList<PYXNetworkEntry>
{
public:
    /** Common names for values whose keys are empty by default. */
    static QString interfaceKeyName();
    static QString defaultEntryNameKeyName();
    static QString latitudeKeyName();
    static QString longitudeKeyName();
    static QString altitudeKeyName();
    static QString useDirectionKeyName();
    static QString azimuthKeyName();
    static QString beamWidthKeyName();

    /** With the keys "Group", "ItemName", "ItemIP", "ItemPort" and "ItemUuid"; the others are empty. */
    PYXNetworkEntryList();
    /** Without any key: the list cannot be saved until it has some. */
    PYXNetworkEntryList(const QList<PYXNetworkEntry> &entries);
    /** Replaces the entries; keys, interface address and default entry name stay. */
    PYXNetworkEntryList &operator=(const QList<PYXNetworkEntry> &entries);

    void setListItemKeys(const QString &group, const QString &name, const QString &ip, const QString &port,
                         const QString &uuid);
    QString interfaceKey() const { return m_interfaceKey; }
    void setInterfaceKey(const QString &key) { m_interfaceKey = key; }
    QString defaultEntryNameKey() const { return m_defaultEntryNameKey; }
    void setDefaultEntryNameKey(const QString &key) { m_defaultEntryNameKey = key; }
    QString groupKey() const { return m_groupKey; }
    void setGroupKey(const QString &key) { m_groupKey = key; }
    QString nameKey() const { return m_nameKey; }
    void setNameKey(const QString &key) { m_nameKey = key; }
    QString ipKey() const { return m_ipKey; }
    void setIpKey(const QString &key) { m_ipKey = key; }
    QString portKey() const { return m_portKey; }
    void setPortKey(const QString &key) { m_portKey = key; }
    QString uuidKey() const { return m_uuidKey; }
    void setUuidKey(const QString &key) { m_uuidKey = key; }
    QString latitudeKey() const { return m_latitudeKey; }
    void setLatitudeKey(const QString &key) { m_latitudeKey = key; }
    QString longitudeKey() const { return m_longitudeKey; }
    void setLongitudeKey(const QString &key) { m_longitudeKey = key; }
    QString altitudeKey() const { return m_altitudeKey; }
    void setAltitudeKey(const QString &key) { m_altitudeKey = key; }
    QString useDirectionKey() const { return m_useDirectionKey; }
    void setUseDirectionKey(const QString &key) { m_useDirectionKey = key; }
    QString azimuthKey() const { return m_azimuthKey; }
    void setAzimuthKey(const QString &key) { m_azimuthKey = key; }
    QString beamWidthKey() const { return m_beamWidthKey; }
    void setBeamWidthKey(const QString &key) { m_beamWidthKey = key; }

    /** The own interface that was chosen for this list. */
    QHostAddress interfaceAddress() const { return m_interfaceAddress; }
    void setInterfaceAddress(const QHostAddress &address) { m_interfaceAddress = address; }
    QString defaultEntryName() const { return m_defaultEntryName; }
    void setDefaultEntryName(const QString &name) { m_defaultEntryName = name; }

    /**
     * Replaces what the settings hold of the list. A list without a group key saves nothing, which is
     * traced as a warning.
     * @return true; for a file, whether it was written. Settings that the caller owns tell this themselves.
     */
    bool save(QSettings &settings) const;
    bool save(const QString &fileName) const;
    bool save(const QString &fileName, QSettings::Format format) const;
    /**
     * Replaces entries, interface address and default entry name by what the settings hold; the keys stay.
     * What cannot be read gets its default.
     * @return true
     */
    bool restore(QSettings &settings);
    bool restore(const QString &fileName);
    bool restore(const QString &fileName, QSettings::Format format);

    QStringList names() const;
    QList<QHostAddress> ipAddresses() const;
    QStringList ipAddressesAsStrings() const;
    QList<quint16> ports() const;
    QList<QUuid> uuids() const;

    bool containsDefaultEntry() const;
    /** The first entry with the default entry's name, else a null one; valid while the list is unchanged. */
    const PYXNetworkEntry &defaultEntry() const;
    /** Whether an entry matches() that one. */
    bool containsMatchingEntry(const PYXNetworkEntry &entry) const;
    /** Whether both have the same length and each entry matches() its counterpart. */
    bool matches(const PYXNetworkEntryList &other) const;

    /**
     * The entry to contact: the first one at 127.0.0.1; else the first one in a network that this host has
     * now, the order of its interfaces before that of the entries; else a null entry.
     */
    PYXNetworkEntry decidePeerAddress() const;

private:
    void setDefaultListItemKeys();
    void _saveEntry(QSettings &settings, const PYXNetworkEntry &entry) const;
    PYXNetworkEntry _restoredEntry(const QSettings &settings) const;
    const PYXNetworkEntry *_findDefaultEntry() const;

    QString m_interfaceKey;
    QString m_defaultEntryNameKey;
    QString m_groupKey;
    QString m_nameKey;
    QString m_ipKey;
    QString m_portKey;
    QString m_uuidKey;
    QString m_latitudeKey;
    QString m_longitudeKey;
    QString m_altitudeKey;
    QString m_useDirectionKey;
    QString m_azimuthKey;
    QString m_beamWidthKey;
    QHostAddress m_interfaceAddress;
    QString m_defaultEntryName;
    PYXNetworkEntry m_nullEntry;
};

} // namespace PYXRuntime
