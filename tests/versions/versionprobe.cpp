// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Prints, for every file named on standard input, one line of JSON with all that its version resource says.

#include "PeImage.h"
#include "PYXFixedFileInfo.h"
#include "PYXWinResVersion.h"
#include "VersionNode.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace PYXRuntime;

namespace {

QJsonArray fixedInfo(const PYXWinResVersion &version)
{
    const VS_FIXEDFILEINFO *const info = version.fixedFileInfo();
    if (info == nullptr)
        return {};
    QJsonArray fields;
    for (const quint32 field :
         {info->dwSignature, info->dwStrucVersion, info->dwFileVersionMS, info->dwFileVersionLS,
          info->dwProductVersionMS, info->dwProductVersionLS, info->dwFileFlagsMask, info->dwFileFlags,
          info->dwFileOS, info->dwFileType, info->dwFileSubtype, info->dwFileDateMS, info->dwFileDateLS})
        fields.append(qint64(field));
    return fields;
}

// The library answers for names; which there are is only known to the tree.
QJsonObject strings(const PYXWinResVersion &version, const VersionNode &root)
{
    QJsonObject tables;
    for (VersionNode table = root.child("StringFileInfo").firstChild(); table.isValid();
         table = table.next()) {
        const quint32 locale = table.key().toUInt(nullptr, 16);
        QJsonObject texts;
        for (VersionNode text = table.firstChild(); text.isValid(); text = text.next())
            texts[text.key()] = version.getString({quint16(locale >> 16), quint16(locale)}, text.key());
        tables[table.key()] = texts;
    }
    return tables;
}

} // namespace

int main()
{
    QFile paths;
    QFile output;
    if (!paths.open(stdin, QIODevice::ReadOnly) || !output.open(stdout, QIODevice::WriteOnly))
        return 1;
    for (QByteArray path = paths.readLine().trimmed(); !path.isEmpty(); path = paths.readLine().trimmed()) {
        const PYXWinResVersion version(QFile::decodeName(path));
        QFile file(version.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const VersionNode root(PeImage(file).resource(16, 1, {0, 0x0409}, 0xFFFF));
        QJsonArray locales;
        for (const PYXWinResVersion::LanguageCodePage locale : version.locales())
            locales.append(QJsonArray{locale.language, locale.codePage});
        const QJsonObject found{{"loaded", version.didLoad()},
                                {"fixed", fixedInfo(version)},
                                {"locales", locales},
                                {"strings", strings(version, root)}};
        output.write(QJsonDocument(found).toJson(QJsonDocument::Compact) + '\n');
    }
    return 0;
}
