// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DamagedFileKeeper.h"

#include "PYXTraceWrapper.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>

namespace PYXRuntime {
namespace {

constexpr char SourceTag[] = "source\\DamagedFileKeeper";
constexpr int KeptCopies = 3;
constexpr int ChunkSize = 64 * 1024;

QString copyPrefix(const QFileInfo &file)
{
    return file.fileName() + QLatin1String(".damaged-");
}

/** Existing copies, the oldest first: their time stamps sort like their names. */
QStringList copiesOf(const QFileInfo &file)
{
    const QRegularExpression stamped(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(copyPrefix(file)) + QStringLiteral("[0-9]{8}T[0-9]{9}Z")));
    QStringList copies;
    const QStringList names = file.dir().entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        if (stamped.match(name).hasMatch())
            copies.append(file.dir().filePath(name));
    }
    return copies;
}

QString newCopyPath(const QFileInfo &file)
{
    QDateTime stamp = QDateTime::currentDateTimeUtc();
    QString path;
    do {
        const QString text = stamp.toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'"));
        path = file.dir().filePath(copyPrefix(file) + text);
        stamp = stamp.addMSecs(1);
    } while (QFileInfo::exists(path));
    return path;
}

bool hasContent(const QString &copyPath, QFileDevice &file)
{
    QFile copy(copyPath);
    if (copy.size() != file.size() || !copy.open(QIODevice::ReadOnly) || !file.seek(0))
        return false;
    while (!copy.atEnd()) {
        const QByteArray chunk = copy.read(ChunkSize);
        if (chunk.isEmpty() || chunk != file.read(chunk.size()))
            return false;
    }
    return true;
}

bool copyTo(const QString &path, QFileDevice &file)
{
    QSaveFile copy(path);
    if (!file.seek(0) || !copy.open(QIODevice::WriteOnly))
        return false;
    for (QByteArray chunk = file.read(ChunkSize); !chunk.isEmpty(); chunk = file.read(ChunkSize)) {
        if (copy.write(chunk) != chunk.size())
            return false;
    }
    // Settings may hold what only their owner is to read.
    copy.setPermissions(file.permissions());
    return file.atEnd() && copy.flush() && copy.commit();
}

} // namespace

void DamagedFileKeeper::keep(QFileDevice &file)
{
    const QFileInfo info(file.fileName());
    QStringList copies = copiesOf(info);
    for (const QString &copy : qAsConst(copies)) {
        if (hasContent(copy, file))
            return;
    }
    const QString path = newCopyPath(info);
    if (!copyTo(path, file)) {
        const QString message =
            QStringLiteral("The settings file \"%1\" cannot be read, and no copy could be "
                           "made as \"%2\".");
        PYXTraceWrapper::staticTraceWarn(message.arg(file.fileName(), path), SourceTag, ushort(__LINE__));
        return;
    }
    copies.append(path);
    while (copies.size() > KeptCopies)
        QFile::remove(copies.takeFirst());
    const QString message = QStringLiteral("The settings file \"%1\" cannot be read; it was kept as \"%2\".");
    PYXTraceWrapper::staticTraceWarn(message.arg(file.fileName(), path), SourceTag, ushort(__LINE__));
}

} // namespace PYXRuntime
