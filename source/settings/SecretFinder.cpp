// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SecretFinder.h"

#include "PYXStatusHash.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <cstring>

namespace PYXRuntime::SecretFinder {
namespace {

constexpr const char *Words[] = {"password", "passwort", "passwd", "passphrase", "passcode",  "pwd",
                                 "secret",   "token",    "apikey", "privatekey", "credential"};

bool hasSecretWord(const QString &text)
{
    return std::any_of(std::begin(Words), std::end(Words), [&text](const char *word) {
        return text.contains(QLatin1String(word), Qt::CaseInsensitive);
    });
}

bool beginsWithSecretWord(const char *letters, int size)
{
    return std::any_of(std::begin(Words), std::end(Words), [letters, size](const char *word) {
        return *word == *letters && std::strlen(word) <= std::size_t(size) &&
               std::memcmp(letters, word, std::strlen(word)) == 0;
    });
}

/** User and password in front of the host. */
bool hasUrlPassword(const QString &text)
{
    static const QRegularExpression credentials(QStringLiteral("://[^/?#\\s:@]*:[^/?#\\s@]+@"));
    return credentials.match(text).hasMatch();
}

/** An XML text, such as that of a status hash, names its entries in its tags and attributes. */
bool textHoldsSecret(const QString &text)
{
    static const QRegularExpression tag(QStringLiteral("<[^<>]+>"));
    if (hasUrlPassword(text))
        return true;
    auto tags = tag.globalMatch(text);
    while (tags.hasNext()) {
        if (isSecretName(tags.next().captured()))
            return true;
    }
    return false;
}

/** Streamed names are in UTF-16: without its zeros the text of Latin letters shows. */
bool bytesHoldSecret(QByteArray bytes)
{
    const QString asText = QString::fromUtf8(bytes);
    bytes.replace(QByteArray(1, '\0'), QByteArray());
    return textHoldsSecret(asText) || hasSecretWord(QString::fromLatin1(bytes.constData(), bytes.size()));
}

template <typename Map>
bool mapHoldsSecret(const Map &map)
{
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        if (isSecretName(entry.key()) || holdsSecret(entry.value()))
            return true;
    }
    return false;
}

bool hashHoldsSecret(const PYXStatusHash &hash)
{
    const QStringList keys = hash.keys();
    return std::any_of(keys.cbegin(), keys.cend(), [&hash](const QString &key) {
        return isSecretName(key) || holdsSecret(hash.value(key));
    });
}

} // namespace

// Names of settings and of what is traced are Latin mostly: for these neither a pattern nor folding is
// needed.
bool isSecretName(const QString &key)
{
    static const QRegularExpression separators(QStringLiteral("[-_. ]"));
    QVarLengthArray<char, 64> letters;
    for (const QChar character : key) {
        const ushort code = character.unicode();
        if (code >= 0x80)
            return hasSecretWord(QString(key).remove(separators));
        if (code != '-' && code != '_' && code != '.' && code != ' ')
            letters.append(code >= 'A' && code <= 'Z' ? static_cast<char>(code + ('a' - 'A'))
                                                      : static_cast<char>(code));
    }
    for (int at = 0; at < letters.size(); ++at) {
        if (beginsWithSecretWord(letters.constData() + at, letters.size() - at))
            return true;
    }
    return false;
}

bool holdsSecret(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<PYXStatusHash>())
        return hashHoldsSecret(value.value<PYXStatusHash>());
    switch (value.userType()) {
    case QMetaType::QString:
        return textHoldsSecret(value.toString());
    case QMetaType::QByteArray:
        return bytesHoldSecret(value.toByteArray());
    case QMetaType::QUrl:
        return !value.toUrl().password().isEmpty();
    case QMetaType::QVariantMap:
        return mapHoldsSecret(value.toMap());
    case QMetaType::QVariantHash:
        return mapHoldsSecret(value.toHash());
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::any_of(list.cbegin(), list.cend(), holdsSecret);
    }
    default:
        return false;
    }
}

} // namespace PYXRuntime::SecretFinder
