// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRetainingFileSet.h"

#include "LineEnds.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <vector>

namespace PYXRuntime {
namespace {

constexpr int NumberDigits = 3;

struct struOldFile
{
    QString name;
    QString moment;
    int number = 1;
    quint64 size = 0;

    bool isNewerThan(const struOldFile &other) const
    {
        return moment != other.moment ? moment > other.moment : number > other.number;
    }
};

QString suffixOf(const QString &baseFileName)
{
    const QString suffix = QFileInfo(baseFileName).completeSuffix();
    return suffix.isEmpty() ? suffix : QLatin1Char('.') + suffix;
}

/** The names that a set with this base file name gives; captures the moment and the number. */
QRegularExpression namePattern(const QString &baseFileName)
{
    const QString baseName = QFileInfo(baseFileName).baseName();
    const QString start =
        baseName.isEmpty() ? baseName : QRegularExpression::escape(baseName) + QLatin1Char('_');
    return QRegularExpression(
        QLatin1Char('^') + start +
        QLatin1String("([0-9]{4}-[0-9]{2}-[0-9]{2}_[0-9]{2}-[0-9]{2}-[0-9]{2})_UTC(?:_([0-9]{3,9}))?") +
        QRegularExpression::escape(suffixOf(baseFileName)) + QLatin1Char('$'));
}

/** The files of a set but one, the newest first. */
std::vector<struOldFile> oldFiles(const QString &directory, const QString &baseFileName,
                                  const QString &except)
{
    std::vector<struOldFile> files;
    const QRegularExpression pattern = namePattern(baseFileName);
    const auto entries = QDir(directory).entryInfoList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (const QFileInfo &entry : entries) {
        const auto match = pattern.match(entry.fileName());
        if (!match.hasMatch() || entry.fileName() == except)
            continue;
        const int number = match.capturedLength(2) == 0 ? 1 : match.captured(2).toInt();
        files.push_back({entry.fileName(), match.captured(1), number, static_cast<quint64>(entry.size())});
    }
    std::sort(files.begin(), files.end(),
              [](const struOldFile &left, const struOldFile &right) { return left.isNewerThan(right); });
    return files;
}

} // namespace

PYXRetainingFileSet::PYXRetainingFileSet(QObject *parent)
    : PYXCountingFileSet(parent)
{}

PYXRetainingFileSet::~PYXRetainingFileSet() = default;

quint64 PYXRetainingFileSet::_getWeightOfData(const char *data, qint64, qint64 writtenSize)
{
    return m_countedWeight == ekWeight_Lines ? countLineEnds(data, writtenSize)
                                             : static_cast<quint64>(qMax<qint64>(writtenSize, 0));
}

QString PYXRetainingFileSet::_getNextFileName()
{
    bool bTaken = false;
    QString name = _takeName(bTaken);
    // Where the new file cannot be, the old ones stay.
    if (bTaken && (m_maximumNumberOfFiles > 0 || m_maximumSizeOfFiles > 0))
        _deleteOldFiles(name);
    return name;
}

QString PYXRetainingFileSet::_takeName(bool &bTaken)
{
    const QString first = PYXCountingFileSet::_getNextFileName();
    const QString directory = baseDirectory() + QLatin1Char('/');
    const QString suffix = suffixOf(baseFileName());
    // Goes on from the last number, so that many files of one second do not all try all names.
    m_lastNumber = directory + first == m_lastPath ? m_lastNumber + 1 : 1;
    m_lastPath = directory + first;
    for (;; ++m_lastNumber) {
        QString name = first;
        if (m_lastNumber > 1)
            name.insert(first.size() - suffix.size(),
                        QStringLiteral("_%1").arg(m_lastNumber, NumberDigits, 10, QLatin1Char('0')));
        QFile file(directory + name);
        bTaken = file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
        if (bTaken || !(file.exists() || QFileInfo(file.fileName()).isSymLink()))
            return name;
    }
}

void PYXRetainingFileSet::_deleteOldFiles(const QString &newName)
{
    int number = 1;
    quint64 size = 0;
    bool bDelete = false;
    const std::vector<struOldFile> files = oldFiles(baseDirectory(), baseFileName(), newName);
    for (const struOldFile &file : files) {
        size += file.size;
        bDelete = bDelete || (m_maximumNumberOfFiles > 0 && ++number > m_maximumNumberOfFiles) ||
                  (m_maximumSizeOfFiles > 0 && size > m_maximumSizeOfFiles);
        const QString path = baseDirectory() + QLatin1Char('/') + file.name;
        if (!bDelete || !QFile::remove(path))
            continue;
        _forgetPreviousFile(path);
        _debug(QLatin1String("deleted old file [") + path + QLatin1Char(']'));
    }
}

} // namespace PYXRuntime
