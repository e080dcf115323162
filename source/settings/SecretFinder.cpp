// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SecretFinder.h"

#include "PYXStatusHash.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <array>
#include <string_view>

namespace PYXRuntime::SecretFinder {
namespace {

constexpr std::string_view Words[] = {"password", "passwort", "passwd", "passphrase", "passcode",  "pwd",
                                      "secret",   "token",    "apikey", "privatekey", "credential"};

/** By the code of a letter: whether a word begins with it. */
constexpr std::array<bool, 0x80> firstLetters()
{
    std::array<bool, 0x80> letters = {};
    for (const std::string_view word : Words)
        letters[static_cast<unsigned char>(word.front())] = true;
    return letters;
}

constexpr std::array<bool, 0x80> FirstLetters = firstLetters();

bool hasSecretWord(const QString &text)
{
    return std::any_of(std::begin(Words), std::end(Words), [&text](std::string_view word) {
        return text.contains(QLatin1String(word.data(), static_cast<int>(word.size())), Qt::CaseInsensitive);
    });
}

/** @param letters  in ASCII, small */
bool beginsWithSecretWord(std::string_view letters)
{
    return FirstLetters[static_cast<unsigned char>(letters.front())] &&
           std::any_of(std::begin(Words), std::end(Words),
                       [letters](std::string_view word) { return letters.substr(0, word.size()) == word; });
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
bool isSecretName(QStringView key)
{
    static const QRegularExpression separators(QStringLiteral("[-_. ]"));
    QVarLengthArray<char, 64> letters;
    for (const QChar character : key) {
        const ushort code = character.unicode();
        if (code >= 0x80)
            return hasSecretWord(key.toString().remove(separators));
        if (code != '-' && code != '_' && code != '.' && code != ' ')
            letters.append(code >= 'A' && code <= 'Z' ? static_cast<char>(code + ('a' - 'A'))
                                                      : static_cast<char>(code));
    }
    std::string_view rest(letters.constData(), static_cast<std::size_t>(letters.size()));
    for (; !rest.empty(); rest.remove_prefix(1)) {
        if (beginsWithSecretWord(rest))
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
