// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SecretMask.h"

#include "SecretFinder.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace PYXRuntime {
namespace {

const QLatin1String Mask("***");
const QLatin1String UrlMark("://");
constexpr int LongestName = 64;

bool isSeparator(QChar character)
{
    return character == QLatin1Char('=') || character == QLatin1Char(':') || character == QLatin1Char('|');
}

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_') || character == QLatin1Char('-') ||
           character == QLatin1Char('.');
}

/** Whether what stands before the separator names a secret. */
bool followsSecretName(QStringView text, int separator)
{
    int end = separator;
    while (end > 0 && !isNameCharacter(text[end - 1]) && !isSeparator(text[end - 1]))
        --end;
    int begin = end;
    while (begin > 0 && end - begin < LongestName && isNameCharacter(text[begin - 1]))
        --begin;
    return begin < end && SecretFinder::isSecretName(text.mid(begin, end - begin));
}

QString withoutUrlPasswords(QString text)
{
    static const QRegularExpression password(QStringLiteral("(://[^/?#\\s:@]*:)\\S*@"));
    return text.replace(password, QLatin1String("\\1***@"));
}

} // namespace

QString withoutSecrets(const QString &text)
{
    const QStringView view(text);
    bool bHasUrl = false;
    for (auto found = view.begin(); (found = std::find_if(found, view.end(), isSeparator)) != view.end();
         ++found) {
        const auto at = static_cast<int>(found - view.begin());
        if (followsSecretName(view, at)) {
            const QString kept = text.left(at + 1) + Mask;
            return bHasUrl ? withoutUrlPasswords(kept) : kept;
        }
        bHasUrl = bHasUrl || (*found == QLatin1Char(':') && view.mid(at).startsWith(UrlMark));
    }
    return bHasUrl ? withoutUrlPasswords(text) : text;
}

} // namespace PYXRuntime
