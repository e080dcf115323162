// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlSettingsScanner.h"

#include "XmlSettingsNode.h"
#include "XmlTextCodec.h"
#include "XmlValueCodec.h"

#include <QtCore/QStringBuilder>

#include <array>
#include <cstring>
#include <utility>

namespace PYXRuntime {
namespace {

// With the blanks in front, each token of the form is one of these texts or lies between two of them.
constexpr char FileStart[] = "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
                             "<PYXXmlSettings version = \"1.0\">\n";
constexpr char RootClosing[] = "</PYXXmlSettings>\n";
constexpr char EntryOpening[] = "<entry>\n";
constexpr char EntryClosing[] = "</entry>\n";
constexpr char GroupOpening[] = "<group name = \"";
constexpr char GroupClosing[] = "</group>\n";
constexpr char ArrayOpening[] = "<array name = \"";
constexpr char ArraySize[] = "\" size = \"";
constexpr char ArrayClosing[] = "</array>\n";
constexpr char ItemOpening[] = "<item index = \"";
constexpr char ItemClosing[] = "</item>\n";
constexpr char OpeningEnd[] = "\">\n";
constexpr char NameOpening[] = "<name>";
constexpr char NameClosing[] = "</name>\n";
constexpr char ValueOpening[] = "<value>";
constexpr char ValueClosing[] = "</value>\n";
const QLatin1Char Separator('/');
const QLatin1String SizeKey("/size");

enum eCharacter : quint8 { ekOther = 0, ekLiteral = 1, ekReference = 2, ekComma = 4 };
using CharacterTable = std::array<quint8, 256>;

/** The characters of the writer's texts: none of them has a meaning in XML. */
constexpr CharacterTable writtenCharacters()
{
    CharacterTable table = {};
    for (std::size_t c = 'A'; c <= 'Z'; ++c)
        table[c] = table[c + ('a' - 'A')] = ekLiteral;
    constexpr char Others[] = " 0123456789!#()*+-./:;=?@[]_{}";
    for (const char c : Others)
        table[static_cast<std::size_t>(c)] = ekLiteral;
    table['\0'] = ekOther;
    table['~'] = ekReference;
    table[','] = ekComma;
    return table;
}

constexpr CharacterTable Characters = writtenCharacters();

/** Moves a value into the map: a QVariant that is copied counts its holders twice, for nothing. */
void append(QSettings::SettingsMap &map, const QString &key, QVariant &&value)
{
    map.insert(map.constEnd(), key, QVariant())->swap(value);
}

} // namespace

bool XmlSettingsScanner::struText::isLiteral() const
{
    return bPlain && !bList && (text.isEmpty() || text.front() != QLatin1Char('@'));
}

XmlSettingsScanner::XmlSettingsScanner(const QByteArray &file)
    : m_at(file.constData())
    , m_end(file.constData() + file.size())
{}

bool XmlSettingsScanner::read(const QByteArray &file, QSettings::SettingsMap &map)
{
    XmlSettingsScanner scanner(file);
    const bool bOk =
        scanner._take(FileStart) && scanner._readBody(RootClosing, 1) && scanner.m_at == scanner.m_end;
    if (bOk) {
        map.clear();
        scanner._fill(map);
    }
    return bOk;
}

template <std::size_t Size>
bool XmlSettingsScanner::_sees(const char (&expected)[Size]) const
{
    return std::size_t(m_end - m_at) >= Size - 1 && std::memcmp(m_at, expected, Size - 1) == 0;
}

template <std::size_t Size>
bool XmlSettingsScanner::_take(const char (&expected)[Size])
{
    if (!_sees(expected))
        return false;
    m_at += Size - 1;
    return true;
}

void XmlSettingsScanner::_skipBlanks()
{
    while (m_at != m_end && *m_at == ' ')
        ++m_at;
}

XmlSettingsScanner::struText XmlSettingsScanner::_takeText()
{
    const char *at = m_at;
    uint seen = 0;
    for (; at != m_end; ++at) {
        const quint8 character = Characters[static_cast<unsigned char>(*at)];
        if (character == ekOther)
            break;
        seen |= character;
    }
    return {QLatin1String(std::exchange(m_at, at), at), (seen & ekReference) == 0, (seen & ekComma) != 0};
}

bool XmlSettingsScanner::_takeName(struText &name)
{
    if (!_take(NameOpening))
        return false;
    name = _takeText();
    return name.text.size() != 0 && _take(NameClosing);
}

bool XmlSettingsScanner::_takeValue(struText &value)
{
    if (!_take(ValueOpening))
        return false;
    value = _takeText();
    return _take(ValueClosing);
}

QString XmlSettingsScanner::_key(const struText &segment) const
{
    if (!segment.bPlain) {
        const QString text = XmlTextCodec::unescaped(QString(segment.text));
        return m_parentKey.isNull() ? text : m_parentKey % Separator % text;
    }
    return m_parentKey.isNull() ? QString(segment.text) : m_parentKey % Separator % segment.text;
}

void XmlSettingsScanner::_fill(QSettings::SettingsMap &map) const
{
    for (const struFound &found : m_found) {
        const QString written(found.text.text);
        if (found.bSize) {
            append(map, found.key, written.toInt());
        } else if (found.text.isLiteral()) {
            append(map, found.key, written);
        } else {
            QVariant value = XmlValueCodec::decoded(written);
            if (value.isValid())
                append(map, found.key, std::move(value));
        }
    }
}

template <std::size_t Size>
bool XmlSettingsScanner::_readBody(const char (&closing)[Size], int level)
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
    if (_take(GroupOpening)) {
        const struText name = _takeText();
        return _take(OpeningEnd) && _readNested(_key(name), GroupClosing, false, level);
    }
    if (_take(ArrayOpening))
        return _readArray(level);
    if (!m_bInArray || !_take(ItemOpening))
        return false;
    const struText index = _takeText(); // stands as it is
    return _take(OpeningEnd) && _readNested(m_parentKey % Separator % index.text, ItemClosing, false, level);
}

bool XmlSettingsScanner::_readEntry()
{
    struText name;
    struText value;
    _skipBlanks();
    if (!_takeName(name))
        return false;
    _skipBlanks();
    if (_take(EntryClosing))
        return true;
    if (!_takeValue(value))
        return false;
    m_found.push_back({_key(name), value});
    _skipBlanks();
    return _take(EntryClosing);
}

bool XmlSettingsScanner::_readArray(int level)
{
    const struText name = _takeText();
    if (!_take(ArraySize))
        return false;
    const struText size = _takeText();
    if (!_take(OpeningEnd))
        return false;
    const QString key = _key(name);
    m_found.push_back({key % SizeKey, size, true});
    return _readNested(key, ArrayClosing, true, level);
}

/** What a group, an array or an item holds, behind its opening line. */
template <std::size_t Size>
bool XmlSettingsScanner::_readNested(const QString &key, const char (&closing)[Size], bool bIsArray,
                                     int level)
{
    _skipBlanks();
    if (_sees(ValueOpening)) {
        struText value;
        if (!_takeValue(value))
            return false;
        m_found.push_back({key, value});
    }
    const QString parentKey = std::exchange(m_parentKey, key);
    const bool bInArray = std::exchange(m_bInArray, bIsArray);
    const bool bOk = _readBody(closing, level);
    m_parentKey = parentKey;
    m_bInArray = bInArray;
    return bOk;
}

} // namespace PYXRuntime
