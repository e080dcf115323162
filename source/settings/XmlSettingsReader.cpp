// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlSettingsReader.h"

#include "XmlSettingsNode.h"
#include "XmlSettingsScanner.h"
#include "XmlTextCodec.h"
#include "XmlValueCodec.h"

#include <QtCore/QIODevice>
#include <QtCore/QtDebug>

#include <algorithm>

namespace PYXRuntime {
namespace {

const QLatin1String ReadPrefix("PYXXmlSettingsPrivate::readXmlFile: ");
const QLatin1String CheckPrefix("PYXXmlSettingsPrivate::isPYXXmlSettingsFile: ");
const QLatin1String NoXml("error setting content");
const QLatin1String NoSettingsFile("not a PYXXml settings file");
const QLatin1String RootTag("pyxxmlsettings");
const QLatin1String EntryTag("entry");
const QLatin1String ArrayTag("array");
const QLatin1String GroupTag("group");
const QLatin1String ItemTag("item");
const QLatin1String NameTag("name");
const QLatin1String ValueTag("value");
const QLatin1String VersionAttribute("version");
const QLatin1String NameAttribute("name");
const QLatin1String SizeAttribute("size");
const QLatin1String IndexAttribute("index");
const QLatin1String KnownVersion("1.0");

void warn(const QString &text)
{
    qWarning().noquote() << text;
}

bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

/** An empty key is a key, a null one is that of the root. */
QString childKey(const QString &parentKey, const QString &segment)
{
    if (!parentKey.isNull())
        return parentKey + QLatin1Char('/') + segment;
    return segment.isNull() ? QLatin1String("") : segment;
}

} // namespace

XmlSettingsReader::XmlSettingsReader(const QByteArray &file)
    : m_xml(file)
    , m_version(KnownVersion)
{
    // Prefixes are parts of names here: an undeclared one is only a misplaced element.
    m_xml.setNamespaceProcessing(false);
    m_xml.setEntityExpansionLimit(0);
}

bool XmlSettingsReader::read(QIODevice &device, QSettings::SettingsMap &map)
{
    const QByteArray file = device.readAll();
    return XmlSettingsScanner::read(file, map) || readAnyXml(file, map);
}

bool XmlSettingsReader::readAnyXml(const QByteArray &file, QSettings::SettingsMap &map)
{
    XmlSettingsReader reader(file);
    const bool bOk = reader._findRoot() && reader._readRoot();
    reader._finish();
    if (reader.m_xml.hasError()) {
        warn(ReadPrefix + NoXml);
        return false;
    }
    for (const QString &warning : qAsConst(reader.m_warnings))
        warn(warning);
    if (bOk)
        map.swap(reader.m_map);
    return bOk;
}

bool XmlSettingsReader::readVersion(QIODevice &device, QString &version)
{
    XmlSettingsReader reader(device.readAll());
    const bool bOk = reader._findRoot();
    reader._finish();
    if (reader.m_xml.hasError()) {
        warn(CheckPrefix + NoXml);
        return false;
    }
    if (!bOk) {
        warn(CheckPrefix + NoSettingsFile);
        return false;
    }
    version = reader.m_version;
    return true;
}

void XmlSettingsReader::_advance()
{
    switch (m_xml.readNext()) {
    case QXmlStreamReader::StartElement:
        if (++m_level > XmlSettingsNode::MaximumElementLevels)
            m_xml.raiseError();
        break;
    case QXmlStreamReader::EndElement:
        --m_level;
        break;
    case QXmlStreamReader::DTD:
        if (m_xml.text().contains(QLatin1Char('[')))
            m_xml.raiseError();
        break;
    default:
        break;
    }
}

/** Goes on to the next child element of the current element, or else to the end of that. */
bool XmlSettingsReader::_nextIsElement()
{
    do {
        _advance();
    } while (!m_xml.atEnd() && !m_xml.isStartElement() && !m_xml.isEndElement());
    return !m_xml.hasError() && m_xml.isStartElement();
}

void XmlSettingsReader::_skipElement()
{
    const int outside = m_level - 1;
    while (!m_xml.atEnd() && m_level > outside)
        _advance();
}

void XmlSettingsReader::_finish()
{
    while (!m_xml.atEnd())
        _advance();
}

/** The text up to the next markup, as far as it is more than white space; never null. Leaves the element. */
QString XmlSettingsReader::_readText()
{
    const int inside = m_level;
    QString found(QLatin1String(""));
    while (!m_xml.atEnd() && m_level >= inside) {
        _advance();
        const bool bText = m_xml.isCharacters() && m_level == inside && !m_xml.text().isEmpty();
        if (bText && (found.isEmpty() || (isBlank(found) && !isBlank(m_xml.text()))))
            found = m_xml.text().toString();
    }
    return found;
}

QString XmlSettingsReader::_tag() const
{
    return m_xml.qualifiedName().toString().toLower();
}

bool XmlSettingsReader::_findRoot()
{
    if (!_nextIsElement() || _tag() != RootTag) {
        m_warnings.append(ReadPrefix + NoSettingsFile);
        return false;
    }
    const QXmlStreamAttributes attributes = m_xml.attributes();
    if (attributes.hasAttribute(VersionAttribute))
        m_version = attributes.value(VersionAttribute).toString();
    return true;
}

bool XmlSettingsReader::_readRoot()
{
    if (m_version != KnownVersion) {
        m_warnings.append(ReadPrefix + QStringLiteral("cannot read this version (%1)").arg(m_version));
        return false;
    }
    return _readChildren(ekRoot, QString());
}

bool XmlSettingsReader::_readChildren(eOwner owner, const QString &key)
{
    bool bHasOwnValue = false;
    while (_nextIsElement()) {
        const QString tag = _tag();
        if (owner != ekRoot && tag == ValueTag) {
            if (bHasOwnValue)
                _skipElement();
            else
                _store(key, _readText());
            bHasOwnValue = true;
        } else if (!_readChild(owner, tag, key)) {
            return false;
        }
    }
    return true;
}

bool XmlSettingsReader::_readChild(eOwner owner, const QString &tag, const QString &key)
{
    static const QLatin1String Misplaced[] = {QLatin1String("skipping misplaced element ["),
                                              QLatin1String("array skipping misplaced element ["),
                                              QLatin1String("group: skipping misplaced element ["),
                                              QLatin1String("item: skipping misplaced element [")};
    if (tag == EntryTag)
        return _readEntry(key);
    if (tag == ArrayTag)
        return _readArray(key);
    if (tag == GroupTag)
        return _readGroup(key);
    if (tag == ItemTag && owner == ekArray)
        return _readItem(key);
    m_warnings.append(Misplaced[owner] + tag + QLatin1Char(']'));
    _skipElement();
    return true;
}

bool XmlSettingsReader::_readEntry(const QString &parentKey)
{
    QString name;
    QString value;
    bool bHasName = false;
    bool bHasValue = false;
    while (_nextIsElement()) {
        const QString tag = _tag();
        if (tag == NameTag && !bHasName) {
            name = _readText();
            bHasName = true;
        } else if (tag == ValueTag && !bHasValue) {
            value = _readText();
            bHasValue = true;
        } else {
            _skipElement();
        }
    }
    if (name.isEmpty()) {
        m_warnings.append(QLatin1String("entry @[") + parentKey + QLatin1String("] node is missing name"));
        return false;
    }
    if (bHasValue)
        _store(childKey(parentKey, XmlTextCodec::unescaped(name)), value);
    return true;
}

bool XmlSettingsReader::_readArray(const QString &parentKey)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const QString key = childKey(parentKey, XmlTextCodec::unescaped(attributes.value(NameAttribute)));
    m_map.insert(childKey(key, SizeAttribute), attributes.value(SizeAttribute).toInt());
    return _readChildren(ekArray, key);
}

bool XmlSettingsReader::_readGroup(const QString &parentKey)
{
    const QStringView name = m_xml.attributes().value(NameAttribute);
    return _readChildren(ekGroup, childKey(parentKey, XmlTextCodec::unescaped(name)));
}

bool XmlSettingsReader::_readItem(const QString &parentKey)
{
    const QString index = m_xml.attributes().value(IndexAttribute).toString();
    return _readChildren(ekItem, childKey(parentKey, index));
}

void XmlSettingsReader::_store(const QString &key, const QString &text)
{
    const QVariant value = XmlValueCodec::decoded(text);
    if (value.isValid())
        m_map.insert(m_map.constEnd(), key, value);
}

} // namespace PYXRuntime
