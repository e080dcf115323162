// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXCountingFileSet.h"

#include "FileRegistration.h"
#include "Platform.h"
#include "PYXRuntimeCenter.h"
#include "RecordFile.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>

#include <utility>

namespace PYXRuntime {
namespace {

const uint s_libraryScope =
    PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("PYXRuntime"), QStringLiteral("PYXRuntime"));
// Switches the messages of this class alone.
const uint s_classScope = PYXRuntimeCenter::registerRuntimeScope(
    QStringLiteral("CountingFileSet"),
    QStringLiteral(
        QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", "Files that counting file sets open and close")));

const struct
{
    QIODevice::OpenModeFlag flag;
    QLatin1String message;
} s_ignoredFlags[] = {
    {QIODevice::Unbuffered, QLatin1String("QIODevice::Unbuffered will be ignored")},
    {QIODevice::Append, QLatin1String("QIODevice::Append will be ignored")},
    {QIODevice::Truncate, QLatin1String("QIODevice::Truncate will be ignored")},
};

} // namespace

PYXCountingFileSet::PYXCountingFileSet(QObject *parent)
    : QIODevice(parent)
    , m_baseDirectory(QDir::tempPath())
{}

PYXCountingFileSet::~PYXCountingFileSet()
{
    PYXCountingFileSet::close();
}

void PYXCountingFileSet::setBaseDirectory(const QString &directory)
{
    if (directory == m_baseDirectory)
        return;
    m_baseDirectory = directory;
    _closeCurrentFile();
    _reportError();
}

void PYXCountingFileSet::setBaseFileName(const QString &fileName)
{
    if (fileName == m_baseFileName)
        return;
    m_baseFileName = fileName;
    _closeCurrentFile();
    _reportError();
}

void PYXCountingFileSet::setMaximumWeightPerFile(quint64 weight)
{
    if (weight == m_maximumWeightPerFile)
        return;
    m_maximumWeightPerFile = weight;
    if (isOpen())
        _checkWeight();
}

void PYXCountingFileSet::setFlushAfterWriting(bool flush)
{
    m_flushAfterWriting = flush;
    if (flush && isOpen())
        this->flush();
}

bool PYXCountingFileSet::open(OpenMode mode)
{
    if (isOpen() || mode.testFlag(ReadOnly))
        return false;
    for (const auto &ignored : s_ignoredFlags) {
        if (mode.testFlag(ignored.flag))
            _debug(ignored.message);
    }
    m_fileOpenMode = WriteOnly | (mode & Text);
    if (!QIODevice::open(m_fileOpenMode))
        return false;
    // Where line ends are translated, RecordFile does it: QIODevice would hand over every line in pieces,
    // and a set may move on to the next file after each.
    if (Platform::doLinesEndWithCarriageReturn())
        setTextModeEnabled(false);
    const QPointer<PYXCountingFileSet> guard(this);
    const bool bOpened = _openNextFile();
    if (bOpened || guard.isNull())
        return bOpened && !guard.isNull() && isOpen();
    QIODevice::close();
    setErrorString(m_error);
    m_error.clear();
    return false;
}

void PYXCountingFileSet::close()
{
    if (!isOpen())
        return;
    _closeCurrentFile();
    QIODevice::close();
    // Who hears aboutToClose() may have written a last time.
    _closeCurrentFile();
    if (!m_leftOver.isEmpty())
        _noteError(m_previousFilesPaths.value(m_previousFilesPaths.size() - 1, m_baseDirectory),
                   tr("%n byte(s) could not be written.", nullptr, m_leftOver.size()));
    m_leftOver.clear();
    _reportError();
}

bool PYXCountingFileSet::flush()
{
    if (_drain())
        return true;
    _reportError();
    return false;
}

bool PYXCountingFileSet::switchToNextFile()
{
    if (!isOpen())
        return false;
    const QPointer<PYXCountingFileSet> guard(this);
    const bool bOpened = _openNextFile();
    if (!guard.isNull())
        _reportError();
    return bOpened;
}

qint64 PYXCountingFileSet::readData(char *, qint64)
{
    return -1;
}

qint64 PYXCountingFileSet::writeData(const char *data, qint64 size)
{
    if (m_currentFile == nullptr) {
        const QPointer<PYXCountingFileSet> guard(this);
        const bool bOpened = _openNextFile();
        // Who hears of the new file may have closed or deleted the set.
        if (guard.isNull())
            return -1;
        if (!bOpened || m_currentFile == nullptr) {
            _reportError();
            return -1;
        }
    }
    const qint64 written = m_currentFile->append(data, size);
    const quint64 weight = written < 0 ? 0 : _getWeightOfData(data, size, written);
    const bool bPlain = written == size && !m_flushAfterWriting && m_error.isEmpty() &&
                        !m_currentFile->isOverdue() &&
                        m_weightOfCurrentFile + weight < m_maximumWeightPerFile;
    if (!bPlain)
        return _finishWrite(data, size, written, weight);
    m_weightOfCurrentFile += weight;
    return written;
}

quint64 PYXCountingFileSet::_getWeightOfData(const char *, qint64, qint64)
{
    return 0;
}

QString PYXCountingFileSet::_getNextFileName()
{
    const QFileInfo pattern(m_baseFileName);
    const QString baseName = pattern.baseName();
    const QString suffix = pattern.completeSuffix();
    QString name = baseName.isEmpty() ? QString() : baseName + QLatin1Char('_');
    name += QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss")) +
            QLatin1String("_UTC");
    return suffix.isEmpty() ? name : name + QLatin1Char('.') + suffix;
}

QString PYXCountingFileSet::_getNextFilePath()
{
    return m_baseDirectory + QLatin1Char('/') + _getNextFileName();
}

bool PYXCountingFileSet::_openNextFile()
{
    _closeCurrentFile();
    const QString path = _getNextFilePath();
    auto file = std::make_unique<RecordFile>(path, m_fileOpenMode.testFlag(Text) &&
                                                       Platform::doLinesEndWithCarriageReturn());
    if (!file->create(m_fileOpenMode)) {
        _noteError(path, file->errorString());
        return false;
    }
    m_currentFile = std::move(file);
    m_currentFilePath = path;
    m_weightOfCurrentFile = 0;
    m_currentFile->putPending(std::exchange(m_leftOver, QByteArray()));
    _debug(QLatin1String("opened next file [") + path + QLatin1Char(']'));
    if (m_registerWrittenFiles)
        registerWrittenFile({path, m_registerFileType, m_registerFileComponentName, {}, {}},
                            Qt::AutoConnection);
    return true;
}

void PYXCountingFileSet::_closeCurrentFile()
{
    if (m_currentFile == nullptr)
        return;
    _debug(QLatin1String("closing current file [") + m_currentFilePath + QLatin1Char(']'));
    // A tracer that writes to this very set may have filled the file.
    if (m_currentFile == nullptr)
        return;
    const bool bDrained = m_currentFile->drain();
    if (!bDrained)
        _noteError(m_currentFilePath, m_currentFile->errorString());
    m_leftOver += m_currentFile->takePending();
    m_currentFile->close();
    if (bDrained && m_currentFile->error() != QFileDevice::NoError)
        _noteError(m_currentFilePath, m_currentFile->errorString());
    m_currentFile.reset();
    m_weightOfCurrentFile = 0;
    m_previousFilesPaths.append(m_currentFilePath);
    m_currentFilePath.clear();
}

/** The signals come last: after them, the set may be gone. */
void PYXCountingFileSet::_checkWeight()
{
    if (!_isReachedBy(0)) {
        _reportError();
        return;
    }
    _debug(QLatin1String("maximum weight reached"));
    _closeCurrentFile();
    const QPointer<PYXCountingFileSet> guard(this);
    Q_EMIT si_maximumWeightReached();
    if (!guard.isNull())
        _reportError();
}

bool PYXCountingFileSet::_isReachedBy(quint64 weight) const
{
    return m_weightOfCurrentFile + weight >= m_maximumWeightPerFile;
}

bool PYXCountingFileSet::_drain()
{
    if (m_currentFile == nullptr || m_currentFile->drain())
        return true;
    _noteError(m_currentFilePath, m_currentFile->errorString());
    // Another file takes what this one has not.
    if (m_currentFile->isRemoved())
        _closeCurrentFile();
    return false;
}

/** The rest of a write after which there is more to do. What the system refuses of it at once is taken back.
 */
qint64 PYXCountingFileSet::_finishWrite(const char *data, qint64 size, qint64 written, quint64 weight)
{
    const bool bDrain = m_flushAfterWriting || _isReachedBy(weight) || m_currentFile->isOverdue();
    if (written == size && bDrain && !m_currentFile->drain()) {
        written -= m_currentFile->takeBack(size);
        weight = written > 0 ? _getWeightOfData(data, size, written) : 0;
    }
    if (written != size)
        _noteError(m_currentFilePath, m_currentFile->errorString());
    if (written > 0 || size == 0) {
        m_weightOfCurrentFile += weight;
        _checkWeight();
        return written;
    }
    if (m_currentFile->isRemoved())
        _closeCurrentFile();
    _reportError();
    return -1;
}

void PYXCountingFileSet::_noteError(const QString &path, const QString &reason)
{
    m_error = QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
    setErrorString(m_error);
}

/** The signal comes last: after it, the set may be gone. */
void PYXCountingFileSet::_reportError()
{
    if (m_error.isEmpty())
        return;
    const QString error = std::exchange(m_error, QString());
    setErrorString(error);
    Q_EMIT si_writeError(error);
}

void PYXCountingFileSet::_debug(const QString &text)
{
    const uint scope = PYXRuntimeCenter::isEnabled_pyxDebug(s_libraryScope) ? s_libraryScope : s_classScope;
    if (m_bSilent || m_bDebugging || !PYXRuntimeCenter::isEnabled_pyxDebug(scope))
        return;
    // A tracer may write traces to this very set: of that, it tells no more.
    const QScopedValueRollback<bool> debugging(m_bDebugging, true);
    // While the set is destroyed, that is this class.
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall)
    const QLatin1String className(metaObject()->className());
    const QString name = objectName().isEmpty() ? QStringLiteral("<unnamed>") : objectName();
    const QString address = QString::number(reinterpret_cast<quintptr>(this), 16);
    PYXRuntimeCenter::pyxDebug(scope,
                               QStringLiteral("%1(%2)[0x%3]: %4")
                                   .arg(className, name, address.rightJustified(8, QLatin1Char('0')), text));
}

} // namespace PYXRuntime
