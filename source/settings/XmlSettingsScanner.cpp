// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlSettingsScanner.h"

#include "XmlSettingsNode.h"
#include "XmlTextCodec.h"
#include "XmlValueCodec.h"

#include <QtCore/QStringBuilder>

#include <algorithm>
#include <cstring>
#include <utility>

namespace PYXRuntime {
namespace {

// With the blanks in front, each token of the form is one of these texts or lies between two of them.
const QLatin1String FileStart("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
                              "<PYXXmlSettings version = \"1.0\">\n");
const QLatin1String RootClosing("</PYXXmlSettings>\n");
const QLatin1String EntryOpening("<entry>\n");
const QLatin1String EntryClosing("</entry>\n");
const QLatin1String GroupOpening("<group name = \"");
const QLatin1String GroupClosing("</group>\n");
const QLatin1String ArrayOpening("<array name = \"");
const QLatin1String ArraySize("\" size = \"");
const QLatin1String ArrayClosing("</array>\n");
const QLatin1String ItemOpening("<item index = \"");
const QLatin1String ItemClosing("</item>\n");
const QLatin1String OpeningEnd("\">\n");
const QLatin1String NameOpening("<name>");
const QLatin1String NameClosing("</name>\n");
const QLatin1String ValueOpening("<value>");
const QLatin1String ValueClosing("</value>\n");
const QLatin1Char Separator('/');
const QLatin1String SizeKey("/size");

bool contains(QLatin1String text, char c)
{
    return std::memchr(text.data(), c, std::size_t(text.size())) != nullptr;
}

bool isPlain(QLatin1String text)
{
    return !contains(text, '~') && !contains(text, '&');
}

QString unescaped(QLatin1String text)
{
    return isPlain(text) ? QString(text) : XmlTextCodec::unescaped(QString(text));
}

} // namespace

XmlSettingsScanner::XmlSettingsScanner(const QByteArray &file)
    : m_at(file.constData())
    , m_end(file.constData() + file.size())
{}

bool XmlSettingsScanner::read(const QByteArray &file, QSettings::SettingsMap &map)
{
    XmlSettingsScanner scanner(file);
    const bool bOk =
        scanner._take(FileStart) && scanner._readBody(RootClosing, 1) && scanner.m_at == scanner.m_end;
    if (bOk)
        map.swap(scanner.m_map);
    return bOk;
}

bool XmlSettingsScanner::_take(QLatin1String expected)
{
    if (m_end - m_at < expected.size() ||
        std::memcmp(m_at, expected.data(), std::size_t(expected.size())) != 0)
        return false;
    m_at += expected.size();
    return true;
}

void XmlSettingsScanner::_skipBlanks()
{
    while (m_at != m_end && *m_at == ' ')
        ++m_at;
}

/** A text up to a delimiter, made only of characters that mean themselves in XML. */
bool XmlSettingsScanner::_takeText(char end, QLatin1String &text)
{
    const char *const start = m_at;
    while (m_at != m_end && XmlTextCodec::isWritten(*m_at))
        ++m_at;
    text = QLatin1String(start, m_at);
    return m_at != m_end && *m_at == end;
}

bool XmlSettingsScanner::_takeElement(QLatin1String opening, QLatin1String closing, QLatin1String &text)
{
    return _take(opening) && _takeText('<', text) && _take(closing);
}

QString XmlSettingsScanner::_key(QLatin1String segment) const
{
    if (m_parentKey.isNull())
        return unescaped(segment);
    return isPlain(segment) ? QString(m_parentKey % Separator % segment)
                            : QString(m_parentKey % Separator % unescaped(segment));
}

void XmlSettingsScanner::_store(const QString &key, QLatin1String text)
{
    const bool bLiteral = isPlain(text) && !contains(text, ',') && !text.startsWith(QLatin1Char('@'));
    const QVariant value = bLiteral ? QVariant(QString(text)) : XmlValueCodec::decoded(QString(text));
    if (value.isValid())
        m_map.insert(m_map.constEnd(), key, value);
}

bool XmlSettingsScanner::_readBody(QLatin1String closing, int level)
{
    for (_skipBlanks(); !_take(closing); _skipBlanks()) {
        if (!_readChild(level + 1))
            return false;
    }
    return true;
}

bool XmlSettingsScanner::_readChild(int level)
{
    // An entry has elements of its own.
    if (level >= XmlSettingsNode::MaximumElementLevels)
        return false;
    if (_take(EntryOpening))
        return _readEntry();
    QLatin1String segment;
    if (_take(GroupOpening)) {
        return _takeText('"', segment) && _take(OpeningEnd) &&
               _readNested(_key(segment), GroupClosing, level);
    }
    if (_take(ArrayOpening))
        return _readArray(level);
    // The general reader knows whether there may be an item here; the writer has it in arrays only.
    return m_bInArray && _take(ItemOpening) && _takeText('"', segment) && _take(OpeningEnd) &&
           _readNested(m_parentKey % Separator % segment, ItemClosing, level);
}

bool XmlSettingsScanner::_readEntry()
{
    QLatin1String name;
    _skipBlanks();
    if (!_takeElement(NameOpening, NameClosing, name) || name.isEmpty())
        return false;
    _skipBlanks();
    QLatin1String value;
    if (_take(EntryClosing))
        return true;
    if (!_takeElement(ValueOpening, ValueClosing, value))
        return false;
    _store(_key(name), value);
    _skipBlanks();
    return _take(EntryClosing);
}

bool XmlSettingsScanner::_readArray(int level)
{
    QLatin1String name;
    QLatin1String size;
    if (!_takeText('"', name) || !_take(ArraySize) || !_takeText('"', size) || !_take(OpeningEnd))
        return false;
    const QString key = _key(name);
    m_map.insert(m_map.constEnd(), key % SizeKey, QString(size).toInt());
    return _readNested(key, ArrayClosing, level);
}

/** What a group, an array or an item holds, behind its opening line. */
bool XmlSettingsScanner::_readNested(const QString &key, QLatin1String closing, int level)
{
    QLatin1String value;
    _skipBlanks();
    if (m_end - m_at >= ValueOpening.size() && std::equal(ValueOpening.begin(), ValueOpening.end(), m_at)) {
        if (!_takeElement(ValueOpening, ValueClosing, value))
            return false;
        _store(key, value);
    }
    const QString parentKey = std::exchange(m_parentKey, key);
    const bool bInArray = std::exchange(m_bInArray, closing == ArrayClosing);
    const bool bOk = _readBody(closing, level);
    m_parentKey = parentKey;
    m_bInArray = bInArray;
    return bOk;
}

} // namespace PYXRuntime
